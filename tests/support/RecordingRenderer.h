// CEGUI's Null renderer, unchanged, except that its geometry buffers also keep every
// batch they are given, so tests can see exactly what a look drew.
#pragma once

#include <CEGUI/RendererModules/Null/GeometryBuffer.h>
#include <CEGUI/RendererModules/Null/Renderer.h>
#include <CEGUI/RendererModules/Null/Texture.h>
#include <CEGUI/Vertex.h>
#include <vector>

namespace moxietest
{
class RecordingGeometryBuffer : public CEGUI::NullGeometryBuffer
{
public:
    struct Batch
    {
        const CEGUI::Texture* texture;
        std::vector<CEGUI::Vertex> vertices;
    };

    void setActiveTexture(CEGUI::Texture* texture) override;
    void appendVertex(const CEGUI::Vertex& vertex) override;
    void appendGeometry(const CEGUI::Vertex* const vertices, CEGUI::uint count) override;
    void reset() override;

    const std::vector<Batch>& batches() const { return d_batches; }
    //! Where CEGUI (or a look) placed and clipped the buffer.
    const CEGUI::Vector3f& translation() const { return d_translation; }
    const CEGUI::Rectf& clippingRegion() const { return d_clipRect; }
    //! How often the buffer was emptied to be drawn again.
    std::size_t resets() const { return d_resets; }

private:
    const CEGUI::Texture* d_texture = nullptr;
    std::vector<Batch> d_batches;
    std::size_t d_resets = 0;
};

//! A texture from a file that reports real texel scaling, so that recorded vertices carry
//! the texture coordinates an image was cut from. (The plain Null texture reports none.)
class ScaledNullTexture : public CEGUI::NullTexture
{
public:
    explicit ScaledNullTexture(const CEGUI::String& name) : NullTexture(name) {}
    ~ScaledNullTexture() override = default;

    const CEGUI::Vector2f& getTexelScaling() const override;

private:
    mutable CEGUI::Vector2f d_scaling;
};

class RecordingRenderer : public CEGUI::NullRenderer
{
public:
    RecordingRenderer() = default;
    ~RecordingRenderer() override = default;

    CEGUI::GeometryBuffer& createGeometryBuffer() override;
    CEGUI::Texture& createTexture(const CEGUI::String& name, const CEGUI::String& filename,
                                  const CEGUI::String& resourceGroup) override;
};

} // namespace moxietest
