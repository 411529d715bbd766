#include "looks/MXScrollbarThumb.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "widgets/ButtonDrawState.h"

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXScrollbarThumbBase::NormalPrimaryColour(0x00AFAFAF);
const Colour MXScrollbarThumbBase::NormalSecondaryColour(0x00FFFFFF);
const Colour MXScrollbarThumbBase::HoverPrimaryColour(0x00CFD9CF);
const Colour MXScrollbarThumbBase::HoverSecondaryColour(0x00F2FFF2);
const Colour MXScrollbarThumbBase::PushedPrimaryColour(0x00AFAFAF);
const Colour MXScrollbarThumbBase::PushedSecondaryColour(0x00FFFFFF);
const Colour MXScrollbarThumbBase::DisabledPrimaryColour(0x00999999);
const Colour MXScrollbarThumbBase::DisabledSecondaryColour(0x00999999);

MXHorzScrollbarThumb::MXHorzScrollbarThumb(const String& type, const String& name)
    : MXScrollbarThumbBase(type, name, false, GripperImageName, MinimumWidthWithGripRatio)
{
}

MXVertScrollbarThumb::MXVertScrollbarThumb(const String& type, const String& name)
    : MXScrollbarThumbBase(type, name, true, GripperImageName, MinimumHeightWithGripRatio)
{
}

MXScrollbarThumbBase::MXScrollbarThumbBase(const String& type, const String& name, bool vertical,
                                           const char* gripperImageName,
                                           float minimumLengthWithGripRatio)
    : RedrawnWhenUncovered<Thumb>(type, name), d_vertical(vertical),
      d_gripRatio(minimumLengthWithGripRatio)
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
    d_gripper = &lookImage(gripperImageName);
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXScrollbarThumbBase::storeFrameSizes()
{
    // The frame's own edges: the same images, already fetched.
    d_frameSizes = edgesOf(d_normalFrame);
}

void MXScrollbarThumbBase::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    // In the order of ButtonDrawState.
    static constexpr void (MXScrollbarThumbBase::*draw[])() = {
        &MXScrollbarThumbBase::drawNormal, &MXScrollbarThumbBase::drawHover,
        &MXScrollbarThumbBase::drawPushed, &MXScrollbarThumbBase::drawDisabled};
    (this->*draw[static_cast<int>(drawStateOf(*this))])();
}

void MXScrollbarThumbBase::drawNormal()
{
    drawState(NormalPrimaryColour, NormalSecondaryColour, d_normalFrame);
}

void MXScrollbarThumbBase::drawHover()
{
    drawState(HoverPrimaryColour, HoverSecondaryColour, d_hoverFrame);
}

void MXScrollbarThumbBase::drawPushed()
{
    drawState(PushedPrimaryColour, PushedSecondaryColour, d_pushedFrame);
}

void MXScrollbarThumbBase::drawDisabled()
{
    drawState(DisabledPrimaryColour, DisabledSecondaryColour, d_normalFrame);
}

void MXScrollbarThumbBase::drawState(const Colour& primary, const Colour& secondary,
                                     const NinePieceFrame& frame)
{
    GeometryBuffer& buffer = getGeometryBuffer();
    const Sizef own = getPixelSize();
    const Rectf area(Vector2f(0, 0), own);
    drawFramedFill(buffer, area, *d_background,
                   withAlpha(diagonalGradient(primary, secondary), getEffectiveAlpha()), frame,
                   d_frameSizes);

    const Sizef grip = d_gripper->getRenderedSize();
    const bool roomForGrip = d_vertical ? d_gripRatio * grip.d_height <= own.d_height
                                        : d_gripRatio * grip.d_width <= own.d_width;
    if (roomForGrip)
    {
        const Vector2f at((own.d_width - grip.d_width) * 0.5f,
                          (own.d_height - grip.d_height) * 0.5f);
        drawImage(buffer, *d_gripper, Rectf(at, grip), nullptr, ColourRect(Colour(0xFFFFFFFF)));
    }
}

void MXScrollbarThumbBase::onSized(ElementEventArgs& e)
{
    Thumb::onSized(e);
    sizeFrames({&d_normalFrame, &d_hoverFrame, &d_pushedFrame}, getPixelSize());
    ++e.handled;
}

void MXScrollbarThumbBase::onAlphaChanged(WindowEventArgs& e)
{
    Thumb::onAlphaChanged(e);
    fadeFrames({&d_normalFrame, &d_hoverFrame, &d_pushedFrame}, getEffectiveAlpha());
}

} // namespace MoxieLook
} // namespace CEGUI
