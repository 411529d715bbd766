// A horizontal bar of three images: left cap and right cap at their own widths, the
// middle stretched (or tiled) between them, all as tall as the area.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>

namespace CEGUI
{
class GeometryBuffer;
class Image;

namespace MoxieLook
{
struct ThreePieceBar
{
    const Image* left = nullptr;
    const Image* middle = nullptr;
    const Image* right = nullptr;

    //! Looks the three pieces up in the "MoxieLook" imageset.
    static ThreePieceBar named(const char* left, const char* middle, const char* right);

    float capsWidth() const;
    //! Caps never overlap: in an area narrower than both, each keeps half.
    void draw(GeometryBuffer& buffer, const Rectf& area, const ColourRect& colours,
              const Rectf* clip = nullptr, bool tileMiddle = false) const;
};

} // namespace MoxieLook
} // namespace CEGUI
