#include "draw/TextDrawing.h"

#include <CEGUI/CentredRenderedString.h>
#include <CEGUI/JustifiedRenderedString.h>
#include <CEGUI/LeftAlignedRenderedString.h>
#include <CEGUI/RenderedStringWordWrapper.h>
#include <CEGUI/RightAlignedRenderedString.h>
#include <CEGUI/Window.h>
#include <cmath>
#include <memory>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
std::unique_ptr<FormattedRenderedString> formatterFor(const RenderedString& text,
                                                      HorzTextFormat horz)
{
    switch (horz)
    {
    case HorzTextFormat::Right:
        return std::make_unique<RightAlignedRenderedString>(text);
    case HorzTextFormat::Centred:
        return std::make_unique<CentredRenderedString>(text);
    case HorzTextFormat::Justified:
        return std::make_unique<JustifiedRenderedString>(text);
    case HorzTextFormat::WordWrapLeft:
        return std::make_unique<RenderedStringWordWrapper<LeftAlignedRenderedString>>(text);
    case HorzTextFormat::WordWrapRight:
        return std::make_unique<RenderedStringWordWrapper<RightAlignedRenderedString>>(text);
    case HorzTextFormat::WordWrapCentred:
        return std::make_unique<RenderedStringWordWrapper<CentredRenderedString>>(text);
    case HorzTextFormat::WordWrapJustified:
        return std::make_unique<RenderedStringWordWrapper<JustifiedRenderedString>>(text);
    case HorzTextFormat::Left:
        break;
    }
    return std::make_unique<LeftAlignedRenderedString>(text);
}
} // namespace

namespace
{
const char* const HorzNames[] = {"LeftAligned",     "RightAligned",        "HorzCentred",
                                 "HorzJustified",   "WordWrapLeftAligned", "WordWrapRightAligned",
                                 "WordWrapCentred", "WordWrapJustified"};
const char* const VertNames[] = {"TopAligned", "BottomAligned", "VertCentred"};
} // namespace

HorzTextFormat horzTextFormatFromName(const String& name)
{
    for (int i = 0; i < 8; ++i)
        if (name == HorzNames[i])
            return static_cast<HorzTextFormat>(i);
    // CEGUI 0.8's own names, as layouts written for its skins hold them.
    if (name == "CentreAligned")
        return HorzTextFormat::Centred;
    if (name == "Justified")
        return HorzTextFormat::Justified;
    if (name == "WordWrapCentreAligned")
        return HorzTextFormat::WordWrapCentred;
    return HorzTextFormat::Left;
}

String nameOf(HorzTextFormat format)
{
    return HorzNames[static_cast<int>(format)];
}

VertTextFormat vertTextFormatFromName(const String& name)
{
    for (int i = 0; i < 3; ++i)
        if (name == VertNames[i])
            return static_cast<VertTextFormat>(i);
    if (name == "CentreAligned")
        return VertTextFormat::Centred;
    return VertTextFormat::Top;
}

String nameOf(VertTextFormat format)
{
    return VertNames[static_cast<int>(format)];
}

float drawText(const Window& window, GeometryBuffer& buffer, const RenderedString& text,
               const Rectf& area, HorzTextFormat horz, VertTextFormat vert,
               const ColourRect& colours, const Rectf* clip)
{
    auto formatted = formatterFor(text, horz);
    formatted->format(&window, area.getSize());
    const float height = formatted->getVerticalExtent(&window);

    Vector2f position = area.d_min;
    if (vert == VertTextFormat::Centred)
        position.d_y += std::floor((area.getHeight() - height) * 0.5f);
    else if (vert == VertTextFormat::Bottom)
        position.d_y = area.bottom() - height;

    formatted->draw(&window, buffer, position, &colours, clip);
    return height;
}

Sizef measureText(const Window& window, const RenderedString& text, float width,
                  HorzTextFormat horz)
{
    auto formatted = formatterFor(text, horz);
    formatted->format(&window, Sizef(width, 0.0f));
    return Sizef(formatted->getHorizontalExtent(&window), formatted->getVerticalExtent(&window));
}

TextLines countLines(const Window& window, const RenderedString& text, float width,
                     HorzTextFormat horz)
{
    auto formatted = formatterFor(text, horz);
    formatted->format(&window, Sizef(width, 0.0f));
    return {formatted->getFormattedLineCount(), formatted->getHorizontalExtent(&window)};
}

} // namespace MoxieLook
} // namespace CEGUI
