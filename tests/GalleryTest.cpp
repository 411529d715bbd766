// Runs the gallery headless and looks at what it wrote: a picture per registered type,
// each showing more than the backdrop, and a CEGUI log without errors.
#include "module/FactoryTable.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <png.h>
#include <sstream>
#include <string>
#include <vector>

namespace
{
namespace fs = std::filesystem;

struct Rgba
{
    int width = 0, height = 0;
    std::vector<png_byte> pixels;
};

Rgba readPng(const fs::path& path)
{
    Rgba image;
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path.c_str()))
        return image;
    png.format = PNG_FORMAT_RGBA;
    image.width = png.width;
    image.height = png.height;
    image.pixels.resize(PNG_IMAGE_SIZE(png));
    if (!png_image_finish_read(&png, nullptr, image.pixels.data(), 0, nullptr))
        image.pixels.clear();
    return image;
}

bool have(const char* program)
{
    return std::system((std::string("command -v ") + program + " >/dev/null 2>&1").c_str()) == 0;
}

class GalleryTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_dir = fs::temp_directory_path() / ("moxie-gallery-test-" + std::to_string(getpid()));
        fs::remove_all(s_dir);
        fs::create_directories(s_dir);
        if (!have("xvfb-run"))
        {
            s_skipReason = "xvfb-run is not installed: no headless display for OpenGL";
            return;
        }
        // Leak checks stay off for this process only: Mesa's GL driver, opened and closed
        // underneath GLX, leaves blocks whose frames no longer resolve. Memory errors are
        // still caught.
        const std::string command = "cd '" + s_dir.string() +
                                    "' && DISPLAY= ASAN_OPTIONS=detect_leaks=0 '" + MOXIE_GALLERY +
                                    "' --screenshot shots > run.log 2>&1";
        s_status = std::system(command.c_str());
        std::ifstream log(s_dir / "run.log");
        s_output.assign(std::istreambuf_iterator<char>(log), {});
        if (s_status != 0 && s_output.find("cannot open an OpenGL window") != std::string::npos)
            s_skipReason = "no OpenGL under Xvfb on this machine: " + s_output;
    }

    static void TearDownTestSuite() { fs::remove_all(s_dir); }

    void SetUp() override
    {
        if (!s_skipReason.empty())
            GTEST_SKIP() << s_skipReason;
        ASSERT_EQ(s_status, 0) << s_output;
    }

    static fs::path s_dir;
    static int s_status;
    static std::string s_output;
    static std::string s_skipReason;
};

fs::path GalleryTest::s_dir;
int GalleryTest::s_status = -1;
std::string GalleryTest::s_output;
std::string GalleryTest::s_skipReason;
} // namespace

TEST_F(GalleryTest, EveryRegisteredTypeHasADrawnPicture)
{
    const Rgba whole = readPng(s_dir / "shots" / "gallery.png");
    ASSERT_FALSE(whole.pixels.empty());
    const png_byte* backdrop = whole.pixels.data();

    for (const auto* entry = CEGUI::MoxieLook::factoryTableBegin();
         entry != CEGUI::MoxieLook::factoryTableEnd(); ++entry)
    {
        const std::string type = entry->typeName;
        const fs::path file = s_dir / "shots" / (type.substr(type.find('/') + 1) + ".png");
        const Rgba shot = readPng(file);
        ASSERT_FALSE(shot.pixels.empty()) << file;
        EXPECT_GE(shot.width, 100) << type;
        EXPECT_GE(shot.height, 40) << type;

        // Below the title band, a drawn card has widget pixels; a card of background has none.
        const int titleBand = 22;
        std::size_t drawn = 0;
        for (int y = titleBand; y < shot.height; ++y)
            for (int x = 0; x < shot.width; ++x)
            {
                const png_byte* p =
                    &shot.pixels[(static_cast<std::size_t>(y) * shot.width + x) * 4];
                if (std::abs(p[0] - backdrop[0]) + std::abs(p[1] - backdrop[1]) +
                        std::abs(p[2] - backdrop[2]) >
                    24)
                    ++drawn;
            }
        EXPECT_GT(drawn, 300u) << type;
    }
}

TEST_F(GalleryTest, CeguiLoggedNoError)
{
    std::ifstream log(s_dir / "CEGUI-gallery.log");
    ASSERT_TRUE(log) << "the gallery wrote no CEGUI log";
    std::string line;
    int lines = 0;
    while (std::getline(log, line))
    {
        ++lines;
        EXPECT_EQ(line.find("(Error)"), std::string::npos) << line;
        EXPECT_EQ(line.find("Exception"), std::string::npos) << line;
    }
    EXPECT_GT(lines, 10);
}

TEST_F(GalleryTest, KeysAloneReachAndOperateEveryWidgetOnThePage)
{
    // The gallery tabs through its whole page after its pictures (each frame window a round
    // of its own), operating each widget with Space, Down and Escape.
    const std::string marker = "keys reached ";
    const auto at = s_output.find(marker);
    ASSERT_NE(at, std::string::npos) << s_output;
    std::istringstream line(s_output.substr(at + marker.size()));
    std::size_t reached = 0, focusable = 0, taken = 0, rounds = 0, frames = 0;
    std::string word;
    line >> reached >> word >> focusable >> word >> word >> word >> word >> taken >> word >> word >>
        rounds >> word >> word >> frames;
    EXPECT_GT(focusable, 100u);
    EXPECT_EQ(reached, focusable);
    EXPECT_GT(taken, focusable);
    // Tab itself went everywhere: a round was begun by hand only for the sheet and each
    // frame window (Tab stays within the frame it entered).
    EXPECT_GT(frames, 0u);
    EXPECT_LE(rounds, frames + 1);
    // And the focus ring, photographed on a few cards.
    for (const char* type : {"Button", "Checkbox", "Editbox", "Listbox", "Slider", "TreeView"})
        EXPECT_TRUE(fs::exists(s_dir / "shots" / (std::string("FocusRing-") + type + ".png")))
            << type;
}
