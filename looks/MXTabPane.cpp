#include "looks/MXTabPane.h"

#include "draw/Imagery.h"
#include "looks/MXTabButton.h"

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXTabPane::MiddleColour(MXTabButton::SelectedMiddleColour);

MXTabPane::MXTabPane(const String& type, const String& name)
    : Static(type, name), d_left(&lookImage(LeftImageName)), d_middle(&lookImage(MiddleImageName)),
      d_right(&lookImage(RightImageName)), d_lowerLeft(&lookImage(LowerLeftImageName)),
      d_lowerRight(&lookImage(LowerRightImageName)), d_lower(&lookImage(LowerImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

EdgeInsets MXTabPane::edges() const
{
    EdgeInsets edges;
    edges.left = d_left->getRenderedSize().d_width;
    edges.right = d_right->getRenderedSize().d_width;
    edges.bottom = d_lower->getRenderedSize().d_width;
    return edges;
}

Rectf MXTabPane::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    return edges().inside(skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                                : getUnclippedOuterRect().get());
}

void MXTabPane::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const ColourRect tint = withAlpha(ColourRect(MiddleColour), getEffectiveAlpha());

    const Sizef area = getPixelSize();
    const EdgeInsets e = edges();
    const float middle = area.d_width - e.left - e.right;
    const float side = area.d_height - e.bottom;
    auto put =
        [&buffer](const Image* image, float x, float y, float w, float h, const ColourRect& colours)
    { image->render(buffer, Rectf(x, y, x + w, y + h), nullptr, colours); };

    put(d_left, 0, 0, e.left, side, tint);
    put(d_lowerLeft, 0, side, e.left, e.bottom, tint);
    put(d_middle, e.left, 0, middle, side, tint);
    put(d_lower, e.left, side, middle, e.bottom, tint);
    put(d_right, area.d_width - e.right, 0, e.right, side, tint);
    put(d_lowerRight, area.d_width - e.right, side, e.right, e.bottom, tint);
}

} // namespace MoxieLook
} // namespace CEGUI
