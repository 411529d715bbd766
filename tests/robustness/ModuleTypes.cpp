#include "robustness/ModuleTypes.h"

#include "support/Gui.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowFactoryManager.h>
#include <CEGUI/WindowManager.h>
#include <malloc.h>
#include <set>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/allocator_interface.h>
#define MOXIE_ASAN_HEAP 1
#endif
#endif

namespace moxietest
{
std::vector<CEGUI::String> moduleTypeNames()
{
    std::vector<CEGUI::String> names;
    auto factories = CEGUI::WindowFactoryManager::getSingleton().getIterator();
    for (; !factories.isAtEnd(); ++factories)
        if (factories.getCurrentKey().find("MoxieLook/") == 0)
            names.push_back(factories.getCurrentKey());
    return names;
}

const std::vector<std::string>& hostileTexts()
{
    static const std::vector<std::string> texts = {
        "",
        std::string(10000, 'x'),
        "0",
        "-1",
        "4294967295",
        "-2147483648",
        "nan",
        "inf",
        "-inf",
        "1e39",
        "{{{",
        "{{nan,nan},{inf,-inf}}",
        "rows:",
        "rows:99999 cols:99999",
        "MoxieLook/NoSuchImage",
        "set:MoxieLook image:ButtonArrowFill",
        "\xc3\xa9t\xc3\xa9 \xe2\x9c\x93 \xf0\x9f\x98\x80",
        " : : a:b  c: ",
        "True",
        "w:1e30 h:-5 selected:maybe",
        "image:MoxieLook/IconStar imageAlignment:Nowhere scale:nan offsetX:inf",
    };
    return texts;
}

bool skippedProperty(const CEGUI::String& name)
{
    static const std::set<CEGUI::String> skipped = {
        "WindowRenderer", // swaps the drawing: covered by its own test
        "LookNFeel",      // Falagard looks only
    };
    return skipped.count(name) != 0;
}

CEGUI::Window* makeSample(const CEGUI::String& type, float x, float y, float w, float h)
{
    CEGUI::Window* window = CEGUI::WindowManager::getSingleton().createWindow(type);
    window->setArea(CEGUI::UVector2(cegui_absdim(x), cegui_absdim(y)),
                    CEGUI::USize(cegui_absdim(w), cegui_absdim(h)));
    try
    {
        window->setText("Sample");
    }
    catch (const CEGUI::Exception&)
    {
        // a spinner takes numbers only
    }
    context().getRootWindow()->addChild(window);
    return window;
}

CEGUI::Window* childOf(CEGUI::Window& parent, const CEGUI::String& type)
{
    try
    {
        CEGUI::Window* child = CEGUI::WindowManager::getSingleton().createWindow(type);
        child->setArea(CEGUI::UVector2(cegui_absdim(2), cegui_absdim(2)),
                       CEGUI::USize(cegui_absdim(30), cegui_absdim(20)));
        parent.addChild(child);
        return child;
    }
    catch (const CEGUI::Exception&)
    {
        return nullptr; // a type that takes no such child says so
    }
}

void renderFrame()
{
    CEGUI::System::getSingleton().renderAllGUIContexts();
}

double heapInUse()
{
#ifdef MOXIE_ASAN_HEAP
    return static_cast<double>(__sanitizer_get_current_allocated_bytes());
#else
    return static_cast<double>(mallinfo2().uordblks);
#endif
}

} // namespace moxietest
