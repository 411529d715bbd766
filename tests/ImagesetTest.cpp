#include "support/Gui.h"

#include <CEGUI/Image.h>
#include <CEGUI/ImageManager.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

using namespace CEGUI;

namespace
{
bool defined(const std::string& name)
{
    return ImageManager::getSingleton().isDefined("MoxieLook/" + name);
}

const char* const FramePrefixes[] = {"ButtonArrow",  "ButtonArrowFocus", "ButtonNormal",
                                     "ButtonPushed", "ButtonScroll",     "ButtonScrollFocus",
                                     "StaticFrame",  "StaticFrameList",  "WindowFrame"};
} // namespace

TEST(Imageset, EveryImageNamedInTheCodeExistsWithARealSize)
{
    const std::regex named(R"((?:Image(?:Name)?\[\]\s*=\s*|lookImage\()\s*"(\w+)\")");
    std::set<std::string> names;
    for (const char* folder : {"module", "widgets", "looks", "draw"})
        for (const auto& entry : std::filesystem::recursive_directory_iterator(
                 std::string(MOXIE_SOURCE_DIR) + "/" + folder))
        {
            std::ifstream file(entry.path());
            std::stringstream text;
            text << file.rdbuf();
            const std::string source = text.str();
            for (auto it = std::sregex_iterator(source.begin(), source.end(), named);
                 it != std::sregex_iterator(); ++it)
                names.insert((*it)[1]);
        }
    EXPECT_GE(names.size(), 10u);
    for (const std::string& name : names)
    {
        ASSERT_TRUE(defined(name)) << name;
        const Sizef size = ImageManager::getSingleton().get("MoxieLook/" + name).getRenderedSize();
        EXPECT_TRUE(size.d_width > 0 && size.d_height > 0) << name;
    }
}

TEST(Imageset, FramePiecesLineUpSoEdgesMeetTheirCorners)
{
    for (const char* prefix : FramePrefixes)
    {
        auto size = [&](const char* piece)
        {
            return ImageManager::getSingleton()
                .get(std::string("MoxieLook/") + prefix + piece)
                .getRenderedSize();
        };
        EXPECT_EQ(size("Top").d_height, size("Bottom").d_height) << prefix;
        EXPECT_EQ(size("Left").d_width, size("Right").d_width) << prefix;
        EXPECT_GE(size("TopLeft").d_width, size("Left").d_width) << prefix;
        EXPECT_GE(size("TopLeft").d_height, size("Top").d_height) << prefix;
    }
}
