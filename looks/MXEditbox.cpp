#include "looks/MXEditbox.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
MXEditbox::MXEditbox(const String& type, const String& name) : EditboxEx(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setWindowRenderer(MXEditboxRenderer::TypeName);
    addEditboxColourProperties(*this);
    addCaretBlinkProperties(*this, CaretBlinkTime);
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXEditbox, String, "TextFormatting",
                          "Property to get/set where a text that fits stands: \"LeftAligned\", "
                          "\"RightAligned\" or \"CentreAligned\".",
                          &MXEditbox::setTextFormatting, &MXEditbox::getTextFormatting,
                          "LeftAligned");
}

void MXEditbox::setTextFormatting(const String& name)
{
    const HorzTextFormat alignment = horzTextFormatFromName(name);
    // Unknown names read as the left: only the left's own name is taken for it.
    const bool oneLine = alignment == HorzTextFormat::Right ||
                         alignment == HorzTextFormat::Centred || name == "LeftAligned";
    if (!oneLine)
        throw InvalidRequestException("\"TextFormatting\": '" + name +
                                      "' is no one-line formatting; an edit box takes "
                                      "LeftAligned, RightAligned or CentreAligned.");
    d_alignment.set(name);
    invalidate();
}

Rectf MXEditbox::textArea() const
{
    Rectf area = d_imagery.innerRect(Rectf(Vector2f(0, 0), getPixelSize()));
    area.d_min.d_x += EditboxImagery::TextPadding;
    area.d_max.d_x = std::max(area.d_min.d_x, area.d_max.d_x - EditboxImagery::TextPadding);
    return area;
}

String MXEditbox::visualText() const
{
    if (isTextMasked())
        return String(getText().length(), getMaskCodePoint());
    return getTextVisual();
}

std::size_t MXEditbox::textIndexAt(const Vector2f& screenPoint) const
{
    const Font* font = getFont();
    if (!font)
        return 0;
    // The glyph boundary nearest the point, from where the text starts.
    const float x =
        CoordConverter::screenToWindowX(*this, screenPoint.d_x) - textArea().left() - d_textOffset;
    const String text = visualText();
    const std::size_t index = font->getCharAtPixel(text, x);
    if (index >= text.length())
        return text.length();
    const float before = font->getTextAdvance(text.substr(0, index));
    const float after = font->getTextAdvance(text.substr(0, index + 1));
    return x - before > after - x ? index + 1 : index;
}

void MXEditbox::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const bool focused = hasInputFocus();
    const bool disabled = isEffectiveDisabled();
    d_imagery.drawBox(*this, buffer, focused, isReadOnly(), disabled);
    const Font* font = getFont();
    if (!font)
        return;

    const float alpha = getEffectiveAlpha();
    const Rectf area = textArea();
    const float top = area.top() + std::floor((area.getHeight() - font->getLineSpacing()) * 0.5f);

    if (isPlaceholderShown())
    {
        ColourRect colours(getPlaceholderTextColour());
        colours.modulateAlpha(alpha);
        drawGlyphs(buffer, *font, getPlaceholderText(), Vector2f(area.left(), top), &area, colours);
        d_textOffset = 0;
        return;
    }

    const String text = visualText();
    const std::size_t caret = std::min(getCaretIndex(), text.length());
    const float toCaret = font->getTextAdvance(text.substr(0, caret));
    const float caretWidth = d_imagery.caret().getRenderedSize().d_width;
    d_textOffset = scrolledTextOffset(d_textOffset, area.getWidth(), font->getTextExtent(text),
                                      caretWidth, toCaret, d_alignment.value);
    const float left = area.left() + d_textOffset;

    const std::size_t selStart = std::min(getSelectionStartIndex(), text.length());
    const std::size_t selEnd = std::min(getSelectionEndIndex(), text.length());
    if (selEnd > selStart)
    {
        const float from = left + font->getTextAdvance(text.substr(0, selStart));
        const float to = left + font->getTextAdvance(text.substr(0, selEnd));
        drawImage(buffer, d_imagery.selection(focused),
                  Rectf(from, top, to, top + font->getLineSpacing()), &area,
                  d_imagery.selectionTint(focused, alpha));
    }
    // Before, inside and after the selection, each in its colour.
    const ColourRect normal = d_imagery.textColour(isReadOnly(), disabled, alpha);
    const ColourRect selected = d_imagery.selectedTextColour(alpha);
    float x = left;
    x = drawGlyphs(buffer, *font, text.substr(0, selStart), Vector2f(x, top), &area, normal);
    x = drawGlyphs(buffer, *font, text.substr(selStart, selEnd - selStart), Vector2f(x, top), &area,
                   selEnd > selStart ? selected : normal);
    drawGlyphs(buffer, *font, text.substr(selEnd), Vector2f(x, top), &area, normal);

    if (focused && !isReadOnly() && !disabled && d_blink.shown)
    {
        const float caretX = std::floor(left + toCaret);
        drawImage(buffer, d_imagery.caret(),
                  Rectf(caretX, top, caretX + caretWidth, top + font->getLineSpacing()), &area,
                  withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha));
    }
}

void MXEditbox::onCaretMoved(WindowEventArgs& e)
{
    EditboxEx::onCaretMoved(e);
    restartBlink();
}

void MXEditbox::onTextChanged(WindowEventArgs& e)
{
    EditboxEx::onTextChanged(e);
    restartBlink();
}

void MXEditbox::onActivated(ActivationEventArgs& e)
{
    EditboxEx::onActivated(e);
    restartBlink();
}

} // namespace MoxieLook
} // namespace CEGUI
