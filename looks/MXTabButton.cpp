#include "looks/MXTabButton.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"
#include "widgets/CornerColourProperty.h"

#include <CEGUI/Font.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXTabButton::EnabledTextLabelColour(0x00000000);
const Colour MXTabButton::DisabledTextLabelColour(0x00888888);
const Colour MXTabButton::SelectedMiddleColour(0.97645f, 0.97255f, 0.9451f, 0.0f);
const Colour MXTabButton::NormalGradientFootColour(0.75f, 0.75f, 0.75f, 1.0f);
const Colour MXTabButton::HoverGradientFootColour(0.85f, 0.85f, 0.85f, 1.0f);

namespace
{
Sizef sizeOf(const Image* image)
{
    return image->getRenderedSize();
}

void put(GeometryBuffer& buffer, const Image* image, float x, float y, const Sizef& size,
         const ColourRect& colours)
{
    drawImage(buffer, *image, Rectf(Vector2f(x, y), size), nullptr, colours);
}

ColourRect verticalGradient(const Colour& foot, float alpha)
{
    const Colour top(1.0f, 1.0f, 1.0f, 1.0f);
    return withAlpha(ColourRect(top, top, foot, foot), alpha);
}
} // namespace

MXTabButton::MXTabButton(const String& type, const String& name)
    : RedrawnWhenUncovered<TabButton>(type, name), d_leftNormal(&lookImage(LeftNormalImageName)),
      d_middleNormal(&lookImage(MiddleNormalImageName)),
      d_rightNormal(&lookImage(RightNormalImageName)),
      d_upperLeftNormal(&lookImage(UpperLeftNormalImageName)),
      d_upperRightNormal(&lookImage(UpperRightNormalImageName)),
      d_upperNormal(&lookImage(UpperNormalImageName)),
      d_lowerNormal(&lookImage(LowerNormalImageName)),
      d_lowerLeftNormal(&lookImage(LowerLeftNormalImageName)),
      d_lowerRightNormal(&lookImage(LowerRightNormalImageName)),
      d_leftSelected(&lookImage(LeftSelectedImageName)),
      d_middleSelected(&lookImage(MiddleSelectedImageName)),
      d_rightSelected(&lookImage(RightSelectedImageName)),
      d_upperLeftSelected(&lookImage(UpperLeftSelectedImageName)),
      d_upperRightSelected(&lookImage(UpperRightSelectedImageName)),
      d_upperSelected(&lookImage(UpperSelectedImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));

    const String propertyOrigin(WidgetTypeName);
    MOXIE_DEFINE_COLOUR_PROPERTY(MXTabButton, "NormalTextColour",
                                 "Property to get/set the label colour of a tab at rest.",
                                 &MXTabButton::setNormalTextColour,
                                 &MXTabButton::getNormalTextColour, opaque(EnabledTextLabelColour));
    MOXIE_DEFINE_COLOUR_PROPERTY(
        MXTabButton, "PushedTextColour",
        "Property to get/set the label colour of a selected, pressed or hovered "
        "tab.",
        &MXTabButton::setPushedTextColour, &MXTabButton::getPushedTextColour,
        opaque(EnabledTextLabelColour));
    MOXIE_DEFINE_COLOUR_PROPERTY(MXTabButton, "HoverTextColour",
                                 "Property to get/set the label's colour under the pointer.",
                                 &MXTabButton::setHoverTextColour, &MXTabButton::getHoverTextColour,
                                 opaque(EnabledTextLabelColour));
    MOXIE_DEFINE_COLOUR_PROPERTY(
        MXTabButton, "SelectedTextColour", "Property to get/set the selected tab's label colour.",
        &MXTabButton::setSelectedTextColour, &MXTabButton::getSelectedTextColour,
        opaque(EnabledTextLabelColour));
    MOXIE_DEFINE_COLOUR_PROPERTY(MXTabButton, "DisabledTextColour",
                                 "Property to get/set the label colour of a disabled tab.",
                                 &MXTabButton::setDisabledTextColour,
                                 &MXTabButton::getDisabledTextColour,
                                 opaque(DisabledTextLabelColour));
}

void MXTabButton::setNormalTextColour(const Colour& colour)
{
    d_normalTextColour = colour;
    invalidate();
}

void MXTabButton::setPushedTextColour(const Colour& colour)
{
    d_pushedTextColour = colour;
    invalidate();
}

void MXTabButton::setHoverTextColour(const Colour& colour)
{
    d_hoverTextColour = colour;
    invalidate();
}

void MXTabButton::setSelectedTextColour(const Colour& colour)
{
    d_selectedTextColour = colour;
    invalidate();
}

void MXTabButton::setDisabledTextColour(const Colour& colour)
{
    d_disabledTextColour = colour;
    invalidate();
}

void MXTabButton::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    // A disabled tab control greys its tabs too; the selected one keeps its shape.
    if (isEffectiveDisabled() && isSelected())
        drawSelectedSet(0, withAlpha(ColourRect(SelectedMiddleColour), getEffectiveAlpha()),
                        d_disabledTextColour);
    else if (isEffectiveDisabled())
        drawDisabled();
    else if (isHovering())
        drawHover();
    else if (isPushed() || isSelected())
        drawPushed();
    else
        drawNormal();
}

void MXTabButton::drawNormal()
{
    drawAtRest(d_normalTextColour);
}

void MXTabButton::drawDisabled()
{
    drawAtRest(d_disabledTextColour);
}

void MXTabButton::drawAtRest(const Colour& textColour)
{
    GeometryBuffer& buffer = getGeometryBuffer();
    const Sizef area = getPixelSize();
    const float alpha = getEffectiveAlpha();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha);
    const ColourRect grey = verticalGradient(NormalGradientFootColour, alpha);

    // Both side columns are as wide as the upper middle piece.
    const float side = sizeOf(d_upperNormal).d_width;
    const float upper = sizeOf(d_upperNormal).d_height;
    const float lower = sizeOf(d_lowerNormal).d_height;
    const float middleWidth = area.d_width - side - side;
    const float middleHeight = area.d_height - upper - lower;
    const float top = NormalShift;
    const float columnHeight = middleHeight - NormalShift;

    float y = top;
    put(buffer, d_upperLeftNormal, 0, y, sizeOf(d_upperLeftNormal), white);
    y += sizeOf(d_upperLeftNormal).d_height;
    put(buffer, d_leftNormal, 0, y, Sizef(sizeOf(d_leftNormal).d_width, columnHeight), white);
    y += columnHeight;
    put(buffer, d_lowerLeftNormal, 0, y, sizeOf(d_lowerLeftNormal), white);

    const float middleX = sizeOf(d_upperLeftNormal).d_width;
    put(buffer, d_upperNormal, middleX, top, Sizef(middleWidth, upper), white);
    put(buffer, d_middleNormal, middleX, top + upper, Sizef(middleWidth, columnHeight), grey);

    float x = area.d_width - sizeOf(d_upperRightNormal).d_width;
    y = top;
    put(buffer, d_upperRightNormal, x, y, sizeOf(d_upperRightNormal), white);
    y += sizeOf(d_upperRightNormal).d_height;
    x = area.d_width - sizeOf(d_rightNormal).d_width;
    put(buffer, d_rightNormal, x, y, Sizef(sizeOf(d_rightNormal).d_width, columnHeight), white);
    y += columnHeight;
    x = area.d_width - sizeOf(d_lowerRightNormal).d_width;
    put(buffer, d_lowerRightNormal, x, y, sizeOf(d_lowerRightNormal), white);

    put(buffer, d_lowerNormal, sizeOf(d_lowerLeftNormal).d_width, area.d_height - lower,
        Sizef(middleWidth, lower), white);

    if (const Font* font = getFont())
        drawLabel(std::trunc((area.d_height - font->getLineSpacing()) * 0.5f + 0.5f), textColour);
}

void MXTabButton::drawPushed()
{
    drawSelectedSet(0, withAlpha(ColourRect(SelectedMiddleColour), getEffectiveAlpha()),
                    isSelected() && !isPushed() ? getSelectedTextColour() : d_pushedTextColour);
}

void MXTabButton::drawHover()
{
    if (isSelected())
    {
        drawPushed();
        return;
    }
    drawSelectedSet(NormalShift, verticalGradient(HoverGradientFootColour, getEffectiveAlpha()),
                    getHoverTextColour());
}

void MXTabButton::drawSelectedSet(float shift, const ColourRect& middle, const Colour& textColour)
{
    GeometryBuffer& buffer = getGeometryBuffer();
    const Sizef area = getPixelSize();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha());

    const Sizef upper = sizeOf(d_upperSelected);
    const float middleWidth = area.d_width - 2 * upper.d_width;
    const float sideHeight = area.d_height - upper.d_height - shift;

    put(buffer, d_upperLeftSelected, 0, shift, sizeOf(d_upperLeftSelected), white);
    put(buffer, d_leftSelected, 0, shift + sizeOf(d_upperLeftSelected).d_height,
        Sizef(sizeOf(d_leftSelected).d_width, sideHeight), white);

    const float middleX = sizeOf(d_upperLeftSelected).d_width;
    put(buffer, d_upperSelected, middleX, shift, Sizef(middleWidth, upper.d_height), white);
    put(buffer, d_middleSelected, middleX, shift + upper.d_height, Sizef(middleWidth, sideHeight),
        middle);

    put(buffer, d_upperRightSelected, area.d_width - sizeOf(d_upperRightSelected).d_width, shift,
        sizeOf(d_upperRightSelected), white);
    put(buffer, d_rightSelected, area.d_width - sizeOf(d_rightSelected).d_width,
        shift + sizeOf(d_upperRightSelected).d_height,
        Sizef(sizeOf(d_rightSelected).d_width, sideHeight), white);

    if (const Font* font = getFont())
        drawLabel((area.d_height - font->getLineSpacing()) * 0.5f, textColour);
}

void MXTabButton::drawLabel(float top, const Colour& colour)
{
    const Sizef area = getPixelSize();
    drawText(*this, getGeometryBuffer(), getRenderedString(),
             Rectf(0, top, area.d_width, area.d_height), HorzTextFormat::Centred,
             VertTextFormat::Top, faded(ColourRect(colour), getEffectiveAlpha()), nullptr);
}

} // namespace MoxieLook
} // namespace CEGUI
