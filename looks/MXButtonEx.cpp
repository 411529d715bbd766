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

void MXButtonEx::initialiseComponents()
{
    ButtonEx::initialiseComponents();
    NinePieceFrame normal;
    normal.setImages({NormalTopLeftImageName, NormalTopRightImageName, NormalBottomLeftImageName,
                      NormalBottomRightImageName, NormalLeftImageName, NormalTopImageName,
                      NormalRightImageName, NormalBottomImageName});
    NinePieceFrame pushed;
    pushed.setImages({PushedTopLeftImageName, PushedTopRightImageName, PushedBottomLeftImageName,
                      PushedBottomRightImageName, PushedLeftImageName, PushedTopImageName,
                      PushedRightImageName, PushedBottomImageName});
    SetNormalFrame(normal);
    SetHoverFrame(normal);
    SetPushedFrame(pushed);
    SetDisabledFrame(normal);
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
