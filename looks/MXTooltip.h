// "MoxieLook/Tooltip": a framed box ("Tooltip..." frame around "TooltipMiddle") with the
// target's tooltip text word-wrapped in it, in the tooltip's text colour at the window's
// alpha. The box is the text size plus the frame; should the wrapped text need more
// height, the box grows and skips drawing for that one frame.
#pragma once

#include "draw/FramedFill.h"
#include "draw/NinePieceFrame.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"
#include "widgets/TooltipEx.h"

#include <CEGUI/RenderedString.h>

namespace CEGUI
{
namespace MoxieLook
{
class MXTooltip : public TooltipEx
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Tooltip";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char TopLeftImageName[] = "TooltipTopLeft";
    static constexpr char TopRightImageName[] = "TooltipTopRight";
    static constexpr char BottomLeftImageName[] = "TooltipBottomLeft";
    static constexpr char BottomRightImageName[] = "TooltipBottomRight";
    static constexpr char LeftEdgeImageName[] = "TooltipLeftEdge";
    static constexpr char TopEdgeImageName[] = "TooltipTopEdge";
    static constexpr char RightEdgeImageName[] = "TooltipRightEdge";
    static constexpr char BottomEdgeImageName[] = "TooltipBottomEdge";
    static constexpr char MiddleImageName[] = "TooltipMiddle";

    MXTooltip(const String& type, const String& name);

    //! The frame's left and right edge widths, top and bottom edge heights.
    const EdgeInsets& getFrameInsets() const { return d_insets; }
    //! True from a draw that grew the box until the next one.
    bool skippedLastDraw() const { return d_skipped; }

    void populateGeometryBuffer() override;

protected:
    //! Every size asked for gets the frame added around it.
    void onSized(ElementEventArgs& e) override;
    void updateSelf(float elapsed) override;

private:
    const RenderedString& targetText();

    const Image* d_background;
    NinePieceFrame d_frame;
    ColourRect d_frameColours{Colour(0x00FFFFFF)};
    ColourRect d_backgroundColours{Colour(0x00FFFFFF)};
    EdgeInsets d_insets;
    RenderedString d_targetText;
    bool d_skipped = false;
};

//! CEGUI's tooltip sizes itself by asking its renderer for the text size.
class MXTooltipRenderer : public LookRenderer<TooltipWindowRenderer, MXTooltip>
{
public:
    static constexpr char TypeName[] = "MoxieLook/TooltipRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->populateGeometryBuffer();
    }
    //! Whole pixels up: CEGUI 0.8 rounds window sizes, and a box rounded down would cut
    //! off the last line.
    Sizef getTextSize() const override;
};

using MXTooltipFactory = LookFactory<MXTooltip>;
using MXTooltipRendererFactory = LookRendererFactory<MXTooltipRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
