#include "looks/MXButton.h"

#include "draw/Imagery.h"
#include "draw/TextDrawing.h"

#include <CEGUI/Font.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXButton::NormalPrimaryColour(0x00AFAFAF);
const Colour MXButton::NormalSecondaryColour(0x00FFFFFF);
const Colour MXButton::HoverPrimaryColour(0x00CFD9CF);
const Colour MXButton::HoverSecondaryColour(0x00F2FFF2);
const Colour MXButton::PushedPrimaryColour(0x00AFAFAF);
const Colour MXButton::PushedSecondaryColour(0x00FFFFFF);
const Colour MXButton::DisabledPrimaryColour(0x00999999);
const Colour MXButton::DisabledSecondaryColour(0x00999999);
const Colour MXButton::EnabledTextLabelColour(0x00000000);
const Colour MXButton::DisabledTextLabelColour(0x00888888);

MXButton::MXButton(const String& type, const String& name) : PushButtonEx(type, name)
{
    storeFrameSizes();
    d_normalFrame.setImages({NormalTopLeftImageName, NormalTopRightImageName,
                             NormalBottomLeftImageName, NormalBottomRightImageName,
                             NormalLeftImageName, NormalTopImageName, NormalRightImageName,
                             NormalBottomImageName});
    d_hoverFrame.setImages({HoverTopLeftImageName, HoverTopRightImageName, HoverBottomLeftImageName,
                            HoverBottomRightImageName, HoverLeftImageName, HoverTopImageName,
                            HoverRightImageName, HoverBottomImageName});
    d_pushedFrame.setImages({PushedTopLeftImageName, PushedTopRightImageName,
                             PushedBottomLeftImageName, PushedBottomRightImageName,
                             PushedLeftImageName, PushedTopImageName, PushedRightImageName,
                             PushedBottomImageName});
    d_background = &lookImage(BackgroundImageName);
    setMouseCursor(&lookImage(MouseCursorImageName));

    setNormalTextColour(EnabledTextLabelColour);
    setHoverTextColour(EnabledTextLabelColour);
    setPushedTextColour(EnabledTextLabelColour);
    setDisabledTextColour(DisabledTextLabelColour);
}

void MXButton::storeFrameSizes()
{
    d_frameSizes.left = lookImage(NormalLeftImageName).getRenderedSize().d_width;
    d_frameSizes.right = lookImage(NormalRightImageName).getRenderedSize().d_width;
    d_frameSizes.top = lookImage(NormalTopImageName).getRenderedSize().d_height;
    d_frameSizes.bottom = lookImage(NormalBottomImageName).getRenderedSize().d_height;
}

void MXButton::drawNormal()
{
    drawState(NormalPrimaryColour, NormalSecondaryColour, d_normalFrame, isNormalImageEnabled(),
              d_normalImage, getNormalTextColour());
}

void MXButton::drawHover()
{
    drawState(HoverPrimaryColour, HoverSecondaryColour, d_hoverFrame, isHoverImageEnabled(),
              d_hoverImage, getHoverTextColour());
}

void MXButton::drawPushed()
{
    drawState(PushedPrimaryColour, PushedSecondaryColour, d_pushedFrame, isPushedImageEnabled(),
              d_pushedImage, getPushedTextColour());
}

void MXButton::drawDisabled()
{
    drawState(DisabledPrimaryColour, DisabledSecondaryColour, d_normalFrame,
              isDisabledImageEnabled(), d_disabledImage, getDisabledTextColour());
}

void MXButton::drawState(const Colour& primary, const Colour& secondary,
                         const NinePieceFrame& frame, bool useCustomImage,
                         FormattedImage& customImage, const Colour& textColour)
{
    GeometryBuffer& buffer = getGeometryBuffer();
    const Rectf area(Vector2f(0.0f, 0.0f), getPixelSize());
    const float alpha = getEffectiveAlpha();

    if (isStandardImageryEnabled())
        drawFramedFill(buffer, area, *d_background,
                       withAlpha(diagonalGradient(primary, secondary), alpha), frame, d_frameSizes);

    if (useCustomImage)
    {
        customImage.setColours(withAlpha(customImage.getColours(), alpha));
        const Rectf seen = seenForDrawing();
        customImage.draw(buffer, area.d_min, nullptr, &seen);
    }

    const Font* font = getFont();
    if (!font)
        return;
    const float yOffset = std::trunc((area.getHeight() - font->getLineSpacing()) * 0.5f + 0.5f);
    const float xOffset = std::trunc(area.getWidth() * getTextXOffset() + 0.5f);
    const Rectf textArea(area.left() + xOffset, area.top() + yOffset, area.right(), area.bottom());
    drawText(*this, buffer, getRenderedString(), textArea, HorzTextFormat::Centred,
             VertTextFormat::Top, ColourRect(withAlpha(textColour, alpha)), nullptr);
}

void MXButton::onSized(ElementEventArgs& e)
{
    PushButtonEx::onSized(e);
    sizeFrames({&d_normalFrame, &d_hoverFrame, &d_pushedFrame}, getPixelSize());
    ++e.handled;
}

void MXButton::onAlphaChanged(WindowEventArgs& e)
{
    PushButtonEx::onAlphaChanged(e);
    fadeFrames({&d_normalFrame, &d_hoverFrame, &d_pushedFrame}, getEffectiveAlpha());
}

} // namespace MoxieLook
} // namespace CEGUI
