#include "draw/GlyphRun.h"

#include "draw/ImageParts.h"
#include "draw/QuadBatch.h"

#include <CEGUI/Font.h>
#include <CEGUI/FontGlyph.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/GeometryBuffer.h>
#include <CEGUI/GlobalEventSet.h>
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
// The font frees them when it lays its glyphs out again, and says so by a size change. A
// codepoint without a glyph is asked again each time: a pixmap font may be given one later.
class FontGlyphs
{
public:
    explicit FontGlyphs(const Font& font) : d_name(font.getName()) {}

    const Glyph& find(const Font& font, utf32 codepoint)
    {
        Glyph* entry;
        if (codepoint < Latin)
        {
            entry = &d_latin[codepoint];
            if (d_known.test(codepoint))
                return refreshed(*entry);
        }
        else
        {
            auto [at, added] = d_rest.try_emplace(codepoint);
            entry = &at->second;
            if (!added && entry->glyph)
                return refreshed(*entry);
        }
        entry->glyph = font.getGlyphData(codepoint);
        entry->image = nullptr;
        if (codepoint < Latin && entry->glyph)
            d_known.set(codepoint);
        return refreshed(*entry);
    }

    void clear()
    {
        d_known.reset();
        d_rest.clear();
    }

    const String& name() const { return d_name; }

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
    std::array<Glyph, Latin> d_latin;
    std::bitset<Latin> d_known;
    std::unordered_map<utf32, Glyph> d_rest;
};

struct Tables
{
    std::unordered_map<const Font*, FontGlyphs> fonts;
    Event::Connection resized, gone, replaced;

    std::array<Event::Connection*, 3> connections() { return {&resized, &gone, &replaced}; }
    bool listening() const { return resized.isValid() && resized->connected(); }

    // A connection whose event is gone reports itself unconnected, so this is safe whether
    // CEGUI went first or not.
    ~Tables()
    {
        for (Event::Connection* c : connections())
            if (c->isValid() && (*c)->connected())
                (*c)->disconnect();
    }
};

Tables& tables()
{
    static Tables all;
    return all;
}

void fontResized(const EventArgs& args)
{
    auto& fonts = tables().fonts;
    if (auto found = fonts.find(static_cast<const FontEventArgs&>(args).font); found != fonts.end())
        found->second.clear();
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
    attachGlyphTables();
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

void attachGlyphTables()
{
    Tables& all = tables();
    if (all.listening())
        return;
    // Global, so that the tables are emptied before a font's own subscribers (and the
    // module's windows, made later) measure text with it.
    all.resized = GlobalEventSet::getSingleton().subscribeEvent(
        Font::EventNamespace + '/' + Font::EventRenderSizeChanged, &fontResized);
    FontManager& fonts = FontManager::getSingleton();
    all.gone = fonts.subscribeEvent(FontManager::EventResourceDestroyed, &forgetFont);
    all.replaced = fonts.subscribeEvent(FontManager::EventResourceReplaced, &forgetFont);
}

void forgetGlyphTables()
{
    Tables& all = tables();
    all.fonts.clear();
    for (Event::Connection* c : all.connections())
        if (c->isValid() && (*c)->connected())
            (*c)->disconnect();
}

} // namespace MoxieLook
} // namespace CEGUI
