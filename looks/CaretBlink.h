// The edit boxes' caret in time: shown and hidden in turn every period while blinking (CEGUI's
// "BlinkCaret" and "BlinkCaretTimeout"), always shown when not.
#pragma once

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
};

} // namespace MoxieLook
} // namespace CEGUI
