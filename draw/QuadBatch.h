// Images drawn as CEGUI's BasicImage::render draws them, vertex for vertex, but gathered:
// the quads of one texture go to the buffer in one append, and no vertex is constructed
// per quad. CEGUI's own render costs more than the quad it makes.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>

namespace CEGUI
{
class BasicImage;
class GeometryBuffer;
class Image;
class Texture;

namespace MoxieLook
{
//! `image` when it is a plain BasicImage (whose drawing a batch stands in for), else null.
const BasicImage* plainBasicImage(const Image* image);

//! Open while a look draws a group of images into one buffer; appends on flush and when it
//! goes. A batch opened while another is open sends the other's quads first, so the
//! buffer gets every quad in the order it was added; only the innermost open batch adds.
class QuadBatch
{
public:
    explicit QuadBatch(GeometryBuffer& buffer);
    ~QuadBatch();
    QuadBatch(const QuadBatch&) = delete;
    QuadBatch& operator=(const QuadBatch&) = delete;

    //! What image.render(buffer, dest, clip, colours) would draw.
    void add(const Image& image, const Rectf& dest, const Rectf* clip, const ColourRect& colours);
    //! The same for an image known to be a plain BasicImage; false when nothing of it can
    //! be seen (no quad was added).
    bool add(const BasicImage& image, const Rectf& dest, const Rectf* clip,
             const ColourRect& colours);

    //! The image at its natural size at `first` + (i × `spacing`, 0) for every i in [from,
    //! to): drawn once and copied along, the same vertices as drawing it at each place.
    //! `spacing` is a whole number of pixels, so every copy keeps CEGUI's pixel alignment.
    void addRow(const Image& image, const Vector2f& first, float spacing, int from, int to,
                const ColourRect& colours);

    void flush();

private:
    GeometryBuffer& d_buffer;
    QuadBatch* d_outer;
    Texture* d_texture = nullptr;
    Vector2f d_scale{0.0f, 0.0f};
    std::size_t d_from; //!< where this batch's quads start in the shared vertices
};

//! One image as image.render(buffer, dest, clip, colours) draws it, for less.
void drawImage(GeometryBuffer& buffer, const Image& image, const Rectf& dest, const Rectf* clip,
               const ColourRect& colours);

} // namespace MoxieLook
} // namespace CEGUI
