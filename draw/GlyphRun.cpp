#include "draw/GlyphRun.h"

#include <CEGUI/BasicImage.h>
#include <CEGUI/CoordConverter.h>
#include <CEGUI/Font.h>
#include <CEGUI/FontGlyph.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/GeometryBuffer.h>
#include <CEGUI/Texture.h>
#include <CEGUI/Vertex.h>
#include <algorithm>
#include <array>
#include <bitset>
#include <unordered_map>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// What BasicImage::render reads of itself and keeps to itself.
struct BasicImageParts : BasicImage
{
    static constexpr Texture* BasicImage::*Texture_ = &BasicImageParts::d_texture;
    static constexpr Rectf BasicImage::*Area = &BasicImageParts::d_area;
};

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
            entry.basic = dynamic_cast<const BasicImage*>(image);
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

// Quads of one texture, gathered and handed over in one append. BasicImage::render's
// arithmetic, step for step, so that every vertex comes out the same.
class QuadBatch
{
public:
    explicit QuadBatch(GeometryBuffer& buffer) : d_buffer(buffer) {}
    ~QuadBatch() { flush(); }

    void add(const Glyph& glyph, const Rectf& destArea, const Rectf* clip,
             const ColourRect& colours)
    {
        if (!glyph.basic)
        {
            flush();
            glyph.image->render(d_buffer, destArea, clip, colours);
            return;
        }
        const BasicImage& image = *glyph.basic;
        Rectf dest(destArea);
        dest.offset(image.BasicImage::getRenderedOffset());
        Rectf final(clip ? dest.getIntersection(*clip) : dest);
        if (final.getWidth() == 0 || final.getHeight() == 0)
            return;

        Texture* texture = image.*BasicImageParts::Texture_;
        if (texture != d_texture)
        {
            flush();
            d_texture = texture;
            d_scale = texture->getTexelScaling();
        }
        const Rectf& area = image.*BasicImageParts::Area;
        const Vector2f texPerPix(area.getWidth() / dest.getWidth(),
                                 area.getHeight() / dest.getHeight());
        const Rectf tex((area.d_min + ((final.d_min - dest.d_min) * texPerPix)) * d_scale,
                        (area.d_max + ((final.d_max - dest.d_max) * texPerPix)) * d_scale);
        final.d_min.d_x = CoordConverter::alignToPixels(final.d_min.d_x);
        final.d_min.d_y = CoordConverter::alignToPixels(final.d_min.d_y);
        final.d_max.d_x = CoordConverter::alignToPixels(final.d_max.d_x);
        final.d_max.d_y = CoordConverter::alignToPixels(final.d_max.d_y);

        Vertex* v = grow(6);
        put(v[0], final.left(), final.top(), tex.left(), tex.top(), colours.d_top_left);
        put(v[1], final.left(), final.bottom(), tex.left(), tex.bottom(), colours.d_bottom_left);
        put(v[2], final.right(), final.bottom(), tex.right(), tex.bottom(), colours.d_bottom_right);
        put(v[3], final.right(), final.top(), tex.right(), tex.top(), colours.d_top_right);
        put(v[4], final.left(), final.top(), tex.left(), tex.top(), colours.d_top_left);
        put(v[5], final.right(), final.bottom(), tex.right(), tex.bottom(), colours.d_bottom_right);
    }

    void flush()
    {
        if (d_used == 0)
            return;
        d_buffer.setActiveTexture(d_texture);
        d_buffer.appendGeometry(scratch().data(), static_cast<uint>(d_used));
        d_used = 0;
    }

private:
    // Vertices are built once and overwritten after: a Vertex's colour has a constructor
    // that would otherwise run six times a glyph.
    static std::vector<Vertex>& scratch()
    {
        static std::vector<Vertex> vertices(96);
        return vertices;
    }

    Vertex* grow(std::size_t count)
    {
        std::vector<Vertex>& vertices = scratch();
        if (vertices.size() < d_used + count)
            vertices.resize(2 * (d_used + count));
        Vertex* at = vertices.data() + d_used;
        d_used += count;
        return at;
    }

    static void put(Vertex& vertex, float x, float y, float u, float v, const Colour& colour)
    {
        vertex.position = Vector3f(x, y, 0.0f);
        vertex.tex_coords = Vector2f(u, v);
        vertex.colour_val = colour;
    }

    GeometryBuffer& d_buffer;
    Texture* d_texture = nullptr;
    Vector2f d_scale;
    std::size_t d_used = 0;
};
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
        const Vector2f& offset = glyph.image->getRenderedOffset();
        pen.d_y = baseY - (offset.d_y - offset.d_y * yScale);
        batch.add(glyph, Rectf(pen, glyph.glyph->getSize(xScale, yScale)), clip, colours);
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
