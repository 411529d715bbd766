#include "Paint.h"

#include <algorithm>
#include <cmath>

namespace atlasgen
{
Rgb mix(Rgb a, Rgb b, double t)
{
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}

void setColour(cairo_t* cr, Rgb colour, double alpha)
{
    cairo_set_source_rgba(cr, colour.r, colour.g, colour.b, alpha);
}

void setVerticalGradient(cairo_t* cr, double y0, double y1, Rgb top, Rgb bottom, double alpha)
{
    cairo_pattern_t* pattern = cairo_pattern_create_linear(0, y0, 0, y1);
    cairo_pattern_add_color_stop_rgba(pattern, 0, top.r, top.g, top.b, alpha);
    cairo_pattern_add_color_stop_rgba(pattern, 1, bottom.r, bottom.g, bottom.b, alpha);
    cairo_set_source(cr, pattern);
    cairo_pattern_destroy(pattern);
}

void roundedRect(cairo_t* cr, double x, double y, double w, double h, double radius)
{
    radius = std::clamp(radius, 0.0, std::min(w, h) / 2);
    cairo_new_sub_path(cr);
    cairo_arc(cr, x + w - radius, y + radius, radius, -M_PI / 2, 0);
    cairo_arc(cr, x + w - radius, y + h - radius, radius, 0, M_PI / 2);
    cairo_arc(cr, x + radius, y + h - radius, radius, M_PI / 2, M_PI);
    cairo_arc(cr, x + radius, y + radius, radius, M_PI, 3 * M_PI / 2);
    cairo_close_path(cr);
}

void polygon(cairo_t* cr, const std::vector<std::array<double, 2>>& points)
{
    cairo_new_path(cr);
    for (const auto& point : points)
        cairo_line_to(cr, point[0], point[1]);
    cairo_close_path(cr);
}

void paintRings(cairo_t* cr, double w, double h, double radius, const std::vector<Ring>& rings)
{
    cairo_set_line_width(cr, 1.0);
    for (std::size_t i = 0; i < rings.size(); ++i)
    {
        const double inset = i + 0.5;
        roundedRect(cr, inset, inset, w - 2 * inset, h - 2 * inset,
                    std::max(radius - static_cast<double>(i), 0.0));
        setVerticalGradient(cr, 0, h, rings[i].top, rings[i].bottom, rings[i].alpha);
        cairo_stroke(cr);
    }
}

void addRingFrame(Atlas& atlas, const FrameNames& names, int corner, double radius,
                  const std::vector<Ring>& rings)
{
    const int edge = static_cast<int>(rings.size());
    const int size = 2 * corner + 4;
    cairo_surface_t* panel = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size, size);
    cairo_t* cr = cairo_create(panel);
    paintRings(cr, size, size, radius, rings);
    cairo_destroy(cr);
    cairo_surface_flush(panel);

    const int middle = corner + 1;
    atlas.addSlice(names[0], panel, 0, 0, corner, corner);
    atlas.addSlice(names[1], panel, middle, 0, 2, edge);
    atlas.addSlice(names[2], panel, size - corner, 0, corner, corner);
    atlas.addSlice(names[3], panel, 0, middle, edge, 2);
    atlas.addSlice(names[4], panel, size - edge, middle, edge, 2);
    atlas.addSlice(names[5], panel, 0, size - corner, corner, corner);
    atlas.addSlice(names[6], panel, middle, size - edge, 2, edge);
    atlas.addSlice(names[7], panel, size - corner, size - corner, corner, corner);
    cairo_surface_destroy(panel);
}

void addGrid(Atlas& atlas, const std::array<std::string, 9>& names, int corner,
             const Painter& paint, int middle)
{
    const int size = 2 * corner + middle;
    cairo_surface_t* panel = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size, size);
    cairo_t* cr = cairo_create(panel);
    paint(cr, size, size);
    cairo_destroy(cr);
    cairo_surface_flush(panel);

    const int origin[3] = {0, corner, corner + middle};
    const int extent[3] = {corner, middle, corner};
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
        {
            const std::string& name = names[row * 3 + column];
            if (!name.empty())
                atlas.addSlice(name, panel, origin[column], origin[row], extent[column],
                               extent[row]);
        }
    cairo_surface_destroy(panel);
}

void addBar(Atlas& atlas, const std::array<std::string, 3>& names, int cap, int height,
            const Painter& paint)
{
    const int width = 2 * cap + 4;
    cairo_surface_t* bar = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
    cairo_t* cr = cairo_create(bar);
    paint(cr, width, height);
    cairo_destroy(cr);
    cairo_surface_flush(bar);
    atlas.addSlice(names[0], bar, 0, 0, cap, height);
    atlas.addSlice(names[1], bar, cap, 0, 4, height);
    atlas.addSlice(names[2], bar, cap + 4, 0, cap, height);
    cairo_surface_destroy(bar);
}

void addGradient(Atlas& atlas, const std::string& name, int w, int h, Rgb top, Rgb bottom)
{
    atlas.add(name, w, h,
              [=](cairo_t* cr, double width, double height)
              {
                  setVerticalGradient(cr, 0, height, top, bottom);
                  cairo_rectangle(cr, 0, 0, width, height);
                  cairo_fill(cr);
              });
}

} // namespace atlasgen
