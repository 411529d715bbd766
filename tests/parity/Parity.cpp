#include "parity/Parity.h"

#include "support/Gui.h"

#include <CEGUI/DefaultResourceProvider.h>
#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/InputEvent.h>
#include <CEGUI/SchemeManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/falagard/WidgetLookManager.h>
#include <gtest/gtest.h>
#include <sstream>

using namespace CEGUI;

namespace moxietest
{
void loadTaharezLook()
{
    if (SchemeManager::getSingleton().isDefined("TaharezLook"))
        return;
    auto* resources =
        static_cast<DefaultResourceProvider*>(System::getSingleton().getResourceProvider());
    for (const char* folder : {"schemes", "imagesets", "fonts", "looknfeel"})
        resources->setResourceGroupDirectory(String("taharez-") + folder,
                                             String(CEGUI_SAMPLES_DIR "/") + folder + "/");
    // Only while the scheme loads: MoxieLook's own files stay in their group.
    ImageManager::setImagesetDefaultResourceGroup("taharez-imagesets");
    Font::setDefaultResourceGroup("taharez-fonts");
    WidgetLookManager::setDefaultResourceGroup("taharez-looknfeel");
    SchemeManager::getSingleton().createFromFile("TaharezLook.scheme", "taharez-schemes");
    ImageManager::setImagesetDefaultResourceGroup("");
    Font::setDefaultResourceGroup("");
    WidgetLookManager::setDefaultResourceGroup("");
}

void Observation::set(const std::string& name, const std::string& value)
{
    d_values[name] = value;
}

void Observation::set(const std::string& name, float value)
{
    std::ostringstream text;
    text << value;
    d_values[name] = text.str();
}

void Observation::set(const std::string& name, bool value)
{
    d_values[name] = value ? "true" : "false";
}

void Observation::set(const std::string& name, const String& value)
{
    d_values[name] = value.c_str();
}

namespace
{
using Trace = std::vector<Observation>;

Trace run(const ParityScript& script, const String& skin)
{
    Window& sheet = freshSheet();
    context().setMouseButtonMultiClickTimeout(1e-9);
    Window* widget = WindowManager::getSingleton().createWindow(skin + "/" + script.type);
    const Rectf area = skin == "TaharezLook" && script.stockArea ? *script.stockArea : script.area;
    widget->setArea(URect(cegui_absdim(area.left()), cegui_absdim(area.top()),
                          cegui_absdim(area.right()), cegui_absdim(area.bottom())));
    sheet.addChild(widget);
    script.setUp(*widget);
    System::getSingleton().renderAllGUIContexts();

    std::map<std::string, int> fired;
    std::vector<Event::Connection> counting;
    for (const String& event : script.events)
        counting.push_back(widget->subscribeEvent(event, [&fired, name = std::string(event.c_str())]
                                                  { ++fired[name]; }));
    Trace trace;
    for (const ParityStep& step : script.steps)
    {
        fired.clear();
        step.act(*widget);
        context().injectTimePulse(0.01f);
        System::getSingleton().renderAllGUIContexts();
        Observation seen;
        script.observe(*widget, seen);
        for (const String& event : script.events)
            seen.set("event " + std::string(event.c_str()), std::to_string(fired[event.c_str()]));
        const Window* active = sheet.getActiveChild();
        seen.set("active is widget or its part",
                 active == widget || (active && active->isAncestor(widget)));
        trace.push_back(seen);
    }
    for (Event::Connection& connection : counting)
        connection->disconnect(); // the counters live on this stack frame
    return trace;
}
} // namespace

void expectSameBehaviour(const ParityScript& script)
{
    loadTaharezLook();
    const Trace stock = run(script, "TaharezLook");
    const Trace ours = run(script, "MoxieLook");
    ASSERT_EQ(stock.size(), ours.size());
    std::set<std::string> unmatched = script.differences;
    for (std::size_t i = 0; i < stock.size(); ++i)
        for (const auto& [name, value] : stock[i].values())
        {
            const std::string where = script.steps[i].name + "/" + name;
            const std::string& mine = ours[i].values().at(name);
            if (unmatched.erase(where))
                EXPECT_NE(mine, value) << script.type << ": " << where << " was to differ";
            else
                EXPECT_EQ(mine, value)
                    << script.type << ": after step " << i + 1 << " (" << where
                    << ") MoxieLook has \"" << mine << "\", TaharezLook \"" << value << "\"";
        }
    for (const std::string& where : unmatched)
        ADD_FAILURE() << script.type << ": no step and value \"" << where << "\" to differ";
}

Vector2f pointIn(const Window& window, float fx, float fy)
{
    const Rectf& rect = window.getUnclippedOuterRect().get();
    return Vector2f(rect.left() + rect.getWidth() * fx, rect.top() + rect.getHeight() * fy);
}

Window& partOf(const Window& window, const String& name)
{
    for (std::size_t i = 0; i < window.getChildCount(); ++i)
    {
        Window* child = window.getChildAtIdx(i);
        if (child->getName() == name)
            return *child;
    }
    for (std::size_t i = 0; i < window.getChildCount(); ++i)
    {
        const Window* child = window.getChildAtIdx(i);
        if (child->getChildCount() && child->getChildRecursive(name))
            return *child->getChildRecursive(name);
    }
    throw UnknownObjectException("no part " + name + " in " + window.getNamePath());
}

void clickAt(const Vector2f& point)
{
    click(point.d_x, point.d_y);
}

void dragFrom(const Vector2f& from, const Vector2f& to)
{
    pointerTo(from.d_x, from.d_y);
    leftDown();
    pointerTo((from.d_x + to.d_x) * 0.5f, (from.d_y + to.d_y) * 0.5f);
    pointerTo(to.d_x, to.d_y);
    leftUp();
}

void pressKey(unsigned scan)
{
    context().injectKeyDown(static_cast<Key::Scan>(scan));
    context().injectKeyUp(static_cast<Key::Scan>(scan));
}

void typeText(const std::string& text)
{
    for (char c : text)
        context().injectChar(static_cast<utf32>(static_cast<unsigned char>(c)));
}

} // namespace moxietest
