// The wheel turned over any part of a scrolling widget (its thumb, its arrows, its bars)
// moves it as far as over its body: users aim at the widget, not at a part of it.
#include "support/Gui.h"
#include "support/SheetTest.h"
#include "widgets/TreeView.h"
#include "widgets/WidgetDropDownListbox.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/ComboDropList.h>
#include <CEGUI/widgets/Combobox.h>
#include <CEGUI/widgets/Listbox.h>
#include <CEGUI/widgets/ListboxTextItem.h>
#include <CEGUI/widgets/MultiLineEditbox.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/ScrolledContainer.h>
#include <CEGUI/widgets/Slider.h>
#include <functional>
#include <gtest/gtest.h>
#include <map>

using namespace CEGUI;
using moxietest::context;

namespace
{
struct Scrolling
{
    Window* widget;
    std::function<void()> reset;  //!< back to the middle of the range
    std::function<float()> value; //!< what the wheel moves
    const Window* body = nullptr; //!< where the bare widget is hit, when not the widget
};

// One point on each window the pointer can reach inside `widget`: the widget's own body
// and every part drawn over it, found by asking CEGUI what is under the point.
std::map<const Window*, Vector2f> reachablePoints(const Window& widget)
{
    std::map<const Window*, Vector2f> found;
    const Rectf area = widget.getOuterRectClipper();
    const Window& root = *context().getRootWindow();
    for (float y = area.top() + 1; y < area.bottom(); y += 2)
        for (float x = area.left() + 1; x < area.right(); x += 2)
        {
            const Window* hit = root.getTargetChildAtPosition(Vector2f(x, y));
            if (hit && (hit == &widget || hit->isAncestor(&widget)))
                found.emplace(hit, Vector2f(x, y));
        }
    return found;
}

void expectWheelMovesAlikeEverywhere(const Scrolling& s)
{
    s.reset(); // parts are found where the reset puts them
    System::getSingleton().renderAllGUIContexts();
    const auto points = reachablePoints(*s.widget);
    const Window* bodyWindow = s.body ? s.body : s.widget;
    ASSERT_TRUE(points.count(bodyWindow)) << s.widget->getType() << ": no bare body to aim at";
    EXPECT_GT(points.size(), 1u) << s.widget->getType() << ": no parts to aim at";
    auto moveAt = [&](const Vector2f& at)
    {
        s.reset();
        const float before = s.value();
        moxietest::wheel(at.d_x, at.d_y, -1);
        return s.value() - before;
    };
    const float body = moveAt(points.at(bodyWindow));
    EXPECT_NE(body, 0) << s.widget->getType();
    for (const auto& [part, at] : points)
        EXPECT_EQ(moveAt(at), body) << s.widget->getType() << ": over " << part->getName() << " ("
                                    << part->getType() << ") at " << at.d_x << ", " << at.d_y;
}

Scrolling scrollbarMiddle(Window* widget, Scrollbar* bar)
{
    return {widget, [bar] { bar->setScrollPosition(bar->getDocumentSize() * 0.4f); },
            [bar] { return bar->getScrollPosition(); }};
}

using WheelTest = moxietest::SheetTest;
} // namespace

TEST_F(WheelTest, ScrollBarsAndSlidersMoveFromEveryPart)
{
    for (const char* type : {"MoxieLook/VerticalScrollbar", "MoxieLook/HorizontalScrollbar"})
    {
        const bool vertical = type[10] == 'V';
        auto& bar = static_cast<Scrollbar&>(
            moxietest::place(type, 20, 20, vertical ? 18 : 300, vertical ? 300 : 18));
        bar.setDocumentSize(1000);
        bar.setPageSize(100);
        bar.setStepSize(10);
        expectWheelMovesAlikeEverywhere(scrollbarMiddle(&bar, &bar));
    }
    auto& slider = moxietest::placeAs<Slider>("MoxieLook/Slider", 20, 400, 300, 24);
    slider.setMaxValue(100);
    slider.setClickStep(5);
    expectWheelMovesAlikeEverywhere({&slider, [&slider] { slider.setCurrentValue(50); },
                                     [&slider] { return slider.getCurrentValue(); }});
}

TEST_F(WheelTest, ListsEditBoxesPanesAndTreesMoveFromEveryPart)
{
    auto& list = moxietest::placeAs<Listbox>("MoxieLook/Listbox", 10, 10, 200, 120);
    for (int i = 0; i < 60; ++i)
        list.addItem(new ListboxTextItem("Item " + PropertyHelper<int>::toString(i)));
    expectWheelMovesAlikeEverywhere(scrollbarMiddle(&list, list.getVertScrollbar()));

    auto& text = static_cast<MultiLineEditbox&>(
        moxietest::place("MoxieLook/MultiLineEditbox", 220, 10, 200, 120));
    String lines;
    for (int i = 0; i < 60; ++i)
        lines += "Line " + PropertyHelper<int>::toString(i) + "\n";
    text.setText(lines);
    expectWheelMovesAlikeEverywhere(scrollbarMiddle(&text, text.getVertScrollbar()));

    auto& pane = static_cast<ScrollablePane&>(
        moxietest::place("MoxieLook/ScrollablePane", 430, 10, 200, 120));
    Window* content = WindowManager::getSingleton().createWindow("DefaultWindow");
    content->setArea(URect(cegui_absdim(0), cegui_absdim(0), cegui_absdim(90), cegui_absdim(900)));
    content->setMousePassThroughEnabled(true);
    pane.addChild(content);
    // The pane's bare body is its content container.
    Scrolling paneScrolling = scrollbarMiddle(&pane, pane.getVertScrollbar());
    paneScrolling.body = pane.getContentPane();
    expectWheelMovesAlikeEverywhere(paneScrolling);

    auto& tree = static_cast<MoxieLook::TreeView&>(
        moxietest::place("MoxieLook/TreeView", 10, 150, 200, 120));
    for (int i = 0; i < 60; ++i)
        tree.GetRootNode()->Add("n" + PropertyHelper<int>::toString(i), "Node", nullptr);
    Scrollbar* treeBar = tree.GetScrollablePane()->getVertScrollbar();
    expectWheelMovesAlikeEverywhere(scrollbarMiddle(&tree, treeBar));
}

TEST_F(WheelTest, OpenDropListsMoveFromEveryPart)
{
    auto& combo = moxietest::placeAs<Combobox>("MoxieLook/Combobox", 10, 10, 200, 150);
    for (int i = 0; i < 60; ++i)
        combo.addItem(new ListboxTextItem("Item " + PropertyHelper<int>::toString(i)));
    combo.showDropList();
    ComboDropList* drop = combo.getDropList();
    expectWheelMovesAlikeEverywhere(scrollbarMiddle(drop, drop->getVertScrollbar()));

    auto& selector = static_cast<MoxieLook::WidgetDropDownListbox&>(
        moxietest::place("MoxieLook/WidgetDropDownListbox", 300, 10, 200, 26));
    for (int i = 0; i < 20; ++i)
        selector.AddItem("f", "Item " + PropertyHelper<int>::toString(i), "", "", "");
    selector.ShowDropList();
    MoxieLook::WidgetDropDownList* rows = selector.getDropList();
    expectWheelMovesAlikeEverywhere(scrollbarMiddle(rows, rows->GetScrollbar()));
}
