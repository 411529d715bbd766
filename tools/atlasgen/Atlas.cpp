#include "Atlas.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <set>
#include <stdexcept>

namespace atlasgen
{
namespace
{
constexpr int AtlasWidth = 512;
// Each sprite sits in a ring of copies of its own edge pixels, so that filtering at
// its border never reaches a neighbour.
constexpr int Padding = 1;

int nextPowerOfTwo(int value)
{
    int result = 1;
    while (result < value)
        result <<= 1;
    return result;
}

std::uint32_t* pixelAt(cairo_surface_t* surface, int x, int y)
{
    auto* data = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    return reinterpret_cast<std::uint32_t*>(data + y * stride) + x;
}
} // namespace

Atlas::~Atlas()
{
    for (Sprite& sprite : d_sprites)
        cairo_surface_destroy(sprite.surface);
}

void Atlas::add(const std::string& name, int width, int height, const Painter& paint)
{
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
    cairo_t* cr = cairo_create(surface);
    paint(cr, width, height);
    cairo_destroy(cr);
    cairo_surface_flush(surface);
    d_sprites.push_back({name, surface, width, height});
}

void Atlas::addSlice(const std::string& name, cairo_surface_t* source, int x, int y, int width,
                     int height)
{
    add(name, width, height,
        [&](cairo_t* cr, double, double)
        {
            cairo_set_source_surface(cr, source, -x, -y);
            cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
            cairo_paint(cr);
        });
}

void Atlas::write(const std::string& pngPath, const std::string& imagesetPath,
                  const std::string& imagesetName, const std::string& imageFile) const
{
    std::set<std::string> names;
    for (const Sprite& sprite : d_sprites)
        if (!names.insert(sprite.name).second)
            throw std::runtime_error("image named twice: " + sprite.name);

    // Shelf packing, tallest first; ties keep the order of definition.
    std::vector<Sprite> sprites = d_sprites;
    std::stable_sort(sprites.begin(), sprites.end(),
                     [](const Sprite& a, const Sprite& b) { return a.height > b.height; });
    int x = 0, y = 0, shelfHeight = 0;
    for (Sprite& sprite : sprites)
    {
        const int cellWidth = sprite.width + 2 * Padding;
        const int cellHeight = sprite.height + 2 * Padding;
        if (cellWidth > AtlasWidth)
            throw std::runtime_error("image wider than the atlas: " + sprite.name);
        if (x + cellWidth > AtlasWidth)
        {
            x = 0;
            y += shelfHeight;
            shelfHeight = 0;
        }
        sprite.x = x + Padding;
        sprite.y = y + Padding;
        x += cellWidth;
        shelfHeight = std::max(shelfHeight, cellHeight);
    }
    const int atlasHeight = nextPowerOfTwo(y + shelfHeight);

    cairo_surface_t* atlas =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, AtlasWidth, atlasHeight);
    cairo_surface_flush(atlas);
    for (const Sprite& sprite : sprites)
    {
        for (int row = -Padding; row < sprite.height + Padding; ++row)
            for (int column = -Padding; column < sprite.width + Padding; ++column)
            {
                const int sx = std::clamp(column, 0, sprite.width - 1);
                const int sy = std::clamp(row, 0, sprite.height - 1);
                *pixelAt(atlas, sprite.x + column, sprite.y + row) =
                    *pixelAt(sprite.surface, sx, sy);
            }
    }
    cairo_surface_mark_dirty(atlas);
    if (cairo_surface_write_to_png(atlas, pngPath.c_str()) != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error("cannot write " + pngPath);
    cairo_surface_destroy(atlas);

    std::ofstream xml(imagesetPath);
    xml << "<?xml version=\"1.0\" ?>\n"
        << "<!-- Made by atlasgen from tools/atlasgen/Art.cpp: edit that, not this. -->\n"
        << "<Imageset name=\"" << imagesetName << "\" imagefile=\"" << imageFile
        << "\" nativeHorzRes=\"1280\" nativeVertRes=\"720\" autoScaled=\"false\" "
           "version=\"2\">\n";
    for (const Sprite& sprite : d_sprites)
    {
        const auto placed = std::find_if(sprites.begin(), sprites.end(),
                                         [&](const Sprite& s) { return s.name == sprite.name; });
        xml << "    <Image name=\"" << sprite.name << "\" xPos=\"" << placed->x << "\" yPos=\""
            << placed->y << "\" width=\"" << sprite.width << "\" height=\"" << sprite.height
            << "\" />\n";
    }
    xml << "</Imageset>\n";
    if (!xml)
        throw std::runtime_error("cannot write " + imagesetPath);
}

} // namespace atlasgen
