#include "looks/MXProgressBar.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"

#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXProgressBar::TextColour(0x0026313D);

MXProgressBar::MXProgressBar(const String& type, const String& name)
    : RedrawnWhenUncovered<ProgressBar>(type, name),
      d_track(ThreePieceBar::named(TrackLeftImageName, TrackMiddleImageName, TrackRightImageName)),
      d_lit(ThreePieceBar::named(LitLeftImageName, LitMiddleImageName, LitRightImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXProgressBar, ColourRect, "EnabledColour",
                          "Property to get/set the fill's colours." MOXIE_COLOURS_VALUE_HELP,
                          &MXProgressBar::setEnabledColour, &MXProgressBar::getEnabledColour,
                          ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(
        MXProgressBar, ColourRect, "DisabledColour",
        "Property to get/set the fill's colours while disabled." MOXIE_COLOURS_VALUE_HELP,
        &MXProgressBar::setDisabledColour, &MXProgressBar::getDisabledColour,
        ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(MXProgressBar, bool, "VerticalProgress",
                          "Property to get/set whether the bar fills upwards. Value is either "
                          "\"True\" or \"False\".",
                          &MXProgressBar::setVerticalProgress, &MXProgressBar::isVerticalProgress,
                          false);
    CEGUI_DEFINE_PROPERTY(MXProgressBar, bool, "ReversedProgress",
                          "Property to get/set whether the bar fills from the other end. Value "
                          "is either \"True\" or \"False\".",
                          &MXProgressBar::setReversedProgress, &MXProgressBar::isReversedProgress,
                          false);
}

Rectf progressFill(const Rectf& area, float progress, bool vertical, bool reversed)
{
    const float span = vertical ? area.getHeight() : area.getWidth();
    const float length =
        std::isnan(progress) ? 0.0f : std::round(span * std::clamp(progress, 0.0f, 1.0f));
    // Upwards is from the bottom: reversed, an upright bar fills from the top.
    if (vertical)
        return reversed ? Rectf(area.left(), area.top(), area.right(), area.top() + length)
                        : Rectf(area.left(), area.bottom() - length, area.right(), area.bottom());
    return reversed ? Rectf(area.right() - length, area.top(), area.right(), area.bottom())
                    : Rectf(area.left(), area.top(), area.left() + length, area.bottom());
}

Rectf MXProgressBar::litArea() const
{
    return progressFill(Rectf(Vector2f(0, 0), getPixelSize()), getProgress(), d_vertical,
                        d_reversed);
}

void MXProgressBar::setVerticalProgress(bool vertical)
{
    d_vertical = vertical;
    invalidate();
}

void MXProgressBar::setReversedProgress(bool reversed)
{
    d_reversed = reversed;
    invalidate();
}

void MXProgressBar::setEnabledColour(const ColourRect& colours)
{
    d_enabledColours = colours;
    invalidate();
}

void MXProgressBar::setDisabledColour(const ColourRect& colours)
{
    d_disabledColours = colours;
    invalidate();
}

float MXProgressBar::litWidth() const
{
    const Rectf lit = litArea();
    return d_vertical ? lit.getHeight() : lit.getWidth();
}

void MXProgressBar::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha);
    const Rectf area(Vector2f(0, 0), getPixelSize());
    d_track.draw(buffer, area, white);
    const Rectf filled = litArea();
    if (filled.getWidth() > 0 && filled.getHeight() > 0)
    {
        d_lit.draw(buffer, area,
                   faded(isEffectiveDisabled() ? d_disabledColours : d_enabledColours, alpha),
                   &filled);
    }
    if (getFont() && !getText().empty())
        drawText(*this, buffer, getRenderedString(), area, HorzTextFormat::Centred,
                 VertTextFormat::Centred, ColourRect(withAlpha(TextColour, alpha)), nullptr);
}

void MXProgressBar::onProgressChanged(WindowEventArgs& e)
{
    ProgressBar::onProgressChanged(e);
    invalidate();
}

std::vector<MeterSegment> meterSegments(const Rectf& area, float progress, float length, float gap,
                                        bool vertical, bool reversed, const Rectf* visible)
{
    std::vector<MeterSegment> blocks;
    const double span = vertical ? area.getHeight() : area.getWidth();
    if (!(length > 0) || !(span >= length) || !std::isfinite(span))
        return blocks;
    const double pitch = double(length) + gap;
    const auto count = static_cast<std::size_t>((span + gap) / pitch);
    // In floats, as a host's progress is: 0.35 of ten blocks lights four.
    const double lit =
        std::isnan(progress)
            ? 0
            : std::round(std::clamp(progress, 0.0f, 1.0f) * static_cast<float>(count));
    // Measured from the start end: the left, or the bottom of an upright bar.
    const bool fromFar = vertical != reversed;
    const double origin = vertical ? area.top() : area.left();
    // Only the blocks that meet what can be seen: a bar far longer than the display stays cheap.
    std::size_t first = 0, end = count;
    if (visible)
    {
        const double lo = (vertical ? visible->top() : visible->left()) - origin;
        const double hi = (vertical ? visible->bottom() : visible->right()) - origin;
        // Offsets from the start end of the span [lo, hi] covers.
        const double nearEnd = fromFar ? span - hi : lo;
        const double farEnd = fromFar ? span - lo : hi;
        first =
            static_cast<std::size_t>(std::clamp(std::floor(nearEnd / pitch), 0.0, double(count)));
        end = static_cast<std::size_t>(std::clamp(std::ceil(farEnd / pitch), 0.0, double(count)));
    }
    for (std::size_t i = first; i < end; ++i)
    {
        const double from = double(i) * pitch;
        const double a = origin + (fromFar ? span - from - length : from);
        const auto lo = static_cast<float>(a), hi = static_cast<float>(a + length);
        const Rectf rect = vertical ? Rectf(area.left(), lo, area.right(), hi)
                                    : Rectf(lo, area.top(), hi, area.bottom());
        blocks.push_back({rect, static_cast<float>((from + length) / span), double(i) < lit});
    }
    return blocks;
}

const Colour MXSegmentedProgressBar::UnlitColour(0x00C5CED9);

MXSegmentedProgressBar::MXSegmentedProgressBar(const String& type, const String& name,
                                               bool vertical)
    : RedrawnWhenUncovered<ProgressBar>(type, name), d_vertical(vertical)
{
    setMouseCursor(&lookImage(MXProgressBar::MouseCursorImageName));
    d_frame.setImages({"StaticFrameTopLeft", "StaticFrameTopRight", "StaticFrameBottomLeft",
                       "StaticFrameBottomRight", "StaticFrameLeft", "StaticFrameTop",
                       "StaticFrameRight", "StaticFrameBottom"});
    const String propertyOrigin("MoxieLook/SegmentedProgressBar");
    CEGUI_DEFINE_PROPERTY(MXSegmentedProgressBar, bool, "VerticalProgress",
                          "Property to get/set whether the bar runs upwards. Value is either "
                          "\"True\" or \"False\".",
                          &MXSegmentedProgressBar::setVerticalProgress,
                          &MXSegmentedProgressBar::isVerticalProgress, vertical);
    CEGUI_DEFINE_PROPERTY(MXSegmentedProgressBar, bool, "ReversedProgress",
                          "Property to get/set whether the bar runs from the other end. Value "
                          "is either \"True\" or \"False\".",
                          &MXSegmentedProgressBar::setReversedProgress,
                          &MXSegmentedProgressBar::isReversedProgress, false);
}

void MXSegmentedProgressBar::setVerticalProgress(bool vertical)
{
    d_vertical = vertical;
    invalidate();
}

void MXSegmentedProgressBar::setReversedProgress(bool reversed)
{
    d_reversed = reversed;
    invalidate();
}

Rectf MXSegmentedProgressBar::segmentArea() const
{
    Rectf inner = d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize()));
    inner.d_min += Vector2f(Gap, Gap);
    inner.d_max -= Vector2f(Gap, Gap);
    return inner;
}

std::vector<MeterSegment> MXSegmentedProgressBar::segments() const
{
    return meterSegments(segmentArea(), getProgress(), segmentLength(), Gap, d_vertical,
                         d_reversed);
}

std::vector<MeterSegment> MXSegmentedProgressBar::segmentsInView()
{
    const Rectf seen = seenForDrawing();
    return meterSegments(segmentArea(), getProgress(), segmentLength(), Gap, d_vertical, d_reversed,
                         &seen);
}

void MXSegmentedProgressBar::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    const Rectf area(Vector2f(0, 0), getPixelSize());
    drawImage(buffer, lookImage("StaticFrameFill"), d_frame.innerRect(area), nullptr,
              withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha));
    d_frame.setSize(area.getSize());
    d_frame.setColours(withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha));
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
    const Image& block = lookImage(SegmentImageName);
    for (const MeterSegment& segment : segmentsInView())
        drawImage(buffer, block, segment.rect, nullptr,
                  ColourRect(withAlpha(segment.lit ? litColour(segment.end) : UnlitColour, alpha)));
    if (getFont() && !getText().empty())
        drawText(*this, buffer, getRenderedString(), area, HorzTextFormat::Centred,
                 VertTextFormat::Centred, ColourRect(withAlpha(MXProgressBar::TextColour, alpha)),
                 nullptr);
}

void MXSegmentedProgressBar::onProgressChanged(WindowEventArgs& e)
{
    ProgressBar::onProgressChanged(e);
    invalidate();
}

const Colour MXAlternateProgressBar::LitColour(0x003B78D8);

MXAlternateProgressBar::MXAlternateProgressBar(const String& type, const String& name)
    : MXSegmentedProgressBar(type, name, false)
{
}

float MXAlternateProgressBar::segmentLength() const
{
    // Blocks a little taller than wide, whichever way the bar runs.
    const Rectf area = segmentArea();
    return std::max(3.0f,
                    std::floor((isVerticalProgress() ? area.getWidth() : area.getHeight()) * 0.6f));
}

Colour MXAlternateProgressBar::litColour(float) const
{
    return LitColour;
}

const Colour MXVUMeter::LowColour(0x002E9B44);
const Colour MXVUMeter::HighColour(0x00F5A44A);
const Colour MXVUMeter::PeakColour(0x00D9443C);

MXVUMeter::MXVUMeter(const String& type, const String& name)
    : MXSegmentedProgressBar(type, name, true)
{
}

Colour MXVUMeter::litColour(float end) const
{
    return end <= 0.7f ? LowColour : end <= 0.9f ? HighColour : PeakColour;
}

} // namespace MoxieLook
} // namespace CEGUI
