// A widget scrolls by one rule wherever on it the wheel turns: a part (an arrow button, a
// thumb) hands the turn to its owner's wheel handler instead of keeping it, and a scroll bar
// whose owner has a rule of its own (a tree, a drop-down list) gives its turns to the owner.
#pragma once

#include <CEGUI/InputEvent.h>
#include <CEGUI/Window.h>
#include <functional>

namespace CEGUI
{
namespace MoxieLook
{
using WheelHandler = std::function<void(MouseEventArgs&)>;

//! Subscribes `part` so that its wheel turns reach `ownerHandler` as turns over `owner`.
inline Event::Connection forwardWheel(Window& part, Window& owner, WheelHandler ownerHandler)
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

//! A scroll bar that can give its wheel turns to an owner instead of scrolling by its step.
class WheelGiver
{
public:
    virtual void setWheelOwner(WheelHandler handler) = 0;

protected:
    ~WheelGiver() = default;
};

//! Gives `bar`'s wheel turns to the owner when the bar can; other bars keep CEGUI's rule.
inline void giveWheelTo(Window& bar, Window& owner, const WheelHandler& ownerHandler)
{
    if (auto* giver = dynamic_cast<WheelGiver*>(&bar))
        giver->setWheelOwner(
            [&owner, ownerHandler](MouseEventArgs& e)
            {
                e.window = &owner;
                ownerHandler(e);
            });
}

} // namespace MoxieLook
} // namespace CEGUI
