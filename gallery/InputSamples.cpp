// Cards of the text input widgets and the progress bar.
#include "Samples.h"
#include "widgets/WidgetDropDownListbox.h"

#include <CEGUI/widgets/ComboDropList.h>
#include <CEGUI/widgets/Combobox.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/Listbox.h>
#include <CEGUI/widgets/ListboxTextItem.h>
#include <CEGUI/widgets/MultiLineEditbox.h>
#include <CEGUI/widgets/ProgressBar.h>
#include <CEGUI/widgets/Spinner.h>

namespace gallery
{
using namespace CEGUI;

std::vector<Sample> inputSamples()
{
    return {
        {"MoxieLook/Listbox", 140,
         [](Card& card)
         {
             auto& list = static_cast<Listbox&>(
                 card.add("MoxieLook/Listbox", "a selection, a scroll bar", 10, 10, 200, 110));
             const char* fruits[] = {"Apples", "Bananas", "Cherries", "Dates", "Elderberries",
                                     "Figs",   "Grapes",  "Honeydew", "Kiwis", "Lemons"};
             for (const char* fruit : fruits)
                 list.addItem(new ListboxTextItem(fruit));
             list.setItemSelectState(2, true);
             card.hoverOn(list);
             auto& multi = static_cast<Listbox&>(
                 card.add("MoxieLook/Listbox", "multiple selection", 230, 10, 160, 110));
             multi.setMultiselectEnabled(true);
             for (int i = 1; i <= 5; ++i)
                 multi.addItem(new ListboxTextItem("Option " + PropertyHelper<int>::toString(i)));
             multi.setItemSelectState(std::size_t(0), true);
             multi.setItemSelectState(3, true);
             auto& disabled = static_cast<Listbox&>(
                 card.add("MoxieLook/Listbox", "disabled", 410, 10, 180, 110));
             disabled.addItem(new ListboxTextItem("Nothing to pick"));
             disabled.setEnabled(false);
         }},
        {"MoxieLook/Combobox", 170,
         [](Card& card)
         {
             auto fill = [](Combobox& box)
             {
                 for (const char* city : {"Amsterdam", "Berlin", "Copenhagen", "Dublin",
                                          "Edinburgh", "Florence", "Geneva", "Helsinki"})
                     box.addItem(new ListboxTextItem(city));
             };
             auto& closed = static_cast<Combobox&>(
                 card.add("MoxieLook/Combobox", "closed, a city chosen", 10, 10, 200, 140));
             fill(closed);
             closed.setItemSelectState(std::size_t(1), true);
             closed.setText("Berlin");
             auto& open =
                 static_cast<Combobox&>(card.add("MoxieLook/Combobox", "", 240, 10, 200, 140));
             fill(open);
             open.setText("Dublin");
             card.whenShown([&open] { open.showDropList(); });
             card.hoverOn(*open.getDropList());
             auto& readOnly = static_cast<Combobox&>(
                 card.add("MoxieLook/Combobox", "read-only", 470, 10, 130, 140));
             fill(readOnly);
             readOnly.setReadOnly(true);
             readOnly.setText("Geneva");
         }},
        {"MoxieLook/ComboDropList", 100,
         [](Card& card)
         {
             auto& list = static_cast<Listbox&>(
                 card.add("MoxieLook/ComboDropList", "a drop list on its own", 10, 10, 200, 80));
             for (const char* item : {"First", "Second", "Third", "Fourth", "Fifth", "Sixth"})
                 list.addItem(new ListboxTextItem(item));
             list.setItemSelectState(1, true);
             card.whenShown([&list] { list.show(); }); // a drop list starts hidden
         }},
        {"MoxieLook/Editbox", 110,
         [](Card& card)
         {
             Window& empty = card.add("MoxieLook/Editbox", "empty: placeholder", 10, 10, 180, 26);
             empty.setProperty("PlaceholderText", "Search...");
             auto& selected = static_cast<Editbox&>(
                 card.add("MoxieLook/Editbox", "focused, a selection", 210, 10, 180, 26));
             selected.setText("Hello, edit box");
             selected.activate();
             selected.setSelection(7, 11);
             Window& readOnly = card.add("MoxieLook/Editbox", "read-only", 410, 10, 180, 26);
             readOnly.setText("Cannot change me");
             readOnly.setProperty("ReadOnly", "True");
             Window& disabled = card.add("MoxieLook/Editbox", "disabled", 10, 62, 180, 26);
             disabled.setText("Switched off");
             disabled.setEnabled(false);
             Window& masked = card.add("MoxieLook/Editbox", "masked", 210, 62, 180, 26);
             masked.setText("secret");
             masked.setProperty("MaskText", "True");
             masked.setProperty("MaskCodepoint", "8226");
             Window& digits =
                 card.add("MoxieLook/Editbox", "digits only (validated)", 410, 62, 180, 26);
             digits.setProperty("ValidationString", "[0-9]*");
             digits.setText("2026");
         }},
        {"MoxieLook/MultiLineEditbox", 140,
         [](Card& card)
         {
             Window& box =
                 card.add("MoxieLook/MultiLineEditbox", "wrapped, scrolling", 10, 10, 300, 110);
             box.setText("A multi-line edit box wraps its words at the edge of its frame and "
                         "scrolls when the text is longer than the box is high.\n\nNew "
                         "paragraphs start on their own line; the scroll bar follows the "
                         "caret as you type, and the selection brush lies under selected "
                         "text in every line it spans.");
             static_cast<MultiLineEditbox&>(box).setSelection(2, 40);
             Window& plain = card.add("MoxieLook/MultiLineEditbox", "read-only", 330, 10, 270, 110);
             plain.setText("Short notes.\nSecond line.");
             plain.setProperty("ReadOnly", "True");
         }},
        {"MoxieLook/Spinner", 60,
         [](Card& card)
         {
             auto& integer =
                 static_cast<Spinner&>(card.add("MoxieLook/Spinner", "integer", 10, 10, 120, 26));
             integer.setMaximumValue(100);
             integer.setCurrentValue(42);
             auto& real = static_cast<Spinner&>(
                 card.add("MoxieLook/Spinner", "floating, step 0.25", 160, 10, 120, 26));
             real.setTextInputMode(Spinner::FloatingPoint);
             real.setStepSize(0.25);
             real.setCurrentValue(1.5);
             auto& hex = static_cast<Spinner&>(
                 card.add("MoxieLook/Spinner", "hexadecimal", 310, 10, 120, 26));
             hex.setTextInputMode(Spinner::Hexadecimal);
             hex.setMaximumValue(255);
             hex.setCurrentValue(171);
         }},
        {"MoxieLook/WidgetDropDownListbox", 150,
         [](Card& card)
         {
             auto fill = [](MoxieLook::WidgetDropDownListbox& box)
             {
                 const char* icons[] = {"IconStar",   "IconHeart",    "IconInfo", "IconWarning",
                                        "IconFolder", "IconDocument", "",         "BadgeGreen"};
                 const char* texts[] = {"Favourites", "Loved",     "About",      "Warnings",
                                        "Folders",    "Documents", "No picture", "Online"};
                 for (int i = 0; i < 8; ++i)
                     box.AddItem(texts[i], texts[i], "", "MoxieLook", icons[i]);
             };
             auto& closed = static_cast<MoxieLook::WidgetDropDownListbox&>(card.add(
                 "MoxieLook/WidgetDropDownListbox", "closed, an item chosen", 10, 10, 180, 26));
             fill(closed);
             closed.SetSelectedItem(1);
             auto& open = static_cast<MoxieLook::WidgetDropDownListbox&>(
                 card.add("MoxieLook/WidgetDropDownListbox", "", 240, 10, 180, 26));
             fill(open);
             open.SetSelectedItem(0);
             // Opened when photographed: building later cards would close it.
             card.whenShown([&open] { open.ShowDropList(); });
             card.hoverOn(*open.getDropList());
         }},
        {"MoxieLook/WidgetDropDownList", 110,
         [](Card& card)
         {
             auto& list = static_cast<MoxieLook::WidgetDropDownList&>(card.add(
                 "MoxieLook/WidgetDropDownList", "three rows, no scroll bar", 10, 10, 180, 60));
             list.AddItem("a", "Apples", "", "MoxieLook", "IconHeart");
             list.AddItem("b", "Bananas", "Yellow ones", "MoxieLook", "IconStar");
             list.AddItem("c", "Cherries", "", "", "");
         }},
        {"MoxieLook/ProgressBar", 130,
         [](Card& card)
         {
             const float values[] = {0.0f, 0.6f, 1.0f};
             const char* captions[] = {"0", "0.6", "1"};
             for (int i = 0; i < 3; ++i)
                 static_cast<ProgressBar&>(
                     card.add("MoxieLook/ProgressBar", captions[i], 10 + i * 200.0f, 10, 180, 18))
                     .setProgress(values[i]);
             Window& reversed = card.add("MoxieLook/ProgressBar", "0.6 reversed", 10, 60, 180, 18);
             reversed.setProperty("ReversedProgress", "True");
             Window& tinted =
                 card.add("MoxieLook/ProgressBar", "disabled, tinted", 210, 60, 180, 18);
             tinted.setProperty("DisabledColour", "FF9AA3AD");
             tinted.disable();
             Window& upright = card.add("MoxieLook/ProgressBar", "0.6 upright", 410, 50, 18, 60);
             upright.setProperty("VerticalProgress", "True");
             for (Window* bar : {&reversed, &tinted, &upright})
                 static_cast<ProgressBar*>(bar)->setProgress(0.6f);
         }},
    };
}

} // namespace gallery
