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
    bool enabled = true;
    float period = 0.53f; //!< seconds shown, then hidden
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
