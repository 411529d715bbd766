// The keys inside a focused MoxieLook widget: lists and trees move their selection, sliders
// and spinners step and page, tab controls switch tabs, drop-down selectors choose.
#pragma once

#include <CEGUI/InputEvent.h>

namespace CEGUI
{
class Window;

namespace MoxieLook
{
//! Whether `focused` took `key` (with Shift and Ctrl as given).
bool operateInside(Window& focused, Key::Scan key, bool shift, bool control);

} // namespace MoxieLook
} // namespace CEGUI
