#include "draw/Imagery.h"
#include "looks/ListDrawing.h"
#include "looks/MXCombobox.h"
#include "looks/MXListbox.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "support/RecordingRenderer.h"

#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/ListboxTextItem.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;

namespace
{
class ListboxTest : public ::testing::Test
{
protected:
    void SetUp() override { moxietest::freshSheet(); }

    static Listbox& list(int items, float height = 120)
    {
        auto& l = moxietest::placeAs<Listbox>("MoxieLook/Listbox", 10, 10, 200, height);
        for (int i = 0; i < items; ++i)
            l.addItem(new ListboxTextItem("Item " + PropertyHelper<int>::toString(i)));
        return l;
    }

    // Screen point in the middle of item `index` (all items are one line high).
    static Vector2f itemCentre(const Listbox& l, int index)
    {
        const Rectf area = l.getListRenderArea();
        const float h = l.getListboxItemFromIndex(0)->getPixelSize().d_height;
        const Vector2f origin = l.getUnclippedOuterRect().get().d_min;
        return Vector2f(origin.d_x + area.left() + 20,
                        origin.d_y + area.top() + (index + 0.5f) * h -
                            l.getVertScrollbar()->getScrollPosition());
    }

    static void clickAt(const Vector2f& at, uint keys = 0)
    {
        if (keys & Control)
            context().injectKeyDown(Key::LeftControl);
        if (keys & Shift)
            context().injectKeyDown(Key::LeftShift);
        moxietest::click(at.d_x, at.d_y);
        if (keys & Control)
            context().injectKeyUp(Key::LeftControl);
        if (keys & Shift)
            context().injectKeyUp(Key::LeftShift);
    }
};
} // namespace

TEST_F(ListboxTest, ItemsSitInTheAreaClearOfTheBarsAndSelectByClick)
{
    Listbox& l = list(20);
    const Rectf area = l.getListRenderArea();
    EXPECT_EQ(area, Rectf(2, 2, 200 - 2 - ListDrawing::ScrollbarThickness, 118));
    EXPECT_TRUE(l.getVertScrollbar()->isVisible());
    EXPECT_EQ(l.getListboxItemFromIndex(0)->getSelectionBrushImage()->getName(),
              "MoxieLook/ListboxSelectionBrush");

    clickAt(itemCentre(l, 2));
    EXPECT_TRUE(l.isItemSelected(2));
    clickAt(itemCentre(l, 4));
    EXPECT_FALSE(l.isItemSelected(2));
    EXPECT_TRUE(l.isItemSelected(4));

    l.setMultiselectEnabled(true);
    clickAt(itemCentre(l, 1), Control);
    EXPECT_TRUE(l.isItemSelected(1));
    EXPECT_TRUE(l.isItemSelected(4));
    clickAt(itemCentre(l, 3));
    clickAt(itemCentre(l, 5), Shift);
    EXPECT_EQ(l.getSelectedCount(), 3u);

    // Drawn: the brush under the selected items, the hover brush under the pointer.
    moxietest::pointerTo(itemCentre(l, 0).d_x, itemCentre(l, 0).d_y);
    const auto quads = moxietest::drawnBy(l);
    std::vector<std::string> brushes;
    for (const moxietest::DrawnQuad& q : quads)
        if (q.image == "ListboxSelectionBrush" || q.image == "ListboxHoverBrush")
            brushes.push_back(q.image);
    EXPECT_EQ(brushes,
              (std::vector<std::string>{"ListboxHoverBrush", "ListboxSelectionBrush",
                                        "ListboxSelectionBrush", "ListboxSelectionBrush"}));
}

TEST_F(ListboxTest, BarsShownAfterTheLayoutMeetAtTheCorner)
{
    Listbox& l = list(0);
    moxietest::drawnBy(l);
    for (int i = 0; i < 20; ++i)
        l.addItem(new ListboxTextItem("A rather long item, wider than the list, number " +
                                      PropertyHelper<int>::toString(i)));
    const Rectf vert = l.getVertScrollbar()->getUnclippedOuterRect().get();
    const Rectf horz = l.getHorzScrollbar()->getUnclippedOuterRect().get();
    ASSERT_TRUE(l.getVertScrollbar()->isVisible());
    ASSERT_TRUE(l.getHorzScrollbar()->isVisible());
    EXPECT_EQ(vert.bottom(), horz.top());
    EXPECT_EQ(horz.right(), vert.left());
    // And a bar hidden again gives its corner back.
    l.resetList();
    EXPECT_FALSE(l.getHorzScrollbar()->isVisible());
    for (int i = 0; i < 20; ++i)
        l.addItem(new ListboxTextItem("short"));
    ASSERT_TRUE(l.getVertScrollbar()->isVisible());
    EXPECT_FALSE(l.getHorzScrollbar()->isVisible());
    EXPECT_EQ(l.getVertScrollbar()->getUnclippedOuterRect().get().bottom(), 10 + 120 - 2);
}

TEST_F(ListboxTest, WheelAndBarScrollAndOnlyTheItemsInViewAreDrawn)
{
    Listbox& l = list(1000);
    auto countTexts = [&]
    { return static_cast<int>(moxietest::allOf(moxietest::drawnBy(l), "text").size()); };
    const float h = l.getListboxItemFromIndex(0)->getPixelSize().d_height;
    const int inView = static_cast<int>(l.getListRenderArea().getHeight() / h) + 1;
    EXPECT_LE(countTexts(), inView + 1);

    // The hover brush is under the pointer, before and after the wheel moved the items.
    const auto hoverBrushAt = [&]
    {
        const auto brush = moxietest::find(moxietest::drawnBy(l), "ListboxHoverBrush");
        return brush ? brush->rect : Rectf(0, 0, 0, 0);
    };
    moxietest::pointerTo(50, 50);
    EXPECT_TRUE(hoverBrushAt().isPointInRect(Vector2f(40, 40)));
    context().injectMouseWheelChange(-2);
    const float afterWheel = l.getVertScrollbar()->getScrollPosition();
    EXPECT_GT(afterWheel, 0);
    EXPECT_TRUE(hoverBrushAt().isPointInRect(Vector2f(40, 40))) << hoverBrushAt();
    l.getVertScrollbar()->setScrollPosition(500 * h);
    EXPECT_LE(countTexts(), inView + 1);
    clickAt(itemCentre(l, 503));
    EXPECT_TRUE(l.isItemSelected(503));
}

TEST_F(ListboxTest, ComboBoxOpensChoosesAndCloses)
{
    auto& combo = moxietest::placeAs<Combobox>("MoxieLook/Combobox", 10, 10, 200, 150);
    for (const char* city : {"Amsterdam", "Berlin", "Copenhagen", "Dublin"})
        combo.addItem(new ListboxTextItem(city));
    Window& below = moxietest::place("MoxieLook/Button", 10, 100, 100, 30);
    ComboDropList& drop = *combo.getDropList();
    const float edit = static_cast<MXCombobox&>(combo).editHeight();
    EXPECT_FALSE(drop.isVisible());
    // Closed, the list's room belongs to what is under it.
    Window* root = moxietest::context().getRootWindow();
    EXPECT_EQ(root->getTargetChildAtPosition(Vector2f(60, 105)), &below);
    EXPECT_EQ(root->getTargetChildAtPosition(Vector2f(40, 10 + edit / 2)), combo.getEditbox());

    const Rectf button = combo.getPushButton()->getUnclippedOuterRect().get();
    clickAt(Vector2f(button.left() + 5, button.top() + 5));
    ASSERT_TRUE(drop.isVisible());
    EXPECT_EQ(drop.getUnclippedOuterRect().get().top(), 10 + edit);

    // A click on an item chooses it and closes the list.
    moxietest::click(itemCentre(drop, 2).d_x, itemCentre(drop, 2).d_y);
    EXPECT_FALSE(drop.isVisible());
    EXPECT_EQ(combo.getText(), "Copenhagen");
    EXPECT_EQ(combo.getSelectedItem()->getText(), "Copenhagen");

    // Opened again, a click outside closes it and changes nothing.
    clickAt(Vector2f(button.left() + 5, button.top() + 5));
    ASSERT_TRUE(drop.isVisible());
    clickAt(Vector2f(600, 500));
    EXPECT_FALSE(drop.isVisible());
    EXPECT_EQ(combo.getText(), "Copenhagen");

    // Keys: up and down in the edit area step through the items; in the open list they
    // move the selection and Return chooses.
    // Each choice is reported to the host as a click's would be.
    std::vector<String> accepted;
    combo.subscribeEvent(Combobox::EventListSelectionAccepted,
                         [&] { accepted.push_back(combo.getSelectedItem()->getText()); });
    combo.getEditbox()->activate();
    moxietest::press(Key::ArrowDown);
    EXPECT_EQ(combo.getText(), "Dublin");
    moxietest::press(Key::ArrowUp);
    EXPECT_EQ(combo.getText(), "Copenhagen");
    combo.showDropList();
    moxietest::press(Key::ArrowUp);
    moxietest::press(Key::ArrowUp);
    moxietest::press(Key::Return);
    EXPECT_FALSE(drop.isVisible());
    EXPECT_EQ(combo.getText(), "Amsterdam");
    EXPECT_EQ(accepted, (std::vector<String>{"Dublin", "Copenhagen", "Amsterdam"}));

    // Read-only, a click on the edit area opens the list; typing changes nothing.
    combo.setReadOnly(true);
    clickAt(Vector2f(40, 10 + edit / 2));
    EXPECT_TRUE(drop.isVisible());
    context().injectChar('x');
    EXPECT_EQ(combo.getText(), "Amsterdam");
}

TEST_F(ListboxTest, APlainTextItemIsDrawnExactlyAsCeguiDrawsIt)
{
    Listbox& l = list(3);
    ListboxItem& item = *l.getListboxItemFromIndex(1);
    ListDrawing::styleItem(item, &lookImage("ListboxSelectionBrush"));
    item.setSelected(true);
    Renderer& renderer = *System::getSingleton().getRenderer();
    auto& own = static_cast<moxietest::RecordingGeometryBuffer&>(renderer.createGeometryBuffer());
    auto& fast = static_cast<moxietest::RecordingGeometryBuffer&>(renderer.createGeometryBuffer());
    const Rectf rect(12.5f, 40, 180, 60);
    const Rectf clip(0, 0, 150, 100);
    item.draw(own, rect, 0.5f, &clip);
    ListDrawing::drawItem(item, fast, rect, 0.5f, &clip);

    const auto a = moxietest::decode(own);
    const auto b = moxietest::decode(fast);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        EXPECT_EQ(a[i].image, b[i].image);
        EXPECT_EQ(a[i].rect, b[i].rect) << a[i] << " / " << b[i];
        EXPECT_EQ(a[i].colours.d_top_left, b[i].colours.d_top_left);
    }
    EXPECT_EQ(own.getVertexCount(), fast.getVertexCount());
    renderer.destroyGeometryBuffer(own);
    renderer.destroyGeometryBuffer(fast);
}
