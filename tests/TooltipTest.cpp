#include "draw/TextDrawing.h"
#include "looks/MXTooltip.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/WindowFactoryManager.h>
#include <CEGUI/WindowManager.h>
#include <cmath>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;
using moxietest::drawnBy;
using moxietest::imageNames;

namespace
{
// Lets the tests ask for the size of a given number of lines.
class ProbeTooltip : public MXTooltip
{
public:
    static constexpr char WidgetTypeName[] = "Test/Tooltip";
    using MXTooltip::MXTooltip;
    using TooltipEx::getTextSize;
};

const char* const LongText =
    "Saves the current drawing under its name, replacing the file on disk, and keeps a "
    "copy of the previous version beside it";

class TooltipTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        WindowFactoryManager::getSingleton().addFactory(&s_probeFactory);
    }
    static void TearDownTestSuite()
    {
        WindowManager::getSingleton().cleanDeadPool();
        WindowFactoryManager::getSingleton().removeFactory(ProbeTooltip::WidgetTypeName);
    }

    void SetUp() override
    {
        moxietest::freshSheet();
        target = &moxietest::place("MoxieLook/Button", 20, 20, 100, 30);
        tip = static_cast<ProbeTooltip*>(
            WindowManager::getSingleton().createWindow(ProbeTooltip::WidgetTypeName, "tip"));
    }
    void TearDown() override { WindowManager::getSingleton().destroyWindow(tip); }

    float lineSpacing() const { return tip->getFont()->getLineSpacing(); }

    static inline LookFactory<ProbeTooltip> s_probeFactory;
    Window* target = nullptr;
    ProbeTooltip* tip = nullptr;
};
} // namespace

TEST_F(TooltipTest, LongTextSpreadsOverLinesUntilTheBoxIsAtMostFiveTimesAsWideAsHigh)
{
    target->setTooltipText(LongText);
    tip->setTargetWindow(target);
    const Sizef oneLine = tip->getTextSize(1u);
    ASSERT_GT(oneLine.d_width / oneLine.d_height, 5.0f);

    const Sizef size = tip->getTextSize();
    const unsigned lines = static_cast<unsigned>(std::lround(size.d_height / lineSpacing()));
    EXPECT_GT(lines, 1u);
    EXPECT_LE(size.d_width / size.d_height, 5.0f);
    // One line fewer would still have been too wide.
    const Sizef fewer = tip->getTextSize(lines - 1);
    EXPECT_GT(fewer.d_width / fewer.d_height, 5.0f);
    EXPECT_LT(size.d_width, fewer.d_width);

    // The box is the text, in whole pixels, and the frame; the text fits the box as CEGUI
    // wraps it.
    const EdgeInsets& in = tip->getFrameInsets();
    EXPECT_EQ(tip->getPixelSize(),
              Sizef(std::ceil(size.d_width) + std::floor(in.left + in.right + 0.5f),
                    std::ceil(size.d_height) + std::floor(in.top + in.bottom + 0.5f)));
    tip->forceActivation(target);
    const auto quads = drawnBy(*tip);
    EXPECT_FALSE(tip->skippedLastDraw());
    EXPECT_EQ(imageNames(quads),
              (std::vector<std::string>{"TooltipTopLeft", "TooltipTopRight", "TooltipBottomLeft",
                                        "TooltipBottomRight", "TooltipLeftEdge", "TooltipTopEdge",
                                        "TooltipRightEdge", "TooltipBottomEdge", "TooltipMiddle",
                                        "text"}));
    EXPECT_EQ(quads[8].rect, in.inside(Rectf(Vector2f(0, 0), tip->getPixelSize())));
}

TEST_F(TooltipTest, MoreLinesStopOnceTheyNoLongerNarrowTheBox)
{
    target->setTooltipText("Pneumonoultramicroscopicsilicovolcanoconiosis");
    tip->setTargetWindow(target);
    const Sizef size = tip->getTextSize();
    EXPECT_GT(size.d_width / size.d_height, 5.0f);
    EXPECT_FLOAT_EQ(size.d_height, tip->getTextSize(1u).d_height);

    // An empty text keeps CEGUI's own size: nothing but the frame.
    target->setTooltipText("");
    tip->setTargetWindow(target);
    EXPECT_EQ(tip->getTextSize(), Sizef(0, 0));
}

TEST_F(TooltipTest, ForcedShowingAndHidingFollowTheFadeStates)
{
    Window& other = moxietest::place("MoxieLook/Button", 20, 80, 100, 30);
    target->setTooltipText("First");
    other.setTooltipText("Second");
    tip->setFadeTime(0.2f);

    tip->forceDeactivaction();
    EXPECT_EQ(tip->getState(), TooltipEx::Inactive);

    tip->forceActivation(target);
    EXPECT_EQ(tip->getState(), TooltipEx::FadingIn);
    EXPECT_TRUE(tip->isVisible());
    EXPECT_EQ(tip->getText(), "First");
    tip->forceActivation(&other); // already on its way in
    EXPECT_EQ(tip->getTargetWindow(), target);

    context().injectTimePulse(0.1f);
    EXPECT_NEAR(tip->getAlpha(), 0.5f, 1e-3);
    context().injectTimePulse(0.15f);
    EXPECT_EQ(tip->getState(), TooltipEx::Active);
    EXPECT_EQ(tip->getAlpha(), 1.0f);
    tip->forceActivation(&other);
    EXPECT_EQ(tip->getTargetWindow(), target);

    tip->forceDeactivaction();
    EXPECT_EQ(tip->getState(), TooltipEx::FadingOut);
    context().injectTimePulse(0.05f);
    EXPECT_NEAR(tip->getAlpha(), 0.75f, 1e-3); // from the beginning of the fade
    tip->forceDeactivaction();                 // already fading out: no restart
    context().injectTimePulse(0.05f);
    EXPECT_NEAR(tip->getAlpha(), 0.5f, 1e-3);
    context().injectTimePulse(0.2f);
    EXPECT_EQ(tip->getState(), TooltipEx::Inactive);
    EXPECT_FALSE(tip->isVisible());
    EXPECT_EQ(tip->getAlpha(), 1.0f);

    // No window: it fades in with nothing to show.
    tip->forceActivation(nullptr);
    EXPECT_EQ(tip->getState(), TooltipEx::FadingIn);
    EXPECT_EQ(tip->getTargetWindow(), nullptr);
    drawnBy(*tip);
    tip->forceDeactivaction();
    EXPECT_EQ(tip->getState(), TooltipEx::FadingOut);

    // Activated while fading out, it fades in again for the new window; a window with no
    // tip of its own shows its parent's.
    Window& inner = moxietest::place("MoxieLook/Button", 5, 5, 40, 20);
    other.addChild(&inner);
    inner.setInheritsTooltipText(true);
    tip->forceActivation(&inner);
    EXPECT_EQ(tip->getState(), TooltipEx::FadingIn);
    EXPECT_EQ(tip->getTargetWindow(), &inner);
    EXPECT_EQ(tip->getText(), "Second");
    context().injectTimePulse(0.05f);
    EXPECT_EQ(tip->getState(), TooltipEx::FadingIn); // it has a text to show
    EXPECT_TRUE(moxietest::find(drawnBy(*tip), "text"));
    tip->forceDeactivaction();
    context().injectTimePulse(0.5f);
    EXPECT_EQ(tip->getState(), TooltipEx::Inactive);

    // Shown by hovering, it fades out by itself when its display time is up.
    tip->setDisplayTime(1.0f);
    tip->forceActivation(&other);
    context().injectTimePulse(0.3f);
    EXPECT_EQ(tip->getState(), TooltipEx::Active);
    context().injectTimePulse(1.0f);
    EXPECT_EQ(tip->getState(), TooltipEx::FadingOut);
}

TEST_F(TooltipTest, ABoxTooLowForItsWrappedTextGrowsAndSkipsOneDraw)
{
    target->setTooltipText("Three short words");
    tip->forceActivation(target);
    const EdgeInsets& in = tip->getFrameInsets();
    const float frameHeight = std::floor(in.top + in.bottom + 0.5f);
    tip->setWidth(cegui_absdim(40)); // grows by the frame, as every size does
    const float textWidth = tip->getPixelSize().d_width - in.left - in.right;
    const float lines = static_cast<float>(
        countLines(*tip, tip->getRenderedString(), textWidth, HorzTextFormat::WordWrapLeft).count);
    ASSERT_GT(lines, 1);

    EXPECT_TRUE(drawnBy(*tip).empty());
    EXPECT_TRUE(tip->skippedLastDraw());
    // The new height is text and frame, asked for like any size and so framed once more.
    EXPECT_NEAR(tip->getPixelSize().d_height,
                lines * lineSpacing() + in.top + in.bottom + frameHeight, 0.5f);

    context().injectTimePulse(0.01f);
    const auto quads = drawnBy(*tip);
    EXPECT_FALSE(tip->skippedLastDraw());
    EXPECT_EQ(quads.size(), 10u);
}

TEST_F(TooltipTest, TextColourDefaultsToBlackAtTheWindowsAlpha)
{
    EXPECT_EQ(tip->getProperty("TextColour"), "00000000");
    target->setTooltipText("Hello");
    tip->setFadeTime(0);
    tip->forceActivation(target);
    tip->setAlpha(0.5f);
    auto quads = drawnBy(*tip);
    ASSERT_FALSE(quads.empty());
    EXPECT_EQ(quads.back().image, "text");
    EXPECT_EQ(moxietest::argb(quads.back().colours.d_top_left), 0x7F000000u);

    tip->setProperty("TextColour", "FF336699");
    EXPECT_EQ(tip->getProperty("TextColour"), "FF336699");
    quads = drawnBy(*tip);
    EXPECT_EQ(moxietest::argb(quads.back().colours.d_top_left), 0x7F336699u);
}
