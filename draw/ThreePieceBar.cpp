#include "draw/ThreePieceBar.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

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

namespace
{
// Only the tiles that meet `cut`, counted by index: a float position stepped by a tile's
// width stops moving past 2^24 pixels.
void tile(GeometryBuffer& buffer, const Image& image, const Rectf& area, const Rectf& cut,
          const ColourRect& colours)
{
    const float width = widthOf(&image);
    if (!(cut.getWidth() > 0))
        return;
    // So far out that floats hold a tile's edges only roughly apart: one stretched piece
    // covers what can be seen without gaps.
    const float far = std::max(std::fabs(cut.left()), std::fabs(cut.right()));
    if (std::nextafter(far, INFINITY) - far > width / 8)
        return drawImage(buffer, image, cut, &cut, colours);
    const double origin = area.left();
    const double first = std::floor((cut.left() - origin) / width);
    const double end = std::ceil((cut.right() - origin) / width);
    for (double i = std::max(0.0, first); i < end; ++i)
    {
        const float x = static_cast<float>(origin + i * width);
        drawImage(buffer, image, Rectf(x, area.top(), x + width, area.bottom()), &cut, colours);
    }
}
} // namespace

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
        drawImage(buffer, *left, Rectf(area.left(), top, area.left() + leftWidth, bottom), clip,
                  colours);
    const Rectf middleArea(area.left() + leftWidth, top, area.right() - rightWidth, bottom);
    if (middle && middleArea.getWidth() > 0)
    {
        if (!tileMiddle || widthOf(middle) <= 0)
            drawImage(buffer, *middle, middleArea, clip, colours);
        else
            tile(buffer, *middle, middleArea, clip ? middleArea.getIntersection(*clip) : middleArea,
                 colours);
    }
    if (right && rightWidth > 0)
        drawImage(buffer, *right, Rectf(area.right() - rightWidth, top, area.right(), bottom), clip,
                  colours);
}

} // namespace MoxieLook
} // namespace CEGUI
