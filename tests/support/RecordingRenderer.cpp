#include "support/RecordingRenderer.h"

namespace moxietest
{
void RecordingGeometryBuffer::setActiveTexture(CEGUI::Texture* texture)
{
    NullGeometryBuffer::setActiveTexture(texture);
    d_texture = texture;
}

void RecordingGeometryBuffer::appendVertex(const CEGUI::Vertex& vertex)
{
    appendGeometry(&vertex, 1);
}

void RecordingGeometryBuffer::appendGeometry(const CEGUI::Vertex* const vertices, CEGUI::uint count)
{
    NullGeometryBuffer::appendGeometry(vertices, count);
    d_batches.push_back({d_texture, std::vector<CEGUI::Vertex>(vertices, vertices + count)});
}

void RecordingGeometryBuffer::reset()
{
    NullGeometryBuffer::reset();
    d_batches.clear();
    ++d_resets;
}

const CEGUI::Vector2f& ScaledNullTexture::getTexelScaling() const
{
    const CEGUI::Sizef& size = getSize();
    d_scaling = CEGUI::Vector2f(size.d_width > 0 ? 1.0f / size.d_width : 0.0f,
                                size.d_height > 0 ? 1.0f / size.d_height : 0.0f);
    return d_scaling;
}

CEGUI::Texture& RecordingRenderer::createTexture(const CEGUI::String& name,
                                                 const CEGUI::String& filename,
                                                 const CEGUI::String& resourceGroup)
{
    throwIfNameExists(name);
    auto* texture = new ScaledNullTexture(name);
    texture->loadFromFile(filename, resourceGroup);
    d_textures[name] = texture;
    return *texture;
}

CEGUI::GeometryBuffer& RecordingRenderer::createGeometryBuffer()
{
    auto* buffer = new RecordingGeometryBuffer;
    d_geometryBuffers.push_back(buffer);
    return *buffer;
}

} // namespace moxietest
