#include "draw/ImageStamp.h"

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// Keeps what an image renders instead of drawing it.
class CapturedQuad : public GeometryBuffer
{
public:
    std::vector<Vertex> vertices;
    Texture* texture = nullptr;

    void draw() const override {}
    void setTranslation(const Vector3f&) override {}
    void setRotation(const Quaternion&) override {}
    void setPivot(const Vector3f&) override {}
    void setClippingRegion(const Rectf&) override {}
    void appendVertex(const Vertex& vertex) override { vertices.push_back(vertex); }
    void appendGeometry(const Vertex* const vbuff, uint count) override
    {
        vertices.insert(vertices.end(), vbuff, vbuff + count);
    }
    void setActiveTexture(Texture* active) override { texture = active; }
    void reset() override { vertices.clear(); }
    Texture* getActiveTexture() const override { return texture; }
    uint getVertexCount() const override { return static_cast<uint>(vertices.size()); }
    uint getBatchCount() const override { return 1; }
    void setRenderEffect(RenderEffect*) override {}
    RenderEffect* getRenderEffect() override { return nullptr; }
    void setClippingActive(const bool) override {}
    bool isClippingActive() const override { return false; }
};
} // namespace

void ImageStamp::stamp(GeometryBuffer& buffer, const Vector2f& first, float spacing, int from,
                       int to, const ColourRect& colours) const
{
    if (from >= to)
        return;
    CapturedQuad quad;
    const Vector2f at(first.d_x + static_cast<float>(from) * spacing, first.d_y);
    d_image->render(quad, Rectf(at, d_image->getRenderedSize()), nullptr, colours);
    if (quad.vertices.empty())
        return;
    // The row is kept between draws and written over: CEGUI's colour copy constructor is
    // out of line, its assignment is not.
    d_row.resize(quad.vertices.size() * static_cast<std::size_t>(to - from));
    auto out = d_row.begin();
    for (int i = from; i < to; ++i)
    {
        const float shift = static_cast<float>(i - from) * spacing;
        for (const Vertex& vertex : quad.vertices)
        {
            *out = vertex;
            out->position.d_x += shift;
            ++out;
        }
    }
    buffer.setActiveTexture(quad.texture);
    buffer.appendGeometry(d_row.data(), static_cast<uint>(d_row.size()));
}

} // namespace MoxieLook
} // namespace CEGUI
