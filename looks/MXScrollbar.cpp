#include "looks/MXScrollbar.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/FixedOrientationProperty.h"
#include "looks/ScrollbarGeometry.h"
#include "widgets/PushButtonEx.h"
#include "widgets/WheelForwarding.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/Thumb.h>

namespace CEGUI
{
namespace MoxieLook
{

const char* MXHorzScrollbar::IncreaseButtonWidgetType = "MoxieLook/Button";
const char* MXHorzScrollbar::DecreaseButtonWidgetType = "MoxieLook/Button";
const char* MXHorzScrollbar::ThumbWidgetType = "MoxieLook/HorizontalScrollbarThumb";
const char* MXVertScrollbar::IncreaseButtonWidgetType = "MoxieLook/Button";
const char* MXVertScrollbar::DecreaseButtonWidgetType = "MoxieLook/Button";
const char* MXVertScrollbar::ThumbWidgetType = "MoxieLook/VerticalScrollbarThumb";

MXHorzScrollbar::MXHorzScrollbar(const String& type, const String& name)
    : MXScrollbarBase(type, name,
                      {false, &IncreaseButtonWidgetType, &DecreaseButtonWidgetType,
                       &ThumbWidgetType, RightButtonNormalImageName, LeftButtonNormalImageName,
                       MinThumbWidth})
{
}

MXVertScrollbar::MXVertScrollbar(const String& type, const String& name)
    : MXScrollbarBase(type, name,
                      {true, &IncreaseButtonWidgetType, &DecreaseButtonWidgetType, &ThumbWidgetType,
                       DownButtonNormalImageName, UpButtonNormalImageName, MinThumbHeight})
{
}

const char* MXLargeVertScrollbar::ThumbWidgetType = "MoxieLook/LargeVerticalScrollbarThumb";

MXLargeVertScrollbar::MXLargeVertScrollbar(const String& type, const String& name)
    : MXScrollbarBase(type, name,
                      {true, &MXVertScrollbar::IncreaseButtonWidgetType,
                       &MXVertScrollbar::DecreaseButtonWidgetType, &ThumbWidgetType,
                       MXVertScrollbar::DownButtonNormalImageName,
                       MXVertScrollbar::UpButtonNormalImageName, MXVertScrollbar::MinThumbHeight})
{
}

MXScrollbarBase::MXScrollbarBase(const String& type, const String& name,
                                 const Orientation& orientation)
    : RedrawnWhenUncovered<Scrollbar>(type, name), d_orientation(orientation)
{
    d_frame.setImages({TopLeftFrameImageName, TopRightFrameImageName, BottomLeftFrameImageName,
                       BottomRightFrameImageName, LeftFrameImageName, TopFrameImageName,
                       RightFrameImageName, BottomFrameImageName});
    d_background = &lookImage(BackgroundImageName);
    setMouseCursor(&lookImage(MouseCursorImageName));
    storeFrameSizes();
    setWindowRenderer(MXScrollbarRenderer::TypeName);
    static FixedOrientationProperty<MXScrollbarBase> orientationProperty(
        "VerticalScrollbar", "MoxieLook/Scrollbar", &MXScrollbarBase::isVertical);
    addProperty(&orientationProperty);
}

void MXScrollbarBase::storeFrameSizes()
{
    // The frame's own edges: the same images, already fetched.
    d_frameSizes = edgesOf(d_frame);
}

Vector2f MXScrollbarBase::point(float alongAxis, float acrossAxis) const
{
    return d_orientation.vertical ? Vector2f(acrossAxis, alongAxis)
                                  : Vector2f(alongAxis, acrossAxis);
}

Sizef MXScrollbarBase::size(float alongAxis, float acrossAxis) const
{
    return d_orientation.vertical ? Sizef(acrossAxis, alongAxis) : Sizef(alongAxis, acrossAxis);
}

void MXScrollbarBase::initialiseComponents()
{
    // CEGUI's Scrollbar finds its parts by these names; a bar from a layout file may
    // bring them already.
    if (!isChild(DecreaseButtonName))
        addChild(createDecreaseButton(DecreaseButtonName));
    if (!isChild(IncreaseButtonName))
        addChild(createIncreaseButton(IncreaseButtonName));
    if (!isChild(ThumbName))
        addChild(createThumb(ThumbName));
    Scrollbar::initialiseComponents();
    const String* parts[] = {&DecreaseButtonName, &IncreaseButtonName, &ThumbName};
    for (std::size_t i = 0; i < d_partWheels.size(); ++i)
        d_partWheels[i] = forwardWheel(*getChild(*parts[i]), *this,
                                       [this](MouseEventArgs& e) { onMouseWheel(e); });
}

void MXScrollbarBase::onMouseWheel(MouseEventArgs& e)
{
    if (!d_wheelOwner)
        return RedrawnWhenUncovered<Scrollbar>::onMouseWheel(e);
    fireEvent(EventMouseWheel, e, Window::EventNamespace);
    d_wheelOwner(e);
    ++e.handled;
}

PushButton* MXScrollbarBase::createArrowButton(const char* type, const String& name,
                                               const char* image) const
{
    PushButton* button = createAutoPart<PushButton>(type, name, "a scroll bar button");
    button->setAlwaysOnTop(true);
    if (auto* framed = dynamic_cast<PushButtonEx*>(button))
    {
        FormattedImage arrow;
        arrow.setImage(&lookImage(image));
        arrow.setHorzFormatting(FormattedImage::HorzCentred);
        arrow.setVertFormatting(FormattedImage::VertCentred);
        framed->setStandardImageryEnabled(true);
        framed->setCustomImageryAutoSized(true);
        framed->setNormalImage(&arrow);
        framed->setDisabledImage(&arrow);
        framed->setHoverImage(&arrow);
        framed->setPushedImage(&arrow);
    }
    return button;
}

PushButton* MXScrollbarBase::createIncreaseButton(const String& name) const
{
    return createArrowButton(*d_orientation.increaseButtonType, name, d_orientation.increaseImage);
}

PushButton* MXScrollbarBase::createDecreaseButton(const String& name) const
{
    return createArrowButton(*d_orientation.decreaseButtonType, name, d_orientation.decreaseImage);
}

Thumb* MXScrollbarBase::createThumb(const String& name) const
{
    Thumb* thumb = createAutoPart<Thumb>(*d_orientation.thumbType, name, "a scroll bar thumb");
    if (d_orientation.vertical)
        thumb->setVertFree(true);
    else
        thumb->setHorzFree(true);
    return thumb;
}

void MXScrollbarBase::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    Scrollbar::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    Window* decrease = partOrNull(*this, DecreaseButtonName);
    Window* increase = partOrNull(*this, IncreaseButtonName);
    if (!decrease || !increase || !partOrNull(*this, ThumbName))
        return; // still being built

    const Sizef own = getPixelSize();
    const EdgeInsets& f = d_frameSizes;
    // The buttons are square: the bar's thickness less the two frame edges of the
    // other axis.
    const float s =
        d_orientation.vertical ? own.d_width - f.top - f.bottom : own.d_height - f.left - f.right;
    const USize buttonSize(cegui_absdim(s), cegui_absdim(s));
    decrease->setSize(buttonSize);
    increase->setSize(buttonSize);
    decrease->setPosition(UVector2(cegui_absdim(f.left), cegui_absdim(f.top)));
    const Vector2f end = d_orientation.vertical ? Vector2f(f.left, own.d_height - s - f.bottom)
                                                : Vector2f(own.d_width - s - f.right, f.top);
    increase->setPosition(UVector2(cegui_absdim(end.d_x), cegui_absdim(end.d_y)));
    updateThumb();
}

void MXScrollbarBase::updateThumb()
{
    Thumb* thumb = getThumb();
    const Sizef own = getPixelSize();
    const EdgeInsets& f = d_frameSizes;
    const ThumbPlacement p =
        placeThumb(along(own), along(getDecreaseButton()->getPixelSize()),
                   d_orientation.vertical ? f.top : f.left, getDocumentSize(), getPageSize(),
                   getScrollPosition(), d_orientation.minThumbLength);

    const Sizef thumbSize = size(p.length, across(getIncreaseButton()->getPixelSize()));
    thumb->setSize(USize(cegui_absdim(thumbSize.d_width), cegui_absdim(thumbSize.d_height)));

    // CEGUI's thumb drags in fractions of its parent, so its range and its place along
    // the axis are relative.
    const float length = along(own);
    auto fraction = [length](float pixels) { return length > 0 ? pixels / length : 0.0f; };
    const float across0 = d_orientation.vertical ? f.left : f.top;
    if (d_orientation.vertical)
    {
        thumb->setVertRange(fraction(p.inset), fraction(p.inset + p.free));
        thumb->setPosition(UVector2(cegui_absdim(across0), cegui_reldim(fraction(p.position))));
    }
    else
    {
        thumb->setHorzRange(fraction(p.inset), fraction(p.inset + p.free));
        thumb->setPosition(UVector2(cegui_reldim(fraction(p.position)), cegui_absdim(across0)));
    }
}

float MXScrollbarBase::getValueFromThumb() const
{
    const Thumb* thumb = getThumb();
    const Vector2f thumbStart =
        thumb->getUnclippedOuterRect().get().d_min - getUnclippedOuterRect().get().d_min;
    const float inset = along(getDecreaseButton()->getPixelSize()) +
                        (d_orientation.vertical ? d_frameSizes.top : d_frameSizes.left);
    return scrollPositionFromThumb(along(thumbStart), along(getPixelSize()), inset,
                                   along(thumb->getPixelSize()), getDocumentSize(), getPageSize());
}

float MXScrollbarBase::getAdjustDirectionFromPoint(const Vector2f& point) const
{
    const Rectf thumb = getThumb()->getUnclippedOuterRect().get();
    const float at = along(point);
    const float start = d_orientation.vertical ? thumb.top() : thumb.left();
    const float end = d_orientation.vertical ? thumb.bottom() : thumb.right();
    if (at < start)
        return -1.0f;
    if (at > end)
        return 1.0f;
    return 0.0f;
}

void MXScrollbarBase::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const ColourRect white = withAlpha(ColourRect(Colour(0xFFFFFFFF)), getEffectiveAlpha());
    drawImage(buffer, *d_background, Rectf(Vector2f(0, 0), getPixelSize()), nullptr, white);
    d_frame.setColours(white);
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
}

void MXScrollbarBase::onSized(ElementEventArgs& e)
{
    Scrollbar::onSized(e);
    d_frame.setSize(getPixelSize());
    ++e.handled;
}

} // namespace MoxieLook
} // namespace CEGUI
