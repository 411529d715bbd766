// What an application written for a stock skin sets on its windows: every property the
// stock skins' looks define for a type (TaharezLook, WindowsLook, VanillaSkin) and those of
// CEGUI's core renderer for its class. MoxieLook's type of the same name takes them all; what
// each does is tested with the type's look.
#include "support/Gui.h"

#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace
{
// type (without prefix) -> the stock properties its windows are given
const std::map<std::string, std::vector<std::string>> StockProperties = {
#include "StockProperties.inc"
};

} // namespace

TEST(StockProperties, EveryTypeTakesEveryStockSkinProperty)
{
    for (const auto& [type, properties] : StockProperties)
    {
        moxietest::freshSheet();
        CEGUI::Window* window =
            CEGUI::WindowManager::getSingleton().createWindow("MoxieLook/" + type);
        for (const std::string& property : properties)
            EXPECT_TRUE(window->isPropertyPresent(property)) << type << " " << property;
        CEGUI::WindowManager::getSingleton().destroyWindow(window);
    }
}
