// Keyboard (and gamepad, through the keys a host maps it to) navigation between MoxieLook
// widgets: Tab and Shift+Tab move the focus in the order of the window tree within the
// focused widget's frame window, arrows move it on screen from widgets that leave the
// arrows unused, Space and Return click, Escape closes a drop list. A ring in the accent
// colour marks the focused widget while the keyboard moved the focus last.
#pragma once

namespace CEGUI
{
class GUIContext;
class Window;

namespace MoxieLook
{
//! On for every GUI context unless a host turns it off for one.
void setKeyboardNavigation(GUIContext& context, bool enabled);
bool isKeyboardNavigationEnabled(const GUIContext& context);

//! Whether `window` takes keys of its own: a MoxieLook widget one can operate, enabled and
//! shown (not a part of another).
bool takesKeys(const Window& window);
//! Whether Tab, Shift+Tab and arrows stop at `window`: it takes keys and is not opted out
//! ("TabStop" "False").
bool isFocusable(const Window& window);

//! The focused widget: the window that takes the keys, or the widget it is a part of.
Window* focusedWidget(const GUIContext& context);

//! Whether the focus ring is shown on `window` now.
bool hasFocusRing(const Window& window);

//! Moves the focus to `window` as Tab would, ring and all (a dialog's first field, say).
//! False, and nothing changes, when it is not focusable.
bool focusWidget(Window& window);

//! Subscribes to the running CEGUI's events; called as the module's types are added.
void attachKeyboardNavigation();
//! Lets go of them; called as the module's types are removed (the module may be unloaded).
void detachKeyboardNavigation();

} // namespace MoxieLook
} // namespace CEGUI
