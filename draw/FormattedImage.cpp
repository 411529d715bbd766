#include "draw/FormattedImage.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

#include <CEGUI/Image.h>
#include <algorithm>
#include <cmath>
#include <utility>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
struct AxisPlacement
{
    float start;   // first copy's offset into the area
    float extent;  // size of one copy
    double copies; // may be more than an int holds in a huge area
};

AxisPlacement place(float area, float native, bool stretched, bool tiled, bool centred, bool far)
{
    if (stretched)
        return {0.0f, area, 1};
    if (tiled)
        return {0.0f, native, native > 0.0f ? std::ceil(double(area) / native) : 0.0};
    if (centred)
        return {std::floor((area - native) * 0.5f), native, 1};
    return {far ? area - native : 0.0f, native, 1};
}
} // namespace

void FormattedImage::draw(GeometryBuffer& buffer, const Vector2f& position, const Rectf* clip,
                          const Rectf* seen) const
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
    if (!(bounds.getWidth() > 0.0f) || !(bounds.getHeight() > 0.0f) || !isFiniteRect(bounds))
        return;
    const bool tiled = horz.copies > 1 || vert.copies > 1;
    Rectf wanted = bounds;
    if (seen)
        wanted = wanted.getIntersection(*seen);
    if (!(wanted.getWidth() > 0.0f) || !(wanted.getHeight() > 0.0f))
        return;

    // Only the copies that meet the bounds: a huge tiled area costs what can be seen.
    const auto visible = [](const AxisPlacement& axis, float origin, float from, float to)
    {
        const double first =
            std::max(0.0, std::floor((double(from) - origin - axis.start) / axis.extent));
        const double last =
            std::min(axis.copies, std::ceil((double(to) - origin - axis.start) / axis.extent));
        return std::pair<long long, long long>(static_cast<long long>(first),
                                               static_cast<long long>(std::max(first, last)));
    };
    const auto rows = vert.copies > 1 ? visible(vert, position.d_y, wanted.top(), wanted.bottom())
                                      : std::pair<long long, long long>(0, vert.copies >= 1);
    const auto columns = horz.copies > 1
                             ? visible(horz, position.d_x, wanted.left(), wanted.right())
                             : std::pair<long long, long long>(0, horz.copies >= 1);

    for (long long row = rows.first; row < rows.second; ++row)
        for (long long column = columns.first; column < columns.second; ++column)
        {
            const Vector2f at(position.d_x + horz.start + static_cast<float>(column) * horz.extent,
                              position.d_y + vert.start + static_cast<float>(row) * vert.extent);
            drawImage(buffer, *d_image, Rectf(at, Sizef(horz.extent, vert.extent)),
                      tiled ? &bounds : clip, d_colours);
        }
}

} // namespace MoxieLook
} // namespace CEGUI
