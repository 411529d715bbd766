// "MoxieLook/Slider": a thumb ("MoxieLook/SliderThumb") riding on the bottom edge over a
// three-piece track, with tick marks above it, counted from the value's start end (the
// right with "ReversedDirection").
// Images: "SliderTrackLeft", "SlidertrackMiddle", "SliderTrackRight", "SliderTick";
// the thumb: "SliderThumbNormal", "SliderThumbHover", cursor "MouseEsWeCursor".
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/Slider.h>
#include <CEGUI/widgets/Thumb.h>
#include <memory>

namespace CEGUI
{
namespace MoxieLook
{
class MXSlider : public RedrawnWhenUncovered<Slider>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Slider";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char TrackLeftImageName[] = "SliderTrackLeft";
    static constexpr char TrackMiddleImageName[] = "SlidertrackMiddle";
    static constexpr char TrackRightImageName[] = "SliderTrackRight";
    static constexpr char CalibrationMarkImageName[] = "SliderTick";
    static constexpr float DefaultTickFrequency = 5.0f;
    static const char* ThumbType;

    MXSlider(const String& type, const String& name);

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

    //! Ticks every `frequency` click steps; 0 or less: no ticks.
    float getTickFrequency() const { return d_tickFrequency; }
    void setTickFrequency(float frequency);

    //! Tick marks for the current size, value range and click step.
    struct Ticks
    {
        float spacing; //!< pixels between two ticks
        int count;     //!< one more than the spaces in the width; those in view are drawn
    };
    Ticks ticks() const;

    //! The slider lies across; the stock skins' "VerticalSlider" reads so.
    bool isVertical() const { return false; }
    //! The stock skins' "ReversedDirection": the value grows from the right.
    bool isReversedDirection() const { return d_reversed; }
    void setReversedDirection(bool reversed);
    //! The thumb's left edge for `value`, window-local, and the value at a thumb's left edge:
    //! what placing, dragging and the ticks all go by.
    float thumbLeftFor(float value) const;
    float valueAtThumbLeft(float left) const;

    //! The tick marks live in a buffer of their own, made again only when what places them
    //! changes: moving or lighting the thumb redraws the track, not every tick.
    const GeometryBuffer& tickGeometry() const { return *d_ticks; }

    void notifyScreenAreaChanged(bool recursive = true) override;

protected:
    virtual Thumb* createThumb(const String& name) const;
    void updateThumb() override;
    float getValueFromThumb() const override;
    float getAdjustDirectionFromPoint(const Vector2f& point) const override;
    void populateGeometryBuffer() override;
    void drawSelf(const RenderingContext& ctx) override;

private:
    //! Everything the ticks' geometry follows from.
    struct TickPlacement
    {
        Vector2f first;
        float spacing = 0.0f;
        int from = 0, to = 0;
        ColourRect colours;
        const Image* image = nullptr;
        Sizef imageSize{0.0f, 0.0f}; //!< the image's own, which an imageset may scale
        Vector2f imageOffset{0.0f, 0.0f};

        bool operator==(const TickPlacement& other) const;
    };
    void placeTicks(const TickPlacement& placement);
    //! Where CEGUI puts and cuts the slider's own geometry, for the ticks'.
    void placeTickGeometry(const RenderingContext& ctx);

    struct GeometryRelease
    {
        void operator()(GeometryBuffer* buffer) const;
    };

    Event::ScopedConnection d_thumbWheel;
    //! Pixels the thumb can travel.
    float travel() const;

    float d_tickFrequency = DefaultTickFrequency;
    bool d_reversed = false;
    const Image* d_trackLeft;
    const Image* d_trackMiddle;
    const Image* d_trackRight;
    const Image* d_tick;
    std::unique_ptr<GeometryBuffer, GeometryRelease> d_ticks;
    TickPlacement d_tickPlacement;
};

class MXSliderThumb : public RedrawnWhenUncovered<Thumb>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/SliderThumb";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseEsWeCursor";
    static constexpr char NormalImageName[] = "SliderThumbNormal";
    static constexpr char HighlightImageName[] = "SliderThumbHover";

    MXSliderThumb(const String& type, const String& name);

protected:
    void populateGeometryBuffer() override;
    virtual void drawNormal();
    virtual void drawHover();
    virtual void drawPushed();
    virtual void drawDisabled();

private:
    void drawImage(const Image& image);

    const Image* d_normal;
    const Image* d_highlight;
};

using MXSliderFactory = LookFactory<MXSlider>;
using MXSliderThumbFactory = LookFactory<MXSliderThumb>;

} // namespace MoxieLook
} // namespace CEGUI
