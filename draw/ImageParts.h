// What a BasicImage keeps to itself and its own render reads: the drawing toolkit draws
// such images the same way without CEGUI's per-call costs.
#pragma once

#include <CEGUI/BasicImage.h>

namespace CEGUI
{
namespace MoxieLook
{
struct ImageParts : BasicImage
{
    static constexpr Texture* BasicImage::*TextureOf = &ImageParts::d_texture;
    static constexpr Rectf BasicImage::*Area = &ImageParts::d_area;
    static constexpr Sizef BasicImage::*ScaledSize = &ImageParts::d_scaledSize;
    static constexpr Vector2f BasicImage::*ScaledOffset = &ImageParts::d_scaledOffset;
};

} // namespace MoxieLook
} // namespace CEGUI
