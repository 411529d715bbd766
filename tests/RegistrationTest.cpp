#include "looks/MXButton.h"
#include "module/FactoryTable.h"
#include "module/Module.h"
#include "support/Gui.h"
#include "support/Thrown.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/SchemeManager.h>
#include <CEGUI/WindowFactoryManager.h>
#include <CEGUI/WindowManager.h>
#include <dlfcn.h>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <vector>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;

namespace
{
// Every type the module will make, in the order registration tests their names.
const std::vector<std::string> AllTypes = {
    "StaticLayout", "StaticText", "StaticImage", "StaticImageEx", "Button", "ButtonEx",
    "MultiColumnListEx", "TreeViewMultiColumnListEx", "Titlebar", "CloseButton", "FrameWindow",
    "Editbox", "Checkbox", "TaskbarButton", "ProgressBar", "SliderThumb", "Slider",
    "VerticalScrollbarThumb", "VerticalScrollbar", "HorizontalScrollbarThumb",
    "HorizontalScrollbar", "Listbox", "ComboDropList", "Combobox", "WidgetDropDownList",
    "WidgetDropDownListbox", "MultiLineEditbox", "ListHeaderSegment", "ListHeader",
    "MultiColumnList", "TabControl", "TabButton", "TabPane", "Spinner", "ScrollablePane", "Tooltip",
    "TextItem", "TextItemEx", "MenubarItem", "PopupMenuItem", "Menubar", "PopupMenu", "Taskbar",
    "Clock", "TreeView", "ToggleButton", "RadioButton", "Diagram", "SmartButtonNodeItem",
    "MenuButton", "AnimatedStaticImage",
    // the stock skins' types, after the module's own
    "Label", "Static", "GroupBox", "TabContentPane", "TabButtonPane", "ImageButton", "IconButton",
    "SystemButton", "ComboEditbox", "LargeVerticalScrollbarThumb", "LargeVerticalScrollbar",
    "AlternateProgressBar", "VUMeter", "MenuItem", "ListboxItem", "ItemListbox", "Tree"};

std::vector<std::string> moduleTypes()
{
    std::vector<std::string> names;
    for (const FactoryEntry* e = factoryTableBegin(); e != factoryTableEnd(); ++e)
        names.push_back(e->typeName);
    return names;
}

std::string unknownMessage(const String& type)
{
    return moxietest::thrownMessage<UnknownObjectException>([&] { registerFactory(type); });
}

void unregisterAll()
{
    for (const FactoryEntry* e = factoryTableBegin(); e != factoryTableEnd(); ++e)
        WindowFactoryManager::getSingleton().removeFactory(e->typeName);
}
} // namespace

TEST(Registration, TableKeepsTheTypeOrderAndTheSchemeNamesEveryRegisteredType)
{
    ASSERT_GE(AllTypes.size(), 51u);
    ASSERT_EQ(AllTypes[50], "AnimatedStaticImage"); // the module's own 51 come first
    std::size_t next = 0;
    for (const std::string& type : moduleTypes())
    {
        ASSERT_EQ(type.rfind("MoxieLook/", 0), 0u) << type;
        const auto found = std::find(AllTypes.begin() + next, AllTypes.end(), type.substr(10));
        ASSERT_NE(found, AllTypes.end()) << type << " is out of order or unknown";
        next = found - AllTypes.begin() + 1;
    }

    std::ifstream file(moxietest::dataFile("MoxieLook.scheme"));
    std::stringstream text;
    text << file.rdbuf();
    const std::string scheme = text.str();
    std::vector<std::string> listed;
    const std::regex factory("<WindowFactory name=\"([^\"]+)\"");
    for (auto it = std::sregex_iterator(scheme.begin(), scheme.end(), factory);
         it != std::sregex_iterator(); ++it)
        listed.push_back((*it)[1]);
    EXPECT_EQ(listed, moduleTypes());
}

TEST(Registration, PlainEntryAddsTheModuleWideInstanceAndLeavesDuplicatesToCegui)
{
    WindowFactoryManager& manager = WindowFactoryManager::getSingleton();
    manager.removeFactory("MoxieLook/Button");
    ASSERT_FALSE(manager.isFactoryPresent("MoxieLook/Button"));

    registerFactory("MoxieLook/Button");
    WindowFactory* factory = manager.getFactory("MoxieLook/Button");
    EXPECT_EQ(factory, findModuleFactory("MoxieLook/Button"));
    EXPECT_NE(dynamic_cast<MXButtonFactory*>(factory), nullptr);

    EXPECT_THROW(registerFactory("MoxieLook/Button"), AlreadyExistsException);
    EXPECT_EQ(manager.getFactory("MoxieLook/Button"), factory);
}

TEST(Registration, UnknownNamesAreRejectedWithTheExactMessage)
{
    for (const char* type : {"MoxieLook/NodeItem", "MoxieLook/ListboxEx", "MoxieLook/button",
                             "moxielook/Button", "MOXIELOOK/BUTTON", "MoxieLook/Button ", ""})
        EXPECT_EQ(unknownMessage(type), std::string("::registerFactory - The window factory for "
                                                    "type '") +
                                            type + "' is not known in this module.");
}

TEST(Registration, BothEntryPointsAreExportedUnmangled)
{
    void* self = dlopen(nullptr, RTLD_NOW);
    EXPECT_NE(dlsym(self, "getWindowFactoryModule"), nullptr);
    EXPECT_NE(dlsym(self, "registerFactory"), nullptr);
    dlclose(self);
}

TEST(Registration, FactoryModuleRegistersWhatTheTableHolds)
{
    unregisterAll();
    FactoryModule& module = getWindowFactoryModule();
    EXPECT_THROW(module.registerFactory("MoxieLook/Nothing"), UnknownObjectException);

    module.registerFactory("MoxieLook/Button");
    EXPECT_EQ(WindowFactoryManager::getSingleton().getFactory("MoxieLook/Button"),
              findModuleFactory("MoxieLook/Button"));
    // Registering again through the module is skipped, as CEGUI's own modules do.
    EXPECT_NO_THROW(module.registerFactory("MoxieLook/Button"));

    unregisterAll();
    EXPECT_EQ(module.registerAllFactories(), factoryTableSize());
    for (const std::string& type : moduleTypes())
        EXPECT_EQ(WindowFactoryManager::getSingleton().getFactory(type),
                  findModuleFactory(type.c_str()));
}

TEST(Registration, SchemeUnloadRemovesTheTypesAndReloadBringsThemBack)
{
    SchemeManager::getSingleton().destroy("MoxieLook");
    EXPECT_FALSE(WindowFactoryManager::getSingleton().isFactoryPresent("MoxieLook/Button"));
    EXPECT_THROW(WindowManager::getSingleton().createWindow("MoxieLook/Button"),
                 UnknownObjectException);

    SchemeManager::getSingleton().createFromFile("MoxieLook.scheme");
    Window& button = moxietest::place("MoxieLook/Button", 0, 0, 80, 24);
    EXPECT_EQ(button.getType(), "MoxieLook/Button");
}

TEST(Registration, FactoriesMakeTheirLookAndDestroyOnlyTheirOwnType)
{
    moxietest::freshSheet();
    Window& button = moxietest::place("MoxieLook/Button", 0, 0, 80, 24);
    EXPECT_EQ(button.getType(), MXButton::WidgetTypeName);
    EXPECT_NE(dynamic_cast<MXButton*>(&button), nullptr);

    WindowManager& windows = WindowManager::getSingleton();
    Window* foreign = windows.createWindow("DefaultWindow", "foreign");
    findModuleFactory("MoxieLook/Button")->destroyWindow(foreign);
    EXPECT_TRUE(windows.isAlive(foreign));
    EXPECT_EQ(foreign->getType(), "DefaultWindow");
    windows.destroyWindow(foreign);
}
