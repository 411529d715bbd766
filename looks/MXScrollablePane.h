// "MoxieLook/ScrollablePane": a framed pane whose content scrolls with the module's own
// scroll bars, shown when the content needs them (or always, as CEGUI's properties say).
// Images: the "StaticFrame..." frame, "StaticFrameFill", "MouseArrow".
#pragma once

#include "draw/FramedFill.h"
#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"

#include <CEGUI/widgets/ScrollablePane.h>

namespace CEGUI
{
namespace MoxieLook
{
class MXScrollablePane : public RedrawnWhenUncovered<ScrollablePane>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ScrollablePane";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char BackgroundImageName[] = "StaticFrameFill";
    static constexpr char TopLeftFrameImageName[] = "StaticFrameTopLeft";
    static constexpr char TopRightFrameImageName[] = "StaticFrameTopRight";
    static constexpr char BottomLeftFrameImageName[] = "StaticFrameBottomLeft";
    static constexpr char BottomRightFrameImageName[] = "StaticFrameBottomRight";
    static constexpr char LeftFrameImageName[] = "StaticFrameLeft";
    static constexpr char RightFrameImageName[] = "StaticFrameRight";
    static constexpr char TopFrameImageName[] = "StaticFrameTop";
    static constexpr char BottomFrameImageName[] = "StaticFrameBottom";
    static const char* VertScrollbarType;
    static const char* HorzScrollbarType;
    //! Thickness of either scroll bar, in pixels.
    static constexpr float ScrollbarThickness = 18.0f;

    MXScrollablePane(const String& type, const String& name);

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

    //! Frame and fill can be switched off, for a pane inside another framed widget.
    bool isFrameEnabled() const { return d_frameEnabled; }
    void setFrameEnabled(bool enabled);
    bool isBackgroundEnabled() const { return d_backgroundEnabled; }
    void setBackgroundEnabled(bool enabled);

    // What CEGUI's ScrollablePane asks its renderer for (window-local pixels).
    virtual Rectf viewableArea() const;
    void populateGeometryBuffer() override;

private:
    EdgeInsets frameInsets() const;

    NinePieceFrame d_frame;
    const Image* d_background;
    bool d_frameEnabled = true;
    bool d_backgroundEnabled = true;
    bool d_layingOut = false;
};

//! Forwards what CEGUI's ScrollablePane asks of a renderer to the look.
class MXScrollablePaneRenderer : public LookRenderer<ScrollablePaneWindowRenderer, MXScrollablePane>
{
public:
    static constexpr char TypeName[] = "MoxieLook/ScrollablePaneRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->populateGeometryBuffer();
    }
    Rectf getViewableArea() const override
    {
        return look() ? look()->viewableArea() : Rectf(0, 0, 0, 0);
    }
    //! Content is clipped to the viewable area, not to the frame.
    Rectf getUnclippedInnerRect() const override;
};

using MXScrollablePaneFactory = LookFactory<MXScrollablePane>;
using MXScrollablePaneRendererFactory = LookRendererFactory<MXScrollablePaneRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
