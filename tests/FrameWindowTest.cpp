#include "looks/MXCloseButton.h"
#include "looks/MXFrameWindow.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/Titlebar.h>
#include <functional>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;
using moxietest::drawnBy;
using moxietest::DrawnQuad;
using moxietest::sounds;

namespace
{
class FrameWindowTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        sounds().clear();
        frame = static_cast<MXFrameWindow*>(
            &moxietest::place("MoxieLook/FrameWindow", 100, 80, 300, 200));
        frame->setText("Notes");
        sounds().clear();
    }

    std::vector<Window*> parts() const
    {
        return {frame->getContentPane(), frame->getTitlebar(), frame->getCloseButton(),
                frame->getMinimizeButton(), frame->getTitleizeButton()};
    }

    // One frame of the display: a time pulse, then a draw.
    std::vector<DrawnQuad> nextFrame() const
    {
        context().injectTimePulse(0.016f);
        return drawnBy(*frame);
    }

    // The frame's top-left piece, which starts the frame wherever it is drawn.
    static Rectf frameCorner(const std::vector<DrawnQuad>& quads)
    {
        for (const DrawnQuad& quad : quads)
            if (quad.image == "WindowFrameTopLeft")
                return quad.rect;
        ADD_FAILURE() << "no frame drawn";
        return Rectf();
    }

    // A point on the title bar clear of its text and buttons.
    static Vector2f titleSpot(const FrameWindow& window)
    {
        const Rectf bar = window.getTitlebar()->getUnclippedOuterRect().get();
        return Vector2f(bar.left() + bar.getWidth() * 0.6f, bar.top() + bar.getHeight() * 0.5f);
    }

    MXFrameWindow* frame = nullptr;
};
} // namespace

TEST_F(FrameWindowTest, ChildrenLandInTheContentPaneAndPartsStayDirect)
{
    Window* content = frame->getContentPane();
    ASSERT_NE(content, nullptr);
    for (Window* part : parts())
        EXPECT_EQ(part->getParent(), frame) << part->getName();

    Window* ok = WindowManager::getSingleton().createWindow("MoxieLook/Button", "ok");
    frame->addChild(ok);
    EXPECT_EQ(ok->getParent(), content);
    EXPECT_EQ(frame->getChild("ok"), ok);
    frame->removeChild(ok);
    EXPECT_EQ(ok->getParent(), nullptr);
    WindowManager::getSingleton().destroyWindow(ok);

    Window* loaded = WindowManager::getSingleton().loadLayoutFromString(
        "<GUILayout version=\"4\"><Window type=\"MoxieLook/FrameWindow\" name=\"fromFile\">"
        "<Property name=\"Area\" value=\"{{0,10},{0,10},{0,210},{0,160}}\" />"
        "<Window type=\"MoxieLook/Button\" name=\"inside\" /></Window></GUILayout>");
    moxietest::freshSheet().addChild(loaded);
    auto* fromFile = static_cast<FrameWindowEx*>(loaded);
    EXPECT_EQ(fromFile->getChild("inside")->getParent(), fromFile->getContentPane());

    // The pane fills the window inside the sizing border, below the title bar.
    const float b = fromFile->getSizingBorderThickness();
    const float h = fromFile->getTitlebar()->getPixelSize().d_height;
    EXPECT_GT(h, 0);
    EXPECT_EQ(fromFile->getContentPane()->getUnclippedOuterRect().get(),
              Rectf(10 + b, 10 + h, 210 - b, 160 - b));
}

TEST_F(FrameWindowTest, MinimisingDrawsFortyShrinkingFramesThenNothing)
{
    const Rectf own = frame->getUnclippedOuterRect().get();
    const Rectf bar(20, 570, 60, 596);
    frame->setRectangleOnTaskbar(bar);
    int minimised = 0;
    frame->subscribeEvent(FrameWindowEx::EventMinimizeClicked, [&] { ++minimised; });
    moxietest::hearSounds();

    frame->minimize(true);
    EXPECT_EQ(minimised, 1);
    EXPECT_EQ(sounds(), std::vector<std::string>{"woop"});
    EXPECT_TRUE(frame->isMinimized());
    EXPECT_FALSE(frame->isHit(own.getPosition() + Vector2f(50, 50), true));
    EXPECT_TRUE(frame->isVisible()); // minimised is not hidden
    EXPECT_TRUE(frame->isDisabled());
    for (Window* part : parts())
        EXPECT_FALSE(part->isVisible() || !part->isDisabled()) << part->getName();

    auto corner = [&](unsigned step)
    {
        const Rectf at = MXFrameWindow::animationFrame(own, bar, step, false);
        return Vector2f(at.left() - own.left(), at.top() - own.top());
    };
    for (unsigned step = 40; step >= 1; --step)
    {
        const auto quads = nextFrame();
        if (step == 40 || step == 20 || step == 1)
        {
            // CEGUI puts quads on whole pixels
            EXPECT_NEAR(frameCorner(quads).left(), corner(step).d_x, 0.5f) << "step " << step;
            EXPECT_NEAR(frameCorner(quads).top(), corner(step).d_y, 0.5f) << "step " << step;
        }
        EXPECT_EQ(quads.size(), 8u) << "only the frame, step " << step;
        if (step == 20)
        {
            // Half way: every edge midway between the window's and the task bar's.
            Rectf extent = quads.front().rect;
            for (const DrawnQuad& quad : quads)
                extent = Rectf(std::min(extent.left(), quad.rect.left()),
                               std::min(extent.top(), quad.rect.top()),
                               std::max(extent.right(), quad.rect.right()),
                               std::max(extent.bottom(), quad.rect.bottom()));
            const Rectf half((own.left() + bar.left()) / 2, (own.top() + bar.top()) / 2,
                             (own.right() + bar.right()) / 2, (own.bottom() + bar.bottom()) / 2);
            EXPECT_NEAR(extent.left() + own.left(), half.left(), 0.5f);
            EXPECT_NEAR(extent.top() + own.top(), half.top(), 0.5f);
            EXPECT_NEAR(extent.right() + own.left(), half.right(), 0.5f);
            EXPECT_NEAR(extent.bottom() + own.top(), half.bottom(), 0.5f);
            // Drawn outside its own rectangle: the window's clipping lets the whole path through.
            EXPECT_TRUE(frame->getOuterRectClipper().isPointInRect(bar.getPosition()));
        }
    }
    // The first frame is the window itself; the last is 1/40 short of the task bar.
    EXPECT_EQ(corner(40), Vector2f(0, 0));
    EXPECT_NEAR(own.left() + corner(1).d_x, (own.left() + 39 * bar.left()) / 40, 1e-3);
    EXPECT_TRUE(nextFrame().empty());
    EXPECT_TRUE(nextFrame().empty());
    EXPECT_EQ(frame->getAnimationStepsLeft(), 0u);
    EXPECT_EQ(sounds().size(), 1u);
}

TEST_F(FrameWindowTest, RestoringTakesOneFrameOrAnimatesFromTheTaskBar)
{
    const Rectf own = frame->getUnclippedOuterRect().get();
    const Rectf bar(20, 570, 60, 596);
    frame->setRectangleOnTaskbar(bar);
    frame->minimize(false);
    EXPECT_EQ(nextFrame().size(), 8u);
    EXPECT_TRUE(nextFrame().empty());

    frame->restore(false);
    EXPECT_FALSE(frame->isMinimized());
    const auto quads = nextFrame();
    ASSERT_EQ(quads.size(), 8u);
    const Rectf expected = MXFrameWindow::animationFrame(own, bar, 1, true);
    EXPECT_NEAR(frameCorner(quads).left(), expected.left() - own.left(), 1e-3);
    EXPECT_NEAR(expected.left(), (39 * own.left() + bar.left()) / 40, 1e-3);
    // The parts came back in that same frame.
    EXPECT_FALSE(frame->isDisabled());
    for (Window* part : parts())
        EXPECT_TRUE(part->isVisible() && !part->isDisabled()) << part->getName();
    EXPECT_TRUE(frame->isHit(own.getPosition() + Vector2f(50, 50)));

    // The next frame is the window again: fill, then frame.
    const auto normal = nextFrame();
    ASSERT_EQ(normal.size(), 9u);
    EXPECT_EQ(normal[0].image, "Background");
    EXPECT_EQ(frameCorner(normal).getPosition(), Vector2f(0, 0));

    // Restored with the animation, the first frame starts on the task bar.
    frame->minimize(false);
    nextFrame();
    frame->restore(true);
    const Rectf first = frameCorner(nextFrame());
    EXPECT_EQ(first.getPosition(), Vector2f(bar.left() - own.left(), bar.top() - own.top()));
    for (int step = 0; step < 39; ++step)
        nextFrame();
    EXPECT_EQ(frame->getAnimationStepsLeft(), 0u);
    EXPECT_TRUE(frame->getTitlebar()->isVisible());
}

TEST_F(FrameWindowTest, HidingIsClosingAndShowingSoundsOnce)
{
    moxietest::hearSounds();
    int closed = 0;
    frame->subscribeEvent(FrameWindow::EventCloseClicked, [&] { ++closed; });
    frame->hide();
    EXPECT_FALSE(frame->isVisible());
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(sounds(), std::vector<std::string>{"woop"});

    sounds().clear();
    frame->show();
    EXPECT_EQ(sounds(), std::vector<std::string>{"floup"});

    // The close button does the same.
    sounds().clear();
    const Rectf close = frame->getCloseButton()->getUnclippedOuterRect().get();
    moxietest::click(close.left() + 8, close.top() + 8);
    EXPECT_EQ(closed, 2);
    EXPECT_FALSE(frame->isVisible());
    EXPECT_EQ(sounds(), std::vector<std::string>{"woop"});
}

TEST_F(FrameWindowTest, PartsAreLaidOutAndDrawnFromTheirImages)
{
    EXPECT_FALSE(frame->getMinimizeButton()->isVisible());
    EXPECT_FALSE(frame->getTitleizeButton()->isVisible());
    EXPECT_FALSE(frame->isRollupEnabled());

    const Rectf title = frame->getTitlebar()->getUnclippedOuterRect().get();
    const Rectf close = frame->getCloseButton()->getUnclippedOuterRect().get();
    EXPECT_EQ(title, Rectf(100, 80, 400, 80 + title.getHeight()));
    EXPECT_LT(close.right(), title.right());
    EXPECT_GE(close.top(), title.top());
    EXPECT_LE(close.bottom(), title.bottom());
    auto closeQuads = drawnBy(*frame->getCloseButton());
    ASSERT_EQ(closeQuads.size(), 1u);
    EXPECT_EQ(closeQuads[0].image, "CloseButtonNormal");
    frame->getMinimizeButton()->show();
    EXPECT_EQ(drawnBy(*frame->getMinimizeButton())[0].image, "MinimizeButtonNormal");

    // Inactive, the frame is tinted grey; the title bar shows it too.
    frame->activate();
    const auto active = drawnBy(*frame);
    ASSERT_EQ(active.size(), 9u);
    EXPECT_EQ(moxietest::argb(active[1].colours.d_top_left), 0xFFFFFFFFu);
    EXPECT_EQ(drawnBy(*frame->getTitlebar())[0].image, "TitlebarFocusLeft");
    frame->deactivate();
    EXPECT_EQ(moxietest::argb(drawnBy(*frame)[1].colours.d_top_left), 0xFF808080u);
    EXPECT_EQ(drawnBy(*frame->getTitlebar())[0].image, "TitlebarLeft");

    // Rolled up, only the title bar shows: the content pane goes, the window draws nothing.
    frame->setRollupEnabled(true);
    frame->toggleRollup();
    EXPECT_FALSE(frame->getContentPane()->isVisible());
    EXPECT_TRUE(drawnBy(*frame).empty());
    frame->toggleRollup();
    EXPECT_TRUE(frame->getContentPane()->isVisible());
}

// Whatever the user did to the title bar first, its buttons still take the next click.
TEST_F(FrameWindowTest, TitleButtonsTakeClicksAfterTheTitleBarWasUsed)
{
    Window* loaded = WindowManager::getSingleton().loadLayoutFromString(
        "<GUILayout version=\"4\"><Window type=\"MoxieLook/FrameWindow\" name=\"fromFile\">"
        "<Property name=\"Area\" value=\"{{0,420},{0,80},{0,720},{0,280}}\" />"
        "<Property name=\"RollupEnabled\" value=\"true\" /></Window></GUILayout>");
    context().getRootWindow()->addChild(loaded);
    frame->setRollupEnabled(true);

    for (auto* window : {static_cast<FrameWindowEx*>(frame), static_cast<FrameWindowEx*>(loaded)})
    {
        window->getMinimizeButton()->show();
        window->getTitleizeButton()->show();
        const std::vector<std::pair<const char*, std::function<void()>>> touches = {
            {"click", [&] { moxietest::click(titleSpot(*window).d_x, titleSpot(*window).d_y); }},
            {"drag",
             [&]
             {
                 const Vector2f at = titleSpot(*window);
                 moxietest::drag(at, at + Vector2f(15, 10));
             }},
            {"double click (roll up)",
             [&] { moxietest::doubleClick(titleSpot(*window).d_x, titleSpot(*window).d_y); }},
            {"double click twice (roll up and back)",
             [&]
             {
                 moxietest::doubleClick(titleSpot(*window).d_x, titleSpot(*window).d_y);
                 moxietest::doubleClick(titleSpot(*window).d_x, titleSpot(*window).d_y);
                 EXPECT_FALSE(window->isRolledup());
             }},
        };
        const std::vector<std::pair<const char*, Window*>> buttons = {
            {"roll-up", window->getTitleizeButton()},
            {"minimise", window->getMinimizeButton()},
            {"close", window->getCloseButton()}};
        for (const auto& [touch, act] : touches)
            for (const auto& [name, button] : buttons)
            {
                act();
                int clicks = 0;
                Event::Connection counted =
                    button->subscribeEvent(PushButton::EventClicked, [&clicks] { ++clicks; });
                moxietest::clickOn(*button);
                counted->disconnect();
                EXPECT_EQ(clicks, 1) << window->getName() << ": " << name << " after " << touch;
                // Put the window back as it was for the next round.
                if (window->isRolledup())
                    window->toggleRollup();
                if (window->isMinimized())
                    window->restore(false);
                window->show();
                context().injectTimePulse(0.016f);
                drawnBy(*window);
            }
    }
}
