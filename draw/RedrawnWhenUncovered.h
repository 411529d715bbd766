// A window clipped to nothing draws nothing; CEGUI 0.8 keeps a window's geometry across
// moves and does not redraw on them, so such a window would stay blank once scrolled or
// moved back into view. This base redraws it then; and when text parsing is switched,
// which CEGUI 0.8 does not redraw either.
#pragma once

#include "draw/ClipWatch.h"
#include "draw/Imagery.h"

#include <CEGUI/GeometryBuffer.h>

namespace CEGUI
{
namespace MoxieLook
{
template <typename Base>
class RedrawnWhenUncovered : public Base
{
public:
    using Base::Base;

    void notifyScreenAreaChanged(bool recursive = true) override
    {
        Base::notifyScreenAreaChanged(recursive);
        if (this->getGeometryBuffer().getVertexCount() == 0 && hasVisibleArea(*this))
            this->invalidate(false);
        else if (d_drewOnlySeen && d_seen.uncovers(*this, this->getOuterRectClipper()))
            this->invalidate(false);
    }

    //! The window-local area that can be seen now, for a draw that leaves out the rest (tiles
    //! of a huge image); more coming into view later draws again.
    Rectf seenForDrawing()
    {
        d_drewOnlySeen = true;
        d_seen.drawnWith(*this, this->getOuterRectClipper());
        return ClipWatch::localClip(*this, this->getOuterRectClipper());
    }

protected:
    void onTextParsingChanged(WindowEventArgs& e) override
    {
        Base::onTextParsingChanged(e);
        this->invalidate(false);
    }

private:
    ClipWatch d_seen;
    bool d_drewOnlySeen = false;
};

} // namespace MoxieLook
} // namespace CEGUI
