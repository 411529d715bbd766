// A window clipped to nothing draws nothing; CEGUI 0.8 keeps a window's geometry across
// moves and does not redraw on them, so such a window would stay blank once scrolled or
// moved back into view. This base redraws it then; and when text parsing is switched,
// which CEGUI 0.8 does not redraw either.
#pragma once

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
    }

protected:
    void onTextParsingChanged(WindowEventArgs& e) override
    {
        Base::onTextParsingChanged(e);
        this->invalidate(false);
    }
};

} // namespace MoxieLook
} // namespace CEGUI
