#include "module/KeyboardNavigation.h"

#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "widgets/ButtonEx.h"
#include "widgets/DragEventArgs.h"
#include "widgets/RadioButtonEx.h"
#include "widgets/SmartButtonNodeItem.h"
#include "widgets/StaticLayout.h"
#include "widgets/TextItemEx.h"
#include "widgets/ToggleButton.h"
#include "widgets/TreeView.h"
#include "widgets/WidgetDropDownListbox.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Combobox.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/FrameWindow.h>
#include <CEGUI/widgets/ItemEntry.h>
#include <CEGUI/widgets/ItemListbox.h>
#include <CEGUI/widgets/Listbox.h>
#include <CEGUI/widgets/ListboxTextItem.h>
#include <CEGUI/widgets/MenuItem.h>
#include <CEGUI/widgets/Menubar.h>
#include <CEGUI/widgets/MultiColumnList.h>
#include <CEGUI/widgets/PopupMenu.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/Slider.h>
#include <CEGUI/widgets/Spinner.h>
#include <CEGUI/widgets/TabControl.h>
#include <CEGUI/widgets/ToggleButton.h>
#include <CEGUI/widgets/Tree.h>
#include <CEGUI/widgets/TreeItem.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::drawnBy;
using moxietest::press;

namespace
{
class KeyboardNavigationTest : public ::testing::Test
{
protected:
    void SetUp() override { moxietest::freshSheet(); }
    void TearDown() override { setKeyboardNavigation(moxietest::context(), true); }

    static Window* focused() { return focusedWidget(moxietest::context()); }

    // A frame window holding a button, an edit box, a check box and a multi-line box, and
    // a button outside it.
    void buildDialog()
    {
        frame = &moxietest::place("MoxieLook/FrameWindow", 10, 10, 400, 300);
        auto add = [this](const char* type, float x, float y)
        {
            Window* w = &moxietest::child(*frame, type, x, y, 120, 28);
            w->setText(type);
            return w;
        };
        ok = add("MoxieLook/Button", 10, 40);
        name = add("MoxieLook/Editbox", 150, 40);
        hints = add("MoxieLook/Checkbox", 10, 90);
        notes = add("MoxieLook/MultiLineEditbox", 150, 90);
        label = add("MoxieLook/StaticText", 10, 140);
        outside = &moxietest::place("MoxieLook/Button", 450, 10, 100, 28);
    }

    Window* frame = nullptr;
    Window *ok = nullptr, *name = nullptr, *hints = nullptr, *notes = nullptr, *label = nullptr,
           *outside = nullptr;
};

std::vector<moxietest::DrawnQuad> ringOf(Window& window)
{
    return moxietest::allOf(drawnBy(window), "FocusRing");
}
} // namespace

TEST_F(KeyboardNavigationTest, TabWalksTheFrameInOrderWrapsAndSkipsWhatCannotTakeIt)
{
    buildDialog();
    moxietest::clickOn(*ok);
    ASSERT_EQ(focused(), ok);
    // Labels are no stops; the other window's button is outside this frame.
    std::vector<Window*> seen;
    for (int i = 0; i < 3; ++i)
    {
        press(Key::Tab);
        seen.push_back(focused());
    }
    EXPECT_EQ(seen, (std::vector<Window*>{name, hints, notes}));
    // The multi-line box keeps Tab for its text; Ctrl+Tab leaves it, round to the first.
    // Shift goes back, round to the last.
    press(Key::Tab);
    EXPECT_EQ(focused(), notes);
    press(Key::Tab, false, true);
    EXPECT_EQ(focused(), ok);
    press(Key::Tab, true);
    EXPECT_EQ(focused(), notes);
    press(Key::Tab, true, true);
    EXPECT_EQ(focused(), hints);
    press(Key::Tab, true);
    press(Key::Tab, true);
    EXPECT_EQ(focused(), ok);
    // Opted out, disabled or hidden: passed over.
    EXPECT_EQ(name->getProperty("TabStop"), "True");
    name->setProperty("TabStop", "False");
    hints->disable();
    press(Key::Tab);
    EXPECT_EQ(focused(), notes);
    notes->hide();
    press(Key::Tab, false, true);
    EXPECT_EQ(focused(), ok);
    EXPECT_FALSE(label->isPropertyPresent("TabStop"));
    // Turned off by the host, Tab does nothing.
    setKeyboardNavigation(moxietest::context(), false);
    EXPECT_FALSE(isKeyboardNavigationEnabled(moxietest::context()));
    press(Key::Tab);
    EXPECT_EQ(focused(), ok);
}

TEST_F(KeyboardNavigationTest, CheckBoxesToggleAndComboBoxesOpenAsTheMouseWould)
{
    Window& check = moxietest::place("MoxieLook/Checkbox", 10, 50, 140, 24);
    auto& combo = moxietest::placeAs<Combobox>("MoxieLook/Combobox", 200, 10, 160, 140);
    combo.addItem(new ListboxTextItem("One"));
    check.activate();
    press(Key::Space);
    EXPECT_TRUE(static_cast<CEGUI::ToggleButton&>(check).isSelected());
    press(Key::Return);
    EXPECT_FALSE(static_cast<CEGUI::ToggleButton&>(check).isSelected());
    // A combo box one types into keeps Space and Return (its text accepted); F4 opens it.
    int shown = 0, accepted = 0;
    combo.subscribeEvent(Combobox::EventDropListDisplayed, [&shown] { ++shown; });
    combo.getEditbox()->subscribeEvent(Editbox::EventTextAccepted, [&accepted] { ++accepted; });
    combo.activate();
    press(Key::Return);
    EXPECT_FALSE(combo.isDropDownListVisible());
    EXPECT_EQ(accepted, 1);
    press(Key::F4);
    EXPECT_TRUE(combo.isDropDownListVisible());
    press(Key::Escape);
    EXPECT_FALSE(combo.isDropDownListVisible());
    // Read-only, Space opens it; Return then takes the list's item and closes, opening
    // nothing again.
    combo.setReadOnly(true);
    press(Key::Space);
    EXPECT_TRUE(combo.isDropDownListVisible());
    press(Key::Return);
    EXPECT_FALSE(combo.isDropDownListVisible());
    EXPECT_EQ(shown, 2);
}

TEST_F(KeyboardNavigationTest, ArrowsMoveFromButtonsToTheNearestWidgetThatWay)
{
    // Two rows of two buttons; a gamepad's pad walks them.
    Window& a = moxietest::place("MoxieLook/Button", 10, 10, 100, 28);
    Window& b = moxietest::place("MoxieLook/Button", 200, 14, 100, 28);
    Window& c = moxietest::place("MoxieLook/Button", 10, 100, 100, 28);
    Window& d = moxietest::place("MoxieLook/Button", 200, 100, 100, 28);
    a.activate();
    press(Key::ArrowRight);
    EXPECT_EQ(focused(), &b);
    press(Key::ArrowDown);
    EXPECT_EQ(focused(), &d);
    press(Key::ArrowLeft);
    EXPECT_EQ(focused(), &c);
    press(Key::ArrowUp);
    EXPECT_EQ(focused(), &a);
    press(Key::ArrowUp); // nothing above: stays
    EXPECT_EQ(focused(), &a);
}

TEST_F(KeyboardNavigationTest, TheRingShowsAfterKeysOnlyAndOnlyOnWhatCanTakeTheFocus)
{
    Window& first = moxietest::place("MoxieLook/Button", 10, 10, 100, 30);
    Window& second = moxietest::place("MoxieLook/Button", 10, 60, 100, 30);
    moxietest::click(60, 25);
    EXPECT_TRUE(ringOf(first).empty()); // the mouse moved the focus
    press(Key::Tab);
    ASSERT_EQ(focused(), &second);
    EXPECT_TRUE(hasFocusRing(second));
    EXPECT_TRUE(ringOf(first).empty());
    // Four bars of two pixels along the edges, over the button's own drawing.
    const auto ring = ringOf(second);
    ASSERT_EQ(ring.size(), 4u);
    EXPECT_EQ(ring[0].rect, Rectf(0, 0, 100, 2));
    EXPECT_EQ(ring[1].rect, Rectf(0, 28, 100, 30));
    EXPECT_EQ(ring[2].rect, Rectf(0, 2, 2, 28));
    EXPECT_EQ(ring[3].rect, Rectf(98, 2, 100, 28));
    EXPECT_EQ(drawnBy(second).back().image, "FocusRing");
    // Disabled, it is no stop: no ring. A click hides it.
    second.disable();
    EXPECT_TRUE(ringOf(second).empty());
    second.enable();
    EXPECT_EQ(ringOf(second).size(), 4u);
    moxietest::click(60, 25);
    EXPECT_TRUE(ringOf(second).empty());
    EXPECT_FALSE(hasFocusRing(first));
}

TEST_F(KeyboardNavigationTest, KeysInsideWidgetsMoveTheSelectionStepAndSwitchTabs)
{
    // A list: the selection moves and stays in view, each move firing the list's event.
    auto& list = moxietest::placeAs<Listbox>("MoxieLook/Listbox", 10, 10, 150, 100);
    for (int i = 0; i < 30; ++i)
        list.addItem(new ListboxTextItem("Item " + PropertyHelper<int>::toString(i)));
    int changes = 0;
    list.subscribeEvent(Listbox::EventSelectionChanged,
                        [&changes](const EventArgs&) { return ++changes > 0; });
    list.activate();
    auto row = [&list]
    { return list.getFirstSelectedItem() ? list.getItemIndex(list.getFirstSelectedItem()) : 99; };
    press(Key::ArrowDown);
    press(Key::ArrowDown);
    EXPECT_EQ(row(), 1u);
    press(Key::End);
    EXPECT_EQ(row(), 29u);
    EXPECT_GT(list.getVertScrollbar()->getScrollPosition(), 0);
    press(Key::Home);
    EXPECT_EQ(row(), 0u);
    EXPECT_EQ(list.getVertScrollbar()->getScrollPosition(), 0);
    press(Key::PageDown);
    EXPECT_GT(row(), 2u);
    EXPECT_EQ(changes, 5);

    // A table selects whole rows.
    auto& table = static_cast<MultiColumnList&>(
        moxietest::place("MoxieLook/MultiColumnList", 200, 10, 200, 120));
    table.addColumn("Name", 0, cegui_absdim(100));
    for (uint r = 0; r < 5; ++r)
        table.addRow(new ListboxTextItem("Row " + PropertyHelper<uint>::toString(r)), 0);
    table.activate();
    press(Key::ArrowDown);
    press(Key::ArrowDown);
    EXPECT_EQ(table.getItemRowIndex(table.getFirstSelectedItem()), 1u);

    // A slider steps by its click step and pages by ten.
    auto& slider = moxietest::placeAs<Slider>("MoxieLook/Slider", 10, 150, 200, 30);
    slider.setMaxValue(1.0f);
    slider.setClickStep(0.1f);
    slider.setCurrentValue(0.5f);
    slider.activate();
    press(Key::ArrowRight);
    EXPECT_NEAR(slider.getCurrentValue(), 0.6f, 1e-5f);
    press(Key::PageDown);
    EXPECT_EQ(slider.getCurrentValue(), 0.0f);
    // Tabs: Ctrl+Tab from inside a page, and Left and Right on the tab row itself.
    auto& tabs = moxietest::placeAs<TabControl>("MoxieLook/TabControl", 10, 200, 300, 150);
    moxietest::addTabs(tabs, {"One", "Two", "Three"});
    Window* inside =
        &moxietest::child(*tabs.getTabContentsAtIndex(0), "MoxieLook/Button", 10, 10, 80, 24);
    inside->activate();
    press(Key::Tab, false, true);
    EXPECT_EQ(tabs.getSelectedTabIndex(), 1u);
    press(Key::Tab, true, true);
    EXPECT_EQ(tabs.getSelectedTabIndex(), 0u);
    tabs.activate();
    press(Key::ArrowLeft);
    EXPECT_EQ(tabs.getSelectedTabIndex(), 2u);

    // A drop-down selector chooses with the arrows, opens with Space, closes with Escape.
    auto& selector = static_cast<WidgetDropDownListbox&>(
        moxietest::place("MoxieLook/WidgetDropDownListbox", 420, 10, 150, 30));
    for (const char* text : {"Red", "Green", "Blue"})
        selector.AddItem(text, text, "", "", "");
    int chosen = 0;
    selector.subscribeEvent(WidgetDropDownListbox::EventSelectionChanged,
                            [&chosen](const EventArgs&) { return ++chosen > 0; });
    selector.activate();
    press(Key::ArrowDown);
    press(Key::ArrowDown);
    EXPECT_EQ(selector.GetSelectedIndex(), 1);
    EXPECT_EQ(chosen, 2);
    press(Key::Space);
    EXPECT_TRUE(selector.getDropList()->isVisible());
    press(Key::Escape);
    EXPECT_FALSE(selector.getDropList()->isVisible());
}

TEST_F(KeyboardNavigationTest, TheTreeWalksItsLinesOpensAndClosesTitles)
{
    auto& tree = moxietest::placeAs<TreeView>("MoxieLook/TreeView", 10, 10, 300, 200);
    TreeView::Node* a = tree.GetRootNode()->Add("A", "Title A", nullptr);
    TreeView::Node* a1 = a->Add("a1", "Leaf a1", nullptr);
    TreeView::Node* b = tree.GetRootNode()->Add("B", "Title B", nullptr);
    b->Add("b1", "Leaf b1", nullptr);
    std::vector<TreeView::Node*> clicked;
    for (const String* event : {&TreeView::EventLeafItemClicked, &TreeView::EventTitleItemClicked})
        tree.subscribeEvent(*event,
                            [&clicked](const EventArgs& e)
                            {
                                clicked.push_back(
                                    static_cast<const TreeView::ItemEventArgs&>(e).node);
                                return true;
                            });
    drawnBy(tree);
    tree.activate();
    press(Key::ArrowDown); // the first line
    press(Key::ArrowDown);
    EXPECT_EQ(clicked, (std::vector<TreeView::Node*>{a, a1}));
    press(Key::ArrowLeft); // a leaf: to its title
    EXPECT_EQ(tree.GetSelectedNode(), a);
    press(Key::ArrowLeft); // an open title: closes
    EXPECT_FALSE(a->IsOpened());
    drawnBy(tree);
    press(Key::ArrowDown); // a's leaf is hidden now: b
    EXPECT_EQ(tree.GetSelectedNode(), b);
    press(Key::ArrowUp);
    press(Key::ArrowRight);
    EXPECT_TRUE(a->IsOpened());
    press(Key::End);
    EXPECT_EQ(tree.GetSelectedNode()->GetName(), "b1");
}

TEST_F(KeyboardNavigationTest, AMenuBarIsWalkedOpenedAndClickedByKeys)
{
    auto& bar = moxietest::placeAs<Menubar>("MoxieLook/Menubar", 0, 0, 400, 26);
    auto item = [](Window& parent, const char* text) { return &moxietest::menuItem(parent, text); };
    auto popupOf = [](MenuItem& owner) { return &moxietest::popupOf(owner); };
    MenuItem* file = item(bar, "File");
    Window* fileMenu = popupOf(*file);
    MenuItem* open = item(*fileMenu, "Open");
    MenuItem* recent = item(*fileMenu, "Recent");
    MenuItem* older = item(*popupOf(*recent), "Older");
    MenuItem* quit = item(*fileMenu, "Quit");
    MenuItem* edit = item(bar, "Edit");
    item(*popupOf(*edit), "Cut");
    int quits = 0;
    quit->subscribeEvent(MenuItem::EventClicked,
                         [&quits](const EventArgs&) { return ++quits > 0; });

    bar.activate();
    press(Key::ArrowDown); // opens File, its first item marked
    EXPECT_TRUE(file->isOpened());
    EXPECT_TRUE(open->isHovering());
    press(Key::ArrowDown);
    EXPECT_TRUE(recent->isHovering());
    EXPECT_FALSE(open->isHovering());
    press(Key::ArrowRight); // into the sub-menu
    EXPECT_TRUE(recent->isOpened());
    EXPECT_TRUE(older->isHovering());
    press(Key::ArrowLeft); // out of it
    EXPECT_FALSE(recent->isOpened());
    EXPECT_TRUE(file->isOpened());
    press(Key::ArrowDown);
    press(Key::Return); // Quit: clicked, and the menus close
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(file->isOpened());
    // Along the bar with a menu open, the next one opens; Escape closes it.
    press(Key::ArrowDown);
    press(Key::ArrowRight);
    EXPECT_FALSE(file->isOpened());
    EXPECT_TRUE(edit->isOpened());
    press(Key::ArrowLeft);
    EXPECT_TRUE(file->isOpened());
    EXPECT_FALSE(edit->isOpened());
    press(Key::Escape);
    EXPECT_FALSE(file->isOpened());

    // A pop-up menu of its own (a context menu) is walked from its items; Escape closes it.
    auto& context = moxietest::placeAs<PopupMenu>("MoxieLook/PopupMenu", 200, 100, 120, 80);
    MenuItem* copy = item(context, "Copy");
    MenuItem* paste = item(context, "Paste");
    int pastes = 0;
    paste->subscribeEvent(MenuItem::EventClicked, [&pastes] { ++pastes; });
    context.openPopupMenu();
    context.activate();
    press(Key::ArrowDown);
    EXPECT_TRUE(copy->isHovering());
    press(Key::ArrowDown);
    press(Key::Return);
    EXPECT_EQ(pastes, 1);
    context.openPopupMenu();
    context.activate();
    press(Key::Escape);
    EXPECT_FALSE(context.isVisible());
}

TEST_F(KeyboardNavigationTest, EscapeCancelsADragAsADropOnNothingWould)
{
    auto& button = moxietest::placeAs<ButtonEx>("MoxieLook/ButtonEx", 10, 10, 100, 30);
    button.SetDragAuthorized(true);
    int cancelled = 0, clicks = 0;
    button.subscribeEvent(EventDropCancelled, [&cancelled] { ++cancelled; });
    button.subscribeEvent(PushButton::EventClicked, [&clicks] { ++clicks; });
    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    moxietest::pointerTo(40, 20);
    moxietest::pointerTo(300, 200);
    ASSERT_TRUE(button.IsDragging());
    moxietest::sounds().clear();
    press(Key::Space); // no click in the middle of a drag
    EXPECT_TRUE(button.IsDragging());
    press(Key::Escape);
    EXPECT_FALSE(button.IsDragging());
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(button.getUnclippedOuterRect().get().d_min, Vector2f(10, 10));
    // The release that follows is no click.
    moxietest::leftUp();
    EXPECT_EQ(moxietest::sounds(), std::vector<std::string>{"meup"});
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(cancelled, 1);

    // A layout dragged by its own area goes back the same way.
    auto& layout = moxietest::placeAs<StaticLayout>("MoxieLook/StaticLayout", 300, 300, 100, 80);
    layout.SetDragAuthorized(true);
    int layoutCancels = 0;
    layout.subscribeEvent(EventDropCancelled, [&layoutCancels] { ++layoutCancels; });
    moxietest::pointerTo(320, 320);
    moxietest::leftDown();
    moxietest::pointerTo(340, 320);
    moxietest::pointerTo(500, 450);
    ASSERT_TRUE(layout.IsDragging());
    moxietest::press(Key::Escape);
    EXPECT_FALSE(layout.IsDragging());
    EXPECT_EQ(layoutCancels, 1);
    EXPECT_EQ(layout.getUnclippedOuterRect().get().d_min, Vector2f(300, 300));
    moxietest::leftUp();
    EXPECT_EQ(layoutCancels, 1);
}

TEST_F(KeyboardNavigationTest, KeysKeepTheirPromisesWhereWidgetsNestOrDiffer)
{
    // A tab control takes the focus from a widget on its own page; Tab goes on past it.
    Window& dialog = moxietest::place("MoxieLook/FrameWindow", 10, 10, 400, 300);
    auto& tabs = static_cast<TabControl&>(
        moxietest::child(dialog, "MoxieLook/TabControl", 10, 40, 300, 150));
    Window* page = WindowManager::getSingleton().createWindow("DefaultWindow", "Page");
    page->setText("Page");
    tabs.addTab(page);
    Window* inside = &moxietest::child(*page, "MoxieLook/Button", 10, 10, 80, 24);
    Window* after = &moxietest::child(dialog, "MoxieLook/Button", 10, 220, 80, 24);
    inside->activate();
    press(Key::Tab, true);
    EXPECT_EQ(focused(), &tabs);
    press(Key::Tab, true);
    EXPECT_EQ(focused(), after);
    press(Key::Tab);
    EXPECT_EQ(focused(), &tabs);
    press(Key::Tab);
    EXPECT_EQ(focused(), inside);
    // The focus moved by other means takes the ring away.
    EXPECT_TRUE(hasFocusRing(*inside));
    after->activate();
    EXPECT_FALSE(hasFocusRing(*inside));
    EXPECT_TRUE(ringOf(*inside).empty());

    // A table row with nothing in its first column is still a row to move to.
    auto& table = static_cast<MultiColumnList&>(
        moxietest::place("MoxieLook/MultiColumnList", 450, 10, 200, 120));
    table.addColumn("Name", 0, cegui_absdim(100));
    table.addColumn("Size", 1, cegui_absdim(80));
    const uint row = table.addRow();
    table.setItem(new ListboxTextItem("12 KB"), 1, row);
    table.activate();
    press(Key::ArrowDown);
    ASSERT_TRUE(table.getFirstSelectedItem());
    EXPECT_EQ(table.getItemRowIndex(table.getFirstSelectedItem()), row);

    // A list of many selections changes its selection once a key, as a click does.
    auto& list = moxietest::placeAs<Listbox>("MoxieLook/Listbox", 450, 150, 150, 100);
    list.setMultiselectEnabled(true);
    for (const char* text : {"One", "Two", "Three"})
        list.addItem(new ListboxTextItem(text));
    int changes = 0;
    list.subscribeEvent(Listbox::EventSelectionChanged, [&changes] { ++changes; });
    list.activate();
    press(Key::ArrowDown);
    press(Key::ArrowDown);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(list.getSelectedCount(), 1u);

    // A reversed slider grows to the left: Right lowers it.
    auto& slider = moxietest::placeAs<Slider>("MoxieLook/Slider", 450, 270, 200, 30);
    slider.setProperty("ReversedDirection", "True");
    slider.setCurrentValue(0.5f);
    slider.activate();
    press(Key::ArrowRight);
    EXPECT_LT(slider.getCurrentValue(), 0.5f);
}

TEST_F(KeyboardNavigationTest, EveryKindOfButtonIsReachedByTabAndClickedBySpace)
{
    // Two of a kind: Tab from the first reaches the second, Space clicks it with the sound
    // a click makes. (Toggles and radio buttons change their state as well.)
    for (const char* type :
         {"MoxieLook/Button", "MoxieLook/ButtonEx", "MoxieLook/ImageButton", "MoxieLook/IconButton",
          "MoxieLook/MenuButton", "MoxieLook/SystemButton", "MoxieLook/ToggleButton",
          "MoxieLook/RadioButton", "MoxieLook/CloseButton", "MoxieLook/MenubarItem"})
    {
        SCOPED_TRACE(type);
        moxietest::freshSheet();
        Window& first = moxietest::place(type, 10, 10, 100, 30);
        Window& second = moxietest::place(type, 10, 60, 100, 30);
        if (!isFocusable(second))
        {
            EXPECT_STREQ(type, "MoxieLook/MenubarItem"); // a menu's part, reached by its bar
            continue;
        }
        int clicks = 0;
        second.subscribeEvent(PushButton::EventClicked, [&clicks] { ++clicks; });
        first.activate();
        press(Key::Tab);
        ASSERT_EQ(focused(), &second);
        moxietest::sounds().clear();
        press(Key::Space);
        EXPECT_EQ(clicks, 1);
        if (dynamic_cast<ButtonEx*>(&second))
        {
            EXPECT_EQ(moxietest::sounds().size(), 1u);
        }
        if (auto* toggle = dynamic_cast<MoxieLook::ToggleButton*>(&second))
        {
            EXPECT_TRUE(toggle->isSelected());
        }
        if (auto* radio = dynamic_cast<RadioButtonEx*>(&second))
        {
            EXPECT_TRUE(radio->isSelected());
        }
    }
}

TEST_F(KeyboardNavigationTest, ScrolledPanesShowWhatTabReaches)
{
    // Tab to a button far down a scrolled pane: the pane scrolls to show it.
    auto& pane = static_cast<ScrollablePane&>(
        moxietest::place("MoxieLook/ScrollablePane", 100, 10, 200, 150));
    Window* top = &moxietest::child(pane, "MoxieLook/Button", 10, 10, 80, 24);
    Window* low = &moxietest::child(pane, "MoxieLook/Button", 10, 600, 80, 24);
    top->activate();
    press(Key::Tab);
    ASSERT_EQ(focused(), low);
    const Rectf seen = pane.getUnclippedInnerRect().get();
    const Rectf shown = low->getUnclippedOuterRect().get();
    EXPECT_GE(shown.top(), seen.top());
    EXPECT_LE(shown.bottom(), seen.bottom());
}

TEST_F(KeyboardNavigationTest, TheColumnListsAreReachedBothWaysAndWalkedByKeys)
{
    // Shift+Tab from a button reaches the column list of rows before it, Tab the tree list
    // after it; Down walks each.
    auto& rows = static_cast<MultiColumnList&>(
        moxietest::place("MoxieLook/MultiColumnListEx", 10, 10, 200, 120));
    rows.addColumn("Name", 0, cegui_absdim(100));
    for (const char* text : {"a", "b", "c"})
        rows.addRow(new ListboxTextItem(text), 0);
    Window& middle = moxietest::place("MoxieLook/Button", 10, 140, 80, 24);
    auto& tree = static_cast<TreeView&>(
        moxietest::place("MoxieLook/TreeViewMultiColumnListEx", 10, 180, 250, 150));
    TreeView::Node* title = tree.GetRootNode()->Add("t", "Title", nullptr);
    title->Add("l", "Leaf", nullptr);
    drawnBy(tree);
    middle.activate();
    moxietest::press(Key::Tab, true);
    ASSERT_EQ(focused(), &rows);
    moxietest::press(Key::ArrowDown);
    moxietest::press(Key::ArrowDown);
    EXPECT_EQ(rows.getItemRowIndex(rows.getFirstSelectedItem()), 1u);
    moxietest::press(Key::Tab);
    moxietest::press(Key::Tab);
    ASSERT_EQ(focused(), &tree);
    moxietest::press(Key::ArrowDown);
    moxietest::press(Key::ArrowDown);
    EXPECT_EQ(tree.GetSelectedNode()->GetName(), "l");
}

TEST_F(KeyboardNavigationTest, SmartNodesSpinnersAndTheOtherBarsTakeTheirKeys)
{
    // A node of buttons opens and closes by Space, as its button's click does.
    auto& root = static_cast<SmartButtonNodeItem&>(
        moxietest::place("MoxieLook/SmartButtonNodeItem", 10, 10, 120, 40));
    auto& node = static_cast<SmartButtonNodeItem&>(
        *WindowManager::getSingleton().createWindow("MoxieLook/SmartButtonNodeItem"));
    node.setText("Node");
    root.AddNode(&node); // a root is always open: a node under it opens and closes
    ASSERT_TRUE(focusWidget(node));
    moxietest::sounds().clear();
    moxietest::press(Key::Space);
    EXPECT_TRUE(node.IsSelected());
    EXPECT_EQ(moxietest::sounds().size(), 1u);
    moxietest::press(Key::Space);
    EXPECT_FALSE(node.IsSelected());
    // A selectable text item toggles as a click toggles it.
    auto& text = moxietest::placeAs<TextItemEx>("MoxieLook/TextItemEx", 300, 200, 100, 24);
    text.setText("Pick me");
    int toggles = 0;
    text.subscribeEvent(TextItemEx::EventSelectStateChanged, [&toggles] { ++toggles; });
    ASSERT_TRUE(focusWidget(text));
    moxietest::press(Key::Space);
    EXPECT_TRUE(text.isSelected());
    EXPECT_EQ(toggles, 1);
    text.hide(); // out of the round that follows
    focusWidget(node);

    // Tab reaches a spinner, the combo box's edit part and the other bars; each steps.
    auto& spinner = moxietest::placeAs<Spinner>("MoxieLook/Spinner", 10, 60, 100, 30);
    Window& edit = moxietest::place("MoxieLook/ComboEditbox", 10, 100, 100, 30);
    auto& across = static_cast<Scrollbar&>(
        moxietest::place("MoxieLook/HorizontalScrollbar", 10, 140, 200, 18));
    auto& large = static_cast<Scrollbar&>(
        moxietest::place("MoxieLook/LargeVerticalScrollbar", 250, 10, 24, 200));
    for (Scrollbar* bar : {&across, &large})
    {
        bar->setDocumentSize(100);
        bar->setPageSize(20);
        bar->setStepSize(1);
    }
    moxietest::press(Key::Tab);
    ASSERT_EQ(focused(), &spinner);
    moxietest::press(Key::PageUp);
    EXPECT_EQ(spinner.getCurrentValue(), 10 * spinner.getStepSize());
    moxietest::press(Key::Tab);
    EXPECT_EQ(focused(), &edit);
    moxietest::press(Key::Tab);
    ASSERT_EQ(focused(), &across);
    moxietest::press(Key::ArrowRight);
    EXPECT_EQ(across.getScrollPosition(), 1);
    moxietest::press(Key::Tab);
    ASSERT_EQ(focused(), &large);
    moxietest::press(Key::PageDown);
    EXPECT_EQ(large.getScrollPosition(), 20);
    moxietest::press(Key::ArrowDown); // upright: Down goes on
    EXPECT_EQ(large.getScrollPosition(), 21);
    moxietest::press(Key::ArrowUp);
    EXPECT_EQ(large.getScrollPosition(), 20);
}

TEST_F(KeyboardNavigationTest, AGamepadLeavesEachWidgetByTheArrowsItDoesNotUse)
{
    // A row of a box one types into, a list and a tab control over a button: the pad's
    // arrows leave each by a way it leaves free, and Tab into a combo box lets one type.
    Window& box = moxietest::place("MoxieLook/Editbox", 10, 10, 120, 28);
    auto& list = moxietest::placeAs<Listbox>("MoxieLook/Listbox", 160, 10, 120, 80);
    list.addItem(new ListboxTextItem("One"));
    auto& tabs = moxietest::placeAs<TabControl>("MoxieLook/TabControl", 310, 10, 200, 80);
    moxietest::addTabs(tabs, {"A", "B", "C"});
    tabs.getTabContentsAtIndex(1)->disable(); // the mouse cannot pick it: nor can keys
    Window& below = moxietest::place("MoxieLook/Button", 330, 140, 80, 28);
    auto& combo = moxietest::placeAs<Combobox>("MoxieLook/Combobox", 10, 140, 150, 120);

    box.activate();
    moxietest::press(Key::ArrowRight); // the caret's
    EXPECT_EQ(focused(), &box);
    moxietest::press(Key::ArrowDown); // free: the combo box below
    EXPECT_EQ(focused(), &combo);
    moxietest::type("xy"); // reached by keys, it still takes the text
    EXPECT_EQ(combo.getText(), "xy");
    list.activate();
    moxietest::press(Key::ArrowRight); // the list uses Up and Down only
    EXPECT_EQ(focused(), &tabs);
    moxietest::press(Key::ArrowRight); // the tab control's own: the next enabled tab
    EXPECT_EQ(tabs.getSelectedTabIndex(), 2u);
    moxietest::press(Key::ArrowDown);
    EXPECT_EQ(focused(), &below);
}
