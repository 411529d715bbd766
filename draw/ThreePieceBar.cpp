#include "draw/ThreePieceBar.h"

#include "draw/Imagery.h"

#include <CEGUI/Image.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
float widthOf(const Image* image)
{
    return image ? image->getRenderedSize().d_width : 0.0f;
}
} // namespace

ThreePieceBar ThreePieceBar::named(const char* left, const char* middle, const char* right)
{
    return {&lookImage(left), &lookImage(middle), &lookImage(right)};
}

float ThreePieceBar::capsWidth() const
{
    return widthOf(left) + widthOf(right);
}

void ThreePieceBar::draw(GeometryBuffer& buffer, const Rectf& area, const ColourRect& colours,
                         const Rectf* clip, bool tileMiddle) const
{
    const float width = area.getWidth();
    if (!(width > 0.0f) || !(area.getHeight() > 0.0f))
        return;
    float leftWidth = widthOf(left);
    float rightWidth = widthOf(right);
    if (leftWidth + rightWidth > width)
    {
        const float scale = width / (leftWidth + rightWidth);
        leftWidth = std::floor(leftWidth * scale);
        rightWidth = width - leftWidth;
    }
    const float top = area.top(), bottom = area.bottom();
    if (left && leftWidth > 0)
        left->render(buffer, Rectf(area.left(), top, area.left() + leftWidth, bottom), clip,
                     colours);
    const Rectf middleArea(area.left() + leftWidth, top, area.right() - rightWidth, bottom);
    if (middle && middleArea.getWidth() > 0)
    {
        const float tile = widthOf(middle);
        if (!tileMiddle || tile <= 0)
            middle->render(buffer, middleArea, clip, colours);
        else
        {
            // Only the tiles that meet the clip, counted from the middle's left edge in
            // doubles: a float position stops moving past 2^24 pixels.
            const Rectf cut = clip ? middleArea.getIntersection(*clip) : middleArea;
            const double origin = middleArea.left();
            const double first = std::floor((cut.left() - origin) / tile);
            const double end = std::ceil((cut.right() - origin) / tile);
            for (double i = std::max(0.0, first); i < end; ++i)
            {
                const float x = static_cast<float>(origin + i * tile);
                middle->render(buffer, Rectf(x, top, x + tile, bottom), &cut, colours);
            }
        }
    }
    if (right && rightWidth > 0)
        right->render(buffer, Rectf(area.right() - rightWidth, top, area.right(), bottom), clip,
                      colours);
}

} // namespace MoxieLook
} // namespace CEGUI
