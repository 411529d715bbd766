#include "looks/MXButton.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::drawnBy;
using moxietest::DrawnQuad;
using moxietest::imageNames;

namespace
{
// The button sits at (10, 10), 100 x 30; its frame edges are 2 pixels, corners 4.
constexpr float W = 100, H = 30;

class ButtonTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        button = &moxietest::placeAs<MXButton>("MoxieLook/Button", 10, 10, W, H);
        button->setText("Go");
    }

    MXButton* button = nullptr;
};

std::vector<std::string> frame(const std::string& prefix)
{
    return {prefix + "TopLeft", prefix + "TopRight", prefix + "BottomLeft", prefix + "BottomRight",
            prefix + "Left",    prefix + "Top",      prefix + "Right",      prefix + "Bottom"};
}

std::vector<std::string> picture(const std::string& framePrefix)
{
    std::vector<std::string> names{"ButtonArrowFill"};
    for (const std::string& piece : frame(framePrefix))
        names.push_back(piece);
    names.push_back("text");
    return names;
}

void expectFill(const DrawnQuad& fill, argb_t primary, argb_t secondary)
{
    EXPECT_EQ(fill.image, "ButtonArrowFill");
    EXPECT_EQ(fill.rect, Rectf(2, 2, W - 2, H - 2));
    EXPECT_EQ(moxietest::argb(fill.colours.d_top_left), primary);
    EXPECT_EQ(moxietest::argb(fill.colours.d_top_right), secondary);
    EXPECT_EQ(moxietest::argb(fill.colours.d_bottom_left), secondary);
    EXPECT_EQ(moxietest::argb(fill.colours.d_bottom_right), primary);
}

argb_t textColour(const std::vector<DrawnQuad>& quads)
{
    return moxietest::argb(quads.back().colours.d_top_left);
}
} // namespace

TEST_F(ButtonTest, NormalStateDrawsFillThenFrameThenText)
{
    const std::vector<DrawnQuad> quads = drawnBy(*button);
    ASSERT_EQ(imageNames(quads), picture("ButtonArrow"));
    expectFill(quads[0], 0xFFAFAFAF, 0xFFFFFFFF);

    const Rectf pieces[] = {{0, 0, 4, 4},         {W - 4, 0, W, 4},    {0, H - 4, 4, H},
                            {W - 4, H - 4, W, H}, {0, 4, 2, H - 4},    {4, 0, W - 4, 2},
                            {W - 2, 4, W, H - 4}, {4, H - 2, W - 4, H}};
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(quads[1 + i].rect, pieces[i]) << quads[1 + i];
        EXPECT_EQ(moxietest::argb(quads[1 + i].colours.d_top_left), 0xFFFFFFFF);
    }
    EXPECT_EQ(textColour(quads), 0xFF000000);
    // No width, nothing at all.
    button->setSize(USize(UDim(0, 0), UDim(0, H)));
    EXPECT_TRUE(drawnBy(*button).empty());
}

TEST_F(ButtonTest, InjectedPointerDrivesHoverPushedAndBackToNormal)
{
    bool clicked = false;
    button->subscribeEvent(PushButton::EventClicked, [&] { clicked = true; });

    moxietest::pointerTo(50, 20);
    std::vector<DrawnQuad> quads = drawnBy(*button);
    EXPECT_EQ(imageNames(quads), picture("ButtonArrowFocus"));
    expectFill(quads[0], 0xFFCFD9CF, 0xFFF2FFF2);

    moxietest::leftDown();
    quads = drawnBy(*button);
    EXPECT_EQ(imageNames(quads), picture("ButtonArrowFocus"));
    expectFill(quads[0], 0xFFAFAFAF, 0xFFFFFFFF);
    EXPECT_EQ(textColour(quads), 0xFF000000);

    // Pressed, with the pointer slipped off: the hover picture, and no click on release.
    moxietest::pointerTo(300, 300);
    quads = drawnBy(*button);
    expectFill(quads[0], 0xFFCFD9CF, 0xFFF2FFF2);
    moxietest::leftUp();
    EXPECT_FALSE(clicked);
    quads = drawnBy(*button);
    EXPECT_EQ(imageNames(quads), picture("ButtonArrow"));
    expectFill(quads[0], 0xFFAFAFAF, 0xFFFFFFFF);

    moxietest::click(50, 20);
    EXPECT_TRUE(clicked);
}

TEST_F(ButtonTest, DisabledUsesNormalFrameFlatGreyFillAndGreyText)
{
    button->setEnabled(false);
    moxietest::pointerTo(50, 20);
    const std::vector<DrawnQuad> quads = drawnBy(*button);
    EXPECT_EQ(imageNames(quads), picture("ButtonArrow"));
    expectFill(quads[0], 0xFF999999, 0xFF999999);
    EXPECT_EQ(textColour(quads), 0xFF888888);
}

TEST_F(ButtonTest, AlphaFadesFrameFillTextAndCustomImage)
{
    button->setProperty("NormalImage", "MoxieLook/IconStar");
    button->setAlpha(0.5f);
    const std::vector<DrawnQuad> quads = drawnBy(*button);
    ASSERT_EQ(quads.size(), 11u);
    for (const DrawnQuad& quad : quads)
        EXPECT_FLOAT_EQ(quad.colours.d_bottom_right.getAlpha(), 0.5f) << quad;

    // A parent's alpha reaches the frames through the same notification.
    button->setAlpha(1.0f);
    button->getParent()->setAlpha(0.25f);
    for (const DrawnQuad& quad : drawnBy(*button))
        EXPECT_FLOAT_EQ(quad.colours.d_top_left.getAlpha(), 0.25f) << quad;
    button->getParent()->setAlpha(1.0f);
}

TEST_F(ButtonTest, TextIsCentredVerticallyAndAcrossTheWidthFromTheXOffset)
{
    const float lineSpacing = button->getFont()->getLineSpacing();
    const float yOffset = static_cast<float>(static_cast<int>((H - lineSpacing) * 0.5f + 0.5f));

    const Rectf centred = drawnBy(*button).back().rect;
    EXPECT_NEAR((centred.left() + centred.right()) / 2, W / 2, 1.5f);
    EXPECT_GE(centred.top(), yOffset);
    EXPECT_LE(centred.bottom(), yOffset + lineSpacing);

    button->setProperty("TextXOffset", "0.5");
    const Rectf rightHalf = drawnBy(*button).back().rect;
    EXPECT_NEAR((rightHalf.left() + rightHalf.right()) / 2, W * 0.75f, 1.5f);
    EXPECT_FLOAT_EQ(rightHalf.top(), centred.top());
}

TEST_F(ButtonTest, CustomImageReplacesOrJoinsTheStandardImagery)
{
    button->setProperty("NormalImage", "MoxieLook/IconStar");
    std::vector<DrawnQuad> quads = drawnBy(*button);
    ASSERT_EQ(quads.size(), 11u);
    EXPECT_EQ(quads[9].image, "IconStar");
    EXPECT_EQ(quads[9].rect, Rectf(0, 0, W, H));

    button->setProperty("UseStandardImagery", "False");
    button->setSize(USize(UDim(0, 60), UDim(0, 20)));
    quads = drawnBy(*button);
    EXPECT_EQ(imageNames(quads), (std::vector<std::string>{"IconStar", "text"}));
    EXPECT_EQ(quads[0].rect, Rectf(0, 0, 60, 20));

    // The hover state has no custom image of its own.
    moxietest::pointerTo(20, 15);
    EXPECT_EQ(imageNames(drawnBy(*button)), (std::vector<std::string>{"text"}));
    // CEGUI's image properties log an unknown name and read it as no image.
    button->setProperty("PushedImage", "MoxieLook/IconInfo");
    EXPECT_TRUE(button->isPushedImageEnabled());
    button->setProperty("PushedImage", "MoxieLook/NoSuchImage");
    EXPECT_FALSE(button->isPushedImageEnabled());
    EXPECT_EQ(button->getProperty("PushedImage"), "");
}

TEST_F(ButtonTest, AButtonClippedAwayDrawsOnceMovedBackIntoView)
{
    Window& holder = moxietest::place("DefaultWindow", 900, 700, 200, 100); // off the display
    Window& inside = moxietest::place("MoxieLook/Button", 0, 0, 80, 24);
    holder.addChild(&inside);
    EXPECT_TRUE(drawnBy(inside).empty());

    // Moving a window does not redraw it in CEGUI 0.8; the look must not stay blank.
    holder.setPosition(UVector2(cegui_absdim(100), cegui_absdim(100)));
    EXPECT_EQ(drawnBy(inside).size(), 9u); // fill and frame; it has no text
}
