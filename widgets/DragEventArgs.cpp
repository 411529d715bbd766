#include "widgets/DragEventArgs.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/InputEvent.h>
#include <CEGUI/MouseCursor.h>
#include <CEGUI/Window.h>

namespace CEGUI
{
namespace MoxieLook
{
std::uint32_t squaredStep(const MouseEventArgs& mouse)
{
    const float step =
        mouse.moveDelta.d_x * mouse.moveDelta.d_x + mouse.moveDelta.d_y * mouse.moveDelta.d_y;
    // Beyond what 32 bits hold the threshold is long passed: saturate, never overflow.
    return step < 4294967295.0f ? static_cast<std::uint32_t>(step) : 0xFFFFFFFFu;
}

void moveKeepingGrab(Window& dragged, const Vector2f& cursor, const Vector2f& grab)
{
    const Vector2f delta = cursor - grab - dragged.getUnclippedOuterRect().get().d_min;
    dragged.setPosition(dragged.getPosition() +
                        UVector2(cegui_absdim(delta.d_x), cegui_absdim(delta.d_y)));
}

Window* dropTargetUnderCursor(const Window& dragged, const std::set<Window*>& targets)
{
    GUIContext& context = dragged.getGUIContext();
    Window* root = context.getRootWindow();
    if (!root)
        return nullptr;
    for (Window* w = root->getChildAtPosition(context.getMouseCursor().getPosition()); w;
         w = w->getParent())
        if (targets.count(w))
            return w;
    return nullptr;
}

} // namespace MoxieLook
} // namespace CEGUI
