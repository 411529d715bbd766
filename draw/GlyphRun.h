// Text drawn glyph by glyph as CEGUI's Font::drawText draws it, vertex for vertex, without
// its costs per glyph: a map lookup, a virtual image render, six colour constructions and
// one buffer append. Glyphs are looked up once per font and codepoint, and the quads of one
// texture go to the buffer in one append.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>
#include <CEGUI/String.h>

namespace CEGUI
{
class Font;
class GeometryBuffer;

namespace MoxieLook
{
//! Font::drawText's drawing: the same vertices, colours and texture coordinates, in the
//! same order. Returns the pen's x after the last glyph.
float drawGlyphs(GeometryBuffer& buffer, const Font& font, const String& text,
                 const Vector2f& position, const Rectf* clip, const ColourRect& colours,
                 float spaceExtra = 0.0f, float xScale = 1.0f, float yScale = 1.0f);

//! Font::getTextExtent, from the same glyph table.
float glyphExtent(const Font& font, const String& text);

//! Starts listening to CEGUI's fonts (a size change empties a font's table, a font destroyed
//! or replaced drops it); done when the module's types join CEGUI, before any of its windows
//! is made, and again on first use if need be.
void attachGlyphTables();

//! Drops every font's table and stops listening to CEGUI's fonts: for when the module's
//! types leave CEGUI (the fonts may outlive the module, or be replaced at the same place).
void forgetGlyphTables();

} // namespace MoxieLook
} // namespace CEGUI
