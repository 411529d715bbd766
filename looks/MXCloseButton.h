// "MoxieLook/CloseButton": the push-button look drawing one picture per state instead of
// its frame and fill: "CloseButtonNormal", "...Hover", "...Pushed" (disabled: the normal
// picture faded), or those given as "NormalImage", "HoverImage", "PushedImage" and
// "DisabledImage". The frame window also uses it for its minimise and roll-up buttons with
// their own pictures.
#pragma once

#include "looks/MXButton.h"

namespace CEGUI
{
namespace MoxieLook
{
class MXCloseButton : public MXButton
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/CloseButton";
    static constexpr char NormalImageName[] = "CloseButtonNormal";
    static constexpr char HoverImageName[] = "CloseButtonHover";
    static constexpr char PushedImageName[] = "CloseButtonPushed";
    //! Share of the window's alpha a disabled button is drawn with.
    static constexpr float DisabledAlpha = 0.45f;

    MXCloseButton(const String& type, const String& name);

    //! Pictures for the normal, hover and pushed states, by name in "MoxieLook".
    void setStateImages(const String& normal, const String& hover, const String& pushed);
    const Image* getStateImage(ButtonDrawState state) const;

protected:
    void drawNormal() override;
    void drawHover() override;
    void drawPushed() override;
    void drawDisabled() override;

private:
    void drawCentred(const Image* image, float alpha);

    const Image* d_normal;
    const Image* d_hover;
    const Image* d_pushed;
};

//! "MoxieLook/SystemButton": the stock skins' title-bar button, the close button's look,
//! non-client as a title-bar button is.
class MXSystemButton : public MXCloseButton
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/SystemButton";
    MXSystemButton(const String& type, const String& name);
};

using MXCloseButtonFactory = LookFactory<MXCloseButton>;
using MXSystemButtonFactory = LookFactory<MXSystemButton>;

} // namespace MoxieLook
} // namespace CEGUI
