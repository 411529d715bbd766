// The child windows a look makes for itself, under the names CEGUI's widgets look for.
#pragma once

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Scrollbar.h>

namespace CEGUI
{
namespace MoxieLook
{
//! The child called `name`, or null while the window is still being built. One pass by
//! name: CEGUI's own lookup casts every child on the way, and a look asks while it draws.
inline Window* partOrNull(const Window& owner, const String& name)
{
    for (std::size_t i = 0, count = owner.getChildCount(); i < count; ++i)
        if (Window* child = owner.getChildAtIdx(i); child->getName() == name)
            return child;
    return nullptr;
}

//! The same, as the part's own type; for parts the look made and knows the kind of.
template <typename Part>
Part* partOrNull(const Window& owner, const String& name)
{
    return static_cast<Part*>(partOrNull(owner, name));
}

//! How far the bar part called `name` is scrolled; 0 while it is not made.
inline float scrollOf(const Window& owner, const String& name)
{
    const Scrollbar* bar = partOrNull<Scrollbar>(owner, name);
    return bar ? bar->getScrollPosition() : 0.0f;
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
