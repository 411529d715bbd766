#include "support/DrawnQuads.h"

#include <CEGUI/Image.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <algorithm>
#include <map>
#include <ostream>

namespace moxietest
{
namespace
{
const char* const Prefix = "MoxieLook/";

struct UvArea
{
    CEGUI::Rectf uv;
    std::string name;
};

CEGUI::Rectf bounds(const std::vector<CEGUI::Vertex>& vertices, bool texture)
{
    CEGUI::Rectf r(1e9f, 1e9f, -1e9f, -1e9f);
    for (const CEGUI::Vertex& v : vertices)
    {
        const float x = texture ? v.tex_coords.d_x : v.position.d_x;
        const float y = texture ? v.tex_coords.d_y : v.position.d_y;
        r.d_min.d_x = std::min(r.d_min.d_x, x);
        r.d_min.d_y = std::min(r.d_min.d_y, y);
        r.d_max.d_x = std::max(r.d_max.d_x, x);
        r.d_max.d_y = std::max(r.d_max.d_y, y);
    }
    return r;
}

CEGUI::ColourRect cornerColours(const std::vector<CEGUI::Vertex>& vertices,
                                const CEGUI::Rectf& rect)
{
    CEGUI::ColourRect colours;
    for (const CEGUI::Vertex& v : vertices)
    {
        const bool left = v.position.d_x == rect.left();
        const bool top = v.position.d_y == rect.top();
        (left ? (top ? colours.d_top_left : colours.d_bottom_left)
              : (top ? colours.d_top_right : colours.d_bottom_right)) = v.colour_val;
    }
    return colours;
}

// Whether the texture runs backwards along an axis of the quad.
void findMirroring(const std::vector<CEGUI::Vertex>& vertices, DrawnQuad& quad)
{
    const auto byX = std::minmax_element(vertices.begin(), vertices.end(),
                                         [](const CEGUI::Vertex& a, const CEGUI::Vertex& b)
                                         { return a.position.d_x < b.position.d_x; });
    const auto byY = std::minmax_element(vertices.begin(), vertices.end(),
                                         [](const CEGUI::Vertex& a, const CEGUI::Vertex& b)
                                         { return a.position.d_y < b.position.d_y; });
    quad.mirroredX = byX.first->tex_coords.d_x > byX.second->tex_coords.d_x;
    quad.mirroredY = byY.first->tex_coords.d_y > byY.second->tex_coords.d_y;
}

// Learns each image's texture area by letting the image draw itself once.
const std::vector<UvArea>& atlasAreas(const CEGUI::Texture*& atlas)
{
    static std::vector<UvArea> areas;
    static const CEGUI::Texture* atlasTexture = nullptr;
    if (areas.empty())
    {
        CEGUI::ImageManager::ImageIterator it = CEGUI::ImageManager::getSingleton().getIterator();
        for (; !it.isAtEnd(); ++it)
        {
            const CEGUI::String& name = it.getCurrentKey();
            if (name.find(Prefix) != 0)
                continue;
            RecordingGeometryBuffer probe;
            it.getCurrentValue().first->render(probe, CEGUI::Rectf(0, 0, 8, 8), nullptr,
                                               CEGUI::ColourRect());
            atlasTexture = probe.batches().front().texture;
            areas.push_back({bounds(probe.batches().front().vertices, true),
                             name.substr(std::char_traits<char>::length(Prefix)).c_str()});
        }
    }
    atlas = atlasTexture;
    return areas;
}

std::string imageFor(const CEGUI::Rectf& uv, const std::vector<UvArea>& areas)
{
    const float eps = 1e-5f;
    for (const UvArea& area : areas)
        if (uv.left() >= area.uv.left() - eps && uv.right() <= area.uv.right() + eps &&
            uv.top() >= area.uv.top() - eps && uv.bottom() <= area.uv.bottom() + eps)
            return area.name;
    return "?";
}
} // namespace

std::vector<DrawnQuad> decode(const RecordingGeometryBuffer& buffer)
{
    const CEGUI::Texture* atlas = nullptr;
    const std::vector<UvArea>& areas = atlasAreas(atlas);

    std::vector<DrawnQuad> quads;
    bool inText = false;
    for (const RecordingGeometryBuffer::Batch& batch : buffer.batches())
    {
        const CEGUI::Rectf rect = bounds(batch.vertices, false);
        if (batch.texture == atlas)
        {
            // A batch of several image quads (a row of stamped images) is six vertices each.
            const std::size_t step = batch.vertices.size() % 6 == 0 ? 6 : batch.vertices.size();
            for (std::size_t at = 0; at < batch.vertices.size(); at += step)
            {
                const std::vector<CEGUI::Vertex> quad(batch.vertices.begin() + at,
                                                      batch.vertices.begin() + at + step);
                const CEGUI::Rectf quadRect = bounds(quad, false);
                quads.push_back(
                    {imageFor(bounds(quad, true), areas), quadRect, cornerColours(quad, quadRect)});
                findMirroring(quad, quads.back());
            }
            inText = false;
        }
        else if (inText)
        {
            CEGUI::Rectf& run = quads.back().rect;
            run.d_min.d_x = std::min(run.d_min.d_x, rect.d_min.d_x);
            run.d_min.d_y = std::min(run.d_min.d_y, rect.d_min.d_y);
            run.d_max.d_x = std::max(run.d_max.d_x, rect.d_max.d_x);
            run.d_max.d_y = std::max(run.d_max.d_y, rect.d_max.d_y);
        }
        else
        {
            // A run's colours are its first glyph's: a batch may hold many glyphs.
            const std::vector<CEGUI::Vertex> glyph(
                batch.vertices.begin(),
                batch.vertices.begin() + std::min<std::size_t>(6, batch.vertices.size()));
            quads.push_back({"text", rect, cornerColours(glyph, bounds(glyph, false))});
            inText = true;
        }
    }
    return quads;
}

std::vector<DrawnQuad> drawnBy(CEGUI::Window& window)
{
    CEGUI::System::getSingleton().renderAllGUIContexts();
    return decode(static_cast<const RecordingGeometryBuffer&>(window.getGeometryBuffer()));
}

std::vector<std::string> imageNames(const std::vector<DrawnQuad>& quads)
{
    std::vector<std::string> names;
    for (const DrawnQuad& quad : quads)
        names.push_back(quad.image);
    return names;
}

std::optional<DrawnQuad> find(const std::vector<DrawnQuad>& quads, const std::string& image)
{
    const auto it = std::find_if(quads.begin(), quads.end(),
                                 [&](const DrawnQuad& quad) { return quad.image == image; });
    return it == quads.end() ? std::nullopt : std::optional<DrawnQuad>(*it);
}

std::vector<DrawnQuad> allOf(const std::vector<DrawnQuad>& quads, const std::string& image)
{
    std::vector<DrawnQuad> found;
    for (const DrawnQuad& quad : quads)
        if (quad.image == image)
            found.push_back(quad);
    return found;
}

CEGUI::Rectf spanOf(const std::vector<DrawnQuad>& quads, const std::string& prefix)
{
    CEGUI::Rectf span(1e9f, 1e9f, -1e9f, -1e9f);
    for (const DrawnQuad& quad : quads)
        if (quad.image.rfind(prefix, 0) == 0)
        {
            span.d_min.d_x = std::min(span.d_min.d_x, quad.rect.left());
            span.d_min.d_y = std::min(span.d_min.d_y, quad.rect.top());
            span.d_max.d_x = std::max(span.d_max.d_x, quad.rect.right());
            span.d_max.d_y = std::max(span.d_max.d_y, quad.rect.bottom());
        }
    return span;
}

CEGUI::argb_t argb(const CEGUI::Colour& colour)
{
    return colour.getARGB();
}

std::ostream& operator<<(std::ostream& out, const DrawnQuad& quad)
{
    return out << quad.image << " (" << quad.rect.left() << ", " << quad.rect.top() << ", "
               << quad.rect.right() << ", " << quad.rect.bottom() << ") tl=" << std::hex
               << argb(quad.colours.d_top_left) << std::dec;
}

} // namespace moxietest
