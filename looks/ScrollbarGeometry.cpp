#include "looks/ScrollbarGeometry.h"

#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
ThumbPlacement placeThumb(float barLength, float buttonLength, float frameStart, float documentSize,
                          float pageSize, float scrollPosition, float minThumbLength)
{
    ThumbPlacement p;
    p.inset = buttonLength + frameStart;
    const float range = documentSize - pageSize;
    p.track = std::max(barLength - 2 * p.inset, 0.0f);
    p.length = pageSize < documentSize ? p.track / documentSize * pageSize : p.track;
    p.free = p.track - p.length;
    p.length = std::max(p.length, minThumbLength);
    // With nothing to scroll the thumb rests at the track's start.
    p.position = range > 0 ? p.free / range * scrollPosition + p.inset : p.inset;
    return p;
}

float scrollPositionFromThumb(float thumbStart, float barLength, float inset, float thumbLength,
                              float documentSize, float pageSize)
{
    const float travel = std::max(barLength - 2 * inset - thumbLength, 0.0f);
    const float range = documentSize - pageSize;
    if (travel <= 0 || range <= 0)
        return 0;
    return (thumbStart - inset) / (travel / range);
}

} // namespace MoxieLook
} // namespace CEGUI
