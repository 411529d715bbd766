// A static image carrying extra images (MultiImage) over its picture: icons, badges,
// overlays, placed against the area inside the frame and kept in place on resizes.
#pragma once

#include "widgets/MultiImage.h"
#include "widgets/StaticImage.h"

namespace CEGUI
{
namespace MoxieLook
{
class StaticImageEx : public StaticImage, public MultiImage
{
public:
    StaticImageEx(const String& type, const String& name) : StaticImage(type, name) {}

    //! The area inside the frame, unclipped or clipped, from the window's unclipped
    //! top-left.
    Rectf GetLocalUnclippedInnerRect() const override
    {
        return toLocal(*this, getUnclippedInnerRect().get());
    }
    Rectf GetLocalInnerRect() const override { return toLocal(*this, getInnerRectClipper()); }

protected:
    void drawContent(GeometryBuffer& buffer, const Rectf& inner) override;
    void onSized(ElementEventArgs& e) override;
    void onFrameChanged() override { MyOnSizedInternal(); }

    void MyOnSized() override;
    void MyRequestRedraw() override { invalidate(); }
    Rectf MyGetInnerRect() const override { return getInnerRectClipper(); }
};

} // namespace MoxieLook
} // namespace CEGUI
