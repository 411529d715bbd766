// "MoxieLook/ListHeaderSegment": one column heading: a backdrop ("HeaderBarBackdropNormal",
// "...Hover" under the pointer, pressed: the hover backdrop tinted), the title from the left,
// a sort arrow ("HeaderBarSortUp" / "...Down") and the splitter at the right end
// ("HeaderBarSplitterNormal", "...Hover" while it can be dragged). While moved by drag, a
// faded copy follows the pointer. "MoxieLook/ListHeader": the backdrop behind its segments.
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"

#include <CEGUI/widgets/ListHeader.h>
#include <CEGUI/widgets/ListHeaderSegment.h>

namespace CEGUI
{
namespace MoxieLook
{
class MXListHeaderSegment : public RedrawnWhenUncovered<ListHeaderSegment>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ListHeaderSegment";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char SizingCursorImageName[] = "MouseEsWeCursor";
    static constexpr char MovingCursorImageName[] = "MouseMoveCursor";
    static constexpr char NormalImageName[] = "HeaderBarBackdropNormal";
    static constexpr char HoverImageName[] = "HeaderBarBackdropHover";
    static constexpr char SplitterNormalImageName[] = "HeaderBarSplitterNormal";
    static constexpr char SplitterHoverImageName[] = "HeaderBarSplitterHover";
    static constexpr char SortUpImageName[] = "HeaderBarSortUp";
    static constexpr char SortDownImageName[] = "HeaderBarSortDown";
    static const Colour TextColour;
    static const Colour PushedTint;
    //! Room left of the title and around the sort arrow.
    static constexpr float TextPadding = 5.0f;
    //! Share of the window's alpha the dragged copy is drawn with.
    static constexpr float GhostAlpha = 0.5f;

    MXListHeaderSegment(const String& type, const String& name);

protected:
    void populateGeometryBuffer() override;
    void onMouseMove(MouseEventArgs& e) override;
    void onMouseLeaves(MouseEventArgs& e) override;
    void onMouseButtonDown(MouseEventArgs& e) override;
    void onMouseButtonUp(MouseEventArgs& e) override;
    void onCaptureLost(WindowEventArgs& e) override;

private:
    //! The whole segment drawn with its top-left at `origin`, faded by `alpha`.
    void drawAt(const Vector2f& origin, float alpha);

    const Image* d_normal;
    const Image* d_hover;
    const Image* d_splitterNormal;
    const Image* d_splitterHover;
    const Image* d_sortUp;
    const Image* d_sortDown;
};

class MXListHeader : public RedrawnWhenUncovered<ListHeader>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ListHeader";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char BackdropImageName[] = "HeaderBarBackdropNormal";
    //! Type of the segments it makes; a host may point it at its own.
    static const char* SegmentType;

    MXListHeader(const String& type, const String& name);

    //! The header's natural height for its font.
    float naturalHeight() const;

    virtual ListHeaderSegment* makeSegment(const String& name) const;
    void populateGeometryBuffer() override;

private:
    const Image* d_backdrop;
};

//! CEGUI's list header asks its renderer for new segments; this one asks the look.
class MXListHeaderRenderer : public LookRenderer<ListHeaderWindowRenderer, MXListHeader>
{
public:
    static constexpr char TypeName[] = "MoxieLook/ListHeaderRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->populateGeometryBuffer();
    }
    ListHeaderSegment* createNewSegment(const String& name) const override;
    void destroyListSegment(ListHeaderSegment* segment) const override;
};

using MXListHeaderSegmentFactory = LookFactory<MXListHeaderSegment>;
using MXListHeaderFactory = LookFactory<MXListHeader>;
using MXListHeaderRendererFactory = LookRendererFactory<MXListHeaderRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
