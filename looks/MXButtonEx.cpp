#include "looks/MXButtonEx.h"

#include "draw/Imagery.h"

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXButtonEx::NormalTextColour(0, 0, 0, 1);
const Colour MXButtonEx::HoverTextColour(1, 1, 1, 1);
const Colour MXButtonEx::PushedTextColour(0.25f, 0.25f, 0.25f, 1);
const Colour MXButtonEx::DisabledTextColour(0.25f, 0.25f, 0.25f, 1);
const Colour MXButtonEx::DisabledBackgroundColour(1, 1, 1, 1);

const Colour MXMenuButton::NormalTextColour(0, 0, 0, 1);
const Colour MXMenuButton::HoverTextColour(1, 1, 1, 1);
const Colour MXMenuButton::PushedTextColour(0.25f, 0.25f, 0.25f, 1);
const Colour MXMenuButton::DisabledBackgroundColour(0, 0, 0, 0.3f);

MXButtonEx::MXButtonEx(const String& type, const String& name) : ButtonEx(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

MXMenuButton::MXMenuButton(const String& type, const String& name) : ButtonEx(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXButtonEx::initialiseComponents()
{
    ButtonEx::initialiseComponents();
    auto frame = [](const std::array<const char*, NinePieceFrame::PieceCount>& names)
    {
        NinePieceFrame built;
        built.setImages(names);
        return built;
    };
    SetNormalFrame(
        frame({NormalTopLeftImageName, NormalTopRightImageName, NormalBottomLeftImageName,
               NormalBottomRightImageName, NormalLeftImageName, NormalTopImageName,
               NormalRightImageName, NormalBottomImageName}));
    SetHoverFrame(frame({HoverTopLeftImageName, HoverTopRightImageName, HoverBottomLeftImageName,
                         HoverBottomRightImageName, HoverLeftImageName, HoverTopImageName,
                         HoverRightImageName, HoverBottomImageName}));
    SetPushedFrame(
        frame({PushedTopLeftImageName, PushedTopRightImageName, PushedBottomLeftImageName,
               PushedBottomRightImageName, PushedLeftImageName, PushedTopImageName,
               PushedRightImageName, PushedBottomImageName}));
    SetDisabledFrame(
        frame({DisabledTopLeftImageName, DisabledTopRightImageName, DisabledBottomLeftImageName,
               DisabledBottomRightImageName, DisabledLeftImageName, DisabledTopImageName,
               DisabledRightImageName, DisabledBottomImageName}));
    SetNormalBackground(&lookImage(NormalFillImageName));
    SetHoverBackground(&lookImage(HoverFillImageName));
    SetPushedBackground(&lookImage(PushedFillImageName));
    SetDisabledBackground(&lookImage(DisabledFillImageName));
    setDisabledColour(DisabledBackgroundColour);
    setNormalTextColour(NormalTextColour);
    setHoverTextColour(HoverTextColour);
    setPushedTextColour(PushedTextColour);
    setDisabledTextColour(DisabledTextColour);
}

void MXMenuButton::initialiseComponents()
{
    ButtonEx::initialiseComponents();
    auto pill = [](const char* left, const char* right)
    {
        NinePieceFrame frame;
        frame.setImages({"", "", "", "", left, "", right, ""});
        return frame;
    };
    SetNormalFrame(pill(NormalLeftImageName, NormalRightImageName));
    SetHoverFrame(pill(HoverLeftImageName, HoverRightImageName));
    SetPushedFrame(pill(PushedLeftImageName, PushedRightImageName));
    SetDisabledFrame(pill(DisabledLeftImageName, DisabledRightImageName));
    SetNormalBackground(&lookImage(NormalFillImageName));
    SetHoverBackground(&lookImage(HoverFillImageName));
    SetPushedBackground(&lookImage(PushedFillImageName));
    SetDisabledBackground(&lookImage(DisabledFillImageName));
    setDisabledColour(DisabledBackgroundColour);
    setNormalTextColour(NormalTextColour);
    setHoverTextColour(HoverTextColour);
    setPushedTextColour(PushedTextColour);
}

} // namespace MoxieLook
} // namespace CEGUI
