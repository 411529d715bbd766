#include "draw/FormattedImage.h"

#include <CEGUI/Image.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
struct AxisPlacement
{
    float start;  // first copy's offset into the area
    float extent; // size of one copy
    int copies;
};

AxisPlacement place(float area, float native, bool stretched, bool tiled, bool centred, bool far)
{
    if (stretched)
        return {0.0f, area, 1};
    if (tiled)
        return {0.0f, native, native > 0.0f ? static_cast<int>(std::ceil(area / native)) : 0};
    if (centred)
        return {std::floor((area - native) * 0.5f), native, 1};
    return {far ? area - native : 0.0f, native, 1};
}
} // namespace

void FormattedImage::draw(GeometryBuffer& buffer, const Vector2f& position, const Rectf* clip) const
{
    if (!d_image || d_size.d_width <= 0.0f || d_size.d_height <= 0.0f)
        return;

    const Sizef native = d_image->getRenderedSize();
    const AxisPlacement horz =
        place(d_size.d_width, native.d_width, d_horzFormatting == HorzStretched,
              d_horzFormatting == HorzTiled, d_horzFormatting == HorzCentred,
              d_horzFormatting == RightAligned);
    const AxisPlacement vert =
        place(d_size.d_height, native.d_height, d_vertFormatting == VertStretched,
              d_vertFormatting == VertTiled, d_vertFormatting == VertCentred,
              d_vertFormatting == BottomAligned);

    // Tiles never spill out of the area, whatever the caller's clip.
    Rectf bounds(position, d_size);
    if (clip)
        bounds = bounds.getIntersection(*clip);
    if (bounds.getWidth() <= 0.0f || bounds.getHeight() <= 0.0f)
        return;
    const bool tiled = horz.copies > 1 || vert.copies > 1;

    for (int row = 0; row < vert.copies; ++row)
        for (int column = 0; column < horz.copies; ++column)
        {
            const Vector2f at(position.d_x + horz.start + column * horz.extent,
                              position.d_y + vert.start + row * vert.extent);
            d_image->render(buffer, Rectf(at, Sizef(horz.extent, vert.extent)),
                            tiled ? &bounds : clip, d_colours);
        }
}

} // namespace MoxieLook
} // namespace CEGUI
