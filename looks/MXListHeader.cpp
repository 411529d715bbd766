#include "looks/MXListHeader.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"
#include "looks/AutoParts.h"

#include <CEGUI/Font.h>
#include <CEGUI/WindowManager.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXListHeaderSegment::TextColour(0x0026313D);
const Colour MXListHeaderSegment::PushedTint(0x00C4CDD9);
const char* MXListHeader::SegmentType = "MoxieLook/ListHeaderSegment";

MXListHeaderSegment::MXListHeaderSegment(const String& type, const String& name)
    : RedrawnWhenUncovered<ListHeaderSegment>(type, name), d_normal(&lookImage(NormalImageName)),
      d_hover(&lookImage(HoverImageName)), d_splitterNormal(&lookImage(SplitterNormalImageName)),
      d_splitterHover(&lookImage(SplitterHoverImageName)), d_sortUp(&lookImage(SortUpImageName)),
      d_sortDown(&lookImage(SortDownImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setSizingCursorImage(&lookImage(SizingCursorImageName));
    setMovingCursorImage(&lookImage(MovingCursorImageName));
}

// CEGUI's segment changes its hover, pushed and dragging flags without redrawing.
void MXListHeaderSegment::onMouseMove(MouseEventArgs& e)
{
    ListHeaderSegment::onMouseMove(e);
    invalidate();
}

void MXListHeaderSegment::onMouseLeaves(MouseEventArgs& e)
{
    ListHeaderSegment::onMouseLeaves(e);
    invalidate();
}

void MXListHeaderSegment::onMouseButtonDown(MouseEventArgs& e)
{
    ListHeaderSegment::onMouseButtonDown(e);
    invalidate();
}

void MXListHeaderSegment::onMouseButtonUp(MouseEventArgs& e)
{
    ListHeaderSegment::onMouseButtonUp(e);
    invalidate();
}

void MXListHeaderSegment::onCaptureLost(WindowEventArgs& e)
{
    ListHeaderSegment::onCaptureLost(e);
    invalidate();
}

void MXListHeaderSegment::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    drawAt(Vector2f(0, 0), 1.0f);
    if (isBeingDragMoved())
        drawAt(getDragMoveOffset(), GhostAlpha);
}

void MXListHeaderSegment::drawAt(const Vector2f& origin, float fade)
{
    GeometryBuffer& buffer = getGeometryBuffer();
    const Sizef size = getPixelSize();
    const float alpha = getEffectiveAlpha() * fade;
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha);
    const Rectf area(origin, size);

    const bool lit = isSegmentHovering() || isSegmentPushed();
    const ColourRect backdrop =
        isSegmentPushed() ? withAlpha(ColourRect(PushedTint), alpha) : white;
    drawImage(buffer, *(lit ? d_hover : d_normal), area, nullptr, backdrop);

    const Image* splitter =
        isSplitterHovering() || isBeingDragSized() ? d_splitterHover : d_splitterNormal;
    const float splitterWidth = splitter->getRenderedSize().d_width;
    drawImage(buffer, *splitter,
              Rectf(area.right() - splitterWidth, area.top(), area.right(), area.bottom()), nullptr,
              white);

    float textRight = area.right() - splitterWidth - TextPadding;
    if (getSortDirection() != None)
    {
        const Image* arrow = getSortDirection() == Ascending ? d_sortUp : d_sortDown;
        const Sizef arrowSize = arrow->getRenderedSize();
        const Vector2f at(textRight - arrowSize.d_width,
                          area.top() + std::floor((size.d_height - arrowSize.d_height) * 0.5f));
        drawImage(buffer, *arrow, Rectf(at, arrowSize), nullptr, white);
        textRight = at.d_x - TextPadding;
    }
    if (getFont() && !getText().empty())
    {
        const Rectf text(area.left() + TextPadding, area.top(), textRight, area.bottom());
        drawText(*this, buffer, getRenderedString(), text, HorzTextFormat::Left,
                 VertTextFormat::Centred, ColourRect(withAlpha(TextColour, alpha)), &text);
    }
}

MXListHeader::MXListHeader(const String& type, const String& name)
    : RedrawnWhenUncovered<ListHeader>(type, name), d_backdrop(&lookImage(BackdropImageName))
{
    setMouseCursor(&lookImage(MXListHeaderSegment::MouseCursorImageName));
    setWindowRenderer(MXListHeaderRenderer::TypeName);
}

float MXListHeader::naturalHeight() const
{
    const Font* font = getFont();
    return std::max(d_backdrop->getRenderedSize().d_height,
                    font ? std::ceil(font->getLineSpacing()) + 6 : 0.0f);
}

ListHeaderSegment* MXListHeader::makeSegment(const String& name) const
{
    return createAutoPart<ListHeaderSegment>(SegmentType, name, "a list header's segment");
}

void MXListHeader::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    drawImage(getGeometryBuffer(), *d_backdrop, Rectf(Vector2f(0, 0), getPixelSize()), nullptr,
              withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha()));
}

ListHeaderSegment* MXListHeaderRenderer::createNewSegment(const String& name) const
{
    if (!look())
        throw InvalidRequestException("The window renderer '" + getName() +
                                      "' has no list header to make segments for.");
    return look()->makeSegment(name);
}

void MXListHeaderRenderer::destroyListSegment(ListHeaderSegment* segment) const
{
    WindowManager::getSingleton().destroyWindow(segment);
}

} // namespace MoxieLook
} // namespace CEGUI
