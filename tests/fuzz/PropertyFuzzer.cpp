// libFuzzer over (type, property, text): the first byte picks a "MoxieLook/..." type, the
// second one of its properties, the rest is the text set. Each input makes the window,
// sets, reads back, draws and destroys it. Run by hand for long runs (see README).
#include "robustness/ModuleTypes.h"
#include "support/Gui.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
struct Fixture
{
    Fixture()
    {
        moxietest::startGui();
        moxietest::freshSheet();
        types = moxietest::moduleTypeNames();
    }
    std::vector<CEGUI::String> types;
};

Fixture& fixture()
{
    static Fixture instance;
    return instance;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    Fixture& f = fixture();
    const CEGUI::String& type = f.types[data[0] % f.types.size()];
    CEGUI::Window* window = moxietest::makeSample(type, 10, 10, 200, 100);
    std::vector<CEGUI::String> properties;
    for (auto it = window->getPropertyIterator(); !it.isAtEnd(); ++it)
        if (!moxietest::skippedProperty(it.getCurrentKey()))
            properties.push_back(it.getCurrentKey());
    if (!properties.empty())
    {
        const CEGUI::String& property = properties[data[1] % properties.size()];
        // CEGUI's strings take UTF-8; bytes that are no UTF-8 are kept to Latin-1 here.
        std::string text(reinterpret_cast<const char*>(data + 2), size - 2);
        CEGUI::String value;
        for (unsigned char c : text)
            value += static_cast<CEGUI::utf32>(c);
        try
        {
            window->setProperty(property, value);
            (void)window->getProperty(property);
        }
        catch (const CEGUI::Exception&)
        {
        }
        catch (const std::out_of_range&)
        {
            // Only a grid size too short to read fails that way; anything else is a finding.
            if (property != "GridSize")
                std::abort();
        }
        moxietest::renderFrame();
    }
    CEGUI::WindowManager::getSingleton().destroyWindow(window);
    CEGUI::WindowManager::getSingleton().cleanDeadPool();
    return 0;
}
