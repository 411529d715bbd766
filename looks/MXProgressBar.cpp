#include "looks/MXProgressBar.h"

#include "draw/Imagery.h"
#include "draw/TextDrawing.h"

#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXProgressBar::TextColour(0x0026313D);

MXProgressBar::MXProgressBar(const String& type, const String& name)
    : RedrawnWhenUncovered<ProgressBar>(type, name),
      d_track(ThreePieceBar::named(TrackLeftImageName, TrackMiddleImageName, TrackRightImageName)),
      d_lit(ThreePieceBar::named(LitLeftImageName, LitMiddleImageName, LitRightImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

float MXProgressBar::litWidth() const
{
    const float progress = getProgress();
    if (std::isnan(progress))
        return 0.0f;
    return std::round(getPixelSize().d_width * std::clamp(progress, 0.0f, 1.0f));
}

void MXProgressBar::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha);
    const Rectf area(Vector2f(0, 0), getPixelSize());
    d_track.draw(buffer, area, white);
    const float lit = litWidth();
    if (lit > 0)
    {
        const Rectf filled(0, 0, lit, area.bottom());
        d_lit.draw(buffer, area, white, &filled);
    }
    if (getFont() && !getText().empty())
        drawText(*this, buffer, getRenderedString(), area, HorzTextFormat::Centred,
                 VertTextFormat::Centred, ColourRect(withAlpha(TextColour, alpha)), nullptr);
}

void MXProgressBar::onProgressChanged(WindowEventArgs& e)
{
    ProgressBar::onProgressChanged(e);
    invalidate();
}

} // namespace MoxieLook
} // namespace CEGUI
