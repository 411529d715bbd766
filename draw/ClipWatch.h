// Looks that put only what can be seen into their geometry must draw again when more of
// them comes into view: CEGUI 0.8 moves a window's geometry without redrawing it.
#pragma once

#include <CEGUI/Rect.h>
#include <CEGUI/Window.h>

namespace CEGUI
{
namespace MoxieLook
{
class ClipWatch
{
public:
    //! The window's clip area in its own pixels.
    static Rectf localClip(const Window& window, const Rectf& screenClip)
    {
        const Vector2f origin = window.getUnclippedOuterRect().get().d_min;
        return Rectf(screenClip.d_min - origin, screenClip.d_max - origin);
    }

    //! Call when drawing with `screenClip`.
    void drawnWith(const Window& window, const Rectf& screenClip)
    {
        d_drawn = localClip(window, screenClip);
    }

    //! Whether the window, now clipped by `screenClip`, shows more than was drawn.
    bool uncovers(const Window& window, const Rectf& screenClip) const
    {
        const Rectf now = localClip(window, screenClip);
        return now.left() < d_drawn.left() || now.top() < d_drawn.top() ||
               now.right() > d_drawn.right() || now.bottom() > d_drawn.bottom();
    }

private:
    Rectf d_drawn{0, 0, 0, 0};
};

} // namespace MoxieLook
} // namespace CEGUI
