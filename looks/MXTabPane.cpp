#include "looks/MXTabPane.h"

#include "draw/Imagery.h"
#include "looks/MXTabButton.h"

#include <CEGUI/Image.h>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXTabPane::MiddleColour(MXTabButton::SelectedMiddleColour);

MXTabPane::MXTabPane(const String& type, const String& name) : Static(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

EdgeInsets MXTabPane::edges()
{
    EdgeInsets edges;
    edges.left = lookImage(LeftImageName).getRenderedSize().d_width;
    edges.right = lookImage(RightImageName).getRenderedSize().d_width;
    edges.bottom = lookImage(LowerImageName).getRenderedSize().d_width;
    return edges;
}

Rectf MXTabPane::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    return edges().inside(skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                                : getUnclippedOuterRect().get());
}

void MXTabPane::drawPieces(GeometryBuffer& buffer, const Sizef& area, float alpha)
{
    const ColourRect tint = withAlpha(ColourRect(MiddleColour), alpha);
    const EdgeInsets e = edges();
    const float middle = area.d_width - e.left - e.right;
    const float side = area.d_height - e.bottom;
    auto put = [&buffer, &tint](const char* image, float x, float y, float w, float h)
    { lookImage(image).render(buffer, Rectf(x, y, x + w, y + h), nullptr, tint); };

    put(LeftImageName, 0, 0, e.left, side);
    put(LowerLeftImageName, 0, side, e.left, e.bottom);
    put(MiddleImageName, e.left, 0, middle, side);
    put(LowerImageName, e.left, side, middle, e.bottom);
    put(RightImageName, area.d_width - e.right, 0, e.right, side);
    put(LowerRightImageName, area.d_width - e.right, side, e.right, e.bottom);
}

void MXTabPane::populateGeometryBuffer()
{
    if (hasVisibleArea(*this))
        drawPieces(getGeometryBuffer(), getPixelSize(), getEffectiveAlpha());
}

} // namespace MoxieLook
} // namespace CEGUI
