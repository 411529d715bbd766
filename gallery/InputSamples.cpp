// Cards of the text input widgets and the progress bar.
#include "Samples.h"
#include "widgets/WidgetDropDownListbox.h"

#include <CEGUI/widgets/ProgressBar.h>

namespace gallery
{
using namespace CEGUI;

std::vector<Sample> inputSamples()
{
    return {
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
             open.ShowDropList();
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
        {"MoxieLook/ProgressBar", 60,
         [](Card& card)
         {
             const float values[] = {0.0f, 0.6f, 1.0f};
             const char* captions[] = {"0", "0.6", "1"};
             for (int i = 0; i < 3; ++i)
                 static_cast<ProgressBar&>(
                     card.add("MoxieLook/ProgressBar", captions[i], 10 + i * 200.0f, 10, 180, 18))
                     .setProgress(values[i]);
         }},
    };
}

} // namespace gallery
