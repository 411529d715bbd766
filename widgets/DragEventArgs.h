// The arguments of the drag-and-drop events "MyDragEvent", "DropEvent" and
// "DropEventCancel", fired by the module's draggable widgets.
#pragma once

#include <CEGUI/EventArgs.h>
#include <CEGUI/Vector.h>
#include <cstdint>
#include <set>

namespace CEGUI
{
class MouseEventArgs;
class Window;

namespace MoxieLook
{
//! Names of the drag-and-drop events.
inline constexpr char EventDragStarted[] = "MyDragEvent";
inline constexpr char EventDropped[] = "DropEvent";
inline constexpr char EventDropCancelled[] = "DropEventCancel";

class DragEventArgs : public EventArgs
{
public:
    DragEventArgs(Window* dragged, Window* other) : source(dragged), target(other) {}

    Window* source; //!< the window being dragged
    Window* target; //!< the other window involved, or null
};

//! The squared length of the pointer's step, truncated toward zero to unsigned 32 bits:
//! drags start when these steps, summed, pass a threshold.
std::uint32_t squaredStep(const MouseEventArgs& mouse);

//! Moves `dragged` so that the point `grab` from its top-left is at `cursor` (screen
//! pixels), by the difference on its own position: alignment and a framed parent's client
//! offset do not matter.
void moveKeepingGrab(Window& dragged, const Vector2f& cursor, const Vector2f& grab);

//! The first registered target met walking up from the deepest window under the mouse
//! cursor of `dragged`'s GUI context; null when there is none.
Window* dropTargetUnderCursor(const Window& dragged, const std::set<Window*>& targets);

} // namespace MoxieLook
} // namespace CEGUI
