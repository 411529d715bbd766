// Faults a robustness run found, each kept from coming back.
#include "looks/MXSlider.h"
#include "robustness/ModuleTypes.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "widgets/ButtonEx.h"
#include "widgets/DragEventArgs.h"
#include "widgets/StaticLayout.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/WindowManager.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;

namespace
{
template <typename Draggable>
void dragThenDestroy(const char* type, bool fromHandler)
{
    moxietest::freshSheet();
    Window& parent = moxietest::place("MoxieLook/StaticLayout", 0, 0, 300, 200);
    auto& dragged =
        static_cast<Draggable&>(*WindowManager::getSingleton().createWindow(type, "dragged"));
    dragged.setArea(UVector2(cegui_absdim(10), cegui_absdim(10)),
                    USize(cegui_absdim(80), cegui_absdim(40)));
    parent.addChild(&dragged);
    dragged.SetDragAuthorized(true);
    if (fromHandler)
        dragged.subscribeEvent(EventDragStarted, [&dragged]
                               { WindowManager::getSingleton().destroyWindow(&dragged); });

    moxietest::pointerTo(20, 20);
    moxietest::leftDown();
    moxietest::pointerTo(50, 30);
    if (!fromHandler)
    {
        ASSERT_TRUE(dragged.IsDragging());
        WindowManager::getSingleton().destroyWindow(&dragged);
    }
    EXPECT_FALSE(parent.isMuted()) << type;
    EXPECT_EQ(context().getModalWindow(), nullptr) << type;
    EXPECT_FALSE(StaticLayout::IsDraggingOperationInProgress()) << type;
    WindowManager::getSingleton().cleanDeadPool();
    // Input goes on to the living windows.
    moxietest::pointerTo(60, 60);
    moxietest::leftUp();
    moxietest::renderFrame();
}
} // namespace

TEST(RobustnessFindings, ADragEndsWhenItsWindowIsDestroyed)
{
    for (bool fromHandler : {false, true})
    {
        dragThenDestroy<ButtonEx>("MoxieLook/ButtonEx", fromHandler);
        dragThenDestroy<ButtonEx>("MoxieLook/MenuButton", fromHandler);
        dragThenDestroy<StaticLayout>("MoxieLook/StaticLayout", fromHandler);
    }
}

TEST(RobustnessFindings, ASliderWithSettingsThatAreNoNumbersDrawsNoTicks)
{
    for (const char* property : {"TickFrequency", "MaximumValue", "ClickStepSize"})
        for (const char* text : {"nan", "inf", "-inf", "1e39"})
        {
            moxietest::freshSheet();
            Window& fresh = moxietest::place("MoxieLook/Slider", 10, 10, 200, 30);
            fresh.setProperty(property, text);
            std::vector<moxietest::DrawnQuad> quads = moxietest::drawnBy(fresh);
            const auto ticks =
                moxietest::decode(static_cast<const moxietest::RecordingGeometryBuffer&>(
                    static_cast<const MoxieLook::MXSlider&>(fresh).tickGeometry()));
            quads.insert(quads.end(), ticks.begin(), ticks.end());
            for (const auto& quad : quads)
                EXPECT_TRUE(std::isfinite(quad.rect.left())) << property << " " << text;
        }
}

TEST(RobustnessFindings, AHugeTiledImageDrawsOnlyTheTilesThatCanBeSeen)
{
    moxietest::freshSheet();
    Window& image = moxietest::place("MoxieLook/StaticImage", 0, 0, 100, 100);
    image.setProperty("Image", "MoxieLook/IconStar");
    image.setProperty("HorzFormatting", "HorzTiled");
    image.setProperty("VertFormatting", "VertTiled");
    // CEGUI rounds a 1e30 size through an int: the window ends up with none, and draws
    // nothing.
    image.setSize(USize(cegui_absdim(1e30f), cegui_absdim(1e30f)));
    EXPECT_LT(moxietest::drawnBy(image).size(), 3000u);
    image.setSize(USize(cegui_absdim(2e9f), cegui_absdim(2e9f)));
    // The display is 800 x 600: 50 x 38 tiles of 16 pixels, with the frame.
    const auto quads = moxietest::drawnBy(image);
    EXPECT_GT(quads.size(), 100u);
    EXPECT_LT(quads.size(), 3000u);
    // Scrolled further in, the window draws the tiles it now shows.
    image.setPosition(UVector2(cegui_absdim(-1000), cegui_absdim(-1000)));
    const auto moved = moxietest::drawnBy(image);
    EXPECT_GT(moved.size(), 100u);
    bool reachesIn = false;
    for (const auto& quad : moved)
        reachesIn = reachesIn || quad.rect.left() >= 1000;
    EXPECT_TRUE(reachesIn);
}
