// The standard picture of framed widgets: a fill inside the frame's edges, the frame
// drawn over it.
#pragma once

#include "draw/NinePieceFrame.h"

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>

namespace CEGUI
{
class GeometryBuffer;
class Image;

namespace MoxieLook
{

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

//! A frame's edge thicknesses: its left and right pieces' widths, its top and bottom
//! pieces' heights.
inline EdgeInsets edgesOf(const NinePieceFrame& frame)
{
    return {frame.pieceWidth(NinePieceFrame::Left), frame.pieceHeight(NinePieceFrame::Top),
            frame.pieceWidth(NinePieceFrame::Right), frame.pieceHeight(NinePieceFrame::Bottom)};
}

void drawFramedFill(GeometryBuffer& buffer, const Rectf& area, const Image& fill,
                    const ColourRect& fillColours, const NinePieceFrame& frame,
                    const EdgeInsets& insets);

} // namespace MoxieLook
} // namespace CEGUI
