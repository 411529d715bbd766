#include "looks/MXWidgetDropDownList.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "widgets/ButtonEx.h"

#include <CEGUI/Font.h>
#include <CEGUI/System.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;

namespace
{
class WidgetDropDownTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        box = static_cast<WidgetDropDownListbox*>(
            &moxietest::place("MoxieLook/WidgetDropDownListbox", 20, 20, 200, 26));
        list = box->getDropList();
    }

    void fill(int count)
    {
        for (int i = 0; i < count; ++i)
            box->AddItem("f", "Item " + PropertyHelper<int>::toString(i), "", "MoxieLook",
                         i % 2 ? "IconStar" : "");
    }

    Vector2f centreOf(const WidgetDropDownList::Item& item) const
    {
        const Vector2f origin = list->getUnclippedOuterRect().get().d_min;
        return Vector2f(origin.d_x + (item.area.left() + item.area.right()) / 2,
                        origin.d_y + (item.area.top() + item.area.bottom()) / 2);
    }

    WidgetDropDownListbox* box = nullptr;
    WidgetDropDownList* list = nullptr;
};
} // namespace

TEST_F(WidgetDropDownTest, RowsClampBetweenTheLimitsAndTheBarScrollsTheRest)
{
    EXPECT_EQ(box->getButton()->getName(), box->getName() + "droplistButton");
    EXPECT_EQ(list->getName(), box->getName() + "_dropdownList");
    EXPECT_EQ(list->GetScrollbar()->getName(), list->getName() + "_vertscrollbar");

    const float edges = 4; // the frame's top and bottom edges, 2 each
    fill(3);
    const float h = list->GetItemHeight();
    EXPECT_EQ(list->GetVisibleRowCount(), 3u);
    EXPECT_FALSE(list->GetScrollbar()->isVisible());
    EXPECT_EQ(list->getPixelSize().d_height, edges + 3 * h);

    fill(5);
    EXPECT_EQ(list->GetVisibleRowCount(), 5u);
    EXPECT_TRUE(list->GetScrollbar()->isVisible());
    EXPECT_EQ(list->GetScrollbar()->getDocumentSize(), 8 * h);
    EXPECT_EQ(list->GetScrollbar()->getPageSize(), 5 * h);

    box->Clear();
    box->SetVisibilityLimits(5, 3);
    EXPECT_EQ(list->GetVisibleRowCount(), 3u);
    EXPECT_EQ(list->getPixelSize().d_height, edges + 3 * h);

    // The item height follows the font at every draw, whatever a host set.
    list->SetItemHeight(40);
    box->ShowDropList();
    System::getSingleton().renderAllGUIContexts();
    EXPECT_EQ(list->GetItemHeight(), list->getFont()->getLineSpacing());
}

TEST_F(WidgetDropDownTest, EightBitSelectionAndTheOutOfRangeError)
{
    fill(3);
    EXPECT_THROW(box->GetSelectedItem(), std::out_of_range);
    box->SetSelectedItem(300);
    EXPECT_EQ(box->GetSelectedIndex(), 44);
    box->SetSelectedItem(255);
    EXPECT_EQ(box->GetSelectedIndex(), -1);
    box->SetSelectedItem(1);
    EXPECT_EQ(box->GetSelectedItem().text, "Item 1");
    EXPECT_THROW(list->GetItem(3), std::out_of_range);

    // Drawn in the content area, clear of the 25 pixels of the button.
    const auto quads = moxietest::drawnBy(*box);
    EXPECT_EQ(quads[8].image, "StaticFrameFill");
    EXPECT_EQ(quads[8].rect, Rectf(2, 2, 200 - 2 - 25, 24));
    EXPECT_EQ(quads[9].image, "ListboxSelectionBrush");
    EXPECT_EQ(quads[10].image, "IconStar");
}

TEST_F(WidgetDropDownTest, OpenChooseAndCloseByClicksWithTooltips)
{
    box->AddItem("a", "Short", "", "", "");
    box->AddItem("b", "A display text far too wide for its row, surely", "", "", "");
    box->AddItem("c", "Tipped", "The tip", "", "");
    int changes = 0;
    box->subscribeEvent(WidgetDropDownListbox::EventSelectionChanged, [&] { ++changes; });

    moxietest::click(60, 30); // on the box: opens
    ASSERT_TRUE(list->isVisible());
    EXPECT_TRUE(list->isAlwaysOnTop());
    System::getSingleton().renderAllGUIContexts(); // rows get their areas

    for (unsigned i = 0; i < 3; ++i)
    {
        const Vector2f at = centreOf(list->GetItem(i));
        moxietest::pointerTo(at.d_x, at.d_y);
        const char* expected[] = {"", "A display text far too wide for its row, surely", "The tip"};
        EXPECT_EQ(list->getTooltipText(), expected[i]);
    }

    // Below the rows, inside the list: no item; the tooltip goes, the list stays.
    box->SetVisibilityLimits(5, 5);
    System::getSingleton().renderAllGUIContexts();
    const Rectf outer = list->getUnclippedOuterRect().get();
    box->setTooltipText("stale");
    moxietest::click(outer.left() + 20, outer.bottom() - 6);
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(box->getTooltipText(), "");
    EXPECT_EQ(changes, 0);

    const Vector2f third = centreOf(list->GetItem(2));
    moxietest::click(third.d_x, third.d_y);
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(box->GetSelectedIndex(), 2);
    EXPECT_EQ(box->getTooltipText(), "The tip");

    // The drop button opens it too; a click on another window closes it (the box loses
    // its activation).
    moxietest::place("MoxieLook/Button", 600, 400, 100, 30);
    const Rectf button = box->getButton()->getUnclippedOuterRect().get();
    moxietest::click(button.left() + 5, button.top() + 5);
    EXPECT_TRUE(list->isVisible());
    moxietest::click(650, 415);
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(changes, 1);
}

// At the bottom of the display the list opens above the box, whole, and still chooses.
TEST_F(WidgetDropDownTest, AtTheBottomTheListOpensAboveAndStillChooses)
{
    fill(8);
    int changes = 0;
    box->subscribeEvent(WidgetDropDownListbox::EventSelectionChanged, [&] { ++changes; });
    moxietest::click(60, 30);
    System::getSingleton().renderAllGUIContexts();
    EXPECT_EQ(list->getUnclippedOuterRect().get().top(), 46); // below, where it fits
    // The wheel moves it one unit a notch.
    const Rectf below = list->getUnclippedOuterRect().get();
    moxietest::wheel(below.left() + 20, below.top() + 10, -3);
    EXPECT_EQ(list->GetScrollbar()->getScrollPosition(), 3);
    list->GetScrollbar()->setScrollPosition(0);
    moxietest::click(60, 30);

    box->setPosition(UVector2(cegui_absdim(20), cegui_absdim(560)));
    const Rectf closed = box->getUnclippedOuterRect().get();
    for (int round = 0; round < 2; ++round) // open, close and open again
    {
        moxietest::click(closed.left() + 40, closed.top() + 10);
        ASSERT_TRUE(list->isVisible());
        System::getSingleton().renderAllGUIContexts();
        const Rectf open = list->getUnclippedOuterRect().get();
        EXPECT_EQ(open.bottom(), closed.top());
        EXPECT_GE(open.top(), 0);
        if (round == 0)
            moxietest::click(closed.left() + 40, closed.top() + 10);
    }
    const Vector2f at = centreOf(list->GetItem(2));
    moxietest::click(at.d_x, at.d_y);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(box->GetSelectedIndex(), 2);
    EXPECT_FALSE(list->isVisible());
}
