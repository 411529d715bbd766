#include "looks/InnerBars.h"

#include <CEGUI/Window.h>
#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
void layOutInnerBars(Window* vert, Window* horz, const Rectf& inner, float thickness)
{
    const bool vertShown = vert && vert->isVisible();
    const bool horzShown = horz && horz->isVisible();
    const float vertLength = inner.getHeight() - (horzShown ? thickness : 0);
    const float horzLength = inner.getWidth() - (vertShown ? thickness : 0);
    if (vert)
        vert->setArea(UVector2(cegui_absdim(inner.right() - thickness), cegui_absdim(inner.top())),
                      USize(cegui_absdim(thickness), cegui_absdim(std::max(0.0f, vertLength))));
    if (horz)
        horz->setArea(
            UVector2(cegui_absdim(inner.left()), cegui_absdim(inner.bottom() - thickness)),
            USize(cegui_absdim(std::max(0.0f, horzLength)), cegui_absdim(thickness)));
}

Rectf areaBesideInnerBars(const Rectf& inner, const Window* vert, const Window* horz,
                          float thickness)
{
    Rectf area = inner;
    if (vert && vert->isVisible())
        area.d_max.d_x -= thickness;
    if (horz && horz->isVisible())
        area.d_max.d_y -= thickness;
    area.d_max.d_x = std::max(area.d_min.d_x, area.d_max.d_x);
    area.d_max.d_y = std::max(area.d_min.d_y, area.d_max.d_y);
    return area;
}

} // namespace MoxieLook
} // namespace CEGUI
