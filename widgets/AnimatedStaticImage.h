// A static image showing its frames one after another, one frame per period, driven by
// the host's time pulses. At most one frame advances per pulse: after a stall it catches
// up a frame at a time.
#pragma once

#include "widgets/StaticImage.h"

#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class AnimatedStaticImage : public StaticImage
{
public:
    static const int DefaultFrequency = 25; //!< frames per second

    AnimatedStaticImage(const String& type, const String& name);

    void initialiseComponents() override;

    void addFrame(const Image* frame) { d_frames.push_back(frame); }
    std::size_t getFrameCount() const { return d_frames.size(); }
    //! The integer part of 1 / period (0 when stopped).
    int getFrequency() const;
    //! Period = 1 / frequency: 0 stops the animation, a negative one steps every pulse.
    void setFrequency(int framesPerSecond);
    std::size_t getNextFrameIndex() const { return d_next; }

protected:
    void updateSelf(float elapsed) override;
    void onShown(WindowEventArgs& e) override;

private:
    void addAnimatedStaticImageProperties();

    std::vector<const Image*> d_frames;
    float d_period = 1.0f / DefaultFrequency;
    float d_accumulated = 0.0f;
    std::size_t d_next = 0;
    const Image* d_pending = nullptr; //!< the frame to show once the window can be seen
    bool d_hasPending = false;
};

namespace AnimatedStaticImageProperties
{
//! Write-only: appends the named image ("MoxieLook/Name") to the frames.
class FrameProperty : public Property
{
public:
    FrameProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new FrameProperty(*this); }
};

class FrameFrequencyProperty : public Property
{
public:
    FrameFrequencyProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new FrameFrequencyProperty(*this); }
};
} // namespace AnimatedStaticImageProperties

} // namespace MoxieLook
} // namespace CEGUI
