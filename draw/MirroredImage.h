// An image drawn into a rectangle that may be given with right left of left or bottom
// above top: the image is then mirrored on that axis. CEGUI 0.8 skips such rectangles.
// Edges stay where they are given: CEGUI's own drawing snaps them to whole pixels, which
// drops a sliver narrower than a pixel or widens it to one.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>

namespace CEGUI
{
class GeometryBuffer;
class Image;

namespace MoxieLook
{
//! `clip` is in the same (window-local) pixels; images that are not plain atlas images
//! are drawn unmirrored into the normalised rectangle.
void renderMirrored(GeometryBuffer& buffer, const Image& image, const Rectf& dest,
                    const Rectf* clip, const ColourRect& colours);

} // namespace MoxieLook
} // namespace CEGUI
