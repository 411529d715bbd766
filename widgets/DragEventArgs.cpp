#include "widgets/DragEventArgs.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/MouseCursor.h>
#include <CEGUI/Window.h>

namespace CEGUI
{
namespace MoxieLook
{
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
