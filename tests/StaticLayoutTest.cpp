#include "looks/MXStatics.h"
#include "support/Gui.h"
#include "support/SheetTest.h"
#include "support/Thrown.h"

#include <CEGUI/WindowManager.h>
#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;

namespace
{
// A layout without its frame: the client area is the whole window, as in the rules.
StaticLayout& layout(float w, float h, const char* rule, unsigned margin = 0)
{
    auto& l = moxietest::placeAs<StaticLayout>("MoxieLook/StaticLayout", 10, 10, w, h);
    l.setProperty("FrameEnabled", "False");
    l.setProperty("Layout", rule);
    l.SetMargin(margin);
    return l;
}

Window& child(StaticLayout& parent, float w, float h, bool hidden = false)
{
    Window* c = WindowManager::getSingleton().createWindow("MoxieLook/Button");
    c->setSize(USize(cegui_absdim(w), cegui_absdim(h)));
    if (hidden)
        c->hide(); // hidden before any layout saw it
    parent.addChild(c);
    return *c;
}

// Where a child is, from its layout's outer edge.
Rectf at(const Window& c)
{
    const Rectf outer = c.getUnclippedOuterRect().get();
    return Rectf(outer.d_min - c.getParent()->getUnclippedOuterRect().get().d_min, outer.getSize());
}

using StaticLayoutTest = moxietest::SheetTest;
} // namespace

TEST_F(StaticLayoutTest, FlowLeftPlacesThenWrapsAndSkipsHiddenChildren)
{
    StaticLayout& l = layout(100, 100, "FlowLayout", 5);
    Window& a = child(l, 40, 20);
    Window& b = child(l, 40, 30);
    Window& hidden = child(l, 40, 50);
    hidden.setHorizontalAlignment(HA_RIGHT);
    hidden.setPosition(UVector2(cegui_absdim(70), cegui_absdim(70)));
    hidden.hide();
    Window& c = child(l, 40, 10);
    Window& d = child(l, 40, 10);

    EXPECT_EQ(at(a), Rectf(5, 5, 45, 25));
    EXPECT_EQ(at(b), Rectf(50, 5, 90, 35));
    // x reached 95, still below 100: c stays in the row, overrunning it; then the row wraps.
    EXPECT_EQ(at(c), Rectf(95, 5, 135, 15));
    EXPECT_EQ(at(d), Rectf(5, 40, 45, 50)); // 5 + row height 30 + 5
    EXPECT_EQ(hidden.getHorizontalAlignment(), HA_LEFT);
    EXPECT_EQ(hidden.getPosition(), UVector2(cegui_absdim(70), cegui_absdim(70)));

    // With the frame on, the client area starts 2 pixels in, and children m inside that.
    l.setProperty("FrameEnabled", "True");
    EXPECT_EQ(at(a), Rectf(7, 7, 47, 27));
}

TEST_F(StaticLayoutTest, FlowRightPacksFromTheRightEdgeAndOverlapsByTheMargin)
{
    StaticLayout& packed = layout(100, 100, "FlowLayout", 0);
    packed.setProperty("FlowLayoutHorizontalAlignment", "Right");
    Window& a = child(packed, 30, 10);
    Window& b = child(packed, 30, 10);
    EXPECT_EQ(at(a).left(), 70);
    EXPECT_EQ(at(b).left(), 40);

    StaticLayout& spaced = layout(100, 100, "FlowLayout", 5);
    spaced.SetFlowLayoutHorizontalAlignment(HA_RIGHT);
    Window& c = child(spaced, 30, 10);
    Window& d = child(spaced, 30, 10);
    Window& e = child(spaced, 30, 20);
    Window& f = child(spaced, 30, 10);
    EXPECT_EQ(at(c), Rectf(70, 5, 100, 15)); // flush with the right edge
    EXPECT_EQ(at(d).left(), 45);             // overlapping c by 5
    EXPECT_EQ(at(e).left(), 20);
    // The next would start at -5: it wraps, left edge at 95, one row height (20) lower.
    EXPECT_EQ(at(f), Rectf(95, 30, 125, 40));
}

TEST_F(StaticLayoutTest, FillStacksEveryChildOverTheAreaInsideTheMargin)
{
    StaticLayout& l = layout(120, 80, "FillLayout", 4);
    Window& a = child(l, 10, 10);
    Window& b = child(l, 50, 5, true);
    EXPECT_EQ(at(a), Rectf(4, 4, 116, 76));
    EXPECT_EQ(at(b), Rectf(4, 4, 116, 76));
}

TEST_F(StaticLayoutTest, GridCellsAndChildrenBeyondTheCells)
{
    StaticLayout& l = layout(100, 60, "GridLayout", 2);
    l.setProperty("GridSize", "rows:2 cols:3");
    std::vector<Window*> children;
    for (int i = 0; i < 7; ++i)
        children.push_back(&child(l, 5, 5));
    // Cells: (100 - 4 x 2) / 3 = 30 wide, (60 - 3 x 2) / 2 = 27 high.
    EXPECT_EQ(at(*children[0]), Rectf(2, 2, 32, 29));
    EXPECT_EQ(at(*children[2]), Rectf(66, 2, 96, 29));
    EXPECT_EQ(at(*children[3]), Rectf(2, 31, 32, 58));
    EXPECT_EQ(at(*children[6]), Rectf(2, 60, 32, 87)); // row 3, below the area
}

TEST_F(StaticLayoutTest, GridSizeTextsAreReadByCharacterPositions)
{
    using StaticLayoutProperties::parseGridSize;
    EXPECT_EQ(parseGridSize("rows:1 cols:1"), std::make_pair(1u, 1u));
    EXPECT_EQ(parseGridSize("rows:2 cols:3"), std::make_pair(2u, 3u));
    EXPECT_EQ(parseGridSize("rows:0 cols:-4"), std::make_pair(1u, 1u));
    EXPECT_EQ(parseGridSize("rows:3"), std::make_pair(3u, 3u));
    EXPECT_EQ(parseGridSize("xxxx:12 yyyy:4"), std::make_pair(12u, 4u));
    EXPECT_EQ(parseGridSize("rows:99999999999 cols:2"), std::make_pair(2147483647u, 2u));
    EXPECT_THROW(parseGridSize("rows"), std::out_of_range);

    StaticLayout& l = layout(100, 60, "GridLayout");
    l.setProperty("GridSize", "rows:3");
    EXPECT_EQ(l.GetGridRows(), 3u);
    EXPECT_EQ(l.GetGridCols(), 3u);
    EXPECT_THROW(l.setProperty("GridSize", "r:2"), std::out_of_range);
    EXPECT_EQ(l.GetGridRows(), 3u);
}

TEST_F(StaticLayoutTest, BorderRegionsAndTheMissingBorderError)
{
    StaticLayout& l = layout(200, 100, "BorderLayout", 3);
    l.setName("box");
    Window* stray = WindowManager::getSingleton().createWindow("MoxieLook/Button", "orphan");
    EXPECT_EQ(moxietest::thrownMessage<StaticLayout::LayoutException>([&] { l.addChild(stray); }),
              "BorderLayout error : trying to add orphan  in box without specified border");
    EXPECT_EQ(l.getChildCount(), 0u);
    WindowManager::getSingleton().destroyWindow(stray);

    l.SetCurrentBorder(StaticLayout::NorthBorder);
    Window& north = child(l, 10, 20);
    l.setProperty("Border", "SouthBorder");
    Window& south = child(l, 10, 10);
    l.setProperty("Border", "anything else");
    Window& west = child(l, 30, 10);
    l.addChildWindowInBorder(WindowManager::getSingleton().createWindow("MoxieLook/Button"),
                             StaticLayout::EastBorder);
    Window& east = *l.getChildAtIdx(3);
    east.setSize(USize(cegui_absdim(15), cegui_absdim(10)));
    l.setProperty("Border", "CenterBorder");
    Window& centre = child(l, 10, 10);
    l.DoLayout();

    EXPECT_EQ(at(north), Rectf(0, 0, 200, 20));
    EXPECT_EQ(at(south), Rectf(0, 90, 200, 100));
    EXPECT_EQ(at(west), Rectf(0, 23, 30, 87));
    EXPECT_EQ(at(east), Rectf(185, 23, 200, 87));
    EXPECT_EQ(at(centre), Rectf(33, 23, 182, 87));
    EXPECT_EQ(l.GetBorderForChild(&west), StaticLayout::WestBorder);
    EXPECT_EQ(l.GetCurrentBorder(), StaticLayout::NoBorder);

    // A second child in the north takes the slot; the first is no longer laid out.
    l.SetCurrentBorder(StaticLayout::NorthBorder);
    Window& newNorth = child(l, 10, 12);
    north.setPosition(UVector2(cegui_absdim(50), cegui_absdim(50)));
    l.DoLayout();
    EXPECT_EQ(at(newNorth), Rectf(0, 0, 200, 12));
    EXPECT_EQ(l.GetBorderForChild(&north), StaticLayout::NoBorder);
    EXPECT_EQ(at(north).getPosition(), Vector2f(50, 50));
}

TEST_F(StaticLayoutTest, PropertiesAreWriteOnlyAndUnknownTextsFallBack)
{
    StaticLayout& l = layout(100, 100, "FlowLayout");
    l.setProperty("Margin", "7");
    EXPECT_EQ(l.GetMargin(), 7u);
    EXPECT_EQ(l.getProperty("Margin"), "0");
    for (const char* name : {"Layout", "Border", "FlowLayoutHorizontalAlignment", "GridSize"})
        EXPECT_EQ(l.getProperty(name), "") << name;

    l.setProperty("Layout", "flowlayout");
    EXPECT_EQ(l.GetLayout(), StaticLayout::DefaultLayout);
    l.setProperty("Layout", "GridLayout");
    EXPECT_EQ(l.GetLayout(), StaticLayout::GridLayout);
    l.setProperty("Border", "northborder");
    EXPECT_EQ(l.GetCurrentBorder(), StaticLayout::WestBorder);

    // Every rule on an empty layout does nothing, and does not fail; the default rule
    // leaves children where the host put them.
    const URect area = l.getArea();
    for (const char* rule :
         {"DefaultLayout", "FlowLayout", "FillLayout", "GridLayout", "BorderLayout"})
    {
        EXPECT_NO_THROW(l.setProperty("Layout", rule));
        EXPECT_EQ(l.getChildCount(), 0u);
        EXPECT_EQ(l.getArea(), area);
    }
    l.setProperty("Layout", "DefaultLayout");
    Window& kept = child(l, 20, 10);
    kept.setPosition(UVector2(cegui_absdim(33), cegui_absdim(44)));
    l.DoLayout();
    l.setSize(USize(cegui_absdim(150), cegui_absdim(90)));
    EXPECT_EQ(at(kept), Rectf(33, 44, 53, 54));
}

TEST_F(StaticLayoutTest, FlowOnlyMovesChildrenAndTheirOwnSizesFollowTheLayout)
{
    StaticLayout& l = layout(200, 100, "FlowLayout", 0);
    Window& quarter = child(l, 10, 20);
    quarter.setWidth(cegui_reldim(0.25f));
    l.DoLayout();
    EXPECT_EQ(at(quarter), Rectf(0, 0, 50, 20));
    l.setSize(USize(cegui_absdim(400), cegui_absdim(100)));
    EXPECT_EQ(at(quarter), Rectf(0, 0, 100, 20));
    EXPECT_EQ(quarter.getWidth(), cegui_reldim(0.25f));
}

TEST_F(StaticLayoutTest, FlowRightCountsAWrappedChildInThePreviousRow)
{
    StaticLayout& l = layout(100, 200, "FlowLayout", 0);
    l.SetFlowLayoutHorizontalAlignment(HA_RIGHT);
    Window& a = child(l, 60, 10);
    Window& tall = child(l, 60, 50); // wraps: its 50 went into the first row's height
    Window& c = child(l, 30, 10);
    Window& d = child(l, 80, 10);
    EXPECT_EQ(at(a), Rectf(40, 0, 100, 10));
    EXPECT_EQ(at(tall), Rectf(100, 50, 160, 100));
    EXPECT_EQ(at(c), Rectf(70, 50, 100, 60)); // the cursor did not move past the wrapped one
    // The second row holds only c's height, not the tall one's: d wraps 10 lower.
    EXPECT_EQ(at(d), Rectf(100, 60, 180, 70));
}

TEST_F(StaticLayoutTest, GridAndBorderLayOutHiddenChildrenAndHugeMarginsWrapSafely)
{
    StaticLayout& grid = layout(100, 60, "GridLayout", 2);
    grid.setProperty("GridSize", "rows:1 cols:2");
    Window& first = child(grid, 5, 5, true);
    Window& second = child(grid, 5, 5);
    EXPECT_EQ(at(first), Rectf(2, 2, 49, 58));
    EXPECT_EQ(at(second), Rectf(51, 2, 98, 58));

    StaticLayout& border = layout(100, 60, "BorderLayout", 0);
    border.SetCurrentBorder(StaticLayout::CenterBorder);
    Window& hiddenCentre = child(border, 5, 5, true);
    EXPECT_EQ(at(hiddenCentre), Rectf(0, 0, 100, 60));

    // A margin larger than the area: the unsigned sums wrap round, giving huge cells.
    EXPECT_NO_THROW(grid.SetMargin(1000));
    EXPECT_GT(second.getPixelSize().d_width, 1e9f);
    StaticLayout& fill = layout(100, 60, "FillLayout", 0);
    Window& filled = child(fill, 5, 5);
    EXPECT_NO_THROW(fill.SetMargin(4000000000u));
    EXPECT_NO_THROW(fill.DoLayout());
    EXPECT_TRUE(std::isfinite(filled.getPixelSize().d_width));
}

TEST_F(StaticLayoutTest, AChildFoundByNameGoesIntoItsBorder)
{
    StaticLayout& l = layout(200, 100, "BorderLayout", 0);
    Window& loose = moxietest::place("MoxieLook/Button", 0, 0, 40, 30);
    loose.setName("loose");
    l.addChildWindowInBorder("loose", StaticLayout::SouthBorder);
    EXPECT_EQ(loose.getParent(), &l);
    EXPECT_EQ(l.GetBorderForChild(&loose), StaticLayout::SouthBorder);
    EXPECT_EQ(at(loose), Rectf(0, 70, 200, 100));
    EXPECT_THROW(l.addChildWindowInBorder("nobody", StaticLayout::NorthBorder),
                 UnknownObjectException);
}

TEST_F(StaticLayoutTest, TheParentIsMutedWhileAChildLayoutIsDragged)
{
    StaticLayout& outer = layout(300, 200, "FlowLayout", 0);
    auto& inner = static_cast<StaticLayout&>(
        *WindowManager::getSingleton().createWindow("MoxieLook/StaticLayout"));
    inner.setSize(USize(cegui_absdim(60), cegui_absdim(40)));
    outer.addChild(&inner);
    inner.SetDragAuthorized(true);

    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    moxietest::pointerTo(40, 20);
    ASSERT_TRUE(inner.IsDragging());
    EXPECT_TRUE(outer.isMuted());
    moxietest::pointerTo(200, 150); // the muted parent does not pull it back
    EXPECT_EQ(inner.getUnclippedOuterRect().get().d_min, Vector2f(190, 140));
    moxietest::leftUp();
    EXPECT_FALSE(outer.isMuted());
    EXPECT_EQ(at(inner), Rectf(0, 0, 60, 40));
}

TEST_F(StaticLayoutTest, DraggingDropsOnATargetOrCancelsAndPutsTheWidgetBack)
{
    StaticLayout& l = layout(60, 40, "DefaultLayout");
    Window& target = moxietest::place("MoxieLook/StaticText", 300, 300, 100, 100);
    Window& inner = moxietest::place("MoxieLook/Button", 0, 0, 40, 20);
    target.addChild(&inner);
    l.SetDragAuthorized(true);
    l.AddDropTarget(&target);

    std::vector<Window*> dragTargets;
    l.subscribeEvent(EventDragStarted, [&](const EventArgs& a)
                     { dragTargets.push_back(static_cast<const DragEventArgs&>(a).target); });
    int cancels = 0, drops = 0;
    l.subscribeEvent(EventDropCancelled, [&] { ++cancels; });
    target.subscribeEvent(EventDropped,
                          [&](const EventArgs& a)
                          {
                              const auto& d = static_cast<const DragEventArgs&>(a);
                              EXPECT_EQ(d.source, &l);
                              EXPECT_EQ(d.target, &target);
                              ++drops;
                          });

    // Seven 1-pixel steps (7) do not start a drag; one more of 7 pixels (49) passes 50.
    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    for (int i = 1; i <= 7; ++i)
        moxietest::pointerTo(20 + i, 20);
    EXPECT_FALSE(l.IsDragging());
    moxietest::pointerTo(34, 20);
    ASSERT_TRUE(l.IsDragging());
    EXPECT_TRUE(StaticLayout::IsDraggingOperationInProgress());
    EXPECT_EQ(dragTargets, (std::vector<Window*>{l.getParent(), nullptr}));

    // The widget follows the pointer, keeping the grab offset (10, 10).
    moxietest::pointerTo(150, 120);
    EXPECT_EQ(l.getUnclippedOuterRect().get().d_min, Vector2f(140, 110));

    // Dropped over a child of the target: the walk up finds the target.
    moxietest::pointerTo(310, 310);
    moxietest::leftUp();
    EXPECT_EQ(drops, 1);
    EXPECT_EQ(cancels, 0);
    EXPECT_FALSE(l.IsDragging());
    EXPECT_FALSE(StaticLayout::IsDraggingOperationInProgress());
    EXPECT_EQ(l.getUnclippedOuterRect().get().d_min, Vector2f(10, 10));

    // Dropped over nothing registered: cancelled, back home again.
    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    moxietest::pointerTo(40, 20);
    moxietest::pointerTo(600, 30);
    moxietest::leftUp();
    EXPECT_EQ(cancels, 1);
    EXPECT_EQ(l.getUnclippedOuterRect().get().d_min, Vector2f(10, 10));

    // RemoveDropTarget drops the target's subscribers but not the target: a drop over it
    // reaches nobody, and is no cancel either.
    l.RemoveDropTarget(&target);
    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    moxietest::pointerTo(40, 20);
    moxietest::pointerTo(320, 320);
    moxietest::leftUp();
    EXPECT_EQ(drops, 1);
    EXPECT_EQ(cancels, 1);
}

TEST_F(StaticLayoutTest, ALayoutFileSetsTheBorderBeforeEachChild)
{
    const char* file = R"(<?xml version="1.0" ?>
<GUILayout version="4">
  <Window type="MoxieLook/StaticLayout" name="Dock">
    <Property name="Area" value="{{0,0},{0,0},{0,300},{0,200}}" />
    <Property name="FrameEnabled" value="False" />
    <Property name="Layout" value="BorderLayout" />
    <Property name="Margin" value="4" />
    <Property name="Border" value="NorthBorder" />
    <Window type="MoxieLook/Button" name="Top">
      <Property name="Size" value="{{0,10},{0,30}}" />
    </Window>
    <Property name="Border" value="WestBorder" />
    <Window type="MoxieLook/Button" name="Side">
      <Property name="Size" value="{{0,60},{0,10}}" />
    </Window>
    <Property name="Border" value="CenterBorder" />
    <Window type="MoxieLook/StaticText" name="Main" />
  </Window>
</GUILayout>)";
    Window* dock = WindowManager::getSingleton().loadLayoutFromString(file);
    moxietest::freshSheet().addChild(dock);
    EXPECT_EQ(at(*dock->getChild("Top")), Rectf(0, 0, 300, 30));
    EXPECT_EQ(at(*dock->getChild("Side")), Rectf(0, 34, 60, 196));
    EXPECT_EQ(at(*dock->getChild("Main")), Rectf(64, 34, 296, 196));
}
