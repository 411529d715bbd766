// "MoxieLook/HorizontalScrollbarThumb" and "MoxieLook/VerticalScrollbarThumb": a framed
// thumb with a diagonal gradient fill and a gripper in its middle once it is long enough.
// Images: the "ButtonScroll..." frame (normal, disabled) and "ButtonScrollFocus..."
// frame (hover, pushed), the "ButtonScrollFill" fill, the gripper, "MouseArrow".
#pragma once

#include "draw/FramedFill.h"
#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/Thumb.h>

namespace CEGUI
{
namespace MoxieLook
{
class MXScrollbarThumbBase : public RedrawnWhenUncovered<Thumb>
{
public:
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char BackgroundImageName[] = "ButtonScrollFill";

    static constexpr char NormalTopLeftImageName[] = "ButtonScrollTopLeft";
    static constexpr char NormalTopRightImageName[] = "ButtonScrollTopRight";
    static constexpr char NormalBottomLeftImageName[] = "ButtonScrollBottomLeft";
    static constexpr char NormalBottomRightImageName[] = "ButtonScrollBottomRight";
    static constexpr char NormalLeftImageName[] = "ButtonScrollLeft";
    static constexpr char NormalRightImageName[] = "ButtonScrollRight";
    static constexpr char NormalTopImageName[] = "ButtonScrollTop";
    static constexpr char NormalBottomImageName[] = "ButtonScrollBottom";
    static constexpr char HoverTopLeftImageName[] = "ButtonScrollFocusTopLeft";
    static constexpr char HoverTopRightImageName[] = "ButtonScrollFocusTopRight";
    static constexpr char HoverBottomLeftImageName[] = "ButtonScrollFocusBottomLeft";
    static constexpr char HoverBottomRightImageName[] = "ButtonScrollFocusBottomRight";
    static constexpr char HoverLeftImageName[] = "ButtonScrollFocusLeft";
    static constexpr char HoverRightImageName[] = "ButtonScrollFocusRight";
    static constexpr char HoverTopImageName[] = "ButtonScrollFocusTop";
    static constexpr char HoverBottomImageName[] = "ButtonScrollFocusBottom";
    static constexpr char PushedTopLeftImageName[] = "ButtonScrollFocusTopLeft";
    static constexpr char PushedTopRightImageName[] = "ButtonScrollFocusTopRight";
    static constexpr char PushedBottomLeftImageName[] = "ButtonScrollFocusBottomLeft";
    static constexpr char PushedBottomRightImageName[] = "ButtonScrollFocusBottomRight";
    static constexpr char PushedLeftImageName[] = "ButtonScrollFocusLeft";
    static constexpr char PushedRightImageName[] = "ButtonScrollFocusRight";
    static constexpr char PushedTopImageName[] = "ButtonScrollFocusTop";
    static constexpr char PushedBottomImageName[] = "ButtonScrollFocusBottom";

    static const Colour NormalPrimaryColour;
    static const Colour NormalSecondaryColour;
    static const Colour HoverPrimaryColour;
    static const Colour HoverSecondaryColour;
    static const Colour PushedPrimaryColour;
    static const Colour PushedSecondaryColour;
    static const Colour DisabledPrimaryColour;
    static const Colour DisabledSecondaryColour;

protected:
    MXScrollbarThumbBase(const String& type, const String& name, bool vertical,
                         const char* gripperImageName, float minimumLengthWithGripRatio);

    void populateGeometryBuffer() override;
    virtual void drawNormal();
    virtual void drawHover();
    virtual void drawPushed();
    virtual void drawDisabled();

    void onSized(ElementEventArgs& e) override;
    void onAlphaChanged(WindowEventArgs& e) override;
    void storeFrameSizes();

    NinePieceFrame d_normalFrame;
    NinePieceFrame d_hoverFrame;
    NinePieceFrame d_pushedFrame;
    EdgeInsets d_frameSizes;
    const Image* d_background = nullptr;
    const Image* d_gripper = nullptr;

private:
    void drawState(const Colour& primary, const Colour& secondary, const NinePieceFrame& frame);

    bool d_vertical;
    float d_gripRatio;
};

class MXHorzScrollbarThumb : public MXScrollbarThumbBase
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/HorizontalScrollbarThumb";
    static constexpr char GripperImageName[] = "HorzScrollbarGrip";
    static constexpr float MinimumWidthWithGripRatio = 2.0f;

    MXHorzScrollbarThumb(const String& type, const String& name);
};

class MXVertScrollbarThumb : public MXScrollbarThumbBase
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/VerticalScrollbarThumb";
    static constexpr char GripperImageName[] = "VertScrollbarGrip";
    static constexpr float MinimumHeightWithGripRatio = 2.0f;

    MXVertScrollbarThumb(const String& type, const String& name);
};

//! "MoxieLook/LargeVerticalScrollbarThumb": the vertical thumb under the broad bar's name.
class MXLargeVertScrollbarThumb : public MXVertScrollbarThumb
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/LargeVerticalScrollbarThumb";
    using MXVertScrollbarThumb::MXVertScrollbarThumb;
};

using MXHorzScrollbarThumbFactory = LookFactory<MXHorzScrollbarThumb>;
using MXLargeVertScrollbarThumbFactory = LookFactory<MXLargeVertScrollbarThumb>;
using MXVertScrollbarThumbFactory = LookFactory<MXVertScrollbarThumb>;

} // namespace MoxieLook
} // namespace CEGUI
