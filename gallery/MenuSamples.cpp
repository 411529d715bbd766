// Cards of the menus.
#include "Samples.h"

#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/MenuItem.h>
#include <CEGUI/widgets/Menubar.h>
#include <CEGUI/widgets/PopupMenu.h>

namespace gallery
{
using namespace CEGUI;

namespace
{
MenuItem& item(Window& menu, const char* type, const String& text)
{
    auto& entry = static_cast<MenuItem&>(*WindowManager::getSingleton().createWindow(type));
    entry.setText(text);
    menu.addChild(&entry);
    return entry;
}

PopupMenu& popupOf(MenuItem& owner)
{
    auto& popup =
        static_cast<PopupMenu&>(*WindowManager::getSingleton().createWindow("MoxieLook/PopupMenu"));
    owner.addChild(&popup);
    return popup;
}

// A menu bar with File, Edit and View; File's menu holds a sub-menu, a check mark, a
// separator and a disabled item.
Menubar& menuBar(Card& card, const String& caption, float x, MenuItem** file, MenuItem** recent,
                 MenuItem** hovered, const char* barItem = "MoxieLook/MenubarItem",
                 const char* popupItem = "MoxieLook/PopupMenuItem")
{
    auto& bar = static_cast<Menubar&>(card.add("MoxieLook/Menubar", caption, x, 10, 280, 26));
    *file = &item(bar, barItem, "File");
    item(bar, barItem, "Edit");
    item(bar, barItem, "View");
    PopupMenu& fileMenu = popupOf(**file);
    item(fileMenu, popupItem, "New");
    *hovered = &item(fileMenu, popupItem, "Open...");
    *recent = &item(fileMenu, popupItem, "Recent files");
    item(fileMenu, popupItem, "Save").setEnabled(false);
    MenuItem& autosave = item(fileMenu, popupItem, "Save automatically");
    autosave.setSelectable(true);
    autosave.setSelected(true);
    item(fileMenu, popupItem, "");
    item(fileMenu, popupItem, "Quit");
    PopupMenu& recentMenu = popupOf(**recent);
    item(recentMenu, popupItem, "report.txt");
    item(recentMenu, popupItem, "notes.txt");
    return bar;
}
} // namespace

std::vector<Sample> menuSamples()
{
    return {
        {"MoxieLook/Menubar", 230,
         [](Card& card)
         {
             MenuItem *file = nullptr, *recent = nullptr, *hovered = nullptr;
             menuBar(card, "", 10, &file, &recent, &hovered);
             card.hoverOn(*hovered);
             card.whenShown(
                 [file, recent]
                 {
                     file->openPopupMenu();
                     recent->openPopupMenu();
                 });
         }},
        {"MoxieLook/MenubarItem", 60,
         [](Card& card)
         {
             auto& bar = static_cast<Menubar&>(card.add("MoxieLook/Menubar", "", 10, 10, 300, 26));
             item(bar, "MoxieLook/MenubarItem", "Normal");
             card.hoverOn(item(bar, "MoxieLook/MenubarItem", "Hover"));
             item(bar, "MoxieLook/MenubarItem", "Disabled").setEnabled(false);
         }},
        {"MoxieLook/PopupMenu", 130,
         [](Card& card)
         {
             auto& popup =
                 static_cast<PopupMenu&>(card.add("MoxieLook/PopupMenu", "", 10, 10, 160, 100));
             item(popup, "MoxieLook/PopupMenuItem", "Cut");
             item(popup, "MoxieLook/PopupMenuItem", "Copy");
             item(popup, "MoxieLook/PopupMenuItem", "");
             item(popup, "MoxieLook/PopupMenuItem", "Paste");
             card.whenShown([&popup] { popup.openPopupMenu(); });
         }},
        {"MoxieLook/PopupMenuItem", 110,
         [](Card& card)
         {
             auto& popup =
                 static_cast<PopupMenu&>(card.add("MoxieLook/PopupMenu", "", 10, 10, 160, 100));
             item(popup, "MoxieLook/PopupMenuItem", "Normal");
             card.hoverOn(item(popup, "MoxieLook/PopupMenuItem", "Hover"));
             MenuItem& checked = item(popup, "MoxieLook/PopupMenuItem", "Checked");
             checked.setSelectable(true);
             checked.setSelected(true);
             item(popup, "MoxieLook/PopupMenuItem", "Disabled").setEnabled(false);
             card.whenShown([&popup] { popup.openPopupMenu(); });
         }},
        {"MoxieLook/MenuItem", 230,
         [](Card& card)
         {
             // One item type for the bar and the pop-ups alike, as the stock skins have it.
             MenuItem *file = nullptr, *recent = nullptr, *hovered = nullptr;
             menuBar(card, "", 10, &file, &recent, &hovered, "MoxieLook/MenuItem",
                     "MoxieLook/MenuItem");
             card.hoverOn(*hovered);
             card.whenShown(
                 [file, recent]
                 {
                     file->openPopupMenu();
                     recent->openPopupMenu();
                 });
         }},
    };
}

} // namespace gallery
