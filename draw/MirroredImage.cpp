#include "draw/MirroredImage.h"

#include "draw/ImageParts.h"

#include <CEGUI/BasicImage.h>
#include <CEGUI/GeometryBuffer.h>
#include <CEGUI/Texture.h>
#include <CEGUI/Vertex.h>
#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
Rectf normalised(const Rectf& r)
{
    return Rectf(std::min(r.left(), r.right()), std::min(r.top(), r.bottom()),
                 std::max(r.left(), r.right()), std::max(r.top(), r.bottom()));
}
} // namespace

void renderMirrored(GeometryBuffer& buffer, const Image& image, const Rectf& dest,
                    const Rectf* clip, const ColourRect& colours)
{
    const bool flipX = dest.right() < dest.left();
    const bool flipY = dest.bottom() < dest.top();
    const Rectf box = normalised(dest);
    const auto* basic = dynamic_cast<const BasicImage*>(&image);
    if (!basic)
    {
        image.render(buffer, box, clip, colours);
        return;
    }
    const Rectf shown = clip ? box.getIntersection(*clip) : box;
    if (shown.getWidth() <= 0 || shown.getHeight() <= 0)
        return;

    Texture* texture = basic->*ImageParts::TextureOf;
    const Rectf& area = basic->*ImageParts::Area;
    const Vector2f scaling = texture->getTexelScaling();
    // Where a point of the box takes its texel from, mirrored on the flipped axes.
    auto texel = [&](float x, float y)
    {
        float u = (x - box.left()) / box.getWidth();
        float v = (y - box.top()) / box.getHeight();
        if (flipX)
            u = 1.0f - u;
        if (flipY)
            v = 1.0f - v;
        return Vector2f((area.left() + u * area.getWidth()) * scaling.d_x,
                        (area.top() + v * area.getHeight()) * scaling.d_y);
    };
    const Vector2f corners[4] = {shown.d_min, Vector2f(shown.right(), shown.top()),
                                 Vector2f(shown.left(), shown.bottom()), shown.d_max};
    const Colour* cornerColours[4] = {&colours.d_top_left, &colours.d_top_right,
                                      &colours.d_bottom_left, &colours.d_bottom_right};
    Vertex quad[6];
    const int order[6] = {0, 2, 3, 0, 3, 1};
    for (int i = 0; i < 6; ++i)
    {
        const Vector2f& p = corners[order[i]];
        quad[i].position = Vector3f(p.d_x, p.d_y, 0.0f);
        quad[i].tex_coords = texel(p.d_x, p.d_y);
        quad[i].colour_val = *cornerColours[order[i]];
    }
    buffer.setActiveTexture(texture);
    buffer.appendGeometry(quad, 6);
}

} // namespace MoxieLook
} // namespace CEGUI
