#include "draw/ImageBesideLabel.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"

#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/Window.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
float centredTop(float height, float content)
{
    return std::trunc((height - content) * 0.5f + 0.5f);
}
} // namespace

ImageBesideLabel placeImageBesideLabel(const Sizef& area, const Sizef& imageSize, float lineSpacing,
                                       float padding)
{
    ImageBesideLabel at;
    const float imageTop = centredTop(area.d_height, imageSize.d_height);
    at.image = Rectf(Vector2f(0, imageTop), imageSize);
    at.label = Rectf(imageSize.d_width + padding, centredTop(area.d_height, lineSpacing),
                     area.d_width, area.d_height);
    return at;
}

void drawImageBesideLabel(const Window& window, GeometryBuffer& buffer, const Image& image,
                          const Image* overlay, const ColourRect& imageColours,
                          const ColourRect& textColours, float padding, const Sizef& imageScale)
{
    const Font* font = window.getFont();
    const Sizef own = image.getRenderedSize();
    const ImageBesideLabel at = placeImageBesideLabel(
        window.getPixelSize(),
        Sizef(own.d_width * imageScale.d_width, own.d_height * imageScale.d_height),
        font ? font->getLineSpacing() : 0.0f, padding);
    drawImage(buffer, image, at.image, nullptr, imageColours);
    if (overlay)
        drawImage(buffer, *overlay, at.image, nullptr, imageColours);
    if (font)
        drawText(window, buffer, window.getRenderedString(), at.label, HorzTextFormat::Left,
                 VertTextFormat::Top, textColours, nullptr);
}

} // namespace MoxieLook
} // namespace CEGUI
