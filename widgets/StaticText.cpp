#include "widgets/StaticText.h"

#include "draw/Imagery.h"

namespace CEGUI
{
namespace MoxieLook
{
StaticText::StaticText(const String& type, const String& name) : Static(type, name)
{
    const String propertyOrigin("MoxieLook/StaticText");
    CEGUI_DEFINE_PROPERTY(StaticText, ColourRect, "TextColours",
                          "Property to get/set the text colours." MOXIE_COLOURS_VALUE_HELP,
                          &StaticText::setTextColours, &StaticText::getTextColours,
                          ColourRect(Colour(0xFF000000)));
    CEGUI_DEFINE_PROPERTY(StaticText, String, "HorzFormatting",
                          "Property to get/set the horizontal formatting of the text. Value is "
                          "one of LeftAligned, RightAligned, HorzCentred, HorzJustified, "
                          "WordWrapLeftAligned, WordWrapRightAligned, WordWrapCentred, "
                          "WordWrapJustified.",
                          &StaticText::setHorzFormattingName, &StaticText::getHorzFormattingName,
                          "LeftAligned");
    CEGUI_DEFINE_PROPERTY(StaticText, String, "VertFormatting",
                          "Property to get/set the vertical formatting of the text. Value is "
                          "one of TopAligned, BottomAligned, VertCentred.",
                          &StaticText::setVertFormattingName, &StaticText::getVertFormattingName,
                          "VertCentred");
}

void StaticText::setTextColours(const ColourRect& colours)
{
    d_textColours = colours;
    invalidate();
}

void StaticText::setHorizontalFormatting(HorzTextFormat formatting)
{
    d_horzFormatting = formatting;
    invalidate();
}

void StaticText::setVerticalFormatting(VertTextFormat formatting)
{
    d_vertFormatting = formatting;
    invalidate();
}

void StaticText::drawContent(GeometryBuffer& buffer, const Rectf& inner)
{
    if (getFont())
        drawText(*this, buffer, getRenderedString(), inner, d_horzFormatting, d_vertFormatting,
                 faded(d_textColours, getEffectiveAlpha()), nullptr);
}

} // namespace MoxieLook
} // namespace CEGUI
