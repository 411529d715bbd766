#include "draw/Imagery.h"

#include <CEGUI/ImageManager.h>
#include <CEGUI/Window.h>
#include <cmath>
#include <forward_list>
#include <string>
#include <string_view>
#include <unordered_map>

namespace CEGUI
{
namespace MoxieLook
{
const Image& lookImage(const String& name)
{
    return ImageManager::getSingleton().get(String(ImagesetName) + '/' + name);
}

const Image& lookImage(const char* name)
{
    // Looks fetch dozens of images each time one is made; CEGUI's strings are slow to
    // build, so each full name is built once. Images themselves are asked for every time:
    // a host may reload the imageset.
    static std::forward_list<std::string> keys; // where the map's views point
    static std::unordered_map<std::string_view, String> fullNames;
    auto known = fullNames.find(std::string_view(name));
    if (known == fullNames.end())
    {
        keys.emplace_front(name);
        known = fullNames.emplace(keys.front(), String(ImagesetName) + '/' + name).first;
    }
    return ImageManager::getSingleton().get(known->second);
}

Colour withAlpha(Colour colour, float alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

ColourRect withAlpha(ColourRect colours, float alpha)
{
    colours.setAlpha(alpha);
    return colours;
}

Colour opaque(Colour colour)
{
    return withAlpha(colour, 1.0f);
}

ColourRect faded(ColourRect colours, float alpha)
{
    colours.modulateAlpha(alpha);
    return colours;
}

ColourRect diagonalGradient(const Colour& primary, const Colour& secondary)
{
    return ColourRect(primary, secondary, secondary, primary);
}

float pixelsOf(const UDim& dim, float base)
{
    const float pixels = dim.d_scale * base + dim.d_offset;
    return std::isfinite(pixels) ? pixels : 0.0f;
}

Vector2f pixelsOf(const UVector2& position, const Sizef& base)
{
    return Vector2f(pixelsOf(position.d_x, base.d_width), pixelsOf(position.d_y, base.d_height));
}

bool isFiniteRect(const Rectf& rect)
{
    return std::isfinite(rect.left()) && std::isfinite(rect.top()) && std::isfinite(rect.right()) &&
           std::isfinite(rect.bottom());
}

bool hasVisibleArea(const Window& window)
{
    return window.getOuterRectClipper().getWidth() > 0.0f;
}

} // namespace MoxieLook
} // namespace CEGUI
