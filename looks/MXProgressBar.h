// "MoxieLook/ProgressBar": a rounded track ("ProgressBarLeft", "...Middle", "...Right")
// filled from the left by the lit bar ("ProgressBarLitLeft", "...Middle", "...Right") as
// far as the progress goes, cut there so that the fill keeps its rounded start. The window
// text, if any, is centred over both. With the stock skins' "ReversedProgress" the fill
// starts at the right; with "VerticalProgress" it rises from the bottom (from the top,
// reversed), cut across; "EnabledColour" and "DisabledColour" tint it.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "draw/ThreePieceBar.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/ProgressBar.h>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class MXProgressBar : public RedrawnWhenUncovered<ProgressBar>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ProgressBar";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char TrackLeftImageName[] = "ProgressBarLeft";
    static constexpr char TrackMiddleImageName[] = "ProgressBarMiddle";
    static constexpr char TrackRightImageName[] = "ProgressBarRight";
    static constexpr char LitLeftImageName[] = "ProgressBarLitLeft";
    static constexpr char LitMiddleImageName[] = "ProgressBarLitMiddle";
    static constexpr char LitRightImageName[] = "ProgressBarLitRight";
    static const Colour TextColour;

    MXProgressBar(const String& type, const String& name);

    //! How far the fill reaches along the bar: progress x its length (0 for a progress that
    //! is no number).
    float litWidth() const;
    //! The filled part, window-local: from the left, or from the bottom when
    //! "VerticalProgress", from the other end when "ReversedProgress".
    Rectf litArea() const;
    void setVerticalProgress(bool vertical);
    bool isVerticalProgress() const { return d_vertical; }
    void setReversedProgress(bool reversed);
    bool isReversedProgress() const { return d_reversed; }

    //! The stock skins' "EnabledColour" and "DisabledColour": the fill's tint while the bar
    //! is enabled or disabled.
    void setEnabledColour(const ColourRect& colours);
    const ColourRect& getEnabledColour() const { return d_enabledColours; }
    void setDisabledColour(const ColourRect& colours);
    const ColourRect& getDisabledColour() const { return d_disabledColours; }

protected:
    void populateGeometryBuffer() override;
    void onProgressChanged(WindowEventArgs& e) override;

private:
    ThreePieceBar d_track;
    ThreePieceBar d_lit;
    ColourRect d_enabledColours{Colour(0xFFFFFFFF)};
    ColourRect d_disabledColours{Colour(0xFFFFFFFF)};
    bool d_vertical = false;
    bool d_reversed = false;
};

//! The part of `area` a progress fills from its start end (see MXProgressBar::litArea),
//! whole pixels; empty for a progress that is no number.
Rectf progressFill(const Rectf& area, float progress, bool vertical, bool reversed);

using MXProgressBarFactory = LookFactory<MXProgressBar>;

//! One block of a segmented bar, window-local, and whether the progress lights it.
struct MeterSegment
{
    Rectf rect;
    float end; //!< how far along the bar (0 to 1) the block ends
    bool lit;
};

//! Blocks `length` pixels long with `gap` pixels between them along the bar inside `area`,
//! from the start (the left, or the bottom when `vertical`; the other end when `reversed`);
//! the first round(progress x count) of them are lit. With `visible`, only the blocks that
//! meet it. Shared by drawing and tests.
std::vector<MeterSegment> meterSegments(const Rectf& area, float progress, float length, float gap,
                                        bool vertical, bool reversed,
                                        const Rectf* visible = nullptr);

//! "MoxieLook/AlternateProgressBar": the progress as a row of blocks inside a static frame;
//! "MoxieLook/VUMeter": an upright level meter whose blocks turn from green to orange to red
//! near the top. Both take CEGUI's "VerticalProgress" and "ReversedProgress".
class MXSegmentedProgressBar : public RedrawnWhenUncovered<ProgressBar>
{
public:
    static constexpr char SegmentImageName[] = "MeterSegment";
    static const Colour UnlitColour;
    static constexpr float Gap = 2.0f;

    void setVerticalProgress(bool vertical);
    bool isVerticalProgress() const { return d_vertical; }
    void setReversedProgress(bool reversed);
    bool isReversedProgress() const { return d_reversed; }

    //! Where the blocks lie, window-local.
    Rectf segmentArea() const;
    std::vector<MeterSegment> segments() const;
    //! The blocks that can be seen now, as drawn.
    std::vector<MeterSegment> segmentsInView();

protected:
    MXSegmentedProgressBar(const String& type, const String& name, bool vertical);

    //! A block's length along the bar, and its colour when lit.
    virtual float segmentLength() const = 0;
    virtual Colour litColour(float end) const = 0;

    void populateGeometryBuffer() override;
    void onProgressChanged(WindowEventArgs& e) override;

private:
    NinePieceFrame d_frame;
    bool d_vertical;
    bool d_reversed = false;
};

class MXAlternateProgressBar : public MXSegmentedProgressBar
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/AlternateProgressBar";
    static const Colour LitColour;
    MXAlternateProgressBar(const String& type, const String& name);

protected:
    float segmentLength() const override;
    Colour litColour(float end) const override;
};

class MXVUMeter : public MXSegmentedProgressBar
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/VUMeter";
    static constexpr float SegmentLength = 4.0f;
    static const Colour LowColour;  //!< up to 70 %
    static const Colour HighColour; //!< up to 90 %
    static const Colour PeakColour; //!< the rest
    MXVUMeter(const String& type, const String& name);

protected:
    float segmentLength() const override { return SegmentLength; }
    Colour litColour(float end) const override;
};

using MXAlternateProgressBarFactory = LookFactory<MXAlternateProgressBar>;
using MXVUMeterFactory = LookFactory<MXVUMeter>;

} // namespace MoxieLook
} // namespace CEGUI
