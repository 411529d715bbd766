// The arguments of the drag-and-drop events "MyDragEvent", "DropEvent" and
// "DropEventCancel", fired by the module's draggable widgets.
#pragma once

#include <CEGUI/EventArgs.h>

namespace CEGUI
{
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

} // namespace MoxieLook
} // namespace CEGUI
