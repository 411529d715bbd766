// Lists, combo box, menus, tabs, panes and frame windows: the same script on both skins.
// Clicks are aimed at what each widget reports (item rectangles, parts, header segments).
#include "parity/Parity.h"
#include "support/Gui.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/InputEvent.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/ComboDropList.h>
#include <CEGUI/widgets/Combobox.h>
#include <CEGUI/widgets/FrameWindow.h>
#include <CEGUI/widgets/ListHeader.h>
#include <CEGUI/widgets/ListHeaderSegment.h>
#include <CEGUI/widgets/Listbox.h>
#include <CEGUI/widgets/ListboxTextItem.h>
#include <CEGUI/widgets/MenuItem.h>
#include <CEGUI/widgets/Menubar.h>
#include <CEGUI/widgets/MultiColumnList.h>
#include <CEGUI/widgets/PopupMenu.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/TabControl.h>
#include <CEGUI/widgets/Titlebar.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace moxietest;

namespace
{
String numbered(const char* stem, int i)
{
    return stem + PropertyHelper<int>::toString(i);
}

// The centre of a list item on screen: lists report where they draw each item.
Vector2f itemCentre(const Listbox& list, std::size_t index)
{
    const ListboxItem* item = list.getListboxItemFromIndex(index);
    const Rectf area = list.getListRenderArea();
    const Vector2f origin = list.getUnclippedOuterRect().get().d_min;
    float top = area.top() - list.getVertScrollbar()->getScrollPosition();
    for (std::size_t i = 0; i < index; ++i)
        top += list.getListboxItemFromIndex(i)->getPixelSize().d_height;
    return Vector2f(origin.d_x + area.left() + 20,
                    origin.d_y + top + item->getPixelSize().d_height * 0.5f);
}

String selectedText(const Listbox& list)
{
    const ListboxItem* item = list.getFirstSelectedItem();
    return item ? item->getText() : String("(none)");
}
} // namespace

TEST(Parity, Listbox)
{
    ParityScript script;
    script.type = "Listbox";
    script.area = Rectf(100, 100, 300, 250);
    script.setUp = [](Window& w)
    {
        auto& list = static_cast<Listbox&>(w);
        for (int i = 0; i < 30; ++i)
            list.addItem(new ListboxTextItem(numbered("Item ", i)));
    };
    auto list = [](Window& w) -> Listbox& { return static_cast<Listbox&>(w); };
    script.steps = {{"click the third item", [=](Window& w) { clickAt(itemCentre(list(w), 2)); }},
                    {"wheel down two notches",
                     [](Window& w)
                     {
                         const Vector2f at = pointIn(w, 0.3f, 0.5f);
                         wheel(at.d_x, at.d_y, -2);
                     }},
                    {"click the first item in view",
                     [=](Window& w)
                     {
                         Listbox& l = list(w);
                         // The second item below the top of the list area.
                         const float rowHeight =
                             l.getListboxItemFromIndex(0)->getPixelSize().d_height;
                         const auto first = static_cast<std::size_t>(
                             l.getVertScrollbar()->getScrollPosition() / rowHeight + 0.99f);
                         clickAt(itemCentre(l, first + 1));
                     }},
                    {"increase arrow of the bar",
                     [=](Window& w)
                     {
                         Window& bar = *list(w).getVertScrollbar();
                         clickAt(pointIn(partOf(bar, "__auto_incbtn__"), 0.5f, 0.5f));
                     }},
                    {"multiselect, then a second item",
                     [=](Window& w)
                     {
                         list(w).setMultiselectEnabled(true);
                         list(w).ensureItemIsVisible(std::size_t(10));
                         clickAt(itemCentre(list(w), 10));
                     }},
                    {"clear", [=](Window& w) { list(w).resetList(); }}};
    script.observe = [](const Window& w, Observation& seen)
    {
        const auto& l = static_cast<const Listbox&>(w);
        seen.set("selected", selectedText(l));
        seen.set("selected count", static_cast<float>(l.getSelectedCount()));
        seen.set("items", static_cast<float>(l.getItemCount()));
        seen.set("scrolled", l.getVertScrollbar()->getScrollPosition() > 0);
    };
    script.events = {Listbox::EventSelectionChanged, Listbox::EventListContentsChanged};
    expectSameBehaviour(script);
}

TEST(Parity, Combobox)
{
    ParityScript script;
    script.type = "Combobox";
    script.area = Rectf(100, 100, 300, 300);
    script.setUp = [](Window& w)
    {
        auto& combo = static_cast<Combobox&>(w);
        for (int i = 0; i < 12; ++i)
            combo.addItem(new ListboxTextItem(numbered("Choice ", i)));
    };
    auto combo = [](Window& w) -> Combobox& { return static_cast<Combobox&>(w); };
    script.steps = {{"open by its button",
                     [=](Window& w) { clickAt(pointIn(*combo(w).getPushButton(), 0.5f, 0.5f)); }},
                    {"choose the second item",
                     [=](Window& w)
                     {
                         ComboDropList& drop = *combo(w).getDropList();
                         clickAt(itemCentre(drop, 1));
                     }},
                    {"reopen and wheel the list",
                     [=](Window& w)
                     {
                         clickAt(pointIn(*combo(w).getPushButton(), 0.5f, 0.5f));
                         const Vector2f at = pointIn(*combo(w).getDropList(), 0.4f, 0.5f);
                         wheel(at.d_x, at.d_y, -1);
                     }},
                    {"close by its button",
                     [=](Window& w) { clickAt(pointIn(*combo(w).getPushButton(), 0.5f, 0.5f)); }},
                    {"type into the edit part",
                     [=](Window& w)
                     {
                         clickAt(pointIn(partOf(w, "__auto_editbox__"), 0.8f, 0.5f));
                         pressKey(Key::End);
                         typeText("!");
                     }},
                    {"erase to empty", [](Window&)
                     {
                         for (int i = 0; i < 10; ++i)
                             pressKey(Key::Backspace);
                     }}};
    script.observe = [](const Window& w, Observation& seen)
    {
        const auto& c = static_cast<const Combobox&>(w);
        seen.set("text", c.getText());
        seen.set("open", c.isDropDownListVisible());
        const ListboxItem* chosen = c.getSelectedItem();
        seen.set("selected", chosen ? chosen->getText() : String("(none)"));
        seen.set("list scrolled", c.getDropList()->getVertScrollbar()->getScrollPosition() > 0);
    };
    script.events = {Combobox::EventListSelectionAccepted, Combobox::EventDropListDisplayed,
                     Combobox::EventDropListRemoved, Window::EventTextChanged};
    expectSameBehaviour(script);
}

TEST(Parity, MultiColumnListAndItsHeader)
{
    ParityScript script;
    script.type = "MultiColumnList";
    script.area = Rectf(100, 100, 400, 300);
    script.setUp = [](Window& w)
    {
        auto& grid = static_cast<MultiColumnList&>(w);
        grid.addColumn("Name", 0, cegui_absdim(120));
        grid.addColumn("Size", 1, cegui_absdim(80));
        for (int i = 0; i < 20; ++i)
        {
            const unsigned row = grid.addRow();
            grid.setItem(new ListboxTextItem(numbered("File ", 19 - i)), 0, row);
            grid.setItem(new ListboxTextItem(numbered("", i * 7)), 1, row);
        }
    };
    auto grid = [](Window& w) -> MultiColumnList& { return static_cast<MultiColumnList&>(w); };
    auto segment = [=](Window& w, unsigned column) -> ListHeaderSegment&
    { return grid(w).getHeaderSegmentForColumn(column); };
    auto rowCentre = [=](Window& w, unsigned row)
    {
        MultiColumnList& g = grid(w);
        const Rectf area = g.getListRenderArea();
        const Vector2f origin = g.getUnclippedOuterRect().get().d_min;
        float top = area.top() - g.getVertScrollbar()->getScrollPosition();
        for (unsigned r = 0; r < row; ++r)
            top += g.getHighestRowItemHeight(r);
        return Vector2f(origin.d_x + area.left() + 30,
                        origin.d_y + top + g.getHighestRowItemHeight(row) * 0.5f);
    };
    script.steps = {
        {"click the second row", [=](Window& w) { clickAt(rowCentre(w, 1)); }},
        {"sort by the first heading",
         [=](Window& w) { clickAt(pointIn(segment(w, 0), 0.4f, 0.5f)); }},
        {"sort it the other way", [=](Window& w) { clickAt(pointIn(segment(w, 0), 0.4f, 0.5f)); }},
        {"widen the first column by its splitter",
         [=](Window& w)
         {
             const Rectf edge = segment(w, 0).getUnclippedOuterRect().get();
             const Vector2f from(edge.right() - 1, edge.top() + edge.getHeight() / 2);
             dragFrom(from, Vector2f(from.d_x + 30, from.d_y));
         }},
        {"wheel down", [](Window& w)
         {
             const Vector2f at = pointIn(w, 0.3f, 0.6f);
             wheel(at.d_x, at.d_y, -2);
         }}};
    script.observe = [](const Window& w, Observation& seen)
    {
        const auto& g = static_cast<const MultiColumnList&>(w);
        const ListboxItem* item = g.getFirstSelectedItem();
        seen.set("selected", item ? item->getText() : String("(none)"));
        seen.set("first row", g.getItemAtGridReference(MCLGridRef(0, 0))->getText());
        seen.set("sort direction", static_cast<float>(g.getSortDirection()));
        seen.set("first column width",
                 g.getHeaderSegmentForColumn(0).getPixelSize().d_width >= 140);
        seen.set("scrolled", g.getVertScrollbar()->getScrollPosition() > 0);
    };
    script.events = {MultiColumnList::EventSelectionChanged,
                     MultiColumnList::EventSortColumnChanged,
                     MultiColumnList::EventSortDirectionChanged};
    expectSameBehaviour(script);
}

TEST(Parity, MenubarAndPopupMenu)
{
    ParityScript script;
    script.type = "Menubar";
    script.area = Rectf(0, 0, 400, 24);
    // What a menu item is called in each skin.
    static const auto itemType = [](const Window& bar)
    {
        return bar.getType().find("MoxieLook") == 0 ? String("MoxieLook/MenubarItem")
                                                    : String("TaharezLook/MenuItem");
    };
    script.setUp = [](Window& w)
    {
        WindowManager& windows = WindowManager::getSingleton();
        Window* file = windows.createWindow(itemType(w), "file");
        file->setText("File");
        w.addChild(file);
        const bool ours = w.getType().find("MoxieLook") == 0;
        Window* popup = windows.createWindow(ours ? "MoxieLook/PopupMenu" : "TaharezLook/PopupMenu",
                                             "filePopup");
        file->addChild(popup);
        for (const char* text : {"Open", "Save", "Quit"})
        {
            Window* item = windows.createWindow(
                ours ? "MoxieLook/PopupMenuItem" : "TaharezLook/MenuItem", String("item") + text);
            item->setText(text);
            popup->addChild(item);
        }
    };
    static int clicked = 0;
    auto file = [](Window& w) -> MenuItem& { return static_cast<MenuItem&>(*w.getChild("file")); };
    script.steps = {
        {"click File",
         [=](Window& w)
         {
             clicked = 0;
             for (const char* text : {"Open", "Save", "Quit"})
                 file(w)
                     .getPopupMenu()
                     ->getChild(String("item") + text)
                     ->subscribeEvent(MenuItem::EventClicked, [] { ++clicked; });
             clickAt(pointIn(file(w), 0.5f, 0.5f));
         }},
        {"click Save", [=](Window& w)
         { clickAt(pointIn(*file(w).getPopupMenu()->getChild("itemSave"), 0.5f, 0.5f)); }},
        {"open again", [=](Window& w) { clickAt(pointIn(file(w), 0.5f, 0.5f)); }},
        {"click File to close", [=](Window& w) { clickAt(pointIn(file(w), 0.5f, 0.5f)); }},
        {"open, then press outside", [=](Window& w)
         {
             clickAt(pointIn(file(w), 0.5f, 0.5f));
             clickAt(Vector2f(600, 500));
         }}};
    script.observe = [=](const Window& w, Observation& seen)
    {
        MenuItem& f = file(const_cast<Window&>(w));
        seen.set("popup open", f.getPopupMenu()->isVisible());
        seen.set("item clicks", static_cast<float>(clicked));
    };
    // MoxieLook closes an open menu on a press anywhere outside it; CEGUI's stay open.
    script.differences = {"open, then press outside/popup open"};
    expectSameBehaviour(script);
}

TEST(Parity, TabControl)
{
    ParityScript script;
    script.type = "TabControl";
    script.area = Rectf(100, 100, 400, 300);
    script.setUp = [](Window& w)
    {
        for (const char* title : {"General", "Sound", "Video"})
        {
            Window* page = WindowManager::getSingleton().createWindow("DefaultWindow", title);
            page->setText(title);
            static_cast<TabControl&>(w).addTab(page);
        }
    };
    auto tab = [](Window& w, unsigned i) -> Window&
    { return *partOf(w, "__auto_TabPane__Buttons").getChildAtIdx(i); };
    script.steps = {
        {"click the third tab", [=](Window& w) { clickAt(pointIn(tab(w, 2), 0.5f, 0.5f)); }},
        {"click the second tab", [=](Window& w) { clickAt(pointIn(tab(w, 1), 0.5f, 0.5f)); }},
        {"click it again", [=](Window& w) { clickAt(pointIn(tab(w, 1), 0.5f, 0.5f)); }},
        {"remove the selected page", [](Window& w)
         {
             Window* page = static_cast<TabControl&>(w).getTabContents("Sound");
             static_cast<TabControl&>(w).removeTab("Sound");
             WindowManager::getSingleton().destroyWindow(page); // the host's to destroy
         }}};
    script.observe = [](const Window& w, Observation& seen)
    {
        const auto& tabs = static_cast<const TabControl&>(w);
        seen.set("selected", static_cast<float>(tabs.getSelectedTabIndex()));
        seen.set("tabs", static_cast<float>(tabs.getTabCount()));
        seen.set("shown page", tabs.getTabContentsAtIndex(tabs.getSelectedTabIndex())->getName());
    };
    script.events = {TabControl::EventSelectionChanged};
    expectSameBehaviour(script);
}

TEST(Parity, ScrollablePane)
{
    ParityScript script;
    script.type = "ScrollablePane";
    script.area = Rectf(100, 100, 300, 250);
    script.setUp = [](Window& w)
    {
        Window* content = WindowManager::getSingleton().createWindow("DefaultWindow", "content");
        content->setArea(
            URect(cegui_absdim(0), cegui_absdim(0), cegui_absdim(500), cegui_absdim(800)));
        w.addChild(content);
    };
    auto pane = [](Window& w) -> ScrollablePane& { return static_cast<ScrollablePane&>(w); };
    script.steps = {{"vertical increase arrow",
                     [=](Window& w)
                     {
                         Window& bar = *pane(w).getVertScrollbar();
                         clickAt(pointIn(partOf(bar, "__auto_incbtn__"), 0.5f, 0.5f));
                     }},
                    {"horizontal track",
                     [=](Window& w) { clickAt(pointIn(*pane(w).getHorzScrollbar(), 0.8f, 0.5f)); }},
                    {"wheel over the vertical thumb",
                     [=](Window& w)
                     {
                         Window& bar = *pane(w).getVertScrollbar();
                         const Vector2f at = pointIn(partOf(bar, "__auto_thumb__"), 0.5f, 0.5f);
                         wheel(at.d_x, at.d_y, -1);
                     }},
                    {"content shrinks", [](Window& w) {
                         w.getChild("content")->setSize(USize(cegui_absdim(50), cegui_absdim(50)));
                     }}};
    script.observe = [](const Window& w, Observation& seen)
    {
        const auto& p = static_cast<const ScrollablePane&>(w);
        seen.set("vertical", p.getVerticalScrollPosition() > 0);
        seen.set("horizontal", p.getHorizontalScrollPosition() > 0);
        seen.set("vertical bar", p.getVertScrollbar()->isVisible());
        seen.set("horizontal bar", p.getHorzScrollbar()->isVisible());
    };
    script.events = {ScrollablePane::EventContentPaneScrolled};
    expectSameBehaviour(script);
}

TEST(Parity, FrameWindow)
{
    ParityScript script;
    script.type = "FrameWindow";
    script.area = Rectf(100, 100, 400, 300);
    script.setUp = [](Window& w)
    {
        w.setText("Notes");
        static_cast<FrameWindow&>(w).setRollupEnabled(true);
    };
    auto frame = [](Window& w) -> FrameWindow& { return static_cast<FrameWindow&>(w); };
    auto title = [=](Window& w) { return pointIn(*frame(w).getTitlebar(), 0.4f, 0.5f); };
    script.steps = {{"drag the title bar",
                     [=](Window& w)
                     {
                         const Vector2f from = title(w);
                         dragFrom(from, Vector2f(from.d_x + 40, from.d_y + 30));
                     }},
                    {"double click the title: roll up",
                     [=](Window& w) { doubleClick(title(w).d_x, title(w).d_y); }},
                    {"double click again: roll down",
                     [=](Window& w) { doubleClick(title(w).d_x, title(w).d_y); }},
                    {"size by the bottom-right corner",
                     [](Window& w)
                     {
                         const Rectf r = w.getUnclippedOuterRect().get();
                         dragFrom(Vector2f(r.right() - 2, r.bottom() - 2),
                                  Vector2f(r.right() + 48, r.bottom() + 18));
                     }},
                    {"click the title, then close", [=](Window& w)
                     {
                         clickAt(title(w));
                         clickAt(pointIn(*frame(w).getCloseButton(), 0.5f, 0.5f));
                     }}};
    script.observe = [](const Window& w, Observation& seen)
    {
        const Rectf r = w.getUnclippedOuterRect().get();
        seen.set("left", r.left());
        seen.set("top", r.top());
        seen.set("width", r.getWidth());
        seen.set("height", r.getHeight());
        seen.set("rolled up", static_cast<const FrameWindow&>(w).isRolledup());
        seen.set("visible", w.isVisible());
    };
    script.events = {FrameWindow::EventCloseClicked, FrameWindow::EventRollupToggled,
                     FrameWindow::EventDragSizingStarted, FrameWindow::EventDragSizingEnded};
    // Closing: MoxieLook's window hides itself (CEGUI's leaves that to the host), so it is
    // no longer the active window either.
    script.differences = {"click the title, then close/visible",
                          "click the title, then close/active is widget or its part"};
    expectSameBehaviour(script);
}
