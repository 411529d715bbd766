#include "module/WidgetKeys.h"

#include "looks/MXSlider.h"
#include "widgets/TreeView.h"
#include "widgets/WidgetDropDownListbox.h"

#include <CEGUI/widgets/Combobox.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/ItemEntry.h>
#include <CEGUI/widgets/ItemListbox.h>
#include <CEGUI/widgets/Listbox.h>
#include <CEGUI/widgets/ListboxItem.h>
#include <CEGUI/widgets/MenuItem.h>
#include <CEGUI/widgets/Menubar.h>
#include <CEGUI/widgets/MultiColumnList.h>
#include <CEGUI/widgets/MultiLineEditbox.h>
#include <CEGUI/widgets/PopupMenu.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/Slider.h>
#include <CEGUI/widgets/Spinner.h>
#include <CEGUI/widgets/TabControl.h>
#include <CEGUI/widgets/Tree.h>
#include <CEGUI/widgets/TreeItem.h>
#include <algorithm>
#include <functional>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
constexpr std::size_t PageLines = 10; //!< when a list cannot tell its own page
constexpr float PageSteps = 10.0f;

// Where a row selection moves for a key, in rows 0 to count - 1; false for other keys.
bool rowFor(Key::Scan key, std::size_t count, std::size_t page, long current, std::size_t& row)
{
    if (count == 0)
        return false;
    const long last = static_cast<long>(count) - 1;
    long to = current;
    switch (key)
    {
    case Key::ArrowUp:
        to = current < 0 ? 0 : current - 1;
        break;
    case Key::ArrowDown:
        to = current < 0 ? 0 : current + 1;
        break;
    case Key::PageUp:
        to = current - static_cast<long>(page);
        break;
    case Key::PageDown:
        to = current < 0 ? 0 : current + static_cast<long>(page);
        break;
    case Key::Home:
        to = 0;
        break;
    case Key::End:
        to = last;
        break;
    default:
        return false;
    }
    row = static_cast<std::size_t>(std::clamp(to, 0L, last));
    return true;
}

std::size_t pageOf(const Listbox& list)
{
    const ListboxItem* first = list.getItemCount() ? list.getListboxItemFromIndex(0) : nullptr;
    const float height = first ? first->getPixelSize().d_height : 0.0f;
    const float view = list.getListRenderArea().getHeight();
    return height > 0 ? std::max<std::size_t>(1, static_cast<std::size_t>(view / height))
                      : PageLines;
}

// A click in a multiple-selection list clears the others without an event of its own: the
// selection changes once.
struct ListAccess : Listbox
{
    static void clear(Listbox& list) { (list.*(&ListAccess::clearAllSelections_impl))(); }
    static bool multi(const Listbox& list) { return list.isMultiselectEnabled(); }
    static void select(Listbox& list, std::size_t row) { list.setItemSelectState(row, true); }
    static void show(Listbox& list, std::size_t row) { list.ensureItemIsVisible(row); }
};
struct TableAccess : MultiColumnList
{
    static void clear(MultiColumnList& table)
    {
        (table.*(&TableAccess::clearAllSelections_impl))();
    }
};

// The keys' new row selected alone, as a click selects it, and brought into view; each kind
// of list says through its Access how it does each step.
template <typename Access, typename List, typename Target>
bool selectAlone(List& list, Target to, bool moved)
{
    if (moved)
    {
        if (Access::multi(list))
            Access::clear(list);
        Access::select(list, to);
    }
    Access::show(list, to);
    return true;
}

bool listKey(Listbox& list, Key::Scan key)
{
    const ListboxItem* selected = list.getFirstSelectedItem();
    const long current = selected ? static_cast<long>(list.getItemIndex(selected)) : -1;
    std::size_t row = 0;
    if (!rowFor(key, list.getItemCount(), pageOf(list), current, row))
        return false;
    return selectAlone<ListAccess>(list, row, static_cast<long>(row) != current);
}

bool tableKey(MultiColumnList& table, Key::Scan key)
{
    const ListboxItem* selected = table.getFirstSelectedItem();
    const long current = selected ? static_cast<long>(table.getItemRowIndex(selected)) : -1;
    std::size_t row = 0;
    if (table.getColumnCount() == 0 || !rowFor(key, table.getRowCount(), PageLines, current, row))
        return false;
    // The row's first cell that holds an item (CEGUI reads the one given without a check).
    uint column = 0;
    while (column < table.getColumnCount() &&
           !table.getItemAtGridReference(MCLGridRef(static_cast<uint>(row), column)))
        ++column;
    if (static_cast<long>(row) != current && column < table.getColumnCount())
    {
        if (table.getSelectionMode() == MultiColumnList::RowMultiple ||
            table.getSelectionMode() == MultiColumnList::CellMultiple)
            TableAccess::clear(table);
        table.setItemSelectState(MCLGridRef(static_cast<uint>(row), column), true);
    }
    table.ensureRowIsVisible(static_cast<uint>(row));
    return true;
}

bool stepKey(Key::Scan key, float step, const std::function<void(float)>& by)
{
    switch (key)
    {
    case Key::ArrowUp:
    case Key::ArrowRight:
        by(step);
        return true;
    case Key::ArrowDown:
    case Key::ArrowLeft:
        by(-step);
        return true;
    case Key::PageUp:
        by(step * PageSteps);
        return true;
    case Key::PageDown:
        by(-step * PageSteps);
        return true;
    default:
        return false;
    }
}

// The next tab the mouse could pick (enabled), round at the ends.
bool switchTab(TabControl& tabs, bool back)
{
    const std::size_t count = tabs.getTabCount();
    const std::size_t at = tabs.getSelectedTabIndex();
    for (std::size_t step = 1; step < count; ++step)
    {
        const std::size_t to = back ? (at + count - step) % count : (at + step) % count;
        if (!tabs.getTabContentsAtIndex(to)->isDisabled())
        {
            tabs.setSelectedTabAtIndex(to);
            return true;
        }
    }
    return false;
}

// A menu item's hover flag is what marks it under the pointer; keys mark it the same way.
struct MenuItemAccess : MenuItem
{
    static void mark(MenuItem& item, bool on)
    {
        item.*(&MenuItemAccess::d_hovering) = on;
        item.invalidate();
    }
    static void click(MenuItem& item)
    {
        WindowEventArgs args(&item);
        (item.*(&MenuItemAccess::onClicked))(args);
    }
};

std::vector<MenuItem*> itemsOf(const MenuBase& menu)
{
    std::vector<MenuItem*> items;
    for (std::size_t i = 0; i < menu.getItemCount(); ++i)
        if (auto* item = dynamic_cast<MenuItem*>(menu.getItemFromIndex(i)))
            if (!item->isDisabled())
                items.push_back(item);
    return items;
}

MenuItem* markedIn(const MenuBase& menu)
{
    for (MenuItem* item : itemsOf(menu))
        if (item->isHovering())
            return item;
    return nullptr;
}

void markOnly(const MenuBase& menu, MenuItem* marked)
{
    for (MenuItem* item : itemsOf(menu))
        if (item->isHovering() != (item == marked))
            MenuItemAccess::mark(*item, item == marked);
}

// The neighbour of `from` in `menu` (wrapping), or its first item.
MenuItem* neighbour(const MenuBase& menu, const MenuItem* from, int by)
{
    const std::vector<MenuItem*> items = itemsOf(menu);
    if (items.empty())
        return nullptr;
    const auto at = std::find(items.begin(), items.end(), from);
    if (at == items.end())
        return by < 0 ? items.back() : items.front();
    const long n = static_cast<long>(items.size());
    return items[static_cast<std::size_t>(((at - items.begin()) + by + n) % n)];
}

MenuItem* openIn(const MenuBase& menu)
{
    for (MenuItem* item : itemsOf(menu))
        if (item->isOpened() && item->getPopupMenu())
            return item;
    return nullptr;
}

void openWithFirstMarked(MenuItem& item)
{
    item.openPopupMenu();
    if (PopupMenu* popup = item.getPopupMenu())
        markOnly(*popup, neighbour(*popup, nullptr, 1));
}

// Along the bar, down the pop-ups: Left and Right between the bar's items (opening the one
// reached when one was open), Down and Up in the open pop-up, Right into a sub-menu, Left
// out of it, Return or Space to click, Escape to close. A pop-up menu of its own (no bar)
// is walked the same way from its own items.
bool menuKey(MenuBase& top, Key::Scan key)
{
    auto* bar = dynamic_cast<Menubar*>(&top);
    // The open pop-ups, from the top down, and the items that opened them.
    std::vector<MenuBase*> open{&top};
    std::vector<MenuItem*> openers;
    while (MenuItem* item = openIn(*open.back()))
    {
        openers.push_back(item);
        open.push_back(item->getPopupMenu());
    }
    MenuBase& deepest = *open.back();
    MenuItem* marked = markedIn(deepest);
    const bool onBarOnly = bar && open.size() == 1;
    MenuItem* onBar = !bar ? nullptr : openers.empty() ? markedIn(*bar) : openers.front();
    auto alongBar = [&](int by)
    {
        if (!bar)
            return false;
        MenuItem* next = neighbour(*bar, onBar, by);
        if (!next)
            return false;
        const bool wasOpen = open.size() > 1;
        if (onBar && wasOpen)
            onBar->closePopupMenu();
        markOnly(*bar, next);
        if (wasOpen)
            openWithFirstMarked(*next);
        return true;
    };
    // Left closes a sub-menu: below a bar's menu, or below the pop-up itself.
    const std::size_t closable = bar ? 2 : 1;
    switch (key)
    {
    case Key::ArrowLeft:
        if (open.size() > closable)
        {
            openers.back()->closePopupMenu();
            return true;
        }
        return alongBar(-1);
    case Key::ArrowRight:
        if (!onBarOnly && marked && marked->getPopupMenu())
        {
            openWithFirstMarked(*marked);
            return true;
        }
        return alongBar(1);
    case Key::ArrowDown:
    case Key::ArrowUp:
        if (onBarOnly)
        {
            MenuItem* item = onBar ? onBar : neighbour(*bar, nullptr, 1);
            if (item)
                openWithFirstMarked(*item);
            return item != nullptr;
        }
        markOnly(deepest, neighbour(deepest, marked, key == Key::ArrowDown ? 1 : -1));
        return true;
    case Key::Return:
    case Key::NumpadEnter:
    case Key::Space:
    {
        MenuItem* item = onBarOnly ? (onBar ? onBar : neighbour(*bar, nullptr, 1)) : marked;
        if (!item)
            return false;
        if (item->getPopupMenu())
            openWithFirstMarked(*item);
        else
        {
            MenuItemAccess::click(*item);
            // A click closes the menus; CEGUI's own closing misses pop-ups opened by keys.
            if (!openers.empty() && openers.front()->isOpened())
                openers.front()->closePopupMenu();
        }
        return true;
    }
    case Key::Escape:
        if (open.size() > 1)
            openers.back()->closePopupMenu();
        else if (auto* popup = dynamic_cast<PopupMenu*>(&top))
            popup->closePopupMenu();
        else
            return false;
        return true;
    default:
        return false;
    }
}

// CEGUI's tree keeps its top items and its branch events to itself.
struct TreeAccess : Tree
{
    static void clear(Tree& tree) { (tree.*(&TreeAccess::clearAllSelections_impl))(); }
    static bool multi(const Tree& tree) { return tree.isMultiselectEnabled(); }
    static void select(Tree& tree, TreeItem* item) { tree.setItemSelectState(item, true); }
    static void show(Tree& tree, TreeItem* item) { tree.ensureItemIsVisible(item); }
    static std::vector<TreeItem*>& items(Tree& tree) { return tree.*(&TreeAccess::d_listItems); }
    static void branchToggled(Tree& tree, TreeItem& item)
    {
        TreeEventArgs args(&tree);
        args.treeItem = &item;
        if (item.getIsOpen())
            (tree.*(&TreeAccess::onBranchOpened))(args);
        else
            (tree.*(&TreeAccess::onBranchClosed))(args);
    }
};

// The tree's items as shown: each open branch's items after it; `parents` alongside.
void shownItems(TreeItem::LBItemList& items, TreeItem* parent, std::vector<TreeItem*>& out,
                std::vector<TreeItem*>& parents)
{
    for (TreeItem* item : items)
    {
        out.push_back(item);
        parents.push_back(parent);
        if (item->getIsOpen())
            shownItems(item->getItemList(), item, out, parents);
    }
}

bool ceguiTreeKey(Tree& tree, Key::Scan key)
{
    std::vector<TreeItem*> shown, parents;
    shownItems(TreeAccess::items(tree), nullptr, shown, parents);
    TreeItem* selected = tree.getFirstSelectedItem();
    const auto at = std::find(shown.begin(), shown.end(), selected);
    const long current = at == shown.end() ? -1 : static_cast<long>(at - shown.begin());
    TreeItem* to = nullptr;
    if (key == Key::ArrowLeft || key == Key::ArrowRight)
    {
        if (current < 0)
            return false;
        const bool open = key == Key::ArrowRight;
        if (selected->getItemCount() > 0 && selected->getIsOpen() != open)
        {
            selected->toggleIsOpen();
            tree.doScrollbars(); // as the mouse's toggle: the bars follow
            TreeAccess::branchToggled(tree, *selected);
            tree.invalidate();
            return true;
        }
        to = open ? nullptr : parents[static_cast<std::size_t>(current)];
        if (!to)
            return true;
    }
    else
    {
        std::size_t row = 0;
        if (!rowFor(key, shown.size(), PageLines, current, row))
            return false;
        to = shown[row];
    }
    return selectAlone<TreeAccess>(tree, to, to != selected);
}

struct ItemListAccess
{
    static void clear(ItemListbox& list) { list.clearAllSelections(); }
    static bool multi(const ItemListbox& list) { return list.isMultiSelectEnabled(); }
    // As a click: one selection event.
    static void select(ItemListbox& list, ItemEntry* item) { list.notifyItemClicked(item); }
    static void show(ItemListbox& list, ItemEntry* item) { list.ensureItemIsVisibleVert(*item); }
};

bool itemListKey(ItemListbox& list, Key::Scan key)
{
    const ItemEntry* selected = list.getFirstSelectedItem();
    const long current = selected ? static_cast<long>(list.getItemIndex(selected)) : -1;
    std::size_t row = 0;
    if (!rowFor(key, list.getItemCount(), PageLines, current, row))
        return false;
    return selectAlone<ItemListAccess>(list, list.getItemFromIndex(row),
                                       static_cast<long>(row) != current);
}

bool chooseKey(WidgetDropDownListbox& box, Key::Scan key)
{
    const long current = box.GetSelectedIndex();
    std::size_t row = 0;
    if (!rowFor(key, box.GetItemCount(), PageLines, current, row))
        return false;
    if (static_cast<long>(row) != current)
        box.ChooseItem(static_cast<unsigned>(row));
    return true;
}
} // namespace

bool operateInside(Window& focused, Key::Scan key, bool shift, bool control)
{
    // Ctrl+Tab switches the tabs of the tab control the focus is in (in a multi-line box it
    // leaves the box instead).
    if (key == Key::Tab && control && !dynamic_cast<MultiLineEditbox*>(&focused))
    {
        for (Window* w = &focused; w; w = w->getParent())
            if (auto* tabs = dynamic_cast<TabControl*>(w))
                return switchTab(*tabs, shift);
        return false;
    }
    if (auto* tabs = dynamic_cast<TabControl*>(&focused))
        return (key == Key::ArrowLeft || key == Key::ArrowRight) &&
               switchTab(*tabs, key == Key::ArrowLeft);
    if (auto* tree = dynamic_cast<TreeView*>(&focused))
        return tree->moveByKey(key);
    if (auto* bar = dynamic_cast<Menubar*>(&focused))
        return menuKey(*bar, key);
    if (auto* ceguiTree = dynamic_cast<Tree*>(&focused))
        return ceguiTreeKey(*ceguiTree, key);
    if (auto* items = dynamic_cast<ItemListbox*>(&focused))
        return itemListKey(*items, key);
    if (auto* table = dynamic_cast<MultiColumnList*>(&focused))
        return tableKey(*table, key);
    if (auto* list = dynamic_cast<Listbox*>(&focused))
        return listKey(*list, key);
    if (auto* box = dynamic_cast<WidgetDropDownListbox*>(&focused))
        return chooseKey(*box, key);
    if (auto* slider = dynamic_cast<Slider*>(&focused))
    {
        // Right and Up go where the value grows on screen.
        const auto* own = dynamic_cast<MXSlider*>(slider);
        const float step =
            own && own->isReversedDirection() ? -slider->getClickStep() : slider->getClickStep();
        return stepKey(key, step,
                       [slider](float by)
                       { slider->setCurrentValue(slider->getCurrentValue() + by); });
    }
    // A combo box one types into keeps Space and Return, and its arrows step the choice:
    // F4 opens it.
    if (auto* combo = dynamic_cast<Combobox*>(&focused);
        combo && key == Key::F4 && !combo->isDropDownListVisible())
    {
        combo->showDropList();
        return true;
    }
    if (auto* bar = dynamic_cast<Scrollbar*>(&focused))
    {
        // Page Up and Page Down a page, the arrows a step.
        const float page = bar->getPageSize();
        switch (key)
        {
        case Key::PageUp:
        case Key::PageDown:
            bar->setScrollPosition(bar->getScrollPosition() + (key == Key::PageUp ? -page : page));
            return true;
        default:
            return stepKey(key == Key::ArrowUp     ? Key::ArrowDown
                           : key == Key::ArrowDown ? Key::ArrowUp
                                                   : key,
                           bar->getStepSize(),
                           [bar](float by)
                           { bar->setScrollPosition(bar->getScrollPosition() + by); });
        }
    }
    if (auto* popup = dynamic_cast<PopupMenu*>(&focused))
        return menuKey(*popup, key);
    if (auto* spinner = dynamic_cast<Spinner*>(&focused))
    {
        // Its edit box keeps the caret keys.
        if (key == Key::ArrowLeft || key == Key::ArrowRight)
            return false;
        return stepKey(key, static_cast<float>(spinner->getStepSize()),
                       [spinner](float by)
                       { spinner->setCurrentValue(spinner->getCurrentValue() + by); });
    }
    return false;
}

} // namespace MoxieLook
} // namespace CEGUI
