#include "widgets/StaticImageEx.h"

namespace CEGUI
{
namespace MoxieLook
{
void StaticImageEx::drawContent(GeometryBuffer& buffer, const Rectf& inner)
{
    StaticImage::drawContent(buffer, inner);
    drawImages(buffer, getEffectiveAlpha());
}

void StaticImageEx::onSized(ElementEventArgs& e)
{
    StaticImage::onSized(e);
    MyOnSizedInternal();
}

void StaticImageEx::MyOnSized()
{
    ElementEventArgs args(this);
    StaticImage::onSized(args);
    MyOnSizedInternal();
}

} // namespace MoxieLook
} // namespace CEGUI
