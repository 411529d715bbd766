#include "looks/MXStatics.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "support/SheetTest.h"

#include <CEGUI/Font.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::drawnBy;
using moxietest::imageNames;

namespace
{
using StaticsTest = moxietest::SheetTest;
} // namespace

TEST_F(StaticsTest, StaticTextFillsInsideItsFrameThenWritesFormattedText)
{
    Window& text = moxietest::place("MoxieLook/StaticText", 10, 10, 200, 60);
    text.setText("Centred");
    text.setProperty("HorzFormatting", "HorzCentred");
    text.setProperty("TextColours", "tl:FF102030 tr:FF102030 bl:FF102030 br:FF102030");
    const auto quads = drawnBy(text);
    ASSERT_EQ(quads.size(), 10u);
    EXPECT_EQ(quads[0].image, "StaticFrameFill");
    EXPECT_EQ(quads[0].rect, Rectf(2, 2, 198, 58));
    EXPECT_EQ(quads[1].image, "StaticFrameTopLeft");
    const auto& run = quads.back();
    EXPECT_EQ(run.image, "text");
    EXPECT_EQ(moxietest::argb(run.colours.d_top_left), 0xFF102030u);
    EXPECT_NEAR((run.rect.left() + run.rect.right()) / 2, 100, 1.5f);
    EXPECT_NEAR((run.rect.top() + run.rect.bottom()) / 2, 30, text.getFont()->getLineSpacing() / 2);

    EXPECT_EQ(text.getProperty("HorzFormatting"), "HorzCentred");
    text.setProperty("HorzFormatting", "Centred?");
    EXPECT_EQ(text.getProperty("HorzFormatting"), "LeftAligned");
    text.setProperty("FrameEnabled", "False");
    text.setProperty("BackgroundEnabled", "False");
    EXPECT_EQ(imageNames(drawnBy(text)), (std::vector<std::string>{"text"}));
}

TEST_F(StaticsTest, StaticImageFormatsItsImageInItsArea)
{
    auto& image = moxietest::placeAs<StaticImage>("MoxieLook/StaticImage", 10, 10, 48, 32);
    EXPECT_TRUE(drawnBy(image).empty());
    image.setProperty("Image", "MoxieLook/IconStar");
    image.setProperty("ImageColours", "tl:FFFF0000 tr:FFFF0000 bl:FFFF0000 br:FFFF0000");
    auto quads = drawnBy(image);
    ASSERT_EQ(quads.size(), 1u);
    EXPECT_EQ(quads[0].image, "IconStar");
    EXPECT_EQ(quads[0].rect, Rectf(0, 0, 48, 32));
    EXPECT_EQ(moxietest::argb(quads[0].colours.d_top_left), 0xFFFF0000u);

    image.setProperty("HorzFormatting", "HorzCentred");
    image.setProperty("VertFormatting", "BottomAligned");
    EXPECT_EQ(drawnBy(image)[0].rect, Rectf(16, 16, 32, 32));

    // Framed, the image keeps inside the frame; the window's alpha fades its colours.
    image.setProperty("FrameEnabled", "True");
    image.setProperty("HorzFormatting", "HorzStretched");
    image.setProperty("VertFormatting", "VertStretched");
    image.setAlpha(0.5f);
    quads = drawnBy(image);
    ASSERT_EQ(quads.size(), 9u);
    EXPECT_EQ(quads.back().image, "IconStar"); // after the frame
    EXPECT_EQ(quads.back().rect, Rectf(2, 2, 46, 30));
    EXPECT_FLOAT_EQ(quads.back().colours.d_top_left.getAlpha(), 0.5f);
}

TEST_F(StaticsTest, TextItemSizesItselfToItsText)
{
    auto& item = moxietest::placeAs<TextItem>("MoxieLook/TextItem", 10, 10, 10, 10);
    item.setProperty("AutoSized", "True");
    item.setText("Legend entry");
    const Font& font = *item.getFont();
    // CEGUI rounds window sizes to whole pixels.
    EXPECT_NEAR(item.getPixelSize().d_width, font.getTextExtent("Legend entry") + 4, 0.5f);
    EXPECT_NEAR(item.getPixelSize().d_height, font.getLineSpacing(), 0.5f);

    item.setProperty("TextColour", "FFFF0000");
    const auto run = drawnBy(item).at(0);
    EXPECT_EQ(run.image, "text");
    EXPECT_EQ(moxietest::argb(run.colours.d_top_left), 0xFFFF0000u);
    EXPECT_GE(run.rect.left(), TextItem::TextPadding);
}

TEST_F(StaticsTest, TextItemExShowsIconHoverAndSelectionAndTogglesOnClick)
{
    auto& item = moxietest::placeAs<TextItemEx>("MoxieLook/TextItemEx", 10, 10, 150, 20);
    item.setText("Folder");
    item.setProperty("Icon", "MoxieLook/IconFolder");
    auto quads = drawnBy(item);
    ASSERT_EQ(imageNames(quads), (std::vector<std::string>{"IconFolder", "text"}));
    EXPECT_EQ(quads[0].rect, Rectf(2, 2, 18, 18));
    EXPECT_GE(quads[1].rect.left(), 2 + 16 + TextItemEx::IconGap);

    int changes = 0;
    item.subscribeEvent(TextItemEx::EventSelectStateChanged, [&] { ++changes; });
    moxietest::pointerTo(60, 20);
    EXPECT_EQ(imageNames(drawnBy(item)).front(), "ListboxHoverBrush");
    moxietest::leftDown();
    moxietest::leftUp();
    EXPECT_TRUE(item.isSelected());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(imageNames(drawnBy(item)).front(), "ListboxSelectionBrush");

    item.setProperty("Selectable", "False");
    moxietest::leftDown();
    moxietest::leftUp();
    EXPECT_TRUE(item.isSelected());
    EXPECT_EQ(changes, 1);
}

TEST_F(StaticsTest, TextIsDrawnInFullWhenParsingIsOff)
{
    for (const char* type : {"MoxieLook/StaticText", "MoxieLook/Button", "MoxieLook/ButtonEx"})
    {
        Window& window = moxietest::place(type, 10, 10, 300, 40);
        window.setText("Press [Enter]");
        const Font& font = *window.getFont();
        const float parsedWidth = drawnBy(window).back().rect.getWidth();
        window.setProperty("TextParsingEnabled", "False");
        const float fullWidth = drawnBy(window).back().rect.getWidth();
        EXPECT_NEAR(fullWidth, font.getTextExtent("Press [Enter]"), 2.0f) << type;
        EXPECT_LT(parsedWidth, fullWidth - 10) << type; // "[Enter]" read as a tag
    }
}
