#include "draw/FormattedImage.h"
#include "draw/Imagery.h"
#include "draw/NinePieceFrame.h"
#include "draw/TextDrawing.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Font.h>
#include <CEGUI/Window.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::decode;
using moxietest::DrawnQuad;
using moxietest::RecordingGeometryBuffer;

TEST(NinePieceFrame, MissingPiecesTakeNoRoomAndEdgesShareTheGradient)
{
    // A bar with only left and right pieces, as the menu button has.
    NinePieceFrame bar;
    bar.setImages(nullptr, nullptr, nullptr, nullptr, &lookImage("ButtonMenuNormalLeft"), nullptr,
                  &lookImage("ButtonMenuNormalRight"), nullptr);
    bar.setSize(Sizef(100, 40));
    bar.setColours(
        ColourRect(Colour(0xFF000000), Colour(0xFFFFFFFF), Colour(0xFF000000), Colour(0xFFFFFFFF)));
    RecordingGeometryBuffer buffer;
    bar.draw(buffer, Vector2f(10, 5), nullptr);
    const std::vector<DrawnQuad> quads = decode(buffer);
    ASSERT_EQ(quads.size(), 2u);
    EXPECT_EQ(quads[0].image, "ButtonMenuNormalLeft");
    EXPECT_EQ(quads[0].rect, Rectf(10, 5, 17, 45));
    EXPECT_EQ(quads[1].rect, Rectf(103, 5, 110, 45));
    // Each piece carries its share of the left-to-right gradient.
    EXPECT_EQ(moxietest::argb(quads[0].colours.d_top_left), 0xFF000000);
    EXPECT_NEAR(quads[0].colours.d_top_right.getRed(), 0.07f, 0.01f);
    EXPECT_NEAR(quads[1].colours.d_top_left.getRed(), 0.93f, 0.01f);
    EXPECT_EQ(bar.innerRect(Rectf(0, 0, 100, 40)), Rectf(7, 0, 93, 40));
}

TEST(NinePieceFrame, AFrameSmallerThanItsCornersDrawsNoInvertedEdges)
{
    NinePieceFrame frame;
    frame.setImages({"ButtonArrowTopLeft", "ButtonArrowTopRight", "ButtonArrowBottomLeft",
                     "ButtonArrowBottomRight", "ButtonArrowLeft", "ButtonArrowTop",
                     "ButtonArrowRight", "ButtonArrowBottom"});
    frame.setSize(Sizef(6, 6));
    RecordingGeometryBuffer buffer;
    frame.draw(buffer, Vector2f(0, 0), nullptr);
    for (const DrawnQuad& quad : decode(buffer))
    {
        EXPECT_GT(quad.rect.getWidth(), 0.0f) << quad;
        EXPECT_GT(quad.rect.getHeight(), 0.0f) << quad;
    }
    EXPECT_EQ(decode(buffer).size(), 4u);
}

TEST(FormattedImage, PlacesAlignsStretchesAndTilesWithinItsArea)
{
    FormattedImage image;
    image.setImage(&lookImage("IconStar")); // 16 x 16
    image.setSize(Sizef(40, 30));
    auto drawn = [&](FormattedImage::HorzFormatting h, FormattedImage::VertFormatting v,
                     const Rectf* clip = nullptr)
    {
        image.setHorzFormatting(h);
        image.setVertFormatting(v);
        RecordingGeometryBuffer buffer;
        image.draw(buffer, Vector2f(100, 200), clip);
        return decode(buffer);
    };

    auto quads = drawn(FormattedImage::HorzCentred, FormattedImage::VertCentred);
    ASSERT_EQ(quads.size(), 1u);
    EXPECT_EQ(quads[0].rect, Rectf(112, 207, 128, 223));

    quads = drawn(FormattedImage::RightAligned, FormattedImage::BottomAligned);
    EXPECT_EQ(quads[0].rect, Rectf(124, 214, 140, 230));

    quads = drawn(FormattedImage::HorzStretched, FormattedImage::TopAligned);
    EXPECT_EQ(quads[0].rect, Rectf(100, 200, 140, 216));

    // Tiles fill the area and the last ones are cut at its edge.
    quads = drawn(FormattedImage::HorzTiled, FormattedImage::VertTiled);
    ASSERT_EQ(quads.size(), 6u);
    EXPECT_EQ(quads[2].rect, Rectf(132, 200, 140, 216));
    EXPECT_EQ(quads[5].rect, Rectf(132, 216, 140, 230));
    for (const DrawnQuad& quad : quads)
        EXPECT_EQ(quad.image, "IconStar");

    const Rectf clip(0, 0, 110, 1000);
    quads = drawn(FormattedImage::HorzTiled, FormattedImage::TopAligned, &clip);
    ASSERT_EQ(quads.size(), 1u);
    EXPECT_EQ(quads[0].rect, Rectf(100, 200, 110, 216));
}

TEST(TextDrawing, WrapsAndPlacesTextVertically)
{
    moxietest::freshSheet();
    Window& label = moxietest::place("DefaultWindow", 0, 0, 200, 200);
    label.setText("one two three four five six seven eight nine ten");
    const float line = label.getFont()->getLineSpacing();
    const Rectf area(0, 0, 60, 200);

    const Sizef oneLine = measureText(label, label.getRenderedString(), 60, HorzTextFormat::Left);
    EXPECT_FLOAT_EQ(oneLine.d_height, line);
    const Sizef wrapped =
        measureText(label, label.getRenderedString(), 60, HorzTextFormat::WordWrapLeft);
    EXPECT_GT(wrapped.d_height, 2 * line);
    EXPECT_LE(wrapped.d_width, 60.0f);

    RecordingGeometryBuffer top, bottom;
    drawText(label, top, label.getRenderedString(), area, HorzTextFormat::WordWrapLeft,
             VertTextFormat::Top, ColourRect(Colour(0xFF102030)), nullptr);
    drawText(label, bottom, label.getRenderedString(), area, HorzTextFormat::WordWrapLeft,
             VertTextFormat::Bottom, ColourRect(Colour(0xFF102030)), nullptr);
    const DrawnQuad atTop = decode(top).at(0);
    const DrawnQuad atBottom = decode(bottom).at(0);
    EXPECT_EQ(atTop.image, "text");
    EXPECT_EQ(moxietest::argb(atTop.colours.d_top_left), 0xFF102030u);
    EXPECT_LT(atTop.rect.top(), line);
    // Glyphs land on whole pixels.
    EXPECT_NEAR(atBottom.rect.top() - atTop.rect.top(), 200 - wrapped.d_height, 1.0f);
}
