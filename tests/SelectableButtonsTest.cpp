#include "looks/MXSelectableButtons.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/WindowFactoryManager.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::drawnBy;
using moxietest::imageNames;
using moxietest::sounds;

namespace
{
// A host's own radio type: it shares the logic but is another window type.
class HostRadio : public MXRadioButton
{
public:
    static constexpr char WidgetTypeName[] = "Host/Radio";
    using MXRadioButton::MXRadioButton;
};

class SelectableButtonsTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        sounds().clear();
    }

    // Presses and releases the left button at (x, y), or releases it at (upX, upY).
    static void click(float x, float y) { clickAndRelease(x, y, x, y); }
    static void clickAndRelease(float x, float y, float upX, float upY)
    {
        moxietest::drag(Vector2f(x, y), Vector2f(upX, upY));
    }

    template <typename T>
    static T& make(const char* type, float x, float y)
    {
        return moxietest::placeAs<T>(type, x, y, 100, 20);
    }
};
} // namespace

TEST_F(SelectableButtonsTest, RadioButtonsSelectExclusivelyWithinTheirGroupAndType)
{
    auto& a = make<RadioButtonEx>("MoxieLook/RadioButton", 10, 10);
    auto& b = make<RadioButtonEx>("MoxieLook/RadioButton", 10, 40);
    auto& apart = make<RadioButtonEx>("MoxieLook/RadioButton", 10, 70);
    apart.setProperty("GroupID", "7");
    EXPECT_EQ(a.getProperty("GroupID"), "1234");
    EXPECT_EQ(apart.getGroupID(), 7);

    LookFactory<HostRadio> hostFactory;
    WindowFactoryManager::getSingleton().addFactory(&hostFactory);
    auto& foreign = make<RadioButtonEx>("Host/Radio", 10, 100);

    int changes = 0;
    a.subscribeEvent(RadioButtonEx::EventSelectStateChanged, [&] { ++changes; });

    click(20, 20);
    EXPECT_TRUE(a.isSelected());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(sounds(), std::vector<std::string>{"clank"});
    apart.setSelected(true);
    foreign.setSelected(true);
    EXPECT_TRUE(a.isSelected()); // the other type left it alone
    click(20, 50);
    EXPECT_TRUE(b.isSelected());
    EXPECT_FALSE(a.isSelected());
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(apart.isSelected());   // another group
    EXPECT_TRUE(foreign.isSelected()); // another window type, same group id

    // Manual unselection off: a click on the selected button changes nothing, fires nothing.
    int bChanges = 0;
    b.subscribeEvent(RadioButtonEx::EventSelectStateChanged, [&] { ++bChanges; });
    click(20, 50);
    EXPECT_TRUE(b.isSelected());
    EXPECT_EQ(bChanges, 0);
    b.setProperty("ManualUnselection", "True");
    EXPECT_TRUE(b.isManualUnselectionEnabled());
    click(20, 50);
    EXPECT_FALSE(b.isSelected());
    // The getter answers the standard-imagery flag, whatever was written.
    b.setProperty("ManualUnselection", "False");
    EXPECT_EQ(b.getProperty("ManualUnselection"), "True");
    b.setStandardImageryEnabled(false);
    EXPECT_EQ(b.getProperty("ManualUnselection"), "False");

    // Released away from the button: no change.
    clickAndRelease(20, 20, 300, 300);
    EXPECT_FALSE(a.isSelected());

    moxietest::freshSheet();
    WindowFactoryManager::getSingleton().removeFactory("Host/Radio");
}

TEST_F(SelectableButtonsTest, ToggleFlipsOnReleaseInsideAndFiresOncePerChange)
{
    auto& toggle = make<MoxieLook::ToggleButton>("MoxieLook/ToggleButton", 10, 10);
    int fired = 0;
    toggle.subscribeEvent(MoxieLook::ToggleButton::EventSelectedStateChanged, [&] { ++fired; });
    EXPECT_EQ(MoxieLook::ToggleButton::EventSelectedStateChanged, "ToggleSelChnged");

    click(20, 20);
    EXPECT_TRUE(toggle.isSelected());
    click(20, 20);
    EXPECT_FALSE(toggle.isSelected());
    EXPECT_EQ(fired, 2);
    clickAndRelease(20, 20, 200, 200);
    EXPECT_FALSE(toggle.isSelected());
    // Other buttons never toggle.
    moxietest::pointerTo(20, 20);
    moxietest::context().injectMouseButtonDown(RightButton);
    moxietest::context().injectMouseButtonUp(RightButton);
    EXPECT_FALSE(toggle.isSelected());
    toggle.setSelected(false);
    EXPECT_EQ(fired, 2);

    toggle.SetPushed(true);
    EXPECT_TRUE(toggle.isPushed());
    EXPECT_EQ(fired, 2);
}

TEST_F(SelectableButtonsTest, EachLookDrawsItsStateImageBesideTheLabel)
{
    auto& toggle = make<MoxieLook::ToggleButton>("MoxieLook/ToggleButton", 10, 10);
    auto& radio = make<RadioButtonEx>("MoxieLook/RadioButton", 10, 40);
    auto& check = make<CEGUI::ToggleButton>("MoxieLook/Checkbox", 10, 70);
    for (Window* w : {static_cast<Window*>(&toggle), static_cast<Window*>(&radio),
                      static_cast<Window*>(&check)})
        w->setText("Label");

    auto quads = drawnBy(toggle);
    ASSERT_EQ(imageNames(quads), (std::vector<std::string>{"TaskbarButtonNormal", "text"}));
    EXPECT_EQ(quads[0].rect, Rectf(0, 2, 16, 18)); // (20 - 16) / 2 from the top
    const float lineSpacing = toggle.getFont()->getLineSpacing();
    EXPECT_NEAR(quads[1].rect.left(), 20, 1.0f); // 16 + 4 of padding, give or take a bearing
    EXPECT_NEAR(quads[1].rect.top(), std::trunc((20 - lineSpacing) / 2 + 0.5f), 3.0f);
    EXPECT_EQ(moxietest::argb(quads[1].colours.d_top_left), 0xFF000000u);

    // Selected, the mark replaces the box; the check box lays its mark over the box.
    toggle.setSelected(true);
    radio.setSelected(true);
    check.setSelected(true);
    EXPECT_EQ(imageNames(drawnBy(toggle)), (std::vector<std::string>{"TaskbarButtonMark", "text"}));
    EXPECT_EQ(imageNames(drawnBy(radio)), (std::vector<std::string>{"LiftMiddlePushed", "text"}));
    EXPECT_EQ(imageNames(drawnBy(check)),
              (std::vector<std::string>{"CheckboxNormal", "CheckboxMark", "text"}));

    // Under the pointer each shows its highlight; held down, the highlight is shaded.
    moxietest::pointerTo(20, 20);
    EXPECT_EQ(drawnBy(toggle)[0].image, "TaskbarButtonMarkHover");
    moxietest::leftDown();
    quads = drawnBy(toggle);
    EXPECT_EQ(quads[0].image, "TaskbarButtonMarkHover");
    EXPECT_EQ(moxietest::argb(quads[0].colours.d_top_left), 0xFFC4CDD9u);
    moxietest::leftUp();
    moxietest::pointerTo(20, 50);
    EXPECT_EQ(drawnBy(radio)[0].image, "LiftMiddlePushedFocus");
    moxietest::pointerTo(20, 80);
    EXPECT_EQ(imageNames(drawnBy(check)),
              (std::vector<std::string>{"CheckboxHover", "CheckboxMark", "text"}));

    // Disabled: the image fades, the label turns grey.
    moxietest::pointerTo(500, 500);
    for (Window* w : {static_cast<Window*>(&toggle), static_cast<Window*>(&radio),
                      static_cast<Window*>(&check)})
    {
        w->setEnabled(false);
        quads = drawnBy(*w);
        EXPECT_NEAR(quads[0].colours.d_top_left.getAlpha(), 0.45f, 0.01f) << w->getType();
        EXPECT_EQ(moxietest::argb(quads.back().colours.d_top_left), 0xFF888888u) << w->getType();
    }
}
