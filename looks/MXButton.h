// "MoxieLook/Button": a framed push button with a diagonal gradient fill.
// Images: the "ButtonArrow..." frame (normal) and "ButtonArrowFocus..." frame (hover and
// pushed), the "ButtonArrowFill" fill, the "MouseArrow" cursor.
#pragma once

#include "draw/FramedFill.h"
#include "draw/NinePieceFrame.h"
#include "draw/TextDrawing.h"
#include "looks/LookFactory.h"
#include "widgets/PushButtonEx.h"

#include <CEGUI/falagard/Enums.h>
#include <optional>

namespace CEGUI
{
namespace MoxieLook
{
class MXButton : public PushButtonEx
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Button";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char BackgroundImageName[] = "ButtonArrowFill";

    static constexpr char NormalTopLeftImageName[] = "ButtonArrowTopLeft";
    static constexpr char NormalTopImageName[] = "ButtonArrowTop";
    static constexpr char NormalTopRightImageName[] = "ButtonArrowTopRight";
    static constexpr char NormalLeftImageName[] = "ButtonArrowLeft";
    static constexpr char NormalRightImageName[] = "ButtonArrowRight";
    static constexpr char NormalBottomLeftImageName[] = "ButtonArrowBottomLeft";
    static constexpr char NormalBottomImageName[] = "ButtonArrowBottom";
    static constexpr char NormalBottomRightImageName[] = "ButtonArrowBottomRight";

    static constexpr char HoverTopLeftImageName[] = "ButtonArrowFocusTopLeft";
    static constexpr char HoverTopImageName[] = "ButtonArrowFocusTop";
    static constexpr char HoverTopRightImageName[] = "ButtonArrowFocusTopRight";
    static constexpr char HoverLeftImageName[] = "ButtonArrowFocusLeft";
    static constexpr char HoverRightImageName[] = "ButtonArrowFocusRight";
    static constexpr char HoverBottomLeftImageName[] = "ButtonArrowFocusBottomLeft";
    static constexpr char HoverBottomImageName[] = "ButtonArrowFocusBottom";
    static constexpr char HoverBottomRightImageName[] = "ButtonArrowFocusBottomRight";

    // A pressed button keeps the hover frame around the normal fill.
    static constexpr char PushedTopLeftImageName[] = "ButtonArrowFocusTopLeft";
    static constexpr char PushedTopImageName[] = "ButtonArrowFocusTop";
    static constexpr char PushedTopRightImageName[] = "ButtonArrowFocusTopRight";
    static constexpr char PushedLeftImageName[] = "ButtonArrowFocusLeft";
    static constexpr char PushedRightImageName[] = "ButtonArrowFocusRight";
    static constexpr char PushedBottomLeftImageName[] = "ButtonArrowFocusBottomLeft";
    static constexpr char PushedBottomImageName[] = "ButtonArrowFocusBottom";
    static constexpr char PushedBottomRightImageName[] = "ButtonArrowFocusBottomRight";

    static const Colour NormalPrimaryColour;
    static const Colour NormalSecondaryColour;
    static const Colour HoverPrimaryColour;
    static const Colour HoverSecondaryColour;
    static const Colour PushedPrimaryColour;
    static const Colour PushedSecondaryColour;
    static const Colour DisabledPrimaryColour;
    static const Colour DisabledSecondaryColour;
    static const Colour EnabledTextLabelColour;
    static const Colour DisabledTextLabelColour;

    MXButton(const String& type, const String& name);

    const NinePieceFrame& getNormalFrame() const { return d_normalFrame; }
    const NinePieceFrame& getHoverFrame() const { return d_hoverFrame; }
    const NinePieceFrame& getPushedFrame() const { return d_pushedFrame; }

    //! The stock skins' "HorzImageFormatting" and "VertImageFormatting": once set, how every
    //! state's custom image is placed, whenever it was given (stretched until then).
    void setHorzImageFormatting(HorizontalFormatting formatting);
    HorizontalFormatting getHorzImageFormatting() const
    {
        return d_horzImageFormatting.value_or(HF_STRETCHED);
    }
    void setVertImageFormatting(VerticalFormatting formatting);
    VerticalFormatting getVertImageFormatting() const
    {
        return d_vertImageFormatting.value_or(VF_STRETCHED);
    }
    //! "HorzLabelFormatting" and "VertLabelFormatting": the label's place (centred both ways
    //! by default), by CEGUI 0.8's names or the module's; reads back the name it was given.
    void setHorzLabelFormatting(const String& name);
    const String& getHorzLabelFormatting() const { return d_horzLabel.name; }
    void setVertLabelFormatting(const String& name);
    const String& getVertLabelFormatting() const { return d_vertLabel.name; }

protected:
    void drawNormal() override;
    void drawHover() override;
    void drawPushed() override;
    void drawDisabled() override;

    void onSized(ElementEventArgs& e) override;
    void onAlphaChanged(WindowEventArgs& e) override;

    void storeFrameSizes();

    //! One state's picture: fill, frame, custom image, text.
    void drawState(const Colour& primary, const Colour& secondary, const NinePieceFrame& frame,
                   bool useCustomImage, FormattedImage& customImage, const Colour& textColour);
    //! The custom image's colours as drawn: the window's alpha in place of their own.
    virtual ColourRect customImageColours(const ColourRect& own, float alpha) const;

    NinePieceFrame d_normalFrame;
    NinePieceFrame d_hoverFrame;
    NinePieceFrame d_pushedFrame;
    EdgeInsets d_frameSizes; //!< left, top, right and bottom edge sizes
    const Image* d_background = nullptr;

private:
    std::optional<HorizontalFormatting> d_horzImageFormatting;
    std::optional<VerticalFormatting> d_vertImageFormatting;
    NamedHorzFormat d_horzLabel{HorzTextFormat::Centred, "CentreAligned"};
    NamedVertFormat d_vertLabel{VertTextFormat::Centred, "CentreAligned"};
};

//! "MoxieLook/ImageButton": drawn from its state images alone ("NormalImage", "HoverImage",
//! "PushedImage", "DisabledImage", stretched over the button, text over them). A state
//! without an image shows the normal one; disabled, greyed.
//! The stock skins' "NormalImageColour", "HoverImageColour", "PushedImageColour" and
//! "DisabledImageColour" tint whatever image each state shows.
class MXImageButton : public MXButton
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ImageButton";
    static const Colour DisabledImageColour;

    MXImageButton(const String& type, const String& name);

    void setNormalImageColour(const ColourRect& colours);
    const ColourRect& getNormalImageColour() const { return d_normalTint; }
    void setHoverImageColour(const ColourRect& colours);
    const ColourRect& getHoverImageColour() const { return d_hoverTint; }
    void setPushedImageColour(const ColourRect& colours);
    const ColourRect& getPushedImageColour() const { return d_pushedTint; }
    void setDisabledImageColour(const ColourRect& colours);
    const ColourRect& getDisabledImageColour() const { return d_disabledTint; }

protected:
    void drawNormal() override;
    void drawHover() override;
    void drawPushed() override;
    void drawDisabled() override;
    //! A tint is the host's colour: its alpha is kept, faded by the window's.
    ColourRect customImageColours(const ColourRect& own, float alpha) const override;

private:
    //! Draws a state showing `image`, tinted `tint` for this draw only.
    void drawTinted(const Colour& primary, const Colour& secondary, const NinePieceFrame& frame,
                    FormattedImage& image, const ColourRect& tint, const Colour& textColour);

    ColourRect d_normalTint{Colour(0xFFFFFFFF)};
    ColourRect d_hoverTint{Colour(0xFFFFFFFF)};
    ColourRect d_pushedTint{Colour(0xFFFFFFFF)};
    ColourRect d_disabledTint{Colour(0xFF000000 | DisabledImageColour.getARGB())};
};

//! "MoxieLook/IconButton": the framed button with an icon centred at its own size
//! ("IconImage", "IconColours").
class MXIconButton : public MXButton
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/IconButton";

    MXIconButton(const String& type, const String& name);

    void setIconImage(const Image* image);
    const Image* getIconImage() const { return d_icon; }
    void setIconColours(const ColourRect& colours);
    const ColourRect& getIconColours() const { return d_iconColours; }

protected:
    void drawNormal() override;
    void drawHover() override;
    void drawPushed() override;
    void drawDisabled() override;

private:
    void drawIcon(float alpha);

    const Image* d_icon = nullptr;
    ColourRect d_iconColours{Colour(0xFFFFFFFF)};
};

using MXButtonFactory = LookFactory<MXButton>;
using MXImageButtonFactory = LookFactory<MXImageButton>;
using MXIconButtonFactory = LookFactory<MXIconButton>;

} // namespace MoxieLook
} // namespace CEGUI
