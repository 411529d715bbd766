#include "draw/QuadBatch.h"

#include "draw/ImageParts.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/GeometryBuffer.h>
#include <CEGUI/Texture.h>
#include <CEGUI/Vertex.h>
#include <cassert>
#include <cmath>
#include <typeinfo>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// Vertices are built once and overwritten after: a Vertex's colour has a constructor
// that would otherwise run six times a quad.
struct SharedVertices
{
    std::vector<Vertex> vertices = std::vector<Vertex>(96);
    std::size_t used = 0;
    QuadBatch* open = nullptr;
} s_shared; // at namespace scope: asked for on every quad, so no first-use check

Vertex* grow(std::size_t count)
{
    SharedVertices& all = s_shared;
    if (all.vertices.size() < all.used + count)
        all.vertices.resize(2 * (all.used + count));
    Vertex* at = all.vertices.data() + all.used;
    all.used += count;
    return at;
}

// Whether CEGUI's rounding to whole pixels is defined for the rectangle: it converts to int.
// CEGUI would draw garbage for anything else (a size that is no number, a place billions of
// pixels away); nothing of it could be seen.
bool roundable(const Rectf& rect)
{
    constexpr float Limit = 2147483520.0f; // the largest float below 2^31
    for (float v : {rect.d_min.d_x, rect.d_min.d_y, rect.d_max.d_x, rect.d_max.d_y})
        if (!(std::fabs(v) <= Limit))
            return false;
    return true;
}

void put(Vertex& vertex, float x, float y, float u, float v, const Colour& colour)
{
    vertex.position = Vector3f(x, y, 0.0f);
    vertex.tex_coords = Vector2f(u, v);
    vertex.colour_val = colour;
}
} // namespace

const BasicImage* plainBasicImage(const Image* image)
{
    return image && typeid(*image) == typeid(BasicImage) ? static_cast<const BasicImage*>(image)
                                                         : nullptr;
}

QuadBatch::QuadBatch(GeometryBuffer& buffer) : d_buffer(buffer), d_outer(s_shared.open)
{
    if (d_outer)
        d_outer->flush();
    d_from = s_shared.used;
    s_shared.open = this;
}

QuadBatch::~QuadBatch()
{
    flush();
    s_shared.open = d_outer;
}

void QuadBatch::add(const Image& image, const Rectf& dest, const Rectf* clip,
                    const ColourRect& colours)
{
    if (const BasicImage* basic = plainBasicImage(&image))
    {
        add(*basic, dest, clip, colours);
        return;
    }
    flush();
    image.render(d_buffer, dest, clip, colours);
}

bool QuadBatch::add(const BasicImage& image, const Rectf& destArea, const Rectf* clip,
                    const ColourRect& colours)
{
    assert(s_shared.open == this);
    // BasicImage::render, step for step, so that every vertex comes out the same.
    Rectf dest(destArea);
    dest.offset(image.*ImageParts::ScaledOffset);
    Rectf final(clip ? dest.getIntersection(*clip) : dest);
    if (final.getWidth() == 0 || final.getHeight() == 0 || !roundable(final))
        return false;

    Texture* texture = image.*ImageParts::TextureOf;
    if (texture != d_texture)
    {
        flush();
        d_texture = texture;
        d_scale = texture->getTexelScaling();
    }
    const Rectf& area = image.*ImageParts::Area;
    const Vector2f texPerPix(area.getWidth() / dest.getWidth(),
                             area.getHeight() / dest.getHeight());
    const Rectf tex((area.d_min + ((final.d_min - dest.d_min) * texPerPix)) * d_scale,
                    (area.d_max + ((final.d_max - dest.d_max) * texPerPix)) * d_scale);
    final.d_min.d_x = CoordConverter::alignToPixels(final.d_min.d_x);
    final.d_min.d_y = CoordConverter::alignToPixels(final.d_min.d_y);
    final.d_max.d_x = CoordConverter::alignToPixels(final.d_max.d_x);
    final.d_max.d_y = CoordConverter::alignToPixels(final.d_max.d_y);

    Vertex* v = grow(6);
    put(v[0], final.left(), final.top(), tex.left(), tex.top(), colours.d_top_left);
    put(v[1], final.left(), final.bottom(), tex.left(), tex.bottom(), colours.d_bottom_left);
    put(v[2], final.right(), final.bottom(), tex.right(), tex.bottom(), colours.d_bottom_right);
    put(v[3], final.right(), final.top(), tex.right(), tex.top(), colours.d_top_right);
    // The second triangle's two shared corners, copied whole.
    v[4] = v[0];
    v[5] = v[2];
    return true;
}

void QuadBatch::addRow(const Image& image, const Vector2f& first, float spacing, int from, int to,
                       const ColourRect& colours)
{
    assert(s_shared.open == this);
    if (from >= to)
        return;
    const BasicImage* basic = plainBasicImage(&image);
    const Sizef& size = image.getRenderedSize();
    auto placeOf = [&](int i)
    { return Rectf(Vector2f(first.d_x + static_cast<float>(i) * spacing, first.d_y), size); };
    // Copies keep CEGUI's rounding to whole pixels only where no copy crosses from negative
    // to positive x (it rounds halves away from zero).
    const float leftmost = placeOf(from).left() + image.getRenderedOffset().d_x;
    if (!basic || !(leftmost >= 0.0f))
    {
        for (int i = from; i < to; ++i)
            add(image, placeOf(i), nullptr, colours);
        return;
    }
    if (!add(*basic, placeOf(from), nullptr, colours))
        return; // nothing to see of it
    const std::size_t at = s_shared.used - 6;
    Vertex* copies = grow(6 * static_cast<std::size_t>(to - from - 1));
    // Read after growing: the shared vertices may have moved.
    const Vertex* quad = s_shared.vertices.data() + at;
    for (int i = 1; i < to - from; ++i)
    {
        const float shift = static_cast<float>(i) * spacing;
        for (int corner = 0; corner < 6; ++corner, ++copies)
        {
            *copies = quad[corner];
            copies->position.d_x += shift;
        }
    }
}

void QuadBatch::flush()
{
    SharedVertices& all = s_shared;
    if (all.used == d_from)
        return;
    d_buffer.setActiveTexture(d_texture);
    d_buffer.appendGeometry(all.vertices.data() + d_from, static_cast<uint>(all.used - d_from));
    all.used = d_from;
}

void drawImage(GeometryBuffer& buffer, const Image& image, const Rectf& dest, const Rectf* clip,
               const ColourRect& colours)
{
    QuadBatch(buffer).add(image, dest, clip, colours);
}

} // namespace MoxieLook
} // namespace CEGUI
