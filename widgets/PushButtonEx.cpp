#include "widgets/PushButtonEx.h"

#include "draw/Imagery.h"
#include "widgets/CornerColourProperty.h"

#include <CEGUI/CoordConverter.h>

namespace CEGUI
{
namespace MoxieLook
{
PushButtonEx::PushButtonEx(const String& type, const String& name)
    : RedrawnWhenUncovered<PushButton>(type, name)
{
    addPushButtonExProperties();
}

void PushButtonEx::addPushButtonExProperties()
{
    const String propertyOrigin("MoxieLook/PushButtonEx");

    CEGUI_DEFINE_PROPERTY(PushButtonEx, bool, "UseStandardImagery",
                          "Property to get/set whether the button draws its standard frame and "
                          "fill. Value is either \"True\" or \"False\".",
                          &PushButtonEx::setStandardImageryEnabled,
                          &PushButtonEx::isStandardImageryEnabled, true);
    CEGUI_DEFINE_PROPERTY(PushButtonEx, bool, "CustomImageryAutoSized",
                          "Property to get/set whether the custom images follow the button's "
                          "size. Value is either \"True\" or \"False\".",
                          &PushButtonEx::setCustomImageryAutoSized,
                          &PushButtonEx::isCustomImageryAutoSized, false);
    CEGUI_DEFINE_PROPERTY(PushButtonEx, float, "TextXOffset",
                          "Property to get/set the fraction of the width by which the text "
                          "moves right. Value is a float.",
                          &PushButtonEx::setTextXOffset, &PushButtonEx::getTextXOffset, 0.0f);

    MOXIE_DEFINE_COLOUR_PROPERTY(PushButtonEx, "NormalTextColour",
                                 "Property to get/set the text colour in the normal state.",
                                 &PushButtonEx::setNormalTextColour,
                                 &PushButtonEx::getNormalTextColour, Colour(0xFFFFFFFF));
    MOXIE_DEFINE_COLOUR_PROPERTY(
        PushButtonEx, "HoverTextColour", "Property to get/set the text colour in the hover state.",
        &PushButtonEx::setHoverTextColour, &PushButtonEx::getHoverTextColour, Colour(0xFFFFFFFF));
    MOXIE_DEFINE_COLOUR_PROPERTY(PushButtonEx, "PushedTextColour",
                                 "Property to get/set the text colour in the pushed state.",
                                 &PushButtonEx::setPushedTextColour,
                                 &PushButtonEx::getPushedTextColour, Colour(0xFFFFFFFF));
    MOXIE_DEFINE_COLOUR_PROPERTY(PushButtonEx, "DisabledTextColour",
                                 "Property to get/set the text colour in the disabled state.",
                                 &PushButtonEx::setDisabledTextColour,
                                 &PushButtonEx::getDisabledTextColour, Colour(0xFF7F7F7F));

    CEGUI_DEFINE_PROPERTY(PushButtonEx, Image*, "NormalImage",
                          "Property to get/set the custom image of the normal state, stretched "
                          "over the button. Value is an image name such as \"MoxieLook/Name\".",
                          &PushButtonEx::setNormalImageByName, &PushButtonEx::getNormalImageImage,
                          nullptr);
    CEGUI_DEFINE_PROPERTY(PushButtonEx, Image*, "HoverImage",
                          "Property to get/set the custom image of the hover state, stretched "
                          "over the button. Value is an image name such as \"MoxieLook/Name\".",
                          &PushButtonEx::setHoverImageByName, &PushButtonEx::getHoverImageImage,
                          nullptr);
    CEGUI_DEFINE_PROPERTY(PushButtonEx, Image*, "PushedImage",
                          "Property to get/set the custom image of the pushed state, stretched "
                          "over the button. Value is an image name such as \"MoxieLook/Name\".",
                          &PushButtonEx::setPushedImageByName, &PushButtonEx::getPushedImageImage,
                          nullptr);
    CEGUI_DEFINE_PROPERTY(PushButtonEx, Image*, "DisabledImage",
                          "Property to get/set the custom image of the disabled state, "
                          "stretched over the button. Value is an image name such as "
                          "\"MoxieLook/Name\".",
                          &PushButtonEx::setDisabledImageByName,
                          &PushButtonEx::getDisabledImageImage, nullptr);
}

void PushButtonEx::setStandardImageryEnabled(bool enabled)
{
    if (d_useStandardImagery == enabled)
        return;
    d_useStandardImagery = enabled;
    invalidate();
}

void PushButtonEx::setCustomImage(FormattedImage& slot, bool& flag, const FormattedImage* image)
{
    flag = image != nullptr;
    slot = image ? *image : FormattedImage();
    if (d_autoSizeCustomImagery)
        slot.setSize(getPixelSize());
    invalidate();
}

void PushButtonEx::setCustomImageByName(FormattedImage& slot, bool& flag, const Image* image)
{
    if (!image)
    {
        setCustomImage(slot, flag, nullptr);
        return;
    }
    FormattedImage stretched;
    stretched.setImage(image);
    stretched.setHorzFormatting(FormattedImage::HorzStretched);
    stretched.setVertFormatting(FormattedImage::VertStretched);
    stretched.setSize(getPixelSize());
    d_autoSizeCustomImagery = true;
    setCustomImage(slot, flag, &stretched);
}

void PushButtonEx::setNormalImage(const FormattedImage* image)
{
    setCustomImage(d_normalImage, d_useNormalImage, image);
}

void PushButtonEx::setHoverImage(const FormattedImage* image)
{
    setCustomImage(d_hoverImage, d_useHoverImage, image);
}

void PushButtonEx::setPushedImage(const FormattedImage* image)
{
    setCustomImage(d_pushedImage, d_usePushedImage, image);
}

void PushButtonEx::setDisabledImage(const FormattedImage* image)
{
    setCustomImage(d_disabledImage, d_useDisabledImage, image);
}

void PushButtonEx::setNormalImageByName(const Image* image)
{
    setCustomImageByName(d_normalImage, d_useNormalImage, image);
}

void PushButtonEx::setHoverImageByName(const Image* image)
{
    setCustomImageByName(d_hoverImage, d_useHoverImage, image);
}

void PushButtonEx::setPushedImageByName(const Image* image)
{
    setCustomImageByName(d_pushedImage, d_usePushedImage, image);
}

void PushButtonEx::setDisabledImageByName(const Image* image)
{
    setCustomImageByName(d_disabledImage, d_useDisabledImage, image);
}

void PushButtonEx::setCustomImageryAutoSized(bool autoSized)
{
    d_autoSizeCustomImagery = autoSized;
    if (autoSized)
    {
        sizeCustomImagery();
        invalidate();
    }
}

void PushButtonEx::sizeCustomImagery()
{
    const Sizef size = getPixelSize();
    for (FormattedImage* image : {&d_normalImage, &d_hoverImage, &d_pushedImage, &d_disabledImage})
        image->setSize(size);
}

void PushButtonEx::setNormalTextColour(const Colour& colour)
{
    d_normalTextColour = colour;
    invalidate();
}

void PushButtonEx::setHoverTextColour(const Colour& colour)
{
    d_hoverTextColour = colour;
    invalidate();
}

void PushButtonEx::setPushedTextColour(const Colour& colour)
{
    d_pushedTextColour = colour;
    invalidate();
}

void PushButtonEx::setDisabledTextColour(const Colour& colour)
{
    d_disabledTextColour = colour;
    invalidate();
}

void PushButtonEx::setTextXOffset(float offset)
{
    d_textXOffset = offset;
    invalidate();
}

void PushButtonEx::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;

    // In the order of ButtonDrawState.
    static constexpr void (PushButtonEx::*draw[])() = {
        &PushButtonEx::drawNormal, &PushButtonEx::drawHover, &PushButtonEx::drawPushed,
        &PushButtonEx::drawDisabled};
    (this->*draw[static_cast<int>(drawStateOf(*this))])();
}

void PushButtonEx::onSized(ElementEventArgs& e)
{
    PushButton::onSized(e);
    if (d_autoSizeCustomImagery)
        sizeCustomImagery();
}

} // namespace MoxieLook
} // namespace CEGUI
