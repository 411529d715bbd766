#include "draw/FormattedImage.h"
#include "draw/GlyphRun.h"
#include "draw/ImageParts.h"
#include "draw/Imagery.h"
#include "draw/NinePieceFrame.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/CentredRenderedString.h>
#include <CEGUI/Font.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/LeftAlignedRenderedString.h>
#include <CEGUI/RenderedStringWordWrapper.h>
#include <CEGUI/RightAlignedRenderedString.h>
#include <CEGUI/Window.h>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;
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

namespace
{
// Every vertex with the texture it was drawn from.
std::vector<std::pair<const Texture*, Vertex>> verticesOf(const RecordingGeometryBuffer& buffer)
{
    std::vector<std::pair<const Texture*, Vertex>> all;
    for (const RecordingGeometryBuffer::Batch& batch : buffer.batches())
        for (const Vertex& vertex : batch.vertices)
            all.emplace_back(batch.texture, vertex);
    return all;
}

// The same vertices from the same textures, bit for bit: the same arithmetic must have made
// them.
void expectSameVertices(const RecordingGeometryBuffer& cegui, const RecordingGeometryBuffer& ours,
                        const std::string& what)
{
    const auto expected = verticesOf(cegui), drawn = verticesOf(ours);
    ASSERT_EQ(drawn.size(), expected.size()) << what;
    for (std::size_t i = 0; i < drawn.size(); ++i)
    {
        const auto& [texture, vertex] = drawn[i];
        EXPECT_EQ(texture, expected[i].first) << what << " vertex " << i;
        EXPECT_EQ(vertex.position, expected[i].second.position) << what << " vertex " << i;
        EXPECT_EQ(vertex.tex_coords, expected[i].second.tex_coords) << what << " vertex " << i;
        EXPECT_EQ(vertex.colour_val.getARGB(), expected[i].second.colour_val.getARGB())
            << what << " vertex " << i;
    }
}

// A kind of image of the host's own: the batch lets it draw itself.
struct HostImage : BasicImage
{
    explicit HostImage(const BasicImage& like)
        : BasicImage(like.getName() + "/host", like.*ImageParts::TextureOf, like.*ImageParts::Area,
                     like.getRenderedOffset(), ASM_Disabled, Sizef(640, 480))
    {
    }
};
} // namespace

TEST(GlyphRun, DrawsWhatCeguisFontDrawsAndFollowsAResizedFont)
{
    moxietest::freshSheet();
    const ColourRect gradient(Colour(0xFF102030), Colour(0x80405060), Colour(0xFF708090),
                              Colour(0x40A0B0C0));
    const Rectf cutting(13.5f, 9.0f, 60.25f, 17.0f), away(500, 500, 600, 600);
    struct Scaling
    {
        float spaceExtra, x, y;
    };
    auto compareAll = [&](const Font& font)
    {
        for (const String& text : {String("Hello, World"), String("  spaced  out "),
                                   String((const utf8*)"\xc3\x84\xc3\xb6 \xe2\x82\xac\xc3\x9f"),
                                   String((const utf8*)"x\xe4\xb8\xad\x01y"), String("")})
        {
            EXPECT_EQ(glyphExtent(font, text), font.getTextExtent(text)) << text;
            for (const Rectf* clip : {static_cast<const Rectf*>(nullptr), &cutting, &away})
                for (const Scaling scaling : {Scaling{0, 1, 1}, Scaling{2.5f, 1.5f, 0.75f}})
                {
                    RecordingGeometryBuffer cegui, ours;
                    const Vector2f at(10.3f, 7.6f);
                    const float ceguiEnd = font.drawText(cegui, text, at, clip, gradient,
                                                         scaling.spaceExtra, scaling.x, scaling.y);
                    const float ourEnd = drawGlyphs(ours, font, text, at, clip, gradient,
                                                    scaling.spaceExtra, scaling.x, scaling.y);
                    const std::string what = font.getName().c_str() + std::string(": ") +
                                             text.c_str() + (clip ? " clipped" : "");
                    EXPECT_EQ(ourEnd, ceguiEnd) << what;
                    expectSameVertices(cegui, ours, what);
                }
        }
    };
    auto fonts = FontManager::getSingleton().getIterator();
    ASSERT_FALSE(fonts.isAtEnd());
    for (; !fonts.isAtEnd(); ++fonts)
    {
        Font& font = *fonts.getCurrentValue();
        compareAll(font);
        // A new size lays the font's glyphs out anew, freeing the old ones.
        const String size =
            font.isPropertyPresent("PointSize") ? font.getProperty("PointSize") : "";
        if (size.empty())
            continue;
        font.setProperty("PointSize", "17");
        compareAll(font);
        font.setProperty("PointSize", size);
        compareAll(font);
    }
}

TEST(GlyphRun, AFontResizedDestroyedOrReplacedIsNeverReadStale)
{
    moxietest::freshSheet();
    FontManager& fonts = FontManager::getSingleton();
    auto sameAsCegui = [](const Font& font, const std::string& what)
    {
        const String text("Refitted label");
        EXPECT_EQ(glyphExtent(font, text), font.getTextExtent(text)) << what;
        RecordingGeometryBuffer cegui, ours;
        font.drawText(cegui, text, Vector2f(3, 4), nullptr, ColourRect(Colour(0xFF000000)));
        drawGlyphs(ours, font, text, Vector2f(3, 4), nullptr, ColourRect(Colour(0xFF000000)));
        expectSameVertices(cegui, ours, what);
    };
    Font& probe = fonts.createFreeTypeFont("GlyphProbe", 11, true, "DejaVuSans.ttf");
    // A host that re-fits its text when a font changes size, listening before the table was
    // first filled: the table is emptied before it measures.
    int refits = 0;
    Event::ScopedConnection refit =
        probe.subscribeEvent(Font::EventRenderSizeChanged,
                             [&](const EventArgs&)
                             {
                                 ++refits;
                                 sameAsCegui(probe, "inside the size change");
                             });
    sameAsCegui(probe, "first use");
    probe.setProperty("PointSize", "15");
    EXPECT_EQ(refits, 1);
    sameAsCegui(probe, "after the size change");
    refit.disconnect();

    // Destroyed and made again under its name, possibly at the same address.
    fonts.destroy("GlyphProbe");
    sameAsCegui(fonts.createFreeTypeFont("GlyphProbe", 9, false, "DejaVuSans.ttf"), "remade");
    // Replaced by a new font of the same name.
    sameAsCegui(fonts.createFreeTypeFont("GlyphProbe", 13, true, "DejaVuSans.ttf", "", ASM_Disabled,
                                         Sizef(640, 480), XREA_REPLACE),
                "replaced");
    fonts.destroy("GlyphProbe");
}

TEST(TextDrawing, OneLineLabelsDrawAsCeguisFormattersDo)
{
    moxietest::freshSheet();
    Window& label = moxietest::place("DefaultWindow", 0, 0, 300, 60);
    const Rectf area(5.5f, 4, 205, 54), clip(20, 0, 120, 60);
    const ColourRect tint(Colour(0xC0FFFFFF), Colour(0xFFFF8080), Colour(0xFF80FF80),
                          Colour(0x80FFFFFF));
    for (const char* text :
         {"A plain label", "", "[colour='FFFF0000']red [colour='FF00FF00']green",
          "[vert-alignment='centre'][padding='l:2 t:3 r:4 b:5']pad[vert-alignment='top'] top "
          "[vert-alignment='stretch']stretch[vert-alignment='bottom'] bottom",
          "[image='MoxieLook/IconStar'] beside an image", "two\nlines"})
    {
        label.setText(text);
        const RenderedString& rendered = label.getRenderedString();
        Sizef unwrapped(0, 0);
        for (std::size_t line = 0; line < rendered.getLineCount(); ++line)
        {
            unwrapped.d_height += rendered.getPixelSize(&label, line).d_height;
            unwrapped.d_width =
                std::max(unwrapped.d_width, rendered.getPixelSize(&label, line).d_width);
        }
        EXPECT_EQ(unwrappedSize(label, rendered), unwrapped) << text;
        const std::pair<HorzTextFormat, std::shared_ptr<FormattedRenderedString>> formats[] = {
            {HorzTextFormat::Left, std::make_shared<LeftAlignedRenderedString>(rendered)},
            {HorzTextFormat::Right, std::make_shared<RightAlignedRenderedString>(rendered)},
            {HorzTextFormat::Centred, std::make_shared<CentredRenderedString>(rendered)}};
        for (const auto& [horz, formatter] : formats)
            for (const VertTextFormat vert :
                 {VertTextFormat::Top, VertTextFormat::Centred, VertTextFormat::Bottom})
                for (const Rectf* within : {static_cast<const Rectf*>(nullptr), &clip})
                {
                    RecordingGeometryBuffer cegui, ours;
                    formatter->format(&label, area.getSize());
                    const float height = formatter->getVerticalExtent(&label);
                    Vector2f at = area.d_min;
                    if (vert == VertTextFormat::Centred)
                        at.d_y += std::floor((area.getHeight() - height) * 0.5f);
                    else if (vert == VertTextFormat::Bottom)
                        at.d_y = area.bottom() - height;
                    formatter->draw(&label, cegui, at, &tint, within);
                    EXPECT_EQ(drawText(label, ours, rendered, area, horz, vert, tint, within),
                              height)
                        << text;
                    expectSameVertices(cegui, ours,
                                       std::string(text) + " as " + nameOf(horz).c_str() + ", " +
                                           nameOf(vert).c_str());
                }
    }
}

TEST(QuadBatch, DrawsWhatCeguisImagesDrawInTheOrderGiven)
{
    const ColourRect gradient(Colour(0xFF102030), Colour(0x80405060), Colour(0xFF708090),
                              Colour(0x40A0B0C0));
    const Rectf cutting(13.5f, 9.0f, 40.25f, 17.0f), away(500, 500, 600, 600);
    const Rectf places[] = {Rectf(10.3f, 7.6f, 30.8f, 19.1f), Rectf(0, 0, 64, 3),
                            Rectf(12, 8, 12, 20)};
    // Atlas images in turn with a glyph (another texture) and a host's own kind of image.
    const Image& glyph = *context().getDefaultFont()->getGlyphData('g')->getImage();
    const HostImage hostImage(static_cast<const BasicImage&>(lookImage("SliderTick")));
    std::vector<const Image*> images;
    auto all = ImageManager::getSingleton().getIterator();
    for (int taken = 0; !all.isAtEnd() && taken < 30; ++all, ++taken)
        images.insert(images.end(), {all.getCurrentValue().first, &glyph, &hostImage});
    RecordingGeometryBuffer cegui, ours;
    {
        QuadBatch batch(ours);
        for (const Image* image : images)
        {
            for (const Rectf& dest : places)
                for (const Rectf* clip : {static_cast<const Rectf*>(nullptr), &cutting, &away})
                {
                    image->render(cegui, dest, clip, gradient);
                    batch.add(*image, dest, clip, gradient);
                }
            // A batch opened inside another sends the outer one's quads first.
            QuadBatch inner(ours);
            image->render(cegui, places[0], nullptr, ColourRect(Colour(0xFFFFFFFF)));
            inner.add(*image, places[0], nullptr, ColourRect(Colour(0xFFFFFFFF)));
        }
    }
    EXPECT_GT(verticesOf(cegui).size(), 6u * 90);
    expectSameVertices(cegui, ours, "images");

    // A row of one image, drawn once and copied along, as drawing it at each place: after a
    // quad of another texture, and across x = 0 (CEGUI rounds halves away from zero).
    const Image& tick = lookImage("SliderTick");
    for (const float x : {3.6f, -20.5f})
    {
        RecordingGeometryBuffer placed, row;
        glyph.render(placed, places[0], nullptr, gradient);
        for (int i = 2; i < 9; ++i)
            tick.render(placed, Rectf(Vector2f(x + i * 7.0f, 4.2f), tick.getRenderedSize()),
                        nullptr, gradient);
        QuadBatch batch(row);
        batch.add(glyph, places[0], nullptr, gradient);
        batch.addRow(tick, Vector2f(x, 4.2f), 7.0f, 2, 9, gradient);
        batch.flush();
        expectSameVertices(placed, row, "row from " + std::to_string(x));
    }
}

TEST(TextDrawing, CountsWrappedLinesAsCeguisWrapperDoes)
{
    moxietest::freshSheet();
    Window& label = moxietest::place("DefaultWindow", 0, 0, 300, 60);
    std::mt19937 random(7);
    auto pick = [&](int below)
    { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    std::vector<std::string> texts = {"",
                                      "x",
                                      " ",
                                      "word",
                                      "  leading and trailing ",
                                      "Averyveryverylongwordthatcannotfit on a line",
                                      "tabs\tand  doubled   blanks",
                                      "a b c d e f g h i j"};
    for (int i = 0; i < 60; ++i)
    {
        std::string text;
        for (int words = 1 + pick(12); words > 0; --words)
        {
            text += std::string(static_cast<std::size_t>(pick(3)), ' ');
            for (int letters = 1 + pick(14); letters > 0; --letters)
                text += static_cast<char>("aeiouwmxylTQ.,"[pick(14)]);
        }
        texts.push_back(text);
    }
    for (const std::string& text : texts)
    {
        label.setText(text);
        const RenderedString& rendered = label.getRenderedString();
        for (const float width : {0.5f, 4.0f, 9.0f, 23.5f, 40.0f, 77.0f, 150.0f, 400.0f})
        {
            RenderedStringWordWrapper<LeftAlignedRenderedString> cegui(rendered);
            cegui.format(&label, Sizef(width, 0));
            const TextLines ours = countLines(label, rendered, width, HorzTextFormat::WordWrapLeft);
            EXPECT_EQ(ours.count, cegui.getFormattedLineCount())
                << '"' << text << "\" at " << width;
            EXPECT_EQ(ours.widest, cegui.getHorizontalExtent(&label))
                << '"' << text << "\" at " << width;
        }
    }
}
