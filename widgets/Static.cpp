#include "widgets/Static.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Image.h>

namespace CEGUI
{
namespace MoxieLook
{
Static::Static(const String& type, const String& name) : RedrawnWhenUncovered<Window>(type, name)
{
    const String propertyOrigin("MoxieLook/Static");
    CEGUI_DEFINE_PROPERTY(Static, bool, "FrameEnabled",
                          "Property to get/set whether the frame is drawn. Value is either "
                          "\"True\" or \"False\".",
                          &Static::setFrameEnabled, &Static::isFrameEnabled, true);
    CEGUI_DEFINE_PROPERTY(Static, bool, "BackgroundEnabled",
                          "Property to get/set whether the background is drawn. Value is either "
                          "\"True\" or \"False\".",
                          &Static::setBackgroundEnabled, &Static::isBackgroundEnabled, true);
    CEGUI_DEFINE_PROPERTY(Static, ColourRect, "FrameColours",
                          "Property to get/set the frame colours." MOXIE_COLOURS_VALUE_HELP,
                          &Static::setFrameColours, &Static::getFrameColours,
                          ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(Static, ColourRect, "BackgroundColours",
                          "Property to get/set the background colours." MOXIE_COLOURS_VALUE_HELP,
                          &Static::setBackgroundColours, &Static::getBackgroundColours,
                          ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(Static, Image*, "BackgroundImage",
                          "Property to get/set the background image. Value is an image name "
                          "such as \"MoxieLook/Background\".",
                          &Static::setBackgroundImage, &Static::getBackgroundImage, nullptr);
}

void Static::setFrameImages(const Image* topLeft, const Image* topRight, const Image* bottomLeft,
                            const Image* bottomRight, const Image* left, const Image* top,
                            const Image* right, const Image* bottom)
{
    d_frame.setImages(topLeft, topRight, bottomLeft, bottomRight, left, top, right, bottom);
    frameChanged();
}

void Static::setFrameEnabled(bool enabled)
{
    if (d_frameEnabled == enabled)
        return;
    d_frameEnabled = enabled;
    frameChanged();
}

// The inner area moves with the frame: children and content follow.
void Static::frameChanged()
{
    notifyScreenAreaChanged();
    performChildWindowLayout(false, true);
    onFrameChanged();
    invalidate();
}

void Static::setFrameColours(const ColourRect& colours)
{
    d_frameColours = colours;
    invalidate();
}

void Static::setBackgroundEnabled(bool enabled)
{
    d_backgroundEnabled = enabled;
    invalidate();
}

void Static::setBackgroundImage(const Image* image)
{
    d_background = image;
    invalidate();
}

void Static::setBackgroundColours(const ColourRect& colours)
{
    d_backgroundColours = colours;
    invalidate();
}

Rectf Static::localInnerRect() const
{
    const Rectf outer(Vector2f(0, 0), getPixelSize());
    return d_frameEnabled ? d_frame.innerRect(outer) : outer;
}

Rectf Static::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    Rectf inner = localInnerRect();
    const Rectf outer = skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                              : getUnclippedOuterRect().get();
    inner.offset(outer.d_min);
    return inner;
}

void Static::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    const Rectf inner = localInnerRect();
    if (d_backgroundEnabled && d_background)
        drawImage(buffer, *d_background, inner, nullptr, faded(d_backgroundColours, alpha));
    if (d_frameEnabled)
    {
        d_frame.setSize(getPixelSize());
        d_frame.setColours(faded(d_frameColours, alpha));
        d_frame.draw(buffer, Vector2f(0, 0), nullptr);
    }
    drawContent(buffer, inner);
}

void Static::drawContent(GeometryBuffer&, const Rectf&) {}

} // namespace MoxieLook
} // namespace CEGUI
