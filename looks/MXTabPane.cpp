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

EdgeInsets MXTabPane::edges(bool topRow, bool bottomRow)
{
    EdgeInsets e = edges();
    const float row = e.bottom;
    e.top = topRow ? row : 0.0f;
    e.bottom = bottomRow ? row : 0.0f;
    return e;
}

void MXTabPane::drawPieces(GeometryBuffer& buffer, const Sizef& area, float alpha, bool topRow,
                           bool bottomRow)
{
    const ColourRect tint = withAlpha(ColourRect(MiddleColour), alpha);
    const EdgeInsets e = edges(topRow, bottomRow);
    const float middle = area.d_width - e.left - e.right;
    const float side = area.d_height - e.top - e.bottom;
    auto put = [&buffer, &tint](const char* image, float x, float y, float w, float h)
    { lookImage(image).render(buffer, Rectf(x, y, x + w, y + h), nullptr, tint); };
    // Column by column, as the pane has always been drawn. A top row is the lower edge's
    // straight line across the whole width: the lower corners would curl the wrong way.
    if (topRow)
        put(LowerImageName, 0, 0, area.d_width, e.top);
    put(LeftImageName, 0, e.top, e.left, side);
    if (!bottomRow)
    {
        put(MiddleImageName, e.left, e.top, middle, side);
        put(RightImageName, area.d_width - e.right, e.top, e.right, side);
        return;
    }
    put(LowerLeftImageName, 0, e.top + side, e.left, e.bottom);
    put(MiddleImageName, e.left, e.top, middle, side);
    put(LowerImageName, e.left, e.top + side, middle, e.bottom);
    put(RightImageName, area.d_width - e.right, e.top, e.right, side);
    put(LowerRightImageName, area.d_width - e.right, e.top + side, e.right, e.bottom);
}

void MXTabPane::populateGeometryBuffer()
{
    if (hasVisibleArea(*this))
        drawPieces(getGeometryBuffer(), getPixelSize(), getEffectiveAlpha());
}

} // namespace MoxieLook
} // namespace CEGUI
