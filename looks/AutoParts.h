// The child windows a look makes for itself, under the names CEGUI's widgets look for.
#pragma once

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>

namespace CEGUI
{
namespace MoxieLook
{
//! The child called `name`, or null while the window is still being built.
inline Window* partOrNull(const Window& owner, const String& name)
{
    return owner.isChild(name) ? owner.getChild(name) : nullptr;
}

//! A new auto window of `type`, which must be a `Part`; a host may have swapped the type
//! for one that is not, which is refused with CEGUI's InvalidRequestException.
template <typename Part>
Part* createAutoPart(const String& type, const String& name, const char* role)
{
    Window* window = WindowManager::getSingleton().createWindow(type, name);
    auto* part = dynamic_cast<Part*>(window);
    if (!part)
    {
        WindowManager::getSingleton().destroyWindow(window);
        throw InvalidRequestException("The window type '" + type + "' cannot serve as " + role +
                                      ".");
    }
    part->setAutoWindow(true);
    return part;
}

} // namespace MoxieLook
} // namespace CEGUI
