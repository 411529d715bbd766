// Cards of the selectable buttons, the animated image and the clock.
#include "Samples.h"
#include "ShownHovered.h"
#include "looks/MXClock.h"
#include "looks/MXSelectableButtons.h"

#include <CEGUI/WindowFactoryManager.h>
#include <CEGUI/WindowManager.h>

namespace gallery
{
using namespace CEGUI;

namespace
{
constexpr char HoveredToggle[] = "Gallery/HoveredToggleButton";
constexpr char HoveredRadio[] = "Gallery/HoveredRadioButton";
constexpr char HoveredCheckbox[] = "Gallery/HoveredCheckbox";

MoxieLook::LookFactory<ShownHovered<MoxieLook::MXToggleButton, HoveredToggle>> s_toggle;
MoxieLook::LookFactory<ShownHovered<MoxieLook::MXRadioButton, HoveredRadio>> s_radio;
MoxieLook::LookFactory<ShownHovered<MoxieLook::MXCheckbox, HoveredCheckbox>> s_checkbox;

// Every state of a selectable button, unselected on the first row, selected on the second.
void selectableStates(Card& card, const char* type, const char* hoveredType, const char* text)
{
    const float w = 136, h = 22, step = 150;
    auto add = [&](const char* kind, const String& caption, int column, int row) -> Window&
    {
        Window& window = card.add(kind, caption, 10 + column * step, 10 + row * 48.0f, w, h);
        window.setText(text);
        // Radio buttons of one card must not unselect each other.
        if (window.isPropertyPresent("GroupID"))
            window.setProperty("GroupID", PropertyHelper<int>::toString(row * 10 + column));
        return window;
    };
    for (int row = 0; row < 2; ++row)
    {
        const bool selected = row == 1;
        const String prefix = selected ? "selected, " : "";
        Window* states[] = {
            &add(type, prefix + "normal", 0, row), &add(hoveredType, prefix + "hover", 1, row),
            &add(type, prefix + "pushed", 2, row), &add(type, prefix + "disabled", 3, row)};
        static_cast<ButtonBase*>(states[2])->setPushedState(true);
        states[3]->setEnabled(false);
        for (Window* state : states)
            state->setProperty("Selected", selected ? "True" : "False");
    }
}
} // namespace

void registerShownHoveredTypes()
{
    WindowFactoryManager& factories = WindowFactoryManager::getSingleton();
    factories.addFactory(&s_toggle);
    factories.addFactory(&s_radio);
    factories.addFactory(&s_checkbox);
}

std::vector<Sample> selectableSamples()
{
    return {
        {"MoxieLook/ToggleButton", 110,
         [](Card& card)
         { selectableStates(card, "MoxieLook/ToggleButton", HoveredToggle, "Toggle"); }},
        {"MoxieLook/RadioButton", 110,
         [](Card& card)
         { selectableStates(card, "MoxieLook/RadioButton", HoveredRadio, "Option"); }},
        {"MoxieLook/Checkbox", 110,
         [](Card& card)
         { selectableStates(card, "MoxieLook/Checkbox", HoveredCheckbox, "Check me"); }},
        {"MoxieLook/AnimatedStaticImage", 60,
         [](Card& card)
         {
             auto animation = [&](const String& caption, float x, int frequency) -> Window&
             {
                 Window& w = card.add("MoxieLook/AnimatedStaticImage", caption, x, 10, 32, 32);
                 for (int frame = 0; frame < 8; ++frame)
                     w.setProperty("Frame",
                                   "MoxieLook/BusyFrame" + PropertyHelper<int>::toString(frame));
                 w.setProperty("FrameFrequency", PropertyHelper<int>::toString(frequency));
                 return w;
             };
             animation("12 a second", 10, 12);
             animation("4 a second", 160, 4);
             animation("stopped (0)", 310, 0).setProperty("Image", "MoxieLook/BusyFrame0");
         }},
        {"MoxieLook/Clock", 60,
         [](Card& card)
         {
             auto& time = static_cast<MoxieLook::MXClock&>(
                 card.add("MoxieLook/Clock", "\"h S    m\", C locale", 10, 10, 150, 26));
             time.SetHourAbbreviation("h");
             time.SetCurHour(17);
             time.SetCurMinute(46);
             time.SetCurTimeFormat("h S    m");
             auto& date = static_cast<MoxieLook::MXClock&>(
                 card.add("MoxieLook/Clock", "\"n d%/%Y\"", 220, 10, 150, 26));
             date.SetCurDayName(date.GetWeekDayName(5));
             date.SetCurDay(27);
             date.SetCurMonth(6);
             date.SetCurYear(1970);
             date.SetCurTimeFormat("n d%/%Y");
         }},
    };
}

} // namespace gallery
