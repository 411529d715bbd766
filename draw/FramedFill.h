// The standard picture of framed widgets: a fill inside the frame's edges, the frame
// drawn over it.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>

namespace CEGUI
{
class GeometryBuffer;
class Image;

namespace MoxieLook
{
class NinePieceFrame;

//! How far the fill stays inside each side of the area.
struct EdgeInsets
{
    float left = 0, top = 0, right = 0, bottom = 0;

    Rectf inside(const Rectf& area) const
    {
        return Rectf(area.left() + left, area.top() + top, area.right() - right,
                     area.bottom() - bottom);
    }
};

void drawFramedFill(GeometryBuffer& buffer, const Rectf& area, const Image& fill,
                    const ColourRect& fillColours, const NinePieceFrame& frame,
                    const EdgeInsets& insets);

} // namespace MoxieLook
} // namespace CEGUI
