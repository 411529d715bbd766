#include "draw/Imagery.h"
#include "looks/MXTabButton.h"
#include "looks/MXTabControl.h"
#include "looks/MXTabPane.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Font.h>
#include <CEGUI/WindowFactoryManager.h>
#include <CEGUI/WindowManager.h>
#include <cmath>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::drawnBy;
using moxietest::DrawnQuad;
using moxietest::imageNames;

namespace
{
// A host's tab button type.
class HostTabButton : public MXTabButton
{
public:
    static constexpr char WidgetTypeName[] = "Host/TabButton";
    using MXTabButton::MXTabButton;
};

// A host's tab control that marks the buttons it makes.
class HostTabControl : public MXTabControl
{
public:
    static constexpr char WidgetTypeName[] = "Host/TabControl";
    using MXTabControl::MXTabControl;
    TabButton* createTabButton(const String& name) const override
    {
        TabButton* made = MXTabControl::createTabButton(name);
        made->setTooltipText("host-made");
        return made;
    }
};

struct Expected
{
    std::string image;
    Rectf rect;
};

void expectPieces(const std::vector<DrawnQuad>& quads, const std::vector<Expected>& expected)
{
    ASSERT_GE(quads.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
    {
        SCOPED_TRACE(expected[i].image);
        EXPECT_EQ(quads[i].image, expected[i].image);
        EXPECT_EQ(quads[i].rect, expected[i].rect) << quads[i];
    }
}

void expectColour(const Colour& colour, float grey, float alpha = 1.0f)
{
    EXPECT_NEAR(colour.getRed(), grey, 1e-3);
    EXPECT_NEAR(colour.getGreen(), grey, 1e-3);
    EXPECT_NEAR(colour.getBlue(), grey, 1e-3);
    EXPECT_NEAR(colour.getAlpha(), alpha, 1e-3);
}

class TabTest : public ::testing::Test
{
protected:
    static constexpr float Width = 300;

    void SetUp() override
    {
        moxietest::freshSheet();
        control = static_cast<MXTabControl*>(
            &moxietest::place("MoxieLook/TabControl", 10, 10, Width, 200));
    }

    Window& addTab(const String& title)
    {
        Window* content = WindowManager::getSingleton().createWindow("DefaultWindow", title);
        content->setText(title);
        content->setSize(USize(cegui_reldim(1), cegui_reldim(1)));
        control->addTab(content);
        return *content;
    }

    MXTabButton& button(const String& title)
    {
        return static_cast<MXTabButton&>(
            *control->getChild(TabControl::TabButtonPaneName)->getChild("__auto_btn" + title));
    }

    static float side(const char* image) { return lookImage(image).getRenderedSize().d_width; }

    MXTabControl* control = nullptr;
};
} // namespace

TEST_F(TabTest, FillerRunsFromTheLastTabToTheEndOfTheButtonRow)
{
    EXPECT_EQ(control->buttonRowHeight(), 8 + control->getFont()->getFontHeight());
    const float row = control->getChild(TabControl::TabButtonPaneName)->getPixelSize().d_height;
    EXPECT_NEAR(row, control->buttonRowHeight(), 0.5f); // CEGUI keeps sizes to whole pixels
    const float fillerHeight = lookImage("TabControlButtonPaneFiller").getRenderedSize().d_height;

    // No tab yet: the whole row.
    EXPECT_EQ(control->getFillerPosition(), Vector3f(0, row - fillerHeight, 0));
    EXPECT_EQ(control->getFillerSize(), Sizef(Width, fillerHeight));
    expectPieces(drawnBy(*control),
                 {{"TabControlButtonPaneFiller", Rectf(0, row - fillerHeight, Width, row)}});

    addTab("One");
    addTab("Two");
    Window& third = addTab("Three");
    MXTabButton& last = button("Three");
    const float lastRight = last.getXPosition().d_offset + last.getPixelSize().d_width;
    EXPECT_GT(lastRight, button("One").getPixelSize().d_width * 2);
    EXPECT_EQ(control->getFillerPosition(), Vector3f(lastRight, row - fillerHeight, 0));
    EXPECT_EQ(control->getFillerSize(), Sizef(Width - lastRight, fillerHeight));
    expectPieces(drawnBy(*control), {{"TabControlButtonPaneFiller",
                                      Rectf(lastRight, row - fillerHeight, Width, row)}});

    // A longer title moves the filler along.
    third.setText("Three and more");
    EXPECT_GT(control->getFillerPosition().d_x, lastRight);
    EXPECT_EQ(control->getFillerPosition().d_x + control->getFillerSize().d_width, Width);
}

TEST_F(TabTest, ButtonsAndPaneAreTheTypesNamedByTheWritableStatics)
{
    EXPECT_STREQ(MXTabControl::TabButtonType, "MoxieLook/TabButton");
    EXPECT_STREQ(MXTabControl::TabContentPaneType, "MoxieLook/TabPane");
    EXPECT_EQ(control->getChild(TabControl::ContentPaneName)->getType(), "MoxieLook/TabPane");
    addTab("One");
    EXPECT_EQ(button("One").getType(), "MoxieLook/TabButton");

    LookFactory<HostTabButton> hostFactory;
    WindowFactoryManager::getSingleton().addFactory(&hostFactory);
    MXTabControl::TabButtonType = HostTabButton::WidgetTypeName;
    addTab("Two");
    EXPECT_EQ(button("Two").getType(), "Host/TabButton");

    // A type that is no tab button is refused, and the control stays as it was.
    MXTabControl::TabButtonType = "MoxieLook/Button";
    Window* orphan = WindowManager::getSingleton().createWindow("DefaultWindow", "Orphan");
    EXPECT_THROW(control->addTab(orphan), InvalidRequestException);
    MXTabControl::TabButtonType = "MoxieLook/TabButton";
    EXPECT_EQ(control->getTabCount(), 2u);
    WindowManager::getSingleton().destroyWindow(orphan);
    WindowManager::getSingleton().destroyWindow(control);
    WindowManager::getSingleton().cleanDeadPool();
    control = nullptr;
    WindowFactoryManager::getSingleton().removeFactory(HostTabButton::WidgetTypeName);
}

TEST_F(TabTest, AHostSubclassMakesTheButtonsTheRendererAsksFor)
{
    LookFactory<HostTabControl> factory;
    WindowFactoryManager::getSingleton().addFactory(&factory);
    control = static_cast<MXTabControl*>(
        &moxietest::place(HostTabControl::WidgetTypeName, 10, 10, Width, 200));
    addTab("One");
    EXPECT_EQ(button("One").getTooltipText(), "host-made");
    moxietest::freshSheet();
    WindowManager::getSingleton().cleanDeadPool();
    control = nullptr;
    WindowFactoryManager::getSingleton().removeFactory(HostTabControl::WidgetTypeName);
}

TEST_F(TabTest, ClickingATabSelectsItAndShowsItsContent)
{
    Window& one = addTab("One");
    Window& two = addTab("Two");
    int changes = 0;
    control->subscribeEvent(TabControl::EventSelectionChanged, [&] { ++changes; });
    EXPECT_TRUE(button("One").isSelected());

    const Rectf tab = button("Two").getUnclippedOuterRect().get();
    moxietest::click(tab.left() + 5, tab.top() + 10);
    EXPECT_TRUE(button("Two").isSelected());
    EXPECT_FALSE(button("One").isSelected());
    EXPECT_TRUE(two.isVisible());
    EXPECT_FALSE(one.isVisible());
    EXPECT_EQ(changes, 1);
}

TEST_F(TabTest, EachTabStateDrawsItsImagesAtItsPlace)
{
    addTab("One");
    addTab("Two");
    MXTabButton& selected = button("One");
    MXTabButton& normal = button("Two");
    const float w = normal.getPixelSize().d_width;
    const float h = normal.getPixelSize().d_height;
    const float c = side("TabButtonUpperNormal");
    ASSERT_EQ(c, side("TabButtonUpperLeftNormal"));
    const float upper = lookImage("TabButtonUpperNormal").getRenderedSize().d_height;
    const float lower = lookImage("TabButtonLowerNormal").getRenderedSize().d_height;

    // At rest: 3 pixels lower, greyed towards the foot, closed below.
    const auto atRest = drawnBy(normal);
    expectPieces(atRest, {{"TabButtonUpperLeftNormal", Rectf(0, 3, c, 3 + upper)},
                          {"TabButtonLeftNormal", Rectf(0, 3 + upper, c, h - lower)},
                          {"TabButtonLowerLeftNormal", Rectf(0, h - lower, c, h)},
                          {"TabButtonUpperNormal", Rectf(c, 3, w - c, 3 + upper)},
                          {"TabButtonMiddleNormal", Rectf(c, 3 + upper, w - c, h - lower)},
                          {"TabButtonUpperRightNormal", Rectf(w - c, 3, w, 3 + upper)},
                          {"TabButtonRightNormal", Rectf(w - c, 3 + upper, w, h - lower)},
                          {"TabButtonLowerRightNormal", Rectf(w - c, h - lower, w, h)},
                          {"TabButtonLowerNormal", Rectf(c, h - lower, w - c, h)}});
    ASSERT_EQ(atRest.size(), 10u);
    expectColour(atRest[4].colours.d_top_left, 1.0f);
    expectColour(atRest[4].colours.d_bottom_right, 0.75f);
    expectColour(atRest[0].colours.d_bottom_left, 1.0f);
    EXPECT_EQ(atRest[9].image, "text");
    EXPECT_EQ(moxietest::argb(atRest[9].colours.d_top_left), 0xFF000000);

    // Selected: no shift, no lower row, a flat warm middle.
    const auto pushed = drawnBy(selected);
    const float ws = selected.getPixelSize().d_width;
    const std::vector<Expected> selectedSet = {
        {"TabButtonUpperLeftSelected", Rectf(0, 0, c, upper)},
        {"TabButtonLeftSelected", Rectf(0, upper, c, h)},
        {"TabButtonUpperSelected", Rectf(c, 0, ws - c, upper)},
        {"TabButtonMiddleSelected", Rectf(c, upper, ws - c, h)},
        {"TabButtonUpperRightSelected", Rectf(ws - c, 0, ws, upper)},
        {"TabButtonRightSelected", Rectf(ws - c, upper, ws, h)}};
    expectPieces(pushed, selectedSet);
    ASSERT_EQ(pushed.size(), 7u);
    EXPECT_NEAR(pushed[3].colours.d_top_left.getRed(), 0.97645f, 1e-4);
    EXPECT_NEAR(pushed[3].colours.d_bottom_left.getGreen(), 0.97255f, 1e-4);
    EXPECT_NEAR(pushed[3].colours.d_bottom_right.getBlue(), 0.9451f, 1e-4);

    // The 3-pixel shift moves the images only: both labels are centred in the whole tab,
    // the one at rest rounded to a whole pixel.
    EXPECT_NEAR(atRest[9].rect.top(), pushed[6].rect.top(), 1.0f);
    EXPECT_NEAR((atRest[9].rect.left() + atRest[9].rect.right()) / 2, w / 2, 1.5f);

    // Hovered but not selected: the selected set, 3 pixels lower, lightly greyed.
    const Rectf tab = normal.getUnclippedOuterRect().get();
    moxietest::pointerTo(tab.left() + 5, tab.top() + 10);
    const auto hovered = drawnBy(normal);
    expectPieces(hovered, {{"TabButtonUpperLeftSelected", Rectf(0, 3, c, 3 + upper)},
                           {"TabButtonLeftSelected", Rectf(0, 3 + upper, c, h)},
                           {"TabButtonUpperSelected", Rectf(c, 3, w - c, 3 + upper)},
                           {"TabButtonMiddleSelected", Rectf(c, 3 + upper, w - c, h)},
                           {"TabButtonUpperRightSelected", Rectf(w - c, 3, w, 3 + upper)},
                           {"TabButtonRightSelected", Rectf(w - c, 3 + upper, w, h)}});
    expectColour(hovered[3].colours.d_top_right, 1.0f);
    expectColour(hovered[3].colours.d_bottom_left, 0.85f);
    EXPECT_NEAR(hovered[6].rect.top(), pushed[6].rect.top(), 1e-3);

    // Hovered and selected: as when pushed.
    const Rectf first = selected.getUnclippedOuterRect().get();
    moxietest::pointerTo(first.left() + 5, first.top() + 10);
    const auto hoveredSelected = drawnBy(selected);
    expectPieces(hoveredSelected, selectedSet);
    EXPECT_EQ(hoveredSelected[3].colours.d_top_left, pushed[3].colours.d_top_left);

    // Alpha reaches every piece and the label.
    control->setAlpha(0.5f);
    for (const DrawnQuad& quad : drawnBy(normal))
        EXPECT_NEAR(quad.colours.d_top_left.getAlpha(), 0.5f, 1e-3) << quad;
}

TEST_F(TabTest, PaneHasSideColumnsAndALowerRowAndKeepsContentInside)
{
    Window& content = addTab("One");
    Window& pane = *control->getChild(TabControl::ContentPaneName);
    const Sizef size = pane.getPixelSize();
    const float left = side("TabPaneLeft");
    const float right = side("TabPaneRight");
    const float lower = side("TabPaneLower"); // the lower row is as high as that piece is wide
    const float s = size.d_height - lower;
    const float W = size.d_width;

    const auto quads = drawnBy(pane);
    expectPieces(quads, {{"TabPaneLeft", Rectf(0, 0, left, s)},
                         {"TabPaneLowerLeft", Rectf(0, s, left, size.d_height)},
                         {"TabPaneMiddle", Rectf(left, 0, W - right, s)},
                         {"TabPaneLower", Rectf(left, s, W - right, size.d_height)},
                         {"TabPaneRight", Rectf(W - right, 0, W, s)},
                         {"TabPaneLowerRight", Rectf(W - right, s, W, size.d_height)}});
    EXPECT_EQ(quads.size(), 6u);
    for (const DrawnQuad& quad : quads)
        EXPECT_NEAR(quad.colours.d_bottom_right.getBlue(), 0.9451f, 1e-4) << quad;

    const Rectf paneRect = pane.getUnclippedOuterRect().get();
    EXPECT_EQ(content.getUnclippedOuterRect().get(),
              Rectf(paneRect.left() + left, paneRect.top(), paneRect.right() - right,
                    paneRect.bottom() - lower));
}

TEST_F(TabTest, NothingIsDrawnAtZeroWidth)
{
    addTab("One");
    addTab("Two");
    control->setWidth(cegui_absdim(0));
    EXPECT_TRUE(drawnBy(*control).empty());
    EXPECT_TRUE(drawnBy(button("One")).empty());
    EXPECT_TRUE(drawnBy(button("Two")).empty());
    EXPECT_TRUE(drawnBy(*control->getChild(TabControl::ContentPaneName)).empty());
}
