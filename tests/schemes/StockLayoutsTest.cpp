// An application written for CEGUI's stock skins switches to MoxieLook: its layouts load
// with "MoxieLook/" in place of the stock prefix, and unchanged through the alias schemes,
// draw, take a little input, and CEGUI logs no exception on the way. Each test brings CEGUI
// up in its own process state (ctest runs each test apart).
#include "module/Soundification.h"

#include <CEGUI/CEGUI.h>
#include <CEGUI/RendererModules/Null/Renderer.h>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <string>

using namespace CEGUI;

namespace
{
// CEGUI's sample data with MoxieLook's files beside them, as an application installs a skin.
const std::string AppData = MOXIE_STOCK_APP_DIR;

// The log lines written since `mark`, for the test to read.
class LogWatch
{
public:
    explicit LogWatch(std::string file) : d_file(std::move(file)) { d_start = lines().size(); }

    std::vector<std::string> lines() const
    {
        std::ifstream log(d_file);
        std::vector<std::string> all;
        for (std::string line; std::getline(log, line);)
            all.push_back(line);
        return all;
    }

    std::vector<std::string> errorsSince() const
    {
        std::vector<std::string> errors;
        const auto all = lines();
        for (std::size_t i = d_start; i < all.size(); ++i)
            if (all[i].find("Exception") != std::string::npos ||
                all[i].find("(Error)") != std::string::npos)
                errors.push_back(all[i].substr(0, 400));
        return errors;
    }

private:
    std::string d_file;
    std::size_t d_start = 0;
};

class StockLayouts : public ::testing::TestWithParam<std::string>
{
protected:
    void SetUp() override
    {
        setenv("CEGUI_MODULE_DIR", MOXIE_MODULE_DIR, 0);
        auto* logger = new DefaultLogger();
        logger->setLogFilename(d_log, false);
        logger->setLoggingLevel(Informative);
        NullRenderer& renderer = NullRenderer::create();
        renderer.setDisplaySize(Sizef(1024, 768));
        System::create(renderer);
        System::getSingleton().notifyDisplaySizeChanged(Sizef(1024, 768));
        auto* resources =
            static_cast<DefaultResourceProvider*>(System::getSingleton().getResourceProvider());
        for (const char* folder : {"schemes", "imagesets", "fonts", "looknfeel", "layouts"})
            resources->setResourceGroupDirectory(folder, AppData + "/" + folder + "/");
        ImageManager::setImagesetDefaultResourceGroup("imagesets");
        Font::setDefaultResourceGroup("fonts");
        WidgetLookManager::setDefaultResourceGroup("looknfeel");
        Scheme::setDefaultResourceGroup("schemes");
    }

    void TearDown() override
    {
        // The module keeps its sound hook until a host gives it back, as this one does.
        MoxieLook::MXSoundification::Destroy();
        auto* renderer = static_cast<NullRenderer*>(System::getSingleton().getRenderer());
        System::destroy();
        NullRenderer::destroy(*renderer);
        delete Logger::getSingletonPtr();
    }

    // What an application for a stock skin loads besides its skin: CEGUI's Generic widgets,
    // the stock imagesets whose images layouts name, and the sample fonts.
    void loadWhatLayoutsName()
    {
        SchemeManager::getSingleton().createFromFile("Generic.scheme");
        for (const char* imageset : {"TaharezLook.imageset", "WindowsLook.imageset",
                                     "Vanilla.imageset", "DriveIcons.imageset"})
            ImageManager::getSingleton().loadImageset(imageset);
        // The fonts the sample layouts name.
        for (const char* font :
             {"DejaVuSans-10.font", "DejaVuSans-12.font", "DejaVuSans-12-NoScale.font",
              "DejaVuSans-14-NoScale.font", "GreatVibes-16.font", "GreatVibes-22.font",
              "Jura-10.font", "Jura-13.font", "Jura-18.font"})
            FontManager::getSingleton().createFromFile(font, "fonts", XREA_RETURN);
    }

    std::string layoutText(const std::string& name) const
    {
        std::ifstream file(AppData + "/layouts/" + name);
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }

    // Loads the layout, shows it, draws it, moves, clicks, turns the wheel and types over it.
    void loadAndUse(const std::string& text)
    {
        Window* root = WindowManager::getSingleton().createWindow("DefaultWindow", "root");
        GUIContext& gui = System::getSingleton().getDefaultGUIContext();
        gui.setRootWindow(root);
        Window* layout = WindowManager::getSingleton().loadLayoutFromString(text);
        ASSERT_NE(layout, nullptr);
        root->addChild(layout);
        System::getSingleton().renderAllGUIContexts();
        for (float y = 50; y < 768; y += 97)
            for (float x = 40; x < 1024; x += 131)
            {
                gui.injectMousePosition(x, y);
                gui.injectMouseButtonDown(LeftButton);
                gui.injectMouseButtonUp(LeftButton);
                gui.injectMouseWheelChange(-1);
                gui.injectChar('a');
            }
        gui.injectTimePulse(0.1f);
        System::getSingleton().renderAllGUIContexts();
        WindowManager::getSingleton().destroyWindow(root);
        WindowManager::getSingleton().cleanDeadPool();
    }

    const std::string d_log = "CEGUI-stock-layouts.log";
};
} // namespace

TEST_P(StockLayouts, LoadWithTheMoxieLookPrefix)
{
    SchemeManager::getSingleton().createFromFile("MoxieLook.scheme");
    loadWhatLayoutsName();
    const LogWatch log(d_log);
    // Type names change, in window types and in the tooltip types properties name; image
    // names keep theirs.
    static const std::regex stockType(
        "([Tt]ype=\"|name=\"TooltipType\" value=\")(TaharezLook|WindowsLook|Vanilla)/");
    loadAndUse(std::regex_replace(layoutText(GetParam()), stockType, "$1MoxieLook/"));
    for (const std::string& error : log.errorsSince())
        ADD_FAILURE() << GetParam() << ": " << error;
}

TEST_P(StockLayouts, LoadUnchangedThroughTheAliasSchemes)
{
    for (const char* scheme : {"MoxieLookAsTaharezLook.scheme", "MoxieLookAsWindowsLook.scheme",
                               "MoxieLookAsVanilla.scheme"})
        SchemeManager::getSingleton().createFromFile(scheme);
    loadWhatLayoutsName();
    const LogWatch log(d_log);
    loadAndUse(layoutText(GetParam()));
    for (const std::string& error : log.errorsSince())
        ADD_FAILURE() << GetParam() << ": " << error;
}

INSTANTIATE_TEST_SUITE_P(CeguiSamples, StockLayouts,
                         ::testing::Values("Console.wnd", "Demo8.layout", "DragDropDemo.layout",
                                           "EffectsDemo.layout", "FontDemo.layout",
                                           "TabControlDemo.layout", "TabPage.layout",
                                           "TabPage1.layout", "TabPage2.layout",
                                           "TaharezLookOverview.layout", "TextDemo.layout",
                                           "TreeDemoTaharez.layout", "VanillaConsole.layout",
                                           "VanillaLookOverview.layout", "VanillaWindows.layout",
                                           "application_templates.layout"),
                         [](const ::testing::TestParamInfo<std::string>& layout)
                         {
                             std::string name = layout.param.substr(0, layout.param.find('.'));
                             name.erase(std::remove(name.begin(), name.end(), '_'), name.end());
                             return name;
                         });
