#include "draw/GlyphRun.h"

#include "draw/ImageParts.h"
#include "draw/QuadBatch.h"

#include <CEGUI/Font.h>
#include <CEGUI/FontGlyph.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/GeometryBuffer.h>
#include <algorithm>
#include <array>
#include <bitset>
#include <unordered_map>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
struct Glyph
{
    const FontGlyph* glyph = nullptr;
    const Image* image = nullptr;      //!< the glyph's image when `basic` was found
    const BasicImage* basic = nullptr; //!< that image, when it is a BasicImage
};

// One font's glyphs as Font::getGlyphData gave them (rasterising their page on the way).
// The font frees them when it lays its glyphs out again, and says so by a size change.
class FontGlyphs
{
public:
    explicit FontGlyphs(const Font& font) : d_name(font.getName())
    {
        d_resized = const_cast<Font&>(font).subscribeEvent(Font::EventRenderSizeChanged,
                                                           [this](const EventArgs&) { clear(); });
    }

    FontGlyphs(const FontGlyphs&) = delete; // its handler holds `this`
    FontGlyphs& operator=(const FontGlyphs&) = delete;

    const Glyph& find(const Font& font, utf32 codepoint)
    {
        Glyph* entry;
        if (codepoint < Latin)
        {
            entry = &d_latin[codepoint];
            if (d_known.test(codepoint))
                return refreshed(*entry);
            d_known.set(codepoint);
        }
        else
        {
            auto [at, added] = d_rest.try_emplace(codepoint);
            entry = &at->second;
            if (!added)
                return refreshed(*entry);
        }
        entry->glyph = font.getGlyphData(codepoint);
        entry->image = nullptr;
        return refreshed(*entry);
    }

    void clear()
    {
        d_known.reset();
        d_rest.clear();
    }

    const String& name() const { return d_name; }
    //! For a font that is alive: it keeps no handler of ours.
    void stopListening() { d_resized->disconnect(); }

private:
    static constexpr utf32 Latin = 256;

    static const Glyph& refreshed(Glyph& entry)
    {
        const Image* image = entry.glyph ? entry.glyph->getImage() : nullptr;
        if (image != entry.image)
        {
            entry.image = image;
            entry.basic = plainBasicImage(image);
        }
        return entry;
    }

    String d_name;
    Event::Connection d_resized;
    std::array<Glyph, Latin> d_latin;
    std::bitset<Latin> d_known;
    std::unordered_map<utf32, Glyph> d_rest;
};

struct Tables
{
    std::unordered_map<const Font*, FontGlyphs> fonts;
    Event::Connection gone, replaced;
};

Tables& tables()
{
    static Tables all;
    return all;
}

void forgetFont(const EventArgs& args)
{
    const String& name = static_cast<const ResourceEventArgs&>(args).resourceName;
    auto& fonts = tables().fonts;
    for (auto at = fonts.begin(); at != fonts.end();)
        at = at->second.name() == name ? fonts.erase(at) : std::next(at);
}

FontGlyphs& glyphsOf(const Font& font)
{
    Tables& all = tables();
    if (auto found = all.fonts.find(&font); found != all.fonts.end())
        return found->second;
    if (!all.gone.isValid() || !all.gone->connected())
    {
        FontManager& fonts = FontManager::getSingleton();
        all.gone = fonts.subscribeEvent(FontManager::EventResourceDestroyed, &forgetFont);
        all.replaced = fonts.subscribeEvent(FontManager::EventResourceReplaced, &forgetFont);
    }
    return all.fonts.try_emplace(&font, font).first->second;
}

} // namespace

float drawGlyphs(GeometryBuffer& buffer, const Font& font, const String& text,
                 const Vector2f& position, const Rectf* clip, const ColourRect& colours,
                 float spaceExtra, float xScale, float yScale)
{
    FontGlyphs& glyphs = glyphsOf(font);
    const float baseY = position.d_y + font.getBaseline(yScale);
    Vector2f pen(position);
    QuadBatch batch(buffer);
    for (std::size_t c = 0; c < text.length(); ++c)
    {
        const Glyph& glyph = glyphs.find(font, text[c]);
        if (!glyph.image)
            continue;
        // FontGlyph's own sums, read without a virtual call where the image is plain.
        const Vector2f& offset =
            glyph.basic ? glyph.basic->*ImageParts::ScaledOffset : glyph.image->getRenderedOffset();
        const Sizef& size =
            glyph.basic ? glyph.basic->*ImageParts::ScaledSize : glyph.image->getRenderedSize();
        pen.d_y = baseY - (offset.d_y - offset.d_y * yScale);
        const Rectf dest(pen, Sizef(size.d_width * xScale, size.d_height * yScale));
        if (glyph.basic)
            batch.add(*glyph.basic, dest, clip, colours);
        else
            batch.add(*glyph.image, dest, clip, colours);
        pen.d_x += glyph.glyph->getAdvance(xScale);
        if (text[c] == ' ')
            pen.d_x += spaceExtra;
    }
    return pen.d_x;
}

float glyphExtent(const Font& font, const String& text)
{
    FontGlyphs& glyphs = glyphsOf(font);
    float widest = 0.0f, advanced = 0.0f;
    for (std::size_t c = 0; c < text.length(); ++c)
    {
        const Glyph& glyph = glyphs.find(font, text[c]);
        if (!glyph.glyph)
            continue;
        const float width = glyph.glyph->getRenderedAdvance(1.0f);
        if (advanced + width > widest)
            widest = advanced + width;
        advanced += glyph.glyph->getAdvance(1.0f);
    }
    return std::max(advanced, widest);
}

void forgetGlyphTables()
{
    Tables& all = tables();
    for (auto& [font, glyphs] : all.fonts)
        glyphs.stopListening();
    all.fonts.clear();
    for (Event::Connection* c : {&all.gone, &all.replaced})
        if (c->isValid() && (*c)->connected())
            (*c)->disconnect();
}

} // namespace MoxieLook
} // namespace CEGUI
