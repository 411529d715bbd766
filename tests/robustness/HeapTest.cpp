// Memory in use returns to its level when a window goes: every type, in a cycle that does
// what an application does to a window in its life (made under a container, given a text
// and children, drawn, hovered, pressed, destroyed mid-press), measured per cycle rather
// than at exit, where CEGUI would free what lingered and leak checkers stay quiet.
#include "robustness/ModuleTypes.h"
#include "support/Gui.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using moxietest::context;

namespace
{
// One life of a window of `type`; `cycle` picks its container and what the user does.
void liveOnce(const String& type, int cycle)
{
    WindowManager& windows = WindowManager::getSingleton();
    Window& root = *context().getRootWindow();
    Window* container = nullptr;
    if (cycle % 3 == 1)
    {
        container = windows.createWindow("MoxieLook/StaticLayout");
        container->setProperty("Layout", "FlowLayout");
    }
    else if (cycle % 3 == 2)
        container = windows.createWindow("MoxieLook/ScrollablePane");
    if (container)
    {
        container->setArea(UVector2(cegui_absdim(0), cegui_absdim(0)),
                           USize(cegui_absdim(400), cegui_absdim(300)));
        root.addChild(container);
    }
    Window* window = moxietest::makeSample(type, 20, 20, 200, 100);
    if (container)
        container->addChild(window);
    try
    {
        window->setText("A text long enough to spread over a few lines of its window");
    }
    catch (const CEGUI::Exception&)
    {
        // a spinner takes numbers only
    }
    moxietest::childOf(*window, "DefaultWindow");
    moxietest::childOf(*window, "MoxieLook/Button");
    if (cycle % 4 == 0)
        moxietest::childOf(*window, type);
    moxietest::renderFrame();

    const Rectf area = window->getUnclippedOuterRect().get();
    moxietest::pointerTo(area.left() + 3, area.top() + 3);
    const bool press = cycle % 2 == 1;
    if (press)
    {
        context().injectMouseButtonDown(LeftButton);
        moxietest::pointerTo(area.left() + 7, area.top() + 6);
    }
    windows.destroyWindow(window);
    if (press)
        context().injectMouseButtonUp(LeftButton);
    if (container)
        windows.destroyWindow(container);
    windows.cleanDeadPool();
    moxietest::pointerTo(790, 590);
    moxietest::renderFrame();
}
} // namespace

TEST(Robustness, EveryTypeGivesBackItsMemoryWhenDestroyed)
{
    const auto types = moxietest::moduleTypeNames();
    ASSERT_GE(types.size(), 51u);
    constexpr int warmUp = 12, measured = 120;
    for (const String& type : types)
    {
        moxietest::freshSheet();
        // First uses fill CEGUI's caches (glyphs, strings): not counted.
        for (int cycle = 0; cycle < warmUp; ++cycle)
            liveOnce(type, cycle);
        const double before = moxietest::heapInUse();
        for (int cycle = warmUp; cycle < warmUp + measured; ++cycle)
            liveOnce(type, cycle);
        const double perCycle = (moxietest::heapInUse() - before) / measured;
        EXPECT_LT(perCycle, 32.0) << type << " keeps " << perCycle << " bytes a cycle";
    }
}
