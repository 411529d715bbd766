#include "looks/MXSlider.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/FixedOrientationProperty.h"
#include "widgets/ButtonDrawState.h"
#include "widgets/WheelForwarding.h"

#include <CEGUI/Renderer.h>
#include <CEGUI/RenderingContext.h>
#include <CEGUI/RenderingSurface.h>
#include <CEGUI/System.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const char* MXSlider::ThumbType = "MoxieLook/SliderThumb";

MXSlider::MXSlider(const String& type, const String& name)
    : RedrawnWhenUncovered<Slider>(type, name), d_trackLeft(&lookImage(TrackLeftImageName)),
      d_trackMiddle(&lookImage(TrackMiddleImageName)),
      d_trackRight(&lookImage(TrackRightImageName)), d_tick(&lookImage(CalibrationMarkImageName)),
      d_ticks(&System::getSingleton().getRenderer()->createGeometryBuffer())
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXSlider, float, "TickFrequency",
                          "Property to get/set how many click steps lie between two tick "
                          "marks; 0 shows none. Value is a float.",
                          &MXSlider::setTickFrequency, &MXSlider::getTickFrequency,
                          DefaultTickFrequency);
    CEGUI_DEFINE_PROPERTY(MXSlider, bool, "ReversedDirection",
                          "Property to get/set whether the value grows from the right. Value is "
                          "either \"True\" or \"False\".",
                          &MXSlider::setReversedDirection, &MXSlider::isReversedDirection, false);
    static FixedOrientationProperty<MXSlider> orientation("VerticalSlider", WidgetTypeName,
                                                          &MXSlider::isVertical);
    addProperty(&orientation);
}

void MXSlider::GeometryRelease::operator()(GeometryBuffer* buffer) const
{
    System::getSingleton().getRenderer()->destroyGeometryBuffer(*buffer);
}

void MXSlider::setReversedDirection(bool reversed)
{
    d_reversed = reversed;
    if (getThumb())
        updateThumb();
    invalidate();
}

float MXSlider::travel() const
{
    const Window* thumb = partOrNull(*this, ThumbName);
    return getPixelSize().d_width - (thumb ? thumb->getPixelSize().d_width : 0.0f);
}

float MXSlider::thumbLeftFor(float value) const
{
    const float max = getMaxValue();
    const float free = travel();
    const float x = max > 0 ? free / max * value : 0.0f;
    return d_reversed ? free - x : x;
}

float MXSlider::valueAtThumbLeft(float left) const
{
    const float free = travel();
    if (free <= 0 || getMaxValue() <= 0)
        return 0.0f;
    return (d_reversed ? free - left : left) / (free / getMaxValue());
}

void MXSlider::setTickFrequency(float frequency)
{
    d_tickFrequency = frequency;
    invalidate();
}

void MXSlider::initialiseComponents()
{
    if (!isChild(ThumbName))
        addChild(createThumb(ThumbName));
    Slider::initialiseComponents();
    d_thumbWheel = forwardWheel(*getThumb(), *this, [this](MouseEventArgs& e) { onMouseWheel(e); });
}

Thumb* MXSlider::createThumb(const String& name) const
{
    Thumb* thumb = createAutoPart<Thumb>(ThumbType, name, "a slider thumb");
    thumb->setHorzFree(true);
    return thumb;
}

void MXSlider::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    Slider::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    Window* thumb = partOrNull(*this, ThumbName);
    if (!thumb)
        return; // still being built
    const Sizef size = lookImage(MXSliderThumb::NormalImageName).getRenderedSize();
    thumb->setSize(USize(cegui_absdim(size.d_width), cegui_absdim(size.d_height)));
    updateThumb();
}

void MXSlider::updateThumb()
{
    Thumb* thumb = partOrNull<Thumb>(*this, ThumbName);
    if (!thumb)
        return;
    const Sizef own = getPixelSize();
    const Sizef thumbSize = thumb->getPixelSize();
    const float free = own.d_width - thumbSize.d_width;
    const float x = thumbLeftFor(getCurrentValue());
    auto fraction = [&](float pixels) { return own.d_width > 0 ? pixels / own.d_width : 0.0f; };
    thumb->setHorzRange(0.0f, fraction(free));
    thumb->setPosition(
        UVector2(cegui_reldim(fraction(x)), cegui_absdim(own.d_height - thumbSize.d_height)));
}

float MXSlider::getValueFromThumb() const
{
    const Thumb* thumb = getThumb();
    return valueAtThumbLeft(thumb->getUnclippedOuterRect().get().left() -
                            getUnclippedOuterRect().get().left());
}

float MXSlider::getAdjustDirectionFromPoint(const Vector2f& point) const
{
    const Rectf thumb = getThumb()->getUnclippedOuterRect().get();
    const float towardsLess = d_reversed ? 1.0f : -1.0f;
    if (point.d_x < thumb.left())
        return towardsLess;
    if (point.d_x > thumb.right())
        return -towardsLess;
    return 0.0f;
}

MXSlider::Ticks MXSlider::ticks() const
{
    const float width = getPixelSize().d_width;
    const float max = getMaxValue();
    // Written so that NaN settings fail the tests too.
    if (!(d_tickFrequency > 0) || !(max > 0))
        return {0.0f, 0};
    const float spacing =
        std::max(std::trunc(travel() / max * getClickStep() * d_tickFrequency + 0.5f), 0.0f);
    // A spacing that rounds to nothing would mean endless ticks: draw none.
    if (!(spacing > 0) || !std::isfinite(spacing))
        return {0.0f, 0};
    const float spaces = std::trunc(width / spacing);
    if (!(spaces >= 0))
        return {spacing, 0};
    constexpr float MostSpaces = 1e9f; // a window wider than any display
    return {spacing, static_cast<int>(std::min(spaces, MostSpaces)) + 1};
}

void MXSlider::populateGeometryBuffer()
{
    const Window* thumb = partOrNull(*this, ThumbName);
    if (!hasVisibleArea(*this) || !thumb)
        return placeTicks({});
    GeometryBuffer& buffer = getGeometryBuffer();
    const ColourRect white = withAlpha(ColourRect(Colour(0xFFFFFFFF)), getEffectiveAlpha());
    const Rectf area(Vector2f(0, 0), getPixelSize());
    const Sizef thumbSize = thumb->getPixelSize();

    const float lw = d_trackLeft->getRenderedSize().d_width;
    const float rw = d_trackRight->getRenderedSize().d_width;
    const float mid = area.getWidth() - lw - rw;
    const float h = d_trackMiddle->getRenderedSize().d_height;
    // The thumb sits on the bottom edge; the track's top runs through its middle.
    const float y = area.bottom() - std::trunc(thumbSize.d_height * 0.5f + 0.5f);
    drawImage(buffer, *d_trackLeft, Rectf(Vector2f(area.left(), y), Sizef(lw, h)), nullptr, white);
    drawImage(buffer, *d_trackMiddle, Rectf(Vector2f(area.left() + lw, y), Sizef(mid, h)), nullptr,
              white);
    drawImage(buffer, *d_trackRight, Rectf(Vector2f(area.left() + lw + mid, y), Sizef(rw, h)),
              nullptr, white);

    const Ticks marks = ticks();
    if (marks.count == 0)
        return placeTicks({});
    const float thumbY =
        thumb->getUnclippedOuterRect().get().top() - getUnclippedOuterRect().get().top();
    const Sizef tick = d_tick->getRenderedSize();
    // The first tick stands at the thumb's centre for the value 0; reversed, the run of
    // ticks ends there.
    const float zeroCentre = thumbLeftFor(0.0f) + std::trunc(thumbSize.d_width * 0.5f + 0.5f);
    const Vector2f first(
        area.left() + (d_reversed ? zeroCentre - (marks.count - 1) * marks.spacing : zeroCentre),
        area.top() + thumbY - tick.d_height);
    // Only the ticks that can be seen go into the geometry; more are drawn when uncovered.
    const Rectf seen = seenForDrawing();
    const float from =
        std::max(std::ceil((seen.left() - first.d_x - tick.d_width) / marks.spacing), 0.0f);
    const float to = std::min(std::floor((seen.right() - first.d_x) / marks.spacing),
                              static_cast<float>(marks.count - 1));
    if (!(from <= to))
        return placeTicks({});
    placeTicks(
        {first, marks.spacing, static_cast<int>(from), static_cast<int>(to) + 1, white, d_tick});
}

bool MXSlider::TickPlacement::operator==(const TickPlacement& other) const
{
    return first == other.first && spacing == other.spacing && from == other.from &&
           to == other.to && image == other.image && imageSize == other.imageSize &&
           imageOffset == other.imageOffset && colours.d_top_left == other.colours.d_top_left &&
           colours.d_top_right == other.colours.d_top_right &&
           colours.d_bottom_left == other.colours.d_bottom_left &&
           colours.d_bottom_right == other.colours.d_bottom_right;
}

void MXSlider::placeTicks(const TickPlacement& placement)
{
    if (placement == d_tickPlacement)
        return;
    d_tickPlacement = placement;
    d_ticks->reset();
    if (placement.image)
        QuadBatch(*d_ticks).addRow(*placement.image, placement.first, placement.spacing,
                                   placement.from, placement.to, placement.colours);
}

void MXSlider::drawSelf(const RenderingContext& ctx)
{
    RedrawnWhenUncovered<Slider>::drawSelf(ctx);
    if (d_ticks->getVertexCount() == 0)
        return;
    placeTickGeometry(ctx);
    ctx.surface->addGeometryBuffer(ctx.queue, *d_ticks);
}

void MXSlider::notifyScreenAreaChanged(bool recursive)
{
    // A moved window keeps its geometry, which CEGUI moves; the ticks' moves with it.
    RedrawnWhenUncovered<Slider>::notifyScreenAreaChanged(recursive);
    RenderingContext ctx;
    getRenderingContext(ctx);
    if (ctx.surface)
        placeTickGeometry(ctx);
}

void MXSlider::placeTickGeometry(const RenderingContext& ctx)
{
    if (ctx.owner == this && ctx.surface->isRenderingWindow())
    {
        d_ticks->setTranslation(Vector3f(0, 0, 0));
        d_ticks->setClippingRegion(Rectf(Vector2f(0, 0), getPixelSize()));
        return;
    }
    const Vector2f at = getUnclippedOuterRect().get().getPosition() - ctx.offset;
    d_ticks->setTranslation(Vector3f(at.d_x, at.d_y, 0));
    Rectf clip(getOuterRectClipper());
    if (clip.getWidth() != 0.0f && clip.getHeight() != 0.0f)
        clip.offset(Vector2f(-ctx.offset.d_x, -ctx.offset.d_y));
    d_ticks->setClippingRegion(clip);
}

MXSliderThumb::MXSliderThumb(const String& type, const String& name)
    : RedrawnWhenUncovered<Thumb>(type, name), d_normal(&lookImage(NormalImageName)),
      d_highlight(&lookImage(HighlightImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXSliderThumb::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    // In the order of ButtonDrawState.
    static constexpr void (MXSliderThumb::*draw[])() = {
        &MXSliderThumb::drawNormal, &MXSliderThumb::drawHover, &MXSliderThumb::drawPushed,
        &MXSliderThumb::drawDisabled};
    (this->*draw[static_cast<int>(drawStateOf(*this))])();
}

void MXSliderThumb::drawNormal()
{
    drawImage(*d_normal);
}

void MXSliderThumb::drawHover()
{
    drawImage(*d_highlight);
}

void MXSliderThumb::drawPushed()
{
    drawHover();
}

void MXSliderThumb::drawDisabled()
{
    drawImage(*d_normal);
}

void MXSliderThumb::drawImage(const Image& image)
{
    MoxieLook::drawImage(getGeometryBuffer(), image, Rectf(Vector2f(0, 0), getPixelSize()), nullptr,
                         withAlpha(ColourRect(Colour(0xFFFFFFFF)), getEffectiveAlpha()));
}

} // namespace MoxieLook
} // namespace CEGUI
