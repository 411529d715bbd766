#include "looks/MXTabPane.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/MXTabButton.h"

#include <CEGUI/Image.h>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXTabPane::MiddleColour(MXTabButton::SelectedMiddleColour);

TabPanePieces::TabPanePieces()
    : d_left(&lookImage(MXTabPane::LeftImageName)),
      d_middle(&lookImage(MXTabPane::MiddleImageName)),
      d_right(&lookImage(MXTabPane::RightImageName)),
      d_lowerLeft(&lookImage(MXTabPane::LowerLeftImageName)),
      d_lowerRight(&lookImage(MXTabPane::LowerRightImageName)),
      d_lower(&lookImage(MXTabPane::LowerImageName))
{
}

EdgeInsets TabPanePieces::edges(bool topRow, bool bottomRow) const
{
    EdgeInsets e;
    e.left = d_left->getRenderedSize().d_width;
    e.right = d_right->getRenderedSize().d_width;
    const float row = d_lower->getRenderedSize().d_width;
    e.top = topRow ? row : 0.0f;
    e.bottom = bottomRow ? row : 0.0f;
    return e;
}

void TabPanePieces::draw(GeometryBuffer& buffer, const Sizef& area, float alpha, bool topRow,
                         bool bottomRow) const
{
    const ColourRect tint = withAlpha(ColourRect(MXTabPane::MiddleColour), alpha);
    const EdgeInsets e = edges(topRow, bottomRow);
    const float middle = area.d_width - e.left - e.right;
    const float side = area.d_height - e.top - e.bottom;
    auto put = [&buffer, &tint](const Image* image, float x, float y, float w, float h)
    { drawImage(buffer, *image, Rectf(x, y, x + w, y + h), nullptr, tint); };
    // Column by column, as the pane has always been drawn.
    if (topRow)
        put(d_lower, 0, 0, area.d_width, e.top);
    put(d_left, 0, e.top, e.left, side);
    if (!bottomRow)
    {
        put(d_middle, e.left, e.top, middle, side);
        put(d_right, area.d_width - e.right, e.top, e.right, side);
        return;
    }
    put(d_lowerLeft, 0, e.top + side, e.left, e.bottom);
    put(d_middle, e.left, e.top, middle, side);
    put(d_lower, e.left, e.top + side, middle, e.bottom);
    put(d_right, area.d_width - e.right, e.top, e.right, side);
    put(d_lowerRight, area.d_width - e.right, e.top + side, e.right, e.bottom);
}

MXTabPane::MXTabPane(const String& type, const String& name) : Static(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

Rectf MXTabPane::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    return d_pieces.edges().inside(skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                                         : getUnclippedOuterRect().get());
}

void MXTabPane::populateGeometryBuffer()
{
    if (hasVisibleArea(*this))
        d_pieces.draw(getGeometryBuffer(), getPixelSize(), getEffectiveAlpha());
}

} // namespace MoxieLook
} // namespace CEGUI
