#include "looks/MXButton.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"

#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/falagard/XMLEnumHelper.h>
#include <algorithm>
#include <cmath>
#include <iterator>

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
    storeFrameSizes();
    d_background = &lookImage(BackgroundImageName);
    setMouseCursor(&lookImage(MouseCursorImageName));

    // Held opaque so that a colour a host gives keeps its own alpha when drawn.
    setNormalTextColour(opaque(EnabledTextLabelColour));
    setHoverTextColour(opaque(EnabledTextLabelColour));
    setPushedTextColour(opaque(EnabledTextLabelColour));
    setDisabledTextColour(opaque(DisabledTextLabelColour));

    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXButton, HorizontalFormatting, "HorzImageFormatting",
                          "Property to get/set how the custom images are placed across: "
                          "\"LeftAligned\", \"CentreAligned\", \"RightAligned\", "
                          "\"Stretched\" or \"Tiled\".",
                          &MXButton::setHorzImageFormatting, &MXButton::getHorzImageFormatting,
                          HF_STRETCHED);
    CEGUI_DEFINE_PROPERTY(MXButton, VerticalFormatting, "VertImageFormatting",
                          "Property to get/set how the custom images are placed upright: "
                          "\"TopAligned\", \"CentreAligned\", \"BottomAligned\", "
                          "\"Stretched\" or \"Tiled\".",
                          &MXButton::setVertImageFormatting, &MXButton::getVertImageFormatting,
                          VF_STRETCHED);
    CEGUI_DEFINE_PROPERTY(MXButton, String, "HorzLabelFormatting",
                          "Property to get/set the label's horizontal formatting: "
                          "\"LeftAligned\", \"RightAligned\", \"CentreAligned\", "
                          "\"Justified\", \"WordWrapLeftAligned\", ...",
                          &MXButton::setHorzLabelFormatting, &MXButton::getHorzLabelFormatting,
                          "CentreAligned");
    CEGUI_DEFINE_PROPERTY(MXButton, String, "VertLabelFormatting",
                          "Property to get/set the label's vertical formatting: \"TopAligned\", "
                          "\"BottomAligned\", \"CentreAligned\".",
                          &MXButton::setVertLabelFormatting, &MXButton::getVertLabelFormatting,
                          "CentreAligned");
}

void MXButton::setHorzImageFormatting(HorizontalFormatting formatting)
{
    d_horzImageFormatting = formatting;
    invalidate();
}

void MXButton::setVertImageFormatting(VerticalFormatting formatting)
{
    d_vertImageFormatting = formatting;
    invalidate();
}

void MXButton::setHorzLabelFormatting(const String& name)
{
    d_horzLabel.set(name);
    invalidate();
}

void MXButton::setVertLabelFormatting(const String& name)
{
    d_vertLabel.set(name);
    invalidate();
}

namespace
{
// CEGUI's formatting, in the numbering the button's images know.
FormattedImage::HorzFormatting formattingOf(HorizontalFormatting formatting)
{
    static constexpr FormattedImage::HorzFormatting across[] = {
        FormattedImage::LeftAligned, FormattedImage::HorzCentred, FormattedImage::RightAligned,
        FormattedImage::HorzStretched, FormattedImage::HorzTiled};
    return across[std::min<std::size_t>(formatting, std::size(across) - 1)];
}

FormattedImage::VertFormatting formattingOf(VerticalFormatting formatting)
{
    static constexpr FormattedImage::VertFormatting upright[] = {
        FormattedImage::TopAligned, FormattedImage::VertCentred, FormattedImage::BottomAligned,
        FormattedImage::VertStretched, FormattedImage::VertTiled};
    return upright[std::min<std::size_t>(formatting, std::size(upright) - 1)];
}
} // namespace

void MXButton::storeFrameSizes()
{
    // The frame's own edges: the same images, already fetched.
    d_frameSizes = edgesOf(d_normalFrame);
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
        // Applied here: an image given later comes stretched.
        if (d_horzImageFormatting)
            customImage.setHorzFormatting(formattingOf(*d_horzImageFormatting));
        if (d_vertImageFormatting)
            customImage.setVertFormatting(formattingOf(*d_vertImageFormatting));
        customImage.setColours(customImageColours(customImage.getColours(), alpha));
        const Rectf seen = seenForDrawing();
        customImage.draw(buffer, area.d_min, nullptr, &seen);
    }

    const Font* font = getFont();
    if (!font)
        return;
    // One centred line by the line's height, rounded as the button has always been; a
    // wrapped label is centred as a block.
    const bool wraps = d_horzLabel.value >= HorzTextFormat::WordWrapLeft;
    const bool oneCentredLine = d_vertLabel.value == VertTextFormat::Centred && !wraps;
    const float yOffset =
        oneCentredLine ? std::trunc((area.getHeight() - font->getLineSpacing()) * 0.5f + 0.5f)
                       : 0.0f;
    const float xOffset = std::trunc(area.getWidth() * getTextXOffset() + 0.5f);
    const Rectf textArea(area.left() + xOffset, area.top() + yOffset, area.right(), area.bottom());
    drawText(*this, buffer, getRenderedString(), textArea, d_horzLabel.value,
             oneCentredLine ? VertTextFormat::Top : d_vertLabel.value,
             faded(ColourRect(textColour), alpha), nullptr);
}

ColourRect MXButton::customImageColours(const ColourRect& own, float alpha) const
{
    return withAlpha(own, alpha);
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

const Colour MXImageButton::DisabledImageColour(0x007F7F7F);

MXImageButton::MXImageButton(const String& type, const String& name) : MXButton(type, name)
{
    setStandardImageryEnabled(false);
    const String propertyOrigin(WidgetTypeName);
    const String colourHelp = MOXIE_COLOURS_VALUE_HELP;
    CEGUI_DEFINE_PROPERTY(MXImageButton, ColourRect, "NormalImageColour",
                          "Property to get/set the image's colours at rest." + colourHelp,
                          &MXImageButton::setNormalImageColour,
                          &MXImageButton::getNormalImageColour, ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(MXImageButton, ColourRect, "HoverImageColour",
                          "Property to get/set the image's colours under the pointer." + colourHelp,
                          &MXImageButton::setHoverImageColour, &MXImageButton::getHoverImageColour,
                          ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(MXImageButton, ColourRect, "PushedImageColour",
                          "Property to get/set the image's colours while pressed." + colourHelp,
                          &MXImageButton::setPushedImageColour,
                          &MXImageButton::getPushedImageColour, ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(MXImageButton, ColourRect, "DisabledImageColour",
                          "Property to get/set the image's colours while disabled." + colourHelp,
                          &MXImageButton::setDisabledImageColour,
                          &MXImageButton::getDisabledImageColour, d_disabledTint);
}

void MXImageButton::setNormalImageColour(const ColourRect& colours)
{
    d_normalTint = colours;
    invalidate();
}

void MXImageButton::setHoverImageColour(const ColourRect& colours)
{
    d_hoverTint = colours;
    invalidate();
}

void MXImageButton::setPushedImageColour(const ColourRect& colours)
{
    d_pushedTint = colours;
    invalidate();
}

void MXImageButton::setDisabledImageColour(const ColourRect& colours)
{
    d_disabledTint = colours;
    invalidate();
}

void MXImageButton::drawTinted(const Colour& primary, const Colour& secondary,
                               const NinePieceFrame& frame, FormattedImage& image,
                               const ColourRect& tint, const Colour& textColour)
{
    // The image keeps its own colours however the draw ends.
    struct Restore
    {
        FormattedImage& image;
        const ColourRect own;
        ~Restore() { image.setColours(own); }
    } restore{image, image.getColours()};
    image.setColours(tint);
    drawState(primary, secondary, frame, image.getImage() != nullptr, image, textColour);
}

ColourRect MXImageButton::customImageColours(const ColourRect& own, float alpha) const
{
    return faded(own, alpha);
}

void MXImageButton::drawNormal()
{
    drawTinted(NormalPrimaryColour, NormalSecondaryColour, d_normalFrame, d_normalImage,
               d_normalTint, getNormalTextColour());
}

// A state without its own image shows the normal one, in the state's tint.
void MXImageButton::drawHover()
{
    drawTinted(HoverPrimaryColour, HoverSecondaryColour, d_hoverFrame,
               isHoverImageEnabled() ? d_hoverImage : d_normalImage, d_hoverTint,
               getHoverTextColour());
}

void MXImageButton::drawPushed()
{
    drawTinted(PushedPrimaryColour, PushedSecondaryColour, d_pushedFrame,
               isPushedImageEnabled() ? d_pushedImage : d_normalImage, d_pushedTint,
               getPushedTextColour());
}

void MXImageButton::drawDisabled()
{
    drawTinted(DisabledPrimaryColour, DisabledSecondaryColour, d_normalFrame,
               isDisabledImageEnabled() ? d_disabledImage : d_normalImage, d_disabledTint,
               getDisabledTextColour());
}

MXIconButton::MXIconButton(const String& type, const String& name) : MXButton(type, name)
{
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXIconButton, Image*, "IconImage",
                          "Property to get/set the icon, centred at its own size. Value is an "
                          "image name such as \"MoxieLook/IconStar\".",
                          &MXIconButton::setIconImage, &MXIconButton::getIconImage, nullptr);
    CEGUI_DEFINE_PROPERTY(MXIconButton, ColourRect, "IconColours",
                          "Property to get/set the icon's colours." MOXIE_COLOURS_VALUE_HELP,
                          &MXIconButton::setIconColours, &MXIconButton::getIconColours,
                          ColourRect(Colour(0xFFFFFFFF)));
}

void MXIconButton::setIconImage(const Image* image)
{
    d_icon = image;
    invalidate();
}

void MXIconButton::setIconColours(const ColourRect& colours)
{
    d_iconColours = colours;
    invalidate();
}

void MXIconButton::drawNormal()
{
    MXButton::drawNormal();
    drawIcon(1.0f);
}

void MXIconButton::drawHover()
{
    MXButton::drawHover();
    drawIcon(1.0f);
}

void MXIconButton::drawPushed()
{
    MXButton::drawPushed();
    drawIcon(1.0f);
}

void MXIconButton::drawDisabled()
{
    MXButton::drawDisabled();
    drawIcon(0.45f);
}

void MXIconButton::drawIcon(float alpha)
{
    if (!d_icon)
        return;
    const Sizef area = getPixelSize();
    const Sizef size = d_icon->getRenderedSize();
    const Vector2f at(std::trunc((area.d_width - size.d_width) * 0.5f + 0.5f),
                      std::trunc((area.d_height - size.d_height) * 0.5f + 0.5f));
    drawImage(getGeometryBuffer(), *d_icon, Rectf(at, size), nullptr,
              faded(d_iconColours, getEffectiveAlpha() * alpha));
}

} // namespace MoxieLook
} // namespace CEGUI
