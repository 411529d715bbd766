#include "draw/TextDrawing.h"

#include "draw/GlyphRun.h"

#include <CEGUI/CentredRenderedString.h>
#include <CEGUI/Font.h>
#include <CEGUI/JustifiedRenderedString.h>
#include <CEGUI/LeftAlignedRenderedString.h>
#include <CEGUI/RenderedStringTextComponent.h>
#include <CEGUI/RenderedStringWordWrapper.h>
#include <CEGUI/RightAlignedRenderedString.h>
#include <CEGUI/TextUtils.h>
#include <CEGUI/Window.h>
#include <algorithm>
#include <cmath>
#include <memory>
#include <typeinfo>
#include <vector>

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

namespace
{
// What CEGUI keeps to itself of a rendered string and its text pieces.
struct RenderedStringParts : RenderedString
{
    static constexpr ComponentList RenderedString::*Components = &RenderedStringParts::d_components;
};
struct TextPieceParts : RenderedStringTextComponent
{
    static constexpr const Image* RenderedStringComponent::*SelectionImage =
        &TextPieceParts::d_selectionImage;
    static constexpr std::size_t RenderedStringTextComponent::*SelectionLength =
        &TextPieceParts::d_selectionLength;
};

struct TextPiece
{
    const RenderedStringTextComponent* component;
    const Font* font;
    Sizef size;
};

// One line of plain text pieces (a label without images, line breaks or a selection: what
// nearly every label is), measured as CEGUI measures it. False for anything else.
bool measureOneLine(const Window& window, const RenderedString& text,
                    std::vector<TextPiece>& pieces, Sizef& line)
{
    if (text.getLineCount() != 1)
        return false;
    pieces.clear();
    line = Sizef(0.0f, 0.0f);
    for (const RenderedStringComponent* component : text.*RenderedStringParts::Components)
    {
        // Exactly CEGUI's text piece: a kind of its own may draw itself otherwise.
        const auto* piece = typeid(*component) == typeid(RenderedStringTextComponent)
                                ? static_cast<const RenderedStringTextComponent*>(component)
                                : nullptr;
        if (!piece || piece->getVerticalFormatting() > VF_STRETCHED ||
            (piece->*TextPieceParts::SelectionImage && piece->*TextPieceParts::SelectionLength))
            return false;
        const Font* font = piece->getFont() ? piece->getFont() : window.getFont(true);
        const Rectf& padding = piece->getPadding();
        Sizef size(padding.d_min.d_x + padding.d_max.d_x, padding.d_min.d_y + padding.d_max.d_y);
        if (font)
        {
            size.d_width += glyphExtent(*font, piece->getText());
            size.d_height += font->getFontHeight();
        }
        line.d_width += size.d_width;
        line.d_height = std::max(line.d_height, size.d_height);
        pieces.push_back({piece, font, size});
    }
    return true;
}

// CEGUI's formatters and text pieces, for one line: each piece placed in the line's height
// by its own vertical formatting, its colours modulated, its glyphs from the glyph table.
void drawOneLine(GeometryBuffer& buffer, const std::vector<TextPiece>& pieces, float lineHeight,
                 Vector2f position, const ColourRect& colours, const Rectf* clip)
{
    for (const TextPiece& piece : pieces)
    {
        if (piece.font)
        {
            Vector2f at(position);
            float yScale = 1.0f;
            switch (piece.component->getVerticalFormatting())
            {
            case VF_BOTTOM_ALIGNED:
                at.d_y += lineHeight - piece.size.d_height;
                break;
            case VF_CENTRE_ALIGNED:
                at.d_y += (lineHeight - piece.size.d_height) * 0.5f;
                break;
            case VF_STRETCHED:
                yScale = lineHeight / piece.size.d_height;
                break;
            case VF_TOP_ALIGNED:
            case VF_TILED: // refused when measured
                break;
            }
            at += piece.component->getPadding().getPosition();
            ColourRect pieceColours(piece.component->getColours());
            pieceColours *= colours;
            drawGlyphs(buffer, *piece.font, piece.component->getText(), at, clip, pieceColours,
                       0.0f, 1.0f, yScale);
        }
        position.d_x += piece.size.d_width;
    }
}

// Reused from call to call: a label is measured on every draw.
std::vector<TextPiece>& scratchPieces()
{
    static std::vector<TextPiece> pieces;
    return pieces;
}

bool isOneLineFormat(HorzTextFormat horz)
{
    return horz == HorzTextFormat::Left || horz == HorzTextFormat::Right ||
           horz == HorzTextFormat::Centred;
}

Vector2f placed(const Rectf& area, float height, VertTextFormat vert)
{
    Vector2f position = area.d_min;
    if (vert == VertTextFormat::Centred)
        position.d_y += std::floor((area.getHeight() - height) * 0.5f);
    else if (vert == VertTextFormat::Bottom)
        position.d_y = area.bottom() - height;
    return position;
}
} // namespace

float drawText(const Window& window, GeometryBuffer& buffer, const RenderedString& text,
               const Rectf& area, HorzTextFormat horz, VertTextFormat vert,
               const ColourRect& colours, const Rectf* clip)
{
    std::vector<TextPiece>& pieces = scratchPieces();
    Sizef line;
    if (isOneLineFormat(horz) && measureOneLine(window, text, pieces, line))
    {
        Vector2f position = placed(area, line.d_height, vert);
        if (horz == HorzTextFormat::Right)
            position.d_x += area.getWidth() - line.d_width;
        else if (horz == HorzTextFormat::Centred)
            position.d_x += (area.getWidth() - line.d_width) * 0.5f;
        drawOneLine(buffer, pieces, line.d_height, position, colours, clip);
        return line.d_height;
    }

    auto formatted = formatterFor(text, horz);
    formatted->format(&window, area.getSize());
    const float height = formatted->getVerticalExtent(&window);
    formatted->draw(&window, buffer, placed(area, height, vert), &colours, clip);
    return height;
}

Sizef measureText(const Window& window, const RenderedString& text, float width,
                  HorzTextFormat horz)
{
    auto formatted = formatterFor(text, horz);
    formatted->format(&window, Sizef(width, 0.0f));
    return Sizef(formatted->getHorizontalExtent(&window), formatted->getVerticalExtent(&window));
}

Sizef unwrappedSize(const Window& window, const RenderedString& text)
{
    Sizef size;
    if (measureOneLine(window, text, scratchPieces(), size))
        return size;
    size = Sizef(0.0f, 0.0f);
    for (std::size_t line = 0; line < text.getLineCount(); ++line)
    {
        const Sizef lineSize = text.getPixelSize(&window, line);
        size.d_height += lineSize.d_height;
        size.d_width = std::max(size.d_width, lineSize.d_width);
    }
    return size;
}

namespace
{
// CEGUI's word wrapper on one plain piece of text, step for step: the text is split where
// the next word (with the blanks before it) would pass `width`, a first word too long for
// a line is cut at the width, and the blanks after a split are dropped. Measured through the
// glyph table; CEGUI's wrapper copies and re-measures the whole string at every line.
TextLines wrapOnePiece(const Font& font, const String& text, float width)
{
    const String& blanks = TextUtils::DefaultWrapDelimiters;
    auto nextToken = [&](const String& s, std::size_t from)
    {
        std::size_t word = s.find_first_not_of(blanks, from);
        if (word == String::npos)
            word = from;
        const std::size_t end = std::min(s.find_first_of(blanks, word), s.length());
        return end - from;
    };
    TextLines lines{0, 0.0f};
    String rest = text;
    for (float restWidth; (restWidth = glyphExtent(font, rest)) > 0 && restWidth > width;)
    {
        String left;
        if (rest.length() <= 1)
        {
            left.swap(rest); // cannot be split: it makes a line of its own
        }
        else
        {
            std::size_t leftLength = 0;
            float leftWidth = 0.0f;
            while (leftLength < rest.length())
            {
                const std::size_t token = nextToken(rest, leftLength);
                if (token == 0)
                    break;
                const float tokenWidth = glyphExtent(font, rest.substr(leftLength, token));
                if (leftWidth + tokenWidth > width)
                {
                    if (leftLength == 0)
                        leftLength = std::max<std::size_t>(
                            1, font.getCharAtPixel(rest.substr(0, token), width));
                    break;
                }
                leftLength += token;
                leftWidth += tokenWidth;
            }
            std::size_t restStart = rest.find_first_not_of(blanks, leftLength);
            if (restStart == String::npos)
                restStart = leftLength;
            if (restStart == 0)
                break; // nothing would move on: CEGUI's wrapper would go round for ever
            left = rest.substr(0, leftLength);
            rest = rest.substr(restStart);
        }
        ++lines.count;
        lines.widest = std::max(lines.widest, glyphExtent(font, left));
    }
    ++lines.count;
    lines.widest = std::max(lines.widest, glyphExtent(font, rest));
    return lines;
}
} // namespace

TextLines countLines(const Window& window, const RenderedString& text, float width,
                     HorzTextFormat horz)
{
    const bool wrapped = horz == HorzTextFormat::WordWrapLeft ||
                         horz == HorzTextFormat::WordWrapRight ||
                         horz == HorzTextFormat::WordWrapCentred;
    std::vector<TextPiece>& pieces = scratchPieces();
    Sizef line;
    if (wrapped && measureOneLine(window, text, pieces, line) && pieces.size() == 1 &&
        pieces[0].font && pieces[0].component->getPadding() == Rectf(0, 0, 0, 0))
        return wrapOnePiece(*pieces[0].font, pieces[0].component->getText(), width);
    auto formatted = formatterFor(text, horz);
    formatted->format(&window, Sizef(width, 0.0f));
    return {formatted->getFormattedLineCount(), formatted->getHorizontalExtent(&window)};
}

} // namespace MoxieLook
} // namespace CEGUI
