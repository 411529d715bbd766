// Two scroll bars inside a look's frame, the vertical one down the right edge and the
// horizontal one along the bottom, meeting at the corner: where they go and what room they
// leave, for the looks that lay out and draw around them (lists, multi-column lists,
// multi-line edit box, item list, CEGUI's tree, static text).
#pragma once

#include <CEGUI/Rect.h>

namespace CEGUI
{
class Window;

namespace MoxieLook
{
constexpr float InnerBarThickness = 16.0f;

//! Places the bars inside `inner` (window-local); either may be null.
void layOutInnerBars(Window* vert, Window* horz, const Rectf& inner,
                     float thickness = InnerBarThickness);

//! What `inner` leaves beside the bars that are shown; never negative.
Rectf areaBesideInnerBars(const Rectf& inner, const Window* vert, const Window* horz,
                          float thickness = InnerBarThickness);

} // namespace MoxieLook
} // namespace CEGUI
