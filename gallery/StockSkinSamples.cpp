// Cards of the types the stock CEGUI skins have and the module's own did not: labels, plain
// statics, group boxes, the tab control's panes as types of their own.
#include "Samples.h"

#include <CEGUI/Window.h>

namespace gallery
{
using namespace CEGUI;

std::vector<Sample> stockSkinSamples()
{
    return {
        {"MoxieLook/Label", 60,
         [](Card& card)
         {
             card.add("MoxieLook/Label", "centred (default)", 10, 10, 180, 24).setText("Volume");
             Window& left = card.add("MoxieLook/Label", "left, coloured", 210, 10, 180, 24);
             left.setText("Left aligned");
             left.setProperty("HorzFormatting", "LeftAligned");
             left.setProperty("NormalTextColour", "FF2060B0");
             Window& disabled = card.add("MoxieLook/Label", "disabled", 410, 10, 180, 24);
             disabled.setText("Unavailable");
             disabled.disable();
         }},
        {"MoxieLook/Static", 90,
         [](Card& card)
         {
             card.add("MoxieLook/Static", "frame and background", 10, 10, 180, 60);
             card.add("MoxieLook/Static", "frame only", 210, 10, 180, 60)
                 .setProperty("BackgroundEnabled", "False");
             Window& tinted = card.add("MoxieLook/Static", "tinted background", 410, 10, 180, 60);
             tinted.setProperty("BackgroundColours", "tl:FFFFE0A0 tr:FFFFE0A0 bl:FFA0C8FF "
                                                     "br:FFA0C8FF");
         }},
        {"MoxieLook/GroupBox", 140,
         [](Card& card)
         {
             Window& box = card.add("MoxieLook/GroupBox", "with children", 10, 10, 260, 110);
             box.setText("Sound");
             childOf(box, "MoxieLook/Checkbox", "Music", 6, 6, 120, 22);
             childOf(box, "MoxieLook/Checkbox", "Effects", 6, 32, 120, 22);
             childOf(box, "MoxieLook/Slider", "", 6, 62, 200, 20);
             card.add("MoxieLook/GroupBox", "no caption", 300, 10, 180, 110);
         }},
        {"MoxieLook/TabContentPane", 110,
         [](Card& card)
         {
             Window& pane = card.add("MoxieLook/TabContentPane", "", 10, 10, 260, 90);
             childOf(pane, "MoxieLook/Label", "A page's contents", 10, 10, 200, 24)
                 .setProperty("HorzFormatting", "LeftAligned");
         }},
        {"MoxieLook/TabButtonPane", 60,
         [](Card& card)
         {
             Window& strip = card.add("MoxieLook/TabButtonPane", "", 10, 10, 300, 28);
             childOf(strip, "MoxieLook/TabButton", "General", 0, 0, 90, 26);
             childOf(strip, "MoxieLook/TabButton", "Sound", 90, 0, 90, 26);
         }},
    };
}

} // namespace gallery
