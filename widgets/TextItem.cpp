#include "widgets/TextItem.h"

#include "draw/Imagery.h"

#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
TextItem::TextItem(const String& type, const String& name)
    : RedrawnWhenUncovered<Window>(type, name)
{
    const String propertyOrigin("MoxieLook/TextItem");
    CEGUI_DEFINE_PROPERTY(TextItem, Colour, "TextColour",
                          "Property to get/set the text colour. Value is \"aarrggbb\".",
                          &TextItem::setTextColour, &TextItem::getTextColour, Colour(0xFF000000));
    CEGUI_DEFINE_PROPERTY(TextItem, String, "TextFormatting",
                          "Property to get/set the horizontal formatting of the text. Value is "
                          "one of LeftAligned, RightAligned, HorzCentred, HorzJustified, "
                          "WordWrapLeftAligned, WordWrapRightAligned, WordWrapCentred, "
                          "WordWrapJustified.",
                          &TextItem::setFormattingName, &TextItem::getFormattingName,
                          "LeftAligned");
    CEGUI_DEFINE_PROPERTY(TextItem, bool, "AutoSized",
                          "Property to get/set whether the item sizes itself to its text. Value "
                          "is either \"True\" or \"False\".",
                          &TextItem::setAutoSized, &TextItem::isAutoSized, false);
}

void TextItem::setTextColour(const Colour& colour)
{
    d_textColour = colour;
    invalidate();
}

void TextItem::setTextFormatting(HorzTextFormat formatting)
{
    d_formatting = formatting;
    invalidate();
}

Sizef TextItem::getContentSize() const
{
    if (!getFont())
        return Sizef(2 * TextPadding, 0);
    const float width = std::max(getPixelSize().d_width - 2 * TextPadding, 0.0f);
    const Sizef text = measureText(*this, getRenderedString(), width, d_formatting);
    return Sizef(text.d_width + 2 * TextPadding, text.d_height);
}

void TextItem::sizeToFit()
{
    const Sizef size = getContentSize();
    setSize(USize(cegui_absdim(size.d_width), cegui_absdim(size.d_height)));
}

void TextItem::setAutoSized(bool autoSized)
{
    d_autoSized = autoSized;
    if (autoSized)
        sizeToFit();
}

Rectf TextItem::textArea() const
{
    return Rectf(TextPadding, 0, getPixelSize().d_width - TextPadding, getPixelSize().d_height);
}

void TextItem::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    drawBackdrop(buffer);
    if (getFont())
        drawText(*this, buffer, getRenderedString(), textArea(), d_formatting,
                 VertTextFormat::Centred,
                 faded(ColourRect(currentTextColour()), getEffectiveAlpha()), nullptr);
}

void TextItem::onTextChanged(WindowEventArgs& e)
{
    Window::onTextChanged(e);
    if (d_autoSized)
        sizeToFit();
}

void TextItem::onFontChanged(WindowEventArgs& e)
{
    Window::onFontChanged(e);
    if (d_autoSized)
        sizeToFit();
}

} // namespace MoxieLook
} // namespace CEGUI
