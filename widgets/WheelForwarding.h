// A widget scrolls by one rule wherever on it the wheel turns: a part (an arrow button, a
// thumb, a scroll bar) hands the turn to its owner's wheel handler instead of keeping it.
#pragma once

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>
#include <functional>

namespace CEGUI
{
namespace MoxieLook
{
inline Event::Connection forwardWheel(Window& part, Window& owner,
                                      std::function<void(MouseEventArgs&)> ownerHandler)
{
    return part.subscribeEvent(Window::EventMouseWheel,
                               [&owner, handler = std::move(ownerHandler)](const EventArgs& args)
                               {
                                   MouseEventArgs turn(static_cast<const MouseEventArgs&>(args));
                                   turn.window = &owner;
                                   turn.handled = 0;
                                   handler(turn);
                                   return true; // taken: the part neither scrolls nor passes it on
                               });
}

} // namespace MoxieLook
} // namespace CEGUI
