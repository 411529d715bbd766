#include "draw/FramedFill.h"

#include "draw/NinePieceFrame.h"
#include "draw/QuadBatch.h"

#include <CEGUI/Image.h>

namespace CEGUI
{
namespace MoxieLook
{
void drawFramedFill(GeometryBuffer& buffer, const Rectf& area, const Image& fill,
                    const ColourRect& fillColours, const NinePieceFrame& frame,
                    const EdgeInsets& insets)
{
    drawImage(buffer, fill, insets.inside(area), nullptr, fillColours);
    frame.draw(buffer, area.d_min, nullptr);
}

} // namespace MoxieLook
} // namespace CEGUI
