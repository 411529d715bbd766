// The CEGUI a host would have: the real library on the (recording) Null renderer,
// resources from the project's data folder, the module loaded through MoxieLook.scheme.
#pragma once

#include <CEGUI/InputEvent.h>
#include <CEGUI/String.h>
#include <CEGUI/Vector.h>
#include <initializer_list>
#include <string>
#include <vector>

namespace CEGUI
{
class GUIContext;
class MenuItem;
class PopupMenu;
class TabControl;
class Window;
} // namespace CEGUI

namespace moxietest
{
//! Brings the system up once for the whole test program.
void startGui();
void stopGui();

CEGUI::GUIContext& context();
//! A fresh, empty sheet the size of the display; earlier sheets are destroyed.
CEGUI::Window& freshSheet();

//! A window of `type` on the current sheet at (x, y) with the given pixel size.
CEGUI::Window& place(const CEGUI::String& type, float x, float y, float width, float height);
//! The same, as the class the type makes.
template <typename T>
T& placeAs(const CEGUI::String& type, float x, float y, float width, float height)
{
    return static_cast<T&>(place(type, x, y, width, height));
}
//! A window of `type` made a child of `parent` at (x, y) with the given pixel size.
CEGUI::Window& child(CEGUI::Window& parent, const CEGUI::String& type, float x, float y,
                     float width, float height);

//! A menu item saying `text`, added to `menu` (a bar or a popup).
CEGUI::MenuItem& menuItem(CEGUI::Window& menu, const CEGUI::String& text,
                          const CEGUI::String& type = "MoxieLook/MenuItem");
//! A "MoxieLook/PopupMenu" that `owner` opens.
CEGUI::PopupMenu& popupOf(CEGUI::MenuItem& owner);
//! A page for each title, named and captioned by it.
void addTabs(CEGUI::TabControl& tabs, std::initializer_list<const char*> titles);

//! Moves the pointer to (x, y) and, optionally, presses or releases the left button.
void pointerTo(float x, float y);
void leftDown();
void leftUp();
//! Moves to (x, y), presses and releases the left button.
void click(float x, float y);
//! Clicks the centre of a window; hovers over it.
void clickOn(const CEGUI::Window& window);
void hover(const CEGUI::Window& window);
//! Presses the left button at `from`, moves to `to` and releases it there.
void drag(const CEGUI::Vector2f& from, const CEGUI::Vector2f& to);
//! Two presses at (x, y) that CEGUI folds into a double click, as a hand makes one.
void doubleClick(float x, float y);
//! Moves to (x, y) and turns the wheel by `notches` (positive away from the user).
void wheel(float x, float y, float notches);
//! The centre of a window on screen.
CEGUI::Vector2f centreOf(const CEGUI::Window& window);
//! Presses and releases `key`, with Shift and/or Control held around it.
void press(CEGUI::Key::Scan key, bool shift = false, bool control = false);
//! Types the characters of `text`.
void type(const std::string& text);

std::string dataFile(const std::string& name);

//! Sounds the module asked the host to play, oldest first; the harness's hook fills it.
std::vector<std::string>& sounds();
//! (Re)registers the harness's recording hook.
void hearSounds();

} // namespace moxietest
