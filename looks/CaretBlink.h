// The edit boxes' caret in time: shown and hidden in turn every period while blinking (CEGUI's
// "BlinkCaret" and "BlinkCaretTimeout"), always shown when not.
#pragma once

#include <CEGUI/Exceptions.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/TplWindowProperty.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
struct CaretBlink
{
    static constexpr float DefaultPeriod = 0.53f; //!< CEGUI's edit boxes blink so

    bool enabled = true;
    float period = DefaultPeriod; //!< seconds shown, then hidden
    float elapsed = 0.0f;
    bool shown = true;

    //! Time passes; true when the caret's visibility changed.
    bool advance(float seconds)
    {
        if (!enabled || !(period > 0))
        {
            const bool changed = !shown;
            shown = true;
            return changed;
        }
        elapsed += seconds;
        if (elapsed <= period)
            return false;
        elapsed = 0;
        shown = !shown;
        return true;
    }

    //! A caret that just moved is shown at once.
    void restart()
    {
        elapsed = 0;
        shown = true;
    }

    //! A period no number of seconds is refused, naming the property.
    void setPeriod(float seconds)
    {
        if (!(seconds >= 0) || !std::isfinite(seconds))
            throw InvalidRequestException("\"BlinkCaretTimeout\": '" +
                                          PropertyHelper<float>::toString(seconds) +
                                          "' is no number of seconds.");
        period = seconds;
    }
};

//! The blinking caret of an edit box look `Box` (which has `hasInputFocus`, `isReadOnly` and
//! `invalidate`), with CEGUI's core renderer's "BlinkCaret" and "BlinkCaretTimeout".
template <typename Box>
class BlinkingCaret
{
public:
    virtual ~BlinkingCaret() = default;

    void setBlinkCaret(bool blink)
    {
        d_blink.enabled = blink;
        restartBlink();
    }
    bool isBlinkCaret() const { return d_blink.enabled; }
    void setBlinkCaretTimeout(float seconds)
    {
        d_blink.setPeriod(seconds);
        restartBlink();
    }
    float getBlinkCaretTimeout() const { return d_blink.period; }
    bool isCaretShown() const { return d_blink.shown; }

    //! Time passes; the caret turns only while the box takes typing. Virtual, so that a
    //! host's look can change it.
    virtual void updateCaretBlink(float elapsed)
    {
        Box& box = static_cast<Box&>(*this);
        if (box.hasInputFocus() && !box.isReadOnly() && d_blink.advance(elapsed))
            box.invalidate();
    }

protected:
    //! A caret that just moved is shown at once.
    void restartBlink()
    {
        d_blink.restart();
        static_cast<Box&>(*this).invalidate();
    }

    CaretBlink d_blink;
};

//! CEGUI's core renderer's "BlinkCaret" and "BlinkCaretTimeout" on an edit box look that has
//! `setBlinkCaret`, `isBlinkCaret`, `setBlinkCaretTimeout` and `getBlinkCaretTimeout`.
template <typename Owner>
void addCaretBlinkProperties(Owner& owner, float defaultPeriod)
{
    static TplWindowProperty<Owner, bool> blink(
        "BlinkCaret",
        "Property to get/set whether the caret blinks. Value is either \"True\" "
        "or \"False\".",
        "MoxieLook/CaretBlink", &Owner::setBlinkCaret, &Owner::isBlinkCaret, true);
    static TplWindowProperty<Owner, float> timeout(
        "BlinkCaretTimeout",
        "Property to get/set the seconds the caret stays shown, then hidden. Value is a float.",
        "MoxieLook/CaretBlink", &Owner::setBlinkCaretTimeout, &Owner::getBlinkCaretTimeout,
        defaultPeriod);
    owner.addProperty(&blink);
    owner.addProperty(&timeout);
}

} // namespace MoxieLook
} // namespace CEGUI
