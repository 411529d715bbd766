#include "looks/MXCloseButton.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
MXCloseButton::MXCloseButton(const String& type, const String& name)
    : MXButton(type, name), d_normal(&lookImage(NormalImageName)),
      d_hover(&lookImage(HoverImageName)), d_pushed(&lookImage(PushedImageName))
{
}

void MXCloseButton::setStateImages(const String& normal, const String& hover, const String& pushed)
{
    const Image* n = &lookImage(normal);
    const Image* h = &lookImage(hover);
    const Image* p = &lookImage(pushed);
    d_normal = n;
    d_hover = h;
    d_pushed = p;
    invalidate();
}

const Image* MXCloseButton::getStateImage(ButtonDrawState state) const
{
    switch (state)
    {
    case ButtonDrawState::Hover:
        return d_hover;
    case ButtonDrawState::Pushed:
        return d_pushed;
    default:
        return d_normal;
    }
}

// A picture given through "NormalImage", "HoverImage" or "PushedImage" (as layouts for the
// stock skins' system buttons give them) stands in for the built-in one.
void MXCloseButton::drawNormal()
{
    drawCentred(isNormalImageEnabled() ? d_normalImage.getImage() : d_normal, 1.0f);
}

void MXCloseButton::drawHover()
{
    drawCentred(isHoverImageEnabled() ? d_hoverImage.getImage() : d_hover, 1.0f);
}

void MXCloseButton::drawPushed()
{
    drawCentred(isPushedImageEnabled() ? d_pushedImage.getImage() : d_pushed, 1.0f);
}

void MXCloseButton::drawDisabled()
{
    // A host's disabled picture shows as given; otherwise the normal one, faded.
    if (isDisabledImageEnabled())
        return drawCentred(d_disabledImage.getImage(), 1.0f);
    drawCentred(isNormalImageEnabled() ? d_normalImage.getImage() : d_normal, DisabledAlpha);
}

MXSystemButton::MXSystemButton(const String& type, const String& name) : MXCloseButton(type, name)
{
    setNonClient(true); // it sits on a frame window's title bar
}

void MXCloseButton::drawCentred(const Image* image, float alpha)
{
    if (!image)
        return;
    const Sizef area = getPixelSize();
    const Sizef size = image->getRenderedSize();
    const Vector2f at(std::trunc((area.d_width - size.d_width) * 0.5f + 0.5f),
                      std::trunc((area.d_height - size.d_height) * 0.5f + 0.5f));
    drawImage(getGeometryBuffer(), *image, Rectf(at, size), nullptr,
              withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha() * alpha));
}

} // namespace MoxieLook
} // namespace CEGUI
