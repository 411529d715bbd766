#include "looks/MXTooltip.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Font.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
MXTooltip::MXTooltip(const String& type, const String& name)
    : TooltipEx(type, name), d_background(&lookImage(MiddleImageName))
{
    d_frame.setImages({TopLeftImageName, TopRightImageName, BottomLeftImageName,
                       BottomRightImageName, LeftEdgeImageName, TopEdgeImageName,
                       RightEdgeImageName, BottomEdgeImageName});
    d_insets.left = d_frame.pieceWidth(NinePieceFrame::Left);
    d_insets.right = d_frame.pieceWidth(NinePieceFrame::Right);
    d_insets.top = d_frame.pieceHeight(NinePieceFrame::Top);
    d_insets.bottom = d_frame.pieceHeight(NinePieceFrame::Bottom);
    setMouseCursor(&lookImage(MouseCursorImageName));
    setWindowRenderer(MXTooltipRenderer::TypeName);
}

void MXTooltip::onSized(ElementEventArgs& e)
{
    const Sizef asked = getPixelSize();
    const Sizef framed(asked.d_width + std::floor(d_insets.left + d_insets.right + 0.5f),
                       asked.d_height + std::floor(d_insets.top + d_insets.bottom + 0.5f));
    setArea_impl(getPosition(), USize(cegui_absdim(framed.d_width), cegui_absdim(framed.d_height)),
                 false, false);
    d_frame.setSize(getPixelSize());
    TooltipEx::onSized(e);
    ++e.handled;
}

void MXTooltip::updateSelf(float elapsed)
{
    // A redraw asked for while drawing is lost: ask again once the box has grown.
    if (d_skipped)
        invalidate();
    TooltipEx::updateSelf(elapsed);
}

const RenderedString& MXTooltip::targetText()
{
    const String& text = d_target->getTooltipTextIncludingInheritance();
    if (text == getText())
        return getRenderedString();
    d_targetText = getRenderedStringParser().parse(text, getFont(), nullptr);
    return d_targetText;
}

void MXTooltip::populateGeometryBuffer()
{
    d_skipped = false;
    if (!hasVisibleArea(*this))
        return;
    // Measured unclipped: a tip running off the screen would otherwise grow at every draw.
    const Sizef size = getPixelSize();
    const Rectf textArea = d_insets.inside(Rectf(Vector2f(0, 0), size));

    const Font* font = getFont();
    if (d_target && font)
    {
        const float needed =
            countLines(*this, targetText(), textArea.getWidth(), HorzTextFormat::WordWrapLeft)
                .count *
            font->getLineSpacing();
        if (needed > textArea.getHeight())
        {
            setHeight(cegui_absdim(needed + d_insets.top + d_insets.bottom));
            d_skipped = true;
            return;
        }
    }

    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    d_frame.setSize(size);
    d_frame.setColours(withAlpha(d_frameColours, alpha));
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
    drawImage(buffer, *d_background, textArea, nullptr, withAlpha(d_backgroundColours, alpha));
    if (d_target && font)
        drawText(*this, buffer, targetText(), textArea, HorzTextFormat::WordWrapLeft,
                 VertTextFormat::Top, ColourRect(withAlpha(getTextColour(), alpha)), nullptr);
}

Sizef MXTooltipRenderer::getTextSize() const
{
    if (!look())
        return Sizef(0, 0);
    const Sizef size = look()->getTextSize();
    return Sizef(std::ceil(size.d_width), std::ceil(size.d_height));
}

} // namespace MoxieLook
} // namespace CEGUI
