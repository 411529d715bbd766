#include "looks/MXFrameWindow.h"
#include "looks/MXTaskbar.h"
#include "module/KeyboardNavigation.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/WindowManager.h>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;
using moxietest::drawnBy;

namespace
{
class TaskbarTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Window& sheet = moxietest::freshSheet();
        for (const char* name : {"Notes", "Files", "Stars"})
        {
            windows.push_back(static_cast<MXFrameWindow*>(
                &moxietest::place("MoxieLook/FrameWindow", 50, 50, 200, 150)));
            windows.back()->setName(name);
        }
        bar = static_cast<MXTaskbar*>(
            WindowManager::getSingleton().createWindow("MoxieLook/Taskbar", "bar"));
        sheet.addChild(bar);
        bar->monitorWindow(windows[0], "MoxieLook", "TaskbarWindowNotes");
        bar->monitorWindow(windows[1], "MoxieLook", "TaskbarWindowFiles");
        bar->monitorWindow(windows[2], "MoxieLook", "TaskbarWindowFavourites");
    }

    TaskbarButton& button(int i) const
    {
        return static_cast<TaskbarButton&>(*bar->getChild(windows[i]->getName() + "_minimized"));
    }

    // The windows' names in the order their buttons stand, hidden ones left out.
    std::vector<std::string> order() const
    {
        std::vector<std::pair<float, std::string>> shown;
        for (const auto& entry : bar->getEntries())
            if (entry.button->isVisible())
                shown.push_back(
                    {entry.button->getXPosition().d_offset, entry.window->getName().c_str()});
        std::sort(shown.begin(), shown.end());
        std::vector<std::string> names;
        for (const auto& item : shown)
            names.push_back(item.second);
        return names;
    }

    static void release(const Window& target, MouseButton which)
    {
        const Rectf r = target.getUnclippedOuterRect().get();
        moxietest::pointerTo(r.left() + 5, r.top() + 5);
        context().injectMouseButtonDown(which);
        context().injectMouseButtonUp(which);
    }

    std::vector<MXFrameWindow*> windows;
    MXTaskbar* bar = nullptr;
};
} // namespace

TEST_F(TaskbarTest, BarLiesAlongTheBottomWithButtonsPackedFromTheCorner)
{
    const float height = bar->getPixelSize().d_height;
    EXPECT_EQ(bar->getUnclippedOuterRect().get(), Rectf(0, 600 - height, 800, 600));
    EXPECT_TRUE(bar->isAlwaysOnTop());
    EXPECT_EQ(moxietest::imageNames(drawnBy(*bar)).front(), "TaskbarLeft");

    const float w = button(0).getPixelSize().d_width;
    EXPECT_EQ(button(0).getText(), "TaskbarWindowNotes");
    EXPECT_EQ(button(0).getPixelSize(), Sizef(40, 26)); // the bitmap's size
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(button(i).getPosition(), UVector2(cegui_absdim(4 + i * w), cegui_absdim(4)));
        EXPECT_EQ(windows[i]->getRectangleOnTaskbar(),
                  Rectf(4 + i * w, 600 - height + 4, 4 + (i + 1) * w, 600 - height + 30));
    }
    // Bitmap buttons draw the bitmap alone, by selection.
    windows[1]->activate();
    EXPECT_EQ(moxietest::imageNames(drawnBy(button(1))),
              std::vector<std::string>{"TaskbarWindowFilesSelect"});
    EXPECT_EQ(moxietest::imageNames(drawnBy(button(0))),
              std::vector<std::string>{"TaskbarWindowNotes"});
}

TEST_F(TaskbarTest, AWindowShownAgainGoesToTheRightEnd)
{
    EXPECT_EQ(order(), (std::vector<std::string>{"Notes", "Files", "Stars"}));
    windows[1]->hide();
    EXPECT_FALSE(button(1).isVisible());
    EXPECT_EQ(order(), (std::vector<std::string>{"Notes", "Stars"}));
    windows[1]->show();
    EXPECT_EQ(order(), (std::vector<std::string>{"Notes", "Stars", "Files"}));
    windows[0]->hide();
    windows[0]->show();
    EXPECT_EQ(order(), (std::vector<std::string>{"Stars", "Files", "Notes"}));
    // Still shown: it keeps its place.
    windows[1]->show();
    EXPECT_EQ(order(), (std::vector<std::string>{"Stars", "Files", "Notes"}));
    // Minimised is not hidden: the button stays.
    windows[2]->minimize(false);
    EXPECT_TRUE(button(2).isVisible());
}

TEST_F(TaskbarTest, ButtonsFollowActivationAndMinimiseAndRestoreTheirWindows)
{
    windows[0]->activate();
    EXPECT_TRUE(button(0).isSelected());
    windows[2]->activate();
    EXPECT_TRUE(button(2).isSelected());
    EXPECT_FALSE(button(0).isSelected());

    // A click on the active window's button minimises it...
    release(button(2), LeftButton);
    EXPECT_FALSE(button(2).isSelected());
    EXPECT_TRUE(windows[2]->isMinimized());
    EXPECT_EQ(windows[2]->getAnimationStepsLeft(), FrameWindowEx::AnimationSteps);
    // ...and another restores it.
    release(button(2), LeftButton);
    EXPECT_TRUE(button(2).isSelected());
    EXPECT_FALSE(windows[2]->isMinimized());
    EXPECT_TRUE(windows[2]->isActive());

    // A click on another window's button activates that window.
    release(button(0), LeftButton);
    EXPECT_TRUE(windows[0]->isActive());
    EXPECT_TRUE(button(0).isSelected());
    EXPECT_FALSE(button(2).isSelected());
}

TEST_F(TaskbarTest, ARightReleaseActsOnTheCurrentSelectionWithoutToggling)
{
    windows[0]->activate();
    int reported = 0;
    button(1).subscribeEvent(TaskbarButton::EventExplicitlyClicked, [&] { ++reported; });

    // Unselected: the window is minimised.
    release(button(1), RightButton);
    EXPECT_EQ(reported, 1);
    EXPECT_FALSE(button(1).isSelected());
    EXPECT_TRUE(windows[1]->isMinimized());

    // Selected: the window is activated, the selection stays.
    release(button(0), RightButton);
    EXPECT_TRUE(button(0).isSelected());
    EXPECT_FALSE(windows[0]->isMinimized());
    EXPECT_TRUE(windows[0]->isActive());
}

TEST_F(TaskbarTest, MonitoringFailsInTheStatedOrder)
{
    auto& extra = moxietest::placeAs<MXFrameWindow>("MoxieLook/FrameWindow", 0, 0, 100, 100);
    extra.setName("Extra");
    const std::size_t children = bar->getChildCount();

    EXPECT_THROW(bar->monitorWindow(&extra, "NoSuchSet", "TaskbarWindowNotes"),
                 UnknownObjectException);
    EXPECT_EQ(bar->getChildCount(), children);
    EXPECT_EQ(bar->getEntries().size(), 3u);

    // "IconStar" exists, "IconStarFocus" does not: the button is already in the bar.
    EXPECT_THROW(bar->monitorWindow(&extra, "MoxieLook", "IconStar"), UnknownObjectException);
    EXPECT_EQ(bar->getChildCount(), children + 1);
    EXPECT_EQ(bar->getEntries().size(), 3u);
    // Not followed: hiding the window changes nothing in the bar.
    extra.hide();
    EXPECT_EQ(bar->getEntries().size(), 3u);
    // Its button's name is taken now: the second button is refused and destroyed.
    EXPECT_THROW(bar->monitorWindow(&extra, "MoxieLook", "TaskbarWindowNotes"),
                 AlreadyExistsException);
    EXPECT_EQ(bar->getChildCount(), children + 1);
    EXPECT_EQ(bar->getEntries().size(), 3u);

    EXPECT_THROW(bar->monitorWindow(nullptr, "MoxieLook", "TaskbarWindowNotes"),
                 InvalidRequestException);
}

TEST_F(TaskbarTest, AWindowDestroyedTakesItsButtonAlong)
{
    WindowManager::getSingleton().destroyWindow(windows[1]);
    EXPECT_EQ(bar->getEntries().size(), 2u);
    EXPECT_EQ(order(), (std::vector<std::string>{"Notes", "Stars"}));
    release(button(0), LeftButton);
    EXPECT_TRUE(windows[0]->isActive());
}

// A bar far wider than the display draws only what can be seen, and covers all of it on
// screen without gaps, wherever it lies.
TEST_F(TaskbarTest, AHugeBarDrawsOnlyWhatCanBeSeenAndAllOfIt)
{
    const float height = bar->getPixelSize().d_height;
    const auto normal = drawnBy(*bar);
    // Screen spans of the quads drawn, merged; the bar on the display must be one span, to
    // within what
    // a float holds at the bar's own position (window-local geometry is in floats).
    auto coversTheDisplay = [&](const std::vector<moxietest::DrawnQuad>& quads)
    {
        const float origin = bar->getUnclippedOuterRect().get().left();
        const double slack =
            std::max(0.5f, std::nextafter(std::fabs(origin), INFINITY) - std::fabs(origin));
        std::vector<std::pair<double, double>> spans;
        for (const auto& quad : quads)
            spans.emplace_back(double(origin) + quad.rect.left(),
                               double(origin) + quad.rect.right());
        std::sort(spans.begin(), spans.end());
        double reached = 0;
        for (const auto& [from, to] : spans)
            if (from <= reached + slack)
                reached = std::max(reached, to);
        const double end = std::min(800.0, double(origin) + 2e9);
        return reached >= end - slack;
    };
    EXPECT_TRUE(coversTheDisplay(normal));
    for (const float left : {0.0f, -1e9f, -2e9f + 700})
    {
        bar->setArea(URect(cegui_absdim(left), cegui_absdim(600 - height),
                           cegui_absdim(left + 2e9f), cegui_absdim(600)));
        const auto huge = drawnBy(*bar);
        EXPECT_LE(huge.size(), normal.size() + 2) << left;
        EXPECT_TRUE(coversTheDisplay(huge)) << left;
    }
}

TEST_F(TaskbarTest, KeysWalkTheButtonsAndClickThemAsTheMouseDoes)
{
    windows[2]->activate();
    ASSERT_TRUE(CEGUI::MoxieLook::focusWidget(button(2)));
    moxietest::press(Key::Space); // the active window's button: minimises it
    EXPECT_TRUE(windows[2]->isMinimized());
    moxietest::press(Key::Space); // and restores it
    EXPECT_FALSE(windows[2]->isMinimized());
    // The arrows go along the bar; Space on another window's button activates that window.
    CEGUI::MoxieLook::focusWidget(button(2));
    const float x2 = button(2).getUnclippedOuterRect().get().left();
    moxietest::press(x2 > button(1).getUnclippedOuterRect().get().left() ? Key::ArrowLeft
                                                                         : Key::ArrowRight);
    ASSERT_EQ(CEGUI::MoxieLook::focusedWidget(moxietest::context()), &button(1));
    moxietest::press(Key::Space);
    EXPECT_TRUE(windows[1]->isActive());
}
