// A static showing its window text: colours, horizontal formatting (aligned, justified or
// word-wrapped) and vertical placement inside the frame.
#pragma once

#include "draw/TextDrawing.h"
#include "widgets/Static.h"

namespace CEGUI
{
namespace MoxieLook
{
class StaticText : public Static
{
public:
    StaticText(const String& type, const String& name);

    const ColourRect& getTextColours() const { return d_textColours; }
    void setTextColours(const ColourRect& colours);
    HorzTextFormat getHorizontalFormatting() const { return d_horzFormatting; }
    void setHorizontalFormatting(HorzTextFormat formatting);
    VertTextFormat getVerticalFormatting() const { return d_vertFormatting; }
    void setVerticalFormatting(VertTextFormat formatting);

protected:
    void drawContent(GeometryBuffer& buffer, const Rectf& inner) override;

private:
    void setHorzFormattingName(const String& name)
    {
        setHorizontalFormatting(horzTextFormatFromName(name));
    }
    String getHorzFormattingName() const { return nameOf(d_horzFormatting); }
    void setVertFormattingName(const String& name)
    {
        setVerticalFormatting(vertTextFormatFromName(name));
    }
    String getVertFormattingName() const { return nameOf(d_vertFormatting); }

    ColourRect d_textColours{Colour(0xFF000000)};
    HorzTextFormat d_horzFormatting = HorzTextFormat::Left;
    VertTextFormat d_vertFormatting = VertTextFormat::Centred;
};

} // namespace MoxieLook
} // namespace CEGUI
