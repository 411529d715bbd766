// One image drawn many times along a row (slider ticks): CEGUI's per-image render costs
// more than the quad it makes, so the image is rendered once and its quad copied.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/GeometryBuffer.h>
#include <CEGUI/Image.h>
#include <CEGUI/Vertex.h>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class ImageStamp
{
public:
    explicit ImageStamp(const Image& image) : d_image(&image) {}

    //! Draws the image at its natural size at `first` + (i × `spacing`, 0) for every i in
    //! [from, to): the same vertices, in the same order, as rendering it at each place.
    //! `spacing` is a whole number of pixels, so every copy keeps CEGUI's pixel alignment.
    void stamp(GeometryBuffer& buffer, const Vector2f& first, float spacing, int from, int to,
               const ColourRect& colours) const;

private:
    const Image* d_image;
    mutable std::vector<Vertex> d_row;
};

} // namespace MoxieLook
} // namespace CEGUI
