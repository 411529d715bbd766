// Sprites painted one by one, then packed into one atlas with an imageset describing it.
#pragma once

#include <cairo.h>
#include <functional>
#include <string>
#include <vector>

namespace atlasgen
{
//! A painter draws into a context whose origin is the sprite's top-left corner.
using Painter = std::function<void(cairo_t*, double width, double height)>;

class Atlas
{
public:
    ~Atlas();

    //! Adds a sprite of the given size, painted by `paint`.
    void add(const std::string& name, int width, int height, const Painter& paint);
    //! Adds a sprite cut out of an already painted surface.
    void addSlice(const std::string& name, cairo_surface_t* source, int x, int y, int width,
                  int height);

    //! Packs every sprite and writes the image and the imageset describing it.
    void write(const std::string& pngPath, const std::string& imagesetPath,
               const std::string& imagesetName, const std::string& imageFile) const;

    std::size_t size() const { return d_sprites.size(); }

private:
    struct Sprite
    {
        std::string name;
        cairo_surface_t* surface;
        int width;
        int height;
        int x = 0;
        int y = 0;
    };

    std::vector<Sprite> d_sprites;
};

} // namespace atlasgen
