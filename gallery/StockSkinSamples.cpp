// Cards of the types the stock CEGUI skins have and the module's own did not: labels, plain
// statics, group boxes, the tab control's panes as types of their own.
#include "Samples.h"

#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/ItemEntry.h>
#include <CEGUI/widgets/ItemListbox.h>
#include <CEGUI/widgets/ProgressBar.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/Thumb.h>
#include <CEGUI/widgets/Tree.h>
#include <CEGUI/widgets/TreeItem.h>

namespace gallery
{
using namespace CEGUI;

namespace
{
using State = Card::State;

// An item window with `text` at the end of `list`.
ItemEntry& entry(ItemListbox& list, const String& text)
{
    auto& item = static_cast<ItemEntry&>(
        *WindowManager::getSingleton().createWindow("MoxieLook/ListboxItem"));
    item.setText(text);
    list.addItem(&item);
    return item;
}

// Each state's window, in the order `states` made them, given `property` = `value`.
void setOnAll(Card& card, std::size_t first, const String& property, const String& value)
{
    for (std::size_t i = first; i < card.count(); ++i)
        card.at(i).setProperty(property, value);
}
} // namespace

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
        {"MoxieLook/Static", 180,
         [](Card& card)
         {
             card.add("MoxieLook/Static", "frame and background", 10, 10, 180, 60);
             card.add("MoxieLook/Static", "frame only", 210, 10, 180, 60)
                 .setProperty("BackgroundEnabled", "False");
             Window& tinted = card.add("MoxieLook/Static", "tinted background", 410, 10, 180, 60);
             tinted.setProperty("BackgroundColours", "tl:FFFFE0A0 tr:FFFFE0A0 bl:FFA0C8FF "
                                                     "br:FFA0C8FF");
             card.add("MoxieLook/Static", "text, left", 10, 100, 180, 60).setText("Ready");
             Window& padded =
                 card.add("MoxieLook/Static", "text, right, padded 10", 210, 100, 180, 60);
             padded.setText("Ready");
             padded.setProperty("HorzFormatting", "RightAligned");
             padded.setProperty("TextPadding", "10");
             Window& wrapped =
                 card.add("MoxieLook/Static", "text, wrapped, centred", 410, 100, 180, 60);
             wrapped.setText("A longer text that wraps onto a second line");
             wrapped.setProperty("HorzFormatting", "WordWrapCentreAligned");
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
             // As the tab control sets it for tabs below the page.
             Window& above = card.add("MoxieLook/TabContentPane", "edge on top", 300, 10, 260, 70);
             above.setProperty("EnableTop", "1");
             above.setProperty("EnableBottom", "0");
         }},
        {"MoxieLook/TabButtonPane", 60,
         [](Card& card)
         {
             Window& strip = card.add("MoxieLook/TabButtonPane", "", 10, 10, 300, 28);
             childOf(strip, "MoxieLook/TabButton", "General", 0, 0, 90, 26);
             childOf(strip, "MoxieLook/TabButton", "Sound", 90, 0, 90, 26);
         }},
        {"MoxieLook/ImageButton", 70,
         [](Card& card)
         {
             card.states("MoxieLook/ImageButton", "", 48, 32,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
             const char* images[][2] = {{"NormalImage", "MoxieLook/ToolButtonNormal"},
                                        {"HoverImage", "MoxieLook/ToolButtonFocus"},
                                        {"PushedImage", "MoxieLook/ToolButtonClicked"},
                                        {"DisabledImage", "MoxieLook/ToolButtonDisabled"}};
             for (const auto& [property, image] : images)
                 setOnAll(card, 0, property, image);
         }},
        {"MoxieLook/IconButton", 70,
         [](Card& card)
         {
             card.states("MoxieLook/IconButton", "", 40, 32,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
             setOnAll(card, 0, "IconImage", "MoxieLook/IconStar");
         }},
        {"MoxieLook/SystemButton", 60,
         [](Card& card)
         {
             card.states("MoxieLook/SystemButton", "", 16, 16,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
         }},
        {"MoxieLook/ComboEditbox", 60,
         [](Card& card)
         {
             auto& box = static_cast<Editbox&>(
                 card.add("MoxieLook/ComboEditbox", "focused, a selection", 10, 10, 180, 26));
             box.setText("Choice 3");
             box.activate();
             box.setSelection(0, 6);
             card.add("MoxieLook/ComboEditbox", "read-only", 210, 10, 180, 26)
                 .setProperty("ReadOnly", "True");
         }},
        {"MoxieLook/LargeVerticalScrollbar", 150,
         [](Card& card)
         {
             for (int i = 0; i < 3; ++i)
             {
                 auto& bar = static_cast<Scrollbar&>(card.add("MoxieLook/LargeVerticalScrollbar",
                                                              i == 0   ? "start"
                                                              : i == 1 ? "middle"
                                                                       : "hover",
                                                              10 + i * 130.0f, 10, 24, 110));
                 bar.setDocumentSize(100);
                 bar.setPageSize(25);
                 bar.setScrollPosition(i * 35.0f);
                 if (i == 2)
                     card.hoverOn(*bar.getThumb());
             }
         }},
        {"MoxieLook/LargeVerticalScrollbarThumb", 96,
         [](Card& card)
         {
             card.states("MoxieLook/LargeVerticalScrollbarThumb", "", 20, 60,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
         }},
        {"MoxieLook/AlternateProgressBar", 110,
         [](Card& card)
         {
             const float values[] = {0.0f, 0.35f, 1.0f};
             const char* captions[] = {"empty", "35 %", "full"};
             for (int i = 0; i < 3; ++i)
                 static_cast<ProgressBar&>(card.add("MoxieLook/AlternateProgressBar", captions[i],
                                                    10 + i * 200.0f, 10, 180, 22))
                     .setProgress(values[i]);
             auto& texted = static_cast<ProgressBar&>(
                 card.add("MoxieLook/AlternateProgressBar", "", 10, 60, 180, 22));
             texted.setProgress(0.6f);
             texted.setText("60 %, with a text");
         }},
        {"MoxieLook/VUMeter", 150,
         [](Card& card)
         {
             const float levels[] = {0.2f, 0.65f, 0.85f, 1.0f};
             const char* captions[] = {"20 %", "65 %", "85 %", "peak"};
             for (int i = 0; i < 4; ++i)
                 static_cast<ProgressBar&>(
                     card.add("MoxieLook/VUMeter", captions[i], 20 + i * 80.0f, 10, 22, 110))
                     .setProgress(levels[i]);
             Window& lying = card.add("MoxieLook/VUMeter", "lying, reversed", 360, 10, 200, 22);
             lying.setProperty("VerticalProgress", "False");
             lying.setProperty("ReversedProgress", "True");
             static_cast<ProgressBar&>(lying).setProgress(0.75f);
         }},
        {"MoxieLook/ItemListbox", 140,
         [](Card& card)
         {
             auto& list = static_cast<ItemListbox&>(
                 card.add("MoxieLook/ItemListbox", "a selection, a scroll bar", 10, 10, 200, 110));
             const char* planets[] = {"Mercury", "Venus",  "Earth",  "Mars",
                                      "Jupiter", "Saturn", "Uranus", "Neptune"};
             for (const char* planet : planets)
                 entry(list, planet);
             list.getItemFromIndex(2)->setSelected(true);
             auto& few = static_cast<ItemListbox&>(
                 card.add("MoxieLook/ItemListbox", "hover", 240, 10, 200, 110));
             entry(few, "Apples");
             card.hoverOn(entry(few, "Bananas"));
             entry(few, "Cherries");
         }},
        {"MoxieLook/ListboxItem", 110,
         [](Card& card)
         {
             auto& list =
                 static_cast<ItemListbox&>(card.add("MoxieLook/ItemListbox", "", 10, 10, 200, 90));
             entry(list, "Normal");
             card.hoverOn(entry(list, "Hover"));
             entry(list, "Selected").setSelected(true);
             entry(list, "Disabled").setEnabled(false);
         }},
        {"MoxieLook/Tree", 160,
         [](Card& card)
         {
             auto& tree = static_cast<Tree&>(card.add(
                 "MoxieLook/Tree", "branches open and closed, a selection", 10, 10, 240, 140));
             auto* fruit = new TreeItem("Fruit");
             tree.addItem(fruit);
             for (const char* name : {"Apples", "Bananas", "Cherries"})
                 fruit->addItem(new TreeItem(name));
             fruit->toggleIsOpen();
             fruit->getTreeItemFromIndex(1)->setSelected(true);
             auto* vegetables = new TreeItem("Vegetables");
             tree.addItem(vegetables);
             vegetables->addItem(new TreeItem("Carrots"));
             tree.addItem(new TreeItem("Bread"));
         }},
    };
}

} // namespace gallery
