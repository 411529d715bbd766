// Text laid out in a rectangle: aligned, justified or word-wrapped, placed vertically.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>
#include <CEGUI/String.h>
#include <cstddef>

namespace CEGUI
{
class GeometryBuffer;
class RenderedString;
class Window;

namespace MoxieLook
{
enum class HorzTextFormat
{
    Left,
    Right,
    Centred,
    Justified,
    WordWrapLeft,
    WordWrapRight,
    WordWrapCentred,
    WordWrapJustified
};

enum class VertTextFormat
{
    Top,
    Bottom,
    Centred
};

//! The names hosts and layout files use: "LeftAligned", "RightAligned", "HorzCentred",
//! "HorzJustified", "WordWrapLeftAligned", "WordWrapRightAligned", "WordWrapCentred",
//! "WordWrapJustified"; and "TopAligned", "BottomAligned", "VertCentred". CEGUI 0.8's
//! "CentreAligned", "Justified" and "WordWrapCentreAligned" read as their equivalents. An
//! unknown name reads as the first of its list.
HorzTextFormat horzTextFormatFromName(const String& name);
String nameOf(HorzTextFormat format);
VertTextFormat vertTextFormatFromName(const String& name);
String nameOf(VertTextFormat format);

//! A formatting as a property holds it: the value, and the name it was given by, which is
//! what it reads back.
template <typename Format, Format (*FromName)(const String&)>
struct NamedFormat
{
    Format value;
    String name;

    void set(const String& newName)
    {
        value = FromName(newName);
        name = newName;
    }
};
using NamedHorzFormat = NamedFormat<HorzTextFormat, horzTextFormatFromName>;
using NamedVertFormat = NamedFormat<VertTextFormat, vertTextFormatFromName>;

//! Draws `text` (already parsed, with its fonts) into `area`. The colours modulate those
//! of the text itself, which are white unless the text carries its own markup.
//! Returns the height the formatted text takes.
float drawText(const Window& window, GeometryBuffer& buffer, const RenderedString& text,
               const Rectf& area, HorzTextFormat horz, VertTextFormat vert,
               const ColourRect& colours, const Rectf* clip);

//! The extent `text` would take in an area of `width` pixels.
Sizef measureText(const Window& window, const RenderedString& text, float width,
                  HorzTextFormat horz);

//! The size of `text` unwrapped, as CEGUI measures it: its widest line, its lines' heights.
Sizef unwrappedSize(const Window& window, const RenderedString& text);

//! The lines `text` takes in an area of `width` pixels, and the widest of them.
struct TextLines
{
    std::size_t count;
    float widest;
};
TextLines countLines(const Window& window, const RenderedString& text, float width,
                     HorzTextFormat horz);

} // namespace MoxieLook
} // namespace CEGUI
