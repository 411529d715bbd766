// Small cairo helpers shared by the art: colours, shapes, gradients, and the ways a
// painted panel is cut into the pieces a nine-piece frame stretches.
#pragma once

#include "Atlas.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace atlasgen
{
struct Rgb
{
    double r, g, b;
};

constexpr Rgb hex(std::uint32_t rgb)
{
    return {((rgb >> 16) & 0xFF) / 255.0, ((rgb >> 8) & 0xFF) / 255.0, (rgb & 0xFF) / 255.0};
}

Rgb mix(Rgb a, Rgb b, double t);

void setColour(cairo_t* cr, Rgb colour, double alpha = 1.0);
void setVerticalGradient(cairo_t* cr, double y0, double y1, Rgb top, Rgb bottom,
                         double alpha = 1.0);
void roundedRect(cairo_t* cr, double x, double y, double w, double h, double radius);
void polygon(cairo_t* cr, const std::vector<std::array<double, 2>>& points);

//! One pixel-wide ring of a frame, from outside in: a vertical gradient and an opacity.
struct Ring
{
    Rgb top;
    Rgb bottom;
    double alpha = 1.0;
};

//! Paints rings inward from the edge of a w x h rounded rectangle.
void paintRings(cairo_t* cr, double w, double h, double radius, const std::vector<Ring>& rings);

//! Names of the eight frame pieces, in the order top-left, top, top-right, left, right,
//! bottom-left, bottom, bottom-right.
using FrameNames = std::array<std::string, 8>;

//! A frame of `rings` (edges as thick as there are rings) with rounded corners of
//! `corner` pixels; the inside stays clear for the fill drawn under it.
void addRingFrame(Atlas& atlas, const FrameNames& names, int corner, double radius,
                  const std::vector<Ring>& rings);

//! Paints a (2 * corner + middle)-square panel and cuts all nine pieces out of it:
//! corners `corner` square, edges and middle `middle` pixels along their stretch axis.
//! Names in rows: upper-left, upper, upper-right, left, middle, right, lower-left,
//! lower, lower-right; an empty name skips that piece.
void addGrid(Atlas& atlas, const std::array<std::string, 9>& names, int corner,
             const Painter& paint, int middle = 2);

//! Three pieces cut from one painted bar: left cap, stretchable middle, right cap.
void addBar(Atlas& atlas, const std::array<std::string, 3>& names, int cap, int height,
            const Painter& paint);

void addGradient(Atlas& atlas, const std::string& name, int w, int h, Rgb top, Rgb bottom);

} // namespace atlasgen
