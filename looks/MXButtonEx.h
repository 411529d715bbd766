// "MoxieLook/ButtonEx": a nine-piece frame and fill per state ("ButtonNormal..." at rest,
// under the pointer and disabled; "ButtonPushed..." pressed).
// "MoxieLook/MenuButton": a pill of left, middle and right pieces per state
// ("ButtonMenuNormal...", "ButtonMenuFocus...", "ButtonMenuClicked...",
// "ButtonMenuDesactived..."; that last spelling is the imageset's).
#pragma once

#include "looks/LookFactory.h"
#include "widgets/ButtonEx.h"

namespace CEGUI
{
namespace MoxieLook
{
class MXButtonEx : public ButtonEx
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ButtonEx";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";

    static constexpr char NormalTopLeftImageName[] = "ButtonNormalTopLeft";
    static constexpr char NormalTopImageName[] = "ButtonNormalTop";
    static constexpr char NormalTopRightImageName[] = "ButtonNormalTopRight";
    static constexpr char NormalLeftImageName[] = "ButtonNormalLeft";
    static constexpr char NormalRightImageName[] = "ButtonNormalRight";
    static constexpr char NormalBottomLeftImageName[] = "ButtonNormalBottomLeft";
    static constexpr char NormalBottomImageName[] = "ButtonNormalBottom";
    static constexpr char NormalBottomRightImageName[] = "ButtonNormalBottomRight";
    static constexpr char HoverTopLeftImageName[] = "ButtonNormalTopLeft";
    static constexpr char HoverTopImageName[] = "ButtonNormalTop";
    static constexpr char HoverTopRightImageName[] = "ButtonNormalTopRight";
    static constexpr char HoverLeftImageName[] = "ButtonNormalLeft";
    static constexpr char HoverRightImageName[] = "ButtonNormalRight";
    static constexpr char HoverBottomLeftImageName[] = "ButtonNormalBottomLeft";
    static constexpr char HoverBottomImageName[] = "ButtonNormalBottom";
    static constexpr char HoverBottomRightImageName[] = "ButtonNormalBottomRight";
    static constexpr char PushedTopLeftImageName[] = "ButtonPushedTopLeft";
    static constexpr char PushedTopImageName[] = "ButtonPushedTop";
    static constexpr char PushedTopRightImageName[] = "ButtonPushedTopRight";
    static constexpr char PushedLeftImageName[] = "ButtonPushedLeft";
    static constexpr char PushedRightImageName[] = "ButtonPushedRight";
    static constexpr char PushedBottomLeftImageName[] = "ButtonPushedBottomLeft";
    static constexpr char PushedBottomImageName[] = "ButtonPushedBottom";
    static constexpr char PushedBottomRightImageName[] = "ButtonPushedBottomRight";
    static constexpr char DisabledTopLeftImageName[] = "ButtonNormalTopLeft";
    static constexpr char DisabledTopImageName[] = "ButtonNormalTop";
    static constexpr char DisabledTopRightImageName[] = "ButtonNormalTopRight";
    static constexpr char DisabledLeftImageName[] = "ButtonNormalLeft";
    static constexpr char DisabledRightImageName[] = "ButtonNormalRight";
    static constexpr char DisabledBottomLeftImageName[] = "ButtonNormalBottomLeft";
    static constexpr char DisabledBottomImageName[] = "ButtonNormalBottom";
    static constexpr char DisabledBottomRightImageName[] = "ButtonNormalBottomRight";
    static constexpr char NormalFillImageName[] = "ButtonNormalFill";
    static constexpr char HoverFillImageName[] = "ButtonNormalFill";
    static constexpr char PushedFillImageName[] = "ButtonPushedFill";
    static constexpr char DisabledFillImageName[] = "ButtonNormalFill";

    static const Colour NormalTextColour;
    static const Colour HoverTextColour;
    static const Colour PushedTextColour;
    static const Colour DisabledTextColour;
    static const Colour DisabledBackgroundColour;

    MXButtonEx(const String& type, const String& name);
    void initialiseComponents() override;
};

class MXMenuButton : public ButtonEx
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/MenuButton";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";

    static constexpr char NormalLeftImageName[] = "ButtonMenuNormalLeft";
    static constexpr char NormalRightImageName[] = "ButtonMenuNormalRight";
    static constexpr char NormalFillImageName[] = "ButtonMenuNormalMiddle";
    static constexpr char HoverLeftImageName[] = "ButtonMenuFocusLeft";
    static constexpr char HoverRightImageName[] = "ButtonMenuFocusRight";
    static constexpr char HoverFillImageName[] = "ButtonMenuFocusMiddle";
    static constexpr char PushedLeftImageName[] = "ButtonMenuClickedLeft";
    static constexpr char PushedRightImageName[] = "ButtonMenuClickedRight";
    static constexpr char PushedFillImageName[] = "ButtonMenuClickedMiddle";
    static constexpr char DisabledLeftImageName[] = "ButtonMenuDesactivedLeft";
    static constexpr char DisabledRightImageName[] = "ButtonMenuDesactivedRight";
    static constexpr char DisabledFillImageName[] = "ButtonMenuDesactivedMiddle";

    static const Colour NormalTextColour;
    static const Colour HoverTextColour;
    static const Colour PushedTextColour;
    static const Colour DisabledBackgroundColour;

    MXMenuButton(const String& type, const String& name);
    void initialiseComponents() override;
};

using MXButtonExFactory = LookFactory<MXButtonEx>;
using MXMenuButtonFactory = LookFactory<MXMenuButton>;

} // namespace MoxieLook
} // namespace CEGUI
