#include "looks/MXMultiLineEditBox.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/InnerBars.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
MXMultiLineEditBox::MXMultiLineEditBox(const String& type, const String& name)
    : RedrawnWhenUncovered<MultiLineEditbox>(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setWindowRenderer(MXMultiLineEditBoxRenderer::TypeName);
    setSelectionBrushImage(&lookImage(EditboxImagery::SelectionImageName));
    // A caret that just moved is shown at once.
    subscribeEvent(EventCaretMoved, [this] { restartBlink(); });
    addEditboxColourProperties(*this);
    addCaretBlinkProperties(*this, CaretBlinkTime);
}

void MXMultiLineEditBox::initialiseComponents()
{
    // A box from a layout file may bring its bars already.
    const std::pair<const String*, const char*> bars[] = {{&VertScrollbarName, VertScrollbarType},
                                                          {&HorzScrollbarName, HorzScrollbarType}};
    for (const auto& [name, type] : bars)
        if (!isChild(*name))
        {
            Scrollbar* bar = createAutoPart<Scrollbar>(type, *name, "an edit box's scroll bar");
            bar->setNonClient(true);
            addChild(bar);
        }
    RedrawnWhenUncovered<MultiLineEditbox>::initialiseComponents();
    // CEGUI's box always ends in a line break: the widget adds it on every text change and
    // its Falagard renderer to a text never set. Without it an empty box has no line and
    // CEGUI's hit test reads past the end of its line list.
    if (getText().empty() || getText()[getText().length() - 1] != '\n')
        setText(getText() + "\n");
    // CEGUI shows and hides the bars after the layout: each one's length depends on the other.
    for (Scrollbar* bar : {getVertScrollbar(), getHorzScrollbar()})
        for (const String* event : {&Window::EventShown, &Window::EventHidden})
            bar->subscribeEvent(*event, [this] { layOutBars(); });
}

void MXMultiLineEditBox::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    RedrawnWhenUncovered<MultiLineEditbox>::performChildWindowLayout(nonclientSizedHint,
                                                                     clientSizedHint);
    layOutBars();
}

void MXMultiLineEditBox::layOutBars()
{
    Window* vert = partOrNull(*this, VertScrollbarName);
    Window* horz = partOrNull(*this, HorzScrollbarName);
    if (!vert || !horz)
        return;
    layOutInnerBars(vert, horz, d_imagery.innerRect(Rectf(Vector2f(0, 0), getPixelSize())),
                    ScrollbarThickness);
}

Rectf MXMultiLineEditBox::textRenderArea() const
{
    Rectf area = areaBesideInnerBars(d_imagery.innerRect(Rectf(Vector2f(0, 0), getPixelSize())),
                                     partOrNull(*this, VertScrollbarName),
                                     partOrNull(*this, HorzScrollbarName), ScrollbarThickness);
    area.d_min.d_x += EditboxImagery::TextPadding;
    area.d_max.d_x -= EditboxImagery::TextPadding;
    area.d_max.d_x = std::max(area.d_min.d_x, area.d_max.d_x);
    area.d_max.d_y = std::max(area.d_min.d_y, area.d_max.d_y);
    // CEGUI wraps a line into an endless list of empty ones when not even one character
    // fits the width; narrower than a line is high (wider than any glyph), it wraps nothing.
    const Font* font = getFont();
    if (font && area.getWidth() < font->getLineSpacing())
        area.d_max.d_x = area.d_min.d_x;
    return area;
}

void MXMultiLineEditBox::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const bool focused = hasInputFocus();
    const bool disabled = isEffectiveDisabled();
    d_imagery.drawBox(*this, buffer, focused, isReadOnly(), disabled);
    const Rectf area = textRenderArea();
    d_clipWatch.drawnWith(*this, getOuterRectClipper());
    drawLines(buffer, area);

    const Font* font = getFont();
    if (!font || !focused || isReadOnly() || disabled || !d_blink.shown)
        return;
    const LineList& lines = getFormattedLines();
    const std::size_t line = getLineNumberFromIndex(getCaretIndex());
    if (line >= lines.size())
        return;
    const std::size_t inLine = getCaretIndex() - lines[line].d_startIdx;
    const float x = area.left() - scrollOf(*this, HorzScrollbarName) +
                    font->getTextAdvance(getText().substr(lines[line].d_startIdx, inLine));
    const float y = area.top() - scrollOf(*this, VertScrollbarName) +
                    static_cast<float>(line) * font->getLineSpacing();
    const float width = d_imagery.caret().getRenderedSize().d_width;
    drawImage(buffer, d_imagery.caret(),
              Rectf(std::floor(x), y, std::floor(x) + width, y + font->getLineSpacing()), &area,
              withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha()));
}

void MXMultiLineEditBox::drawLines(GeometryBuffer& buffer, const Rectf& area)
{
    const Font* font = getFont();
    if (!font)
        return;
    const float alpha = getEffectiveAlpha();
    const float spacing = font->getLineSpacing();
    const ColourRect normal = d_imagery.textColour(isReadOnly(), isEffectiveDisabled(), alpha);
    const ColourRect selectedText = d_imagery.selectedTextColour(alpha);
    const ColourRect brush = d_imagery.selectionTint(hasInputFocus(), alpha);
    // The look's own brush changes with focus; a host's brush stays as it was given.
    const Image* hostBrush = getSelectionBrushImage();
    const bool ownBrush = !hostBrush || hostBrush == &lookImage(EditboxImagery::SelectionImageName);
    const Image& selection = ownBrush ? d_imagery.selection(hasInputFocus()) : *hostBrush;
    const LineList& lines = getFormattedLines();
    const String& text = getTextVisual();
    const float left = area.left() - scrollOf(*this, HorzScrollbarName);
    const float scroll = scrollOf(*this, VertScrollbarName);

    // Only the lines in view: from the first the scroll position reaches, one area high.
    const std::size_t first = static_cast<std::size_t>(std::max(0.0f, scroll / spacing));
    const std::size_t last =
        std::min(lines.size(), first + 2 + static_cast<std::size_t>(area.getHeight() / spacing));
    const std::size_t selStart = getSelectionStartIndex();
    const std::size_t selEnd = getSelectionEndIndex();
    for (std::size_t i = first; i < last; ++i)
    {
        const LineInfo& line = lines[i];
        const float top = area.top() - scroll + static_cast<float>(i) * spacing;
        const String lineText = text.substr(line.d_startIdx, line.d_length);
        const std::size_t lineEnd = line.d_startIdx + line.d_length;
        if (selEnd <= line.d_startIdx || selStart >= lineEnd || selStart == selEnd)
        {
            drawGlyphs(buffer, *font, lineText, Vector2f(left, top), &area, normal);
            continue;
        }
        const std::size_t from = std::max(selStart, line.d_startIdx) - line.d_startIdx;
        const std::size_t to = std::min(selEnd, lineEnd) - line.d_startIdx;
        const float fromX = left + font->getTextAdvance(lineText.substr(0, from));
        const float toX = left + font->getTextAdvance(lineText.substr(0, to));
        drawImage(buffer, selection, Rectf(fromX, top, toX, top + spacing), &area, brush);
        float x =
            drawGlyphs(buffer, *font, lineText.substr(0, from), Vector2f(left, top), &area, normal);
        x = drawGlyphs(buffer, *font, lineText.substr(from, to - from), Vector2f(x, top), &area,
                       selectedText);
        drawGlyphs(buffer, *font, lineText.substr(to), Vector2f(x, top), &area, normal);
    }
}

void MXMultiLineEditBox::notifyScreenAreaChanged(bool recursive)
{
    RedrawnWhenUncovered<MultiLineEditbox>::notifyScreenAreaChanged(recursive);
    if (d_clipWatch.uncovers(*this, getOuterRectClipper()))
        invalidate(false);
}

void MXMultiLineEditBox::onTextChanged(WindowEventArgs& e)
{
    RedrawnWhenUncovered<MultiLineEditbox>::onTextChanged(e);
    restartBlink();
}

void MXMultiLineEditBox::onActivated(ActivationEventArgs& e)
{
    RedrawnWhenUncovered<MultiLineEditbox>::onActivated(e);
    restartBlink();
}

void MXMultiLineEditBox::onDeactivated(ActivationEventArgs& e)
{
    RedrawnWhenUncovered<MultiLineEditbox>::onDeactivated(e);
    invalidate();
}

} // namespace MoxieLook
} // namespace CEGUI
