#include "widgets/AnimatedStaticImage.h"

#include <CEGUI/ImageManager.h>
#include <CEGUI/PropertyHelper.h>
#include <climits>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
AnimatedStaticImageProperties::FrameProperty s_frameProperty;
AnimatedStaticImageProperties::FrameFrequencyProperty s_frameFrequencyProperty;
} // namespace

AnimatedStaticImage::AnimatedStaticImage(const String& type, const String& name)
    : StaticImage(type, name)
{
    // Time goes on while the window itself is hidden, so that shown again it is where it
    // would have been.
    setUpdateMode(WUM_ALWAYS);
}

void AnimatedStaticImage::initialiseComponents()
{
    StaticImage::initialiseComponents();
    addAnimatedStaticImageProperties();
}

void AnimatedStaticImage::addAnimatedStaticImageProperties()
{
    if (!isPropertyPresent(s_frameProperty.getName()))
    {
        addProperty(&s_frameProperty);
        addProperty(&s_frameFrequencyProperty);
    }
}

int AnimatedStaticImage::getFrequency() const
{
    const float frequency = 1.0f / d_period;
    // Periods too short for an int (or none at all) read as the nearest int can hold.
    if (std::isnan(frequency))
        return 0;
    if (frequency >= static_cast<float>(INT_MAX))
        return INT_MAX;
    if (frequency <= static_cast<float>(INT_MIN))
        return INT_MIN;
    return static_cast<int>(frequency);
}

void AnimatedStaticImage::setFrequency(int framesPerSecond)
{
    d_period = 1.0f / static_cast<float>(framesPerSecond);
}

void AnimatedStaticImage::onShown(WindowEventArgs& e)
{
    StaticImage::onShown(e);
    if (d_hasPending)
    {
        d_hasPending = false;
        setImage(d_pending);
    }
}

void AnimatedStaticImage::updateSelf(float elapsed)
{
    d_accumulated += elapsed;
    if (d_accumulated >= d_period)
    {
        d_accumulated -= d_period;
        if (!d_frames.empty())
        {
            d_pending = d_frames[d_next];
            d_hasPending = true;
            d_next = (d_next + 1) % d_frames.size();
        }
    }
    // A hidden window is not redrawn for a frame nobody sees.
    if (d_hasPending && isEffectiveVisible())
    {
        d_hasPending = false;
        setImage(d_pending);
    }
    StaticImage::updateSelf(elapsed);
}

namespace AnimatedStaticImageProperties
{
FrameProperty::FrameProperty()
    : Property("Frame", "The frame is one image added in the frame flow of the widget", "", false,
               "MoxieLook/AnimatedStaticImage")
{
}

String FrameProperty::get(const PropertyReceiver*) const
{
    return "";
}

void FrameProperty::set(PropertyReceiver* receiver, const String& value)
{
    // An unknown name is a blank frame, as CEGUI reads image texts.
    static_cast<AnimatedStaticImage*>(receiver)->addFrame(
        PropertyHelper<Image*>::fromString(value));
}

FrameFrequencyProperty::FrameFrequencyProperty()
    : Property("FrameFrequency", "This is the number of frames per second.", "25", true,
               "MoxieLook/AnimatedStaticImage")
{
}

String FrameFrequencyProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<int>::toString(
        static_cast<const AnimatedStaticImage*>(receiver)->getFrequency());
}

void FrameFrequencyProperty::set(PropertyReceiver* receiver, const String& value)
{
    static_cast<AnimatedStaticImage*>(receiver)->setFrequency(
        PropertyHelper<int>::fromString(value));
}
} // namespace AnimatedStaticImageProperties

} // namespace MoxieLook
} // namespace CEGUI
