#include "looks/MXStatics.h"

#include "draw/Imagery.h"

namespace CEGUI
{
namespace MoxieLook
{
void StaticFrameImages::applyTo(Static& target)
{
    target.setFrameImages(&lookImage(TopLeftImage), &lookImage(TopRightImage),
                          &lookImage(BottomLeftImage), &lookImage(BottomRightImage),
                          &lookImage(LeftImage), &lookImage(TopImage), &lookImage(RightImage),
                          &lookImage(BottomImage));
    target.setBackgroundImage(&lookImage(BackgroundImage));
    setCursorOf(target);
}

void StaticFrameImages::setCursorOf(Window& target)
{
    target.setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXStaticLayout::initialiseComponents()
{
    StaticLayout::initialiseComponents();
    applyTo(*this);
    setFrameEnabled(true);
    setBackgroundEnabled(false);
}

MXStaticText::MXStaticText(const String& type, const String& name) : StaticText(type, name)
{
    applyTo(*this);
}

MXStaticImage::MXStaticImage(const String& type, const String& name) : StaticImage(type, name)
{
    applyTo(*this);
    setFrameEnabled(false);
    setBackgroundEnabled(false);
}

MXStaticImageEx::MXStaticImageEx(const String& type, const String& name) : StaticImageEx(type, name)
{
    // Draws exactly as "MoxieLook/StaticImage" until extra images are added.
    applyTo(*this);
    setFrameEnabled(false);
    setBackgroundEnabled(false);
}

MXAnimatedStaticImage::MXAnimatedStaticImage(const String& type, const String& name)
    : AnimatedStaticImage(type, name)
{
    applyTo(*this);
    setFrameEnabled(false);
    setBackgroundEnabled(false);
}

MXTextItem::MXTextItem(const String& type, const String& name) : TextItem(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

MXTextItemEx::MXTextItemEx(const String& type, const String& name) : TextItemEx(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setSelectionBrush(&lookImage(SelectionBrushImageName));
    setHoverBrush(&lookImage(HoverBrushImageName));
}

} // namespace MoxieLook
} // namespace CEGUI
