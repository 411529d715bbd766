// The push button every button look of the module stands on: CEGUI's PushButton plus
// the switchable standard imagery, custom images per state, per-state text colours
// and the horizontal text offset.
#pragma once

#include "draw/FormattedImage.h"
#include "draw/RedrawnWhenUncovered.h"
#include "widgets/ButtonDrawState.h"

#include <CEGUI/widgets/PushButton.h>

namespace CEGUI
{
namespace MoxieLook
{
class PushButtonEx : public RedrawnWhenUncovered<PushButton>
{
public:
    PushButtonEx(const String& type, const String& name);

    bool isStandardImageryEnabled() const { return d_useStandardImagery; }
    void setStandardImageryEnabled(bool enabled);

    //! A null image switches the state's custom image off; otherwise it is copied.
    void setNormalImage(const FormattedImage* image);
    void setHoverImage(const FormattedImage* image);
    void setPushedImage(const FormattedImage* image);
    void setDisabledImage(const FormattedImage* image);
    bool isNormalImageEnabled() const { return d_useNormalImage; }
    bool isHoverImageEnabled() const { return d_useHoverImage; }
    bool isPushedImageEnabled() const { return d_usePushedImage; }
    bool isDisabledImageEnabled() const { return d_useDisabledImage; }
    const FormattedImage& getNormalImage() const { return d_normalImage; }
    const FormattedImage& getHoverImage() const { return d_hoverImage; }
    const FormattedImage& getPushedImage() const { return d_pushedImage; }
    const FormattedImage& getDisabledImage() const { return d_disabledImage; }

    //! While set, the custom images follow the window's size.
    bool isCustomImageryAutoSized() const { return d_autoSizeCustomImagery; }
    void setCustomImageryAutoSized(bool autoSized);

    const Colour& getNormalTextColour() const { return d_normalTextColour; }
    const Colour& getHoverTextColour() const { return d_hoverTextColour; }
    const Colour& getPushedTextColour() const { return d_pushedTextColour; }
    const Colour& getDisabledTextColour() const { return d_disabledTextColour; }
    void setNormalTextColour(const Colour& colour);
    void setHoverTextColour(const Colour& colour);
    void setPushedTextColour(const Colour& colour);
    void setDisabledTextColour(const Colour& colour);

    //! Fraction of the width by which the text moves right.
    float getTextXOffset() const { return d_textXOffset; }
    void setTextXOffset(float offset);

protected:
    void populateGeometryBuffer() override;
    void onSized(ElementEventArgs& e) override;

    virtual void drawNormal() = 0;
    virtual void drawHover() = 0;
    virtual void drawPushed() = 0;
    virtual void drawDisabled() = 0;

    FormattedImage d_normalImage;
    FormattedImage d_hoverImage;
    FormattedImage d_pushedImage;
    FormattedImage d_disabledImage;

private:
    // The image-name properties set a stretched, auto-sized image.
    void setNormalImageByName(const Image* image);
    void setHoverImageByName(const Image* image);
    void setPushedImageByName(const Image* image);
    void setDisabledImageByName(const Image* image);
    const Image* getNormalImageImage() const { return d_normalImage.getImage(); }
    const Image* getHoverImageImage() const { return d_hoverImage.getImage(); }
    const Image* getPushedImageImage() const { return d_pushedImage.getImage(); }
    const Image* getDisabledImageImage() const { return d_disabledImage.getImage(); }

    void setCustomImage(FormattedImage& slot, bool& flag, const FormattedImage* image);
    void setCustomImageByName(FormattedImage& slot, bool& flag, const Image* image);
    void sizeCustomImagery();
    void addPushButtonExProperties();

    bool d_useStandardImagery = true;
    bool d_useNormalImage = false;
    bool d_useHoverImage = false;
    bool d_usePushedImage = false;
    bool d_useDisabledImage = false;
    bool d_autoSizeCustomImagery = false;
    Colour d_normalTextColour{0xFFFFFFFF};
    Colour d_hoverTextColour{0xFFFFFFFF};
    Colour d_pushedTextColour{0xFFFFFFFF};
    Colour d_disabledTextColour{0xFF7F7F7F};
    float d_textXOffset = 0.0f;
};

} // namespace MoxieLook
} // namespace CEGUI
