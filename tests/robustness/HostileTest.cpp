// Hostile property texts and sizes on every type of the module: a CEGUI exception is a
// fine answer; a crash, a sanitizer report or a hang is not.
#include "robustness/ModuleTypes.h"
#include "support/Gui.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GeometryBuffer.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace CEGUI;

namespace
{
// Runs `action` on `property`; true when it threw what the module may throw: a CEGUI
// exception, or for a grid size too short to read the string library's out-of-range error,
// as the layout rules have it. Anything else fails the test.
template <typename Action>
bool refused(const String& property, Action action)
{
    try
    {
        action();
        return false;
    }
    catch (const CEGUI::Exception&)
    {
        return true;
    }
    catch (const std::out_of_range& error)
    {
        EXPECT_EQ(property, "GridSize") << "std::out_of_range: " << error.what();
        return true;
    }
    catch (const std::exception& error)
    {
        ADD_FAILURE() << property << ": a standard exception escaped: " << error.what();
        return true;
    }
}

std::vector<String> propertyNames(const Window& window)
{
    std::vector<String> names;
    auto properties = window.getPropertyIterator();
    for (; !properties.isAtEnd(); ++properties)
        names.push_back(properties.getCurrentKey());
    return names;
}
} // namespace

// Each property on a window of its own, so that a fault shows where it starts; then all of
// them one after the other on one window, for faults that need an earlier hostile value (a
// NaN size, then another setting).
TEST(Robustness, EveryPropertyOfEveryTypeTakesHostileTexts)
{
    const auto types = moxietest::moduleTypeNames();
    ASSERT_GE(types.size(), 51u);
    auto pelt = [](Window& window, const String& property)
    {
        for (const std::string& text : moxietest::hostileTexts())
        {
            SCOPED_TRACE(std::string(window.getType().c_str()) + " " + property.c_str() + " = \"" +
                         text.substr(0, 40) + "\"");
            refused(property, [&] { window.setProperty(property, String(text)); });
            refused(property, [&] { (void)window.getProperty(property); });
            moxietest::renderFrame();
        }
    };
    for (const String& type : types)
    {
        moxietest::freshSheet();
        Window* pileUp = moxietest::makeSample(type, 20, 20, 200, 100);
        for (const String& property : propertyNames(*pileUp))
        {
            if (moxietest::skippedProperty(property))
                continue;
            moxietest::freshSheet();
            pelt(*moxietest::makeSample(type, 20, 20, 200, 100), property);
        }
        moxietest::freshSheet();
        pileUp = moxietest::makeSample(type, 20, 20, 200, 100);
        for (const String& property : propertyNames(*pileUp))
            if (!moxietest::skippedProperty(property))
                pelt(*pileUp, property);
    }
}

// Vertices a window and everything in it hold now.
std::size_t verticesIn(const Window& window)
{
    std::size_t count = const_cast<Window&>(window).getGeometryBuffer().getVertexCount();
    for (std::size_t i = 0; i < window.getChildCount(); ++i)
        count += verticesIn(*window.getChildAtIdx(i));
    return count;
}

// Whatever its size, a window draws what the display can show: its geometry and the memory
// it holds stay within a ceiling a display's worth of drawing never reaches.
TEST(Robustness, EveryTypeDrawsAtDegenerateAndHugeSizes)
{
    const Sizef sizes[] = {{0, 0},     {1, 1},     {100000, 100000}, {-50, -20},
                           {1e9f, 20}, {20, 1e9f}, {1e9f, 1e9f},     {2e9f, 20}};
    for (const String& type : moxietest::moduleTypeNames())
    {
        moxietest::freshSheet();
        Window* window = moxietest::makeSample(type, 10, 10, 100, 40);
        for (const Sizef& size : sizes)
        {
            SCOPED_TRACE(std::string(type.c_str()) + " at " +
                         PropertyHelper<Sizef>::toString(size).c_str());
            const double before = moxietest::heapInUse();
            window->setSize(USize(cegui_absdim(size.d_width), cegui_absdim(size.d_height)));
            moxietest::renderFrame();
            EXPECT_LT(verticesIn(*window), 200000u);
            EXPECT_LT(moxietest::heapInUse() - before, 64.0 * 1024 * 1024);
        }
    }
}

// A layout author told that a text was refused learns which property and which text: every
// property the module adds names both when it refuses.
TEST(Robustness, ARefusedTextNamesItsPropertyAndItself)
{
    for (const String& type : moxietest::moduleTypeNames())
    {
        moxietest::freshSheet();
        Window* window = moxietest::makeSample(type, 20, 20, 200, 100);
        for (auto it = window->getPropertyIterator(); !it.isAtEnd(); ++it)
        {
            const String name = it.getCurrentKey();
            const String origin = it.getCurrentValue()->getOrigin();
            const bool modules = origin.find("MoxieLook/") == 0 || origin == "Unknown";
            if (!modules || moxietest::skippedProperty(name) || name == "GridSize")
                continue;
            for (const char* text : {"garbage", "{{{", "nan", "-1"})
            {
                try
                {
                    window->setProperty(name, text);
                }
                catch (const CEGUI::Exception& refusal)
                {
                    const String& message = refusal.getMessage();
                    EXPECT_NE(message.find(name), String::npos)
                        << type << " " << name << ": " << message;
                    EXPECT_NE(message.find(text), String::npos)
                        << type << " " << name << ": " << message;
                }
            }
        }
    }
}
