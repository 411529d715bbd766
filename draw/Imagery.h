// Shared access to the "MoxieLook" imageset and the colour rules every look follows.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Image.h>
#include <CEGUI/Size.h>
#include <CEGUI/String.h>
#include <CEGUI/UDim.h>
#include <CEGUI/Vector.h>

//! The end of a colour-rectangle property's help text: the values it takes. A literal, so
//! that it joins the text before it where the property is defined.
#define MOXIE_COLOURS_VALUE_HELP                                                                   \
    " Value is \"aarrggbb\" or \"tl:aarrggbb tr:aarrggbb bl:aarrggbb br:aarrggbb\"."

namespace CEGUI
{
class Window;

namespace MoxieLook
{
//! The imageset every look draws from.
inline constexpr char ImagesetName[] = "MoxieLook";

//! An image of the "MoxieLook" imageset, by its name inside the set.
//! Throws CEGUI's UnknownObjectException when the imageset lacks it.
const Image& lookImage(const String& name);
//! The same for a name known as text: the full name is built once per name.
const Image& lookImage(const char* name);

//! The module's colour constants carry no alpha: every use takes the window's.
Colour withAlpha(Colour colour, float alpha);
ColourRect withAlpha(ColourRect colours, float alpha);

//! A constant as a host would give it: opaque, so that faded() leaves the window's alpha.
Colour opaque(Colour colour);

//! Colours a host chose keep their own alpha, faded by the window's.
ColourRect faded(ColourRect colours, float alpha);

//! Primary in the top-left and bottom-right corners, secondary in the other two.
ColourRect diagonalGradient(const Colour& primary, const Colour& secondary);

//! A UDim in pixels against `base`, 0 when it is no number. (CEGUI's CoordConverter rounds
//! through an int, which a NaN or a huge value makes undefined.)
float pixelsOf(const UDim& dim, float base);
Vector2f pixelsOf(const UVector2& position, const Sizef& base);

//! All four edges are numbers (a hostile size can make them NaN or infinite).
bool isFiniteRect(const Rectf& rect);

//! A window whose clipped width is 0 draws nothing at all.
bool hasVisibleArea(const Window& window);

} // namespace MoxieLook
} // namespace CEGUI
