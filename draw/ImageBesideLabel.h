// The layout of selectable buttons (toggle, radio, check box, task-bar button): a state
// image at the left edge, vertically centred, and the label after it.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>

namespace CEGUI
{
class GeometryBuffer;
class Image;
class Window;

namespace MoxieLook
{
struct ImageBesideLabel
{
    Rectf image; //!< window-local
    Rectf label; //!< from the label's top-left to the window's bottom-right
};

//! Both are centred by the integer part of (free height x 0.5 + 0.5); the label starts
//! `padding` pixels after the image.
ImageBesideLabel placeImageBesideLabel(const Sizef& area, const Sizef& imageSize, float lineSpacing,
                                       float padding);

//! Draws `image` (and `overlay` over it, if any) then the window text, left-aligned; the
//! colours are final (the window's alpha already in). `imageScale` stretches the image
//! across and upright (the stock skins' relative sizes).
void drawImageBesideLabel(const Window& window, GeometryBuffer& buffer, const Image& image,
                          const Image* overlay, const ColourRect& imageColours,
                          const ColourRect& textColours, float padding,
                          const Sizef& imageScale = Sizef(1, 1));

} // namespace MoxieLook
} // namespace CEGUI
