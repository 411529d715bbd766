// Side by side with CEGUI's own skin: one script of user input runs on "TaharezLook/X" and
// on "MoxieLook/X", and after every step what a host can observe must agree.
#pragma once

#include <CEGUI/Rect.h>
#include <CEGUI/String.h>
#include <CEGUI/Vector.h>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace CEGUI
{
class Window;
}

namespace moxietest
{
//! Loads TaharezLook from Debian's CEGUI data package, once.
void loadTaharezLook();

//! What a host reads off a widget after a step: named values, in the order written.
class Observation
{
public:
    void set(const std::string& name, const std::string& value);
    void set(const std::string& name, float value);
    void set(const std::string& name, bool value);
    void set(const std::string& name, const CEGUI::String& value);
    const std::map<std::string, std::string>& values() const { return d_values; }

private:
    std::map<std::string, std::string> d_values;
};

struct ParityStep
{
    std::string name;
    std::function<void(CEGUI::Window&)> act;
};

struct ParityScript
{
    CEGUI::String type; //!< without the skin's prefix
    CEGUI::Rectf area{100, 100, 300, 300};
    //! Where the stock skin's widget goes when its shape differs (a slider upright).
    std::optional<CEGUI::Rectf> stockArea;
    std::function<void(CEGUI::Window&)> setUp = [](CEGUI::Window&) {};
    std::vector<ParityStep> steps;
    std::function<void(const CEGUI::Window&, Observation&)> observe;
    //! Events counted on the widget, per step.
    std::vector<CEGUI::String> events;
    //! "step/value" pairs where MoxieLook differs on purpose; each must differ.
    std::set<std::string> differences;
};

//! Runs the script on both skins and reports every value that disagrees.
void expectSameBehaviour(const ParityScript& script);

//! The screen point at fractions (fx, fy) of a window's outer rectangle.
CEGUI::Vector2f pointIn(const CEGUI::Window& window, float fx, float fy);
//! A named child window (an automatic part) of `window`, searched in depth.
CEGUI::Window& partOf(const CEGUI::Window& window, const CEGUI::String& name);

//! Input, as a user gives it.
void clickAt(const CEGUI::Vector2f& point);
void dragFrom(const CEGUI::Vector2f& from, const CEGUI::Vector2f& to);
void pressKey(unsigned scan);
void typeText(const std::string& text);

} // namespace moxietest
