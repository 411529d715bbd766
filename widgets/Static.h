// The module's static widget (CEGUI 0.8 draws its statics through Falagard skins and has
// no such class): an optional nine-piece frame and an optional background image inside
// it. Children and content are placed inside the frame.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/Window.h>

namespace CEGUI
{
namespace MoxieLook
{
class Static : public RedrawnWhenUncovered<Window>
{
public:
    Static(const String& type, const String& name);

    //! In the order top-left, top-right, bottom-left, bottom-right, left, top, right, bottom.
    void setFrameImages(const Image* topLeft, const Image* topRight, const Image* bottomLeft,
                        const Image* bottomRight, const Image* left, const Image* top,
                        const Image* right, const Image* bottom);
    const NinePieceFrame& getFrame() const { return d_frame; }

    bool isFrameEnabled() const { return d_frameEnabled; }
    void setFrameEnabled(bool enabled);
    const ColourRect& getFrameColours() const { return d_frameColours; }
    void setFrameColours(const ColourRect& colours);

    bool isBackgroundEnabled() const { return d_backgroundEnabled; }
    void setBackgroundEnabled(bool enabled);
    const Image* getBackgroundImage() const { return d_background; }
    void setBackgroundImage(const Image* image);
    const ColourRect& getBackgroundColours() const { return d_backgroundColours; }
    void setBackgroundColours(const ColourRect& colours);

protected:
    //! Background, frame, then what a derived widget shows inside the frame.
    void populateGeometryBuffer() override;
    //! The content, in window-local pixels of the area inside the frame.
    virtual void drawContent(GeometryBuffer& buffer, const Rectf& inner);

    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;
    //! The area inside the frame moved or changed size.
    virtual void onFrameChanged() {}
    //! The area inside the frame (the whole window without it), window-local.
    Rectf localInnerRect() const;

private:
    void frameChanged();

    NinePieceFrame d_frame;
    bool d_frameEnabled = true;
    ColourRect d_frameColours{Colour(0xFFFFFFFF)};
    bool d_backgroundEnabled = true;
    const Image* d_background = nullptr;
    ColourRect d_backgroundColours{Colour(0xFFFFFFFF)};
};

} // namespace MoxieLook
} // namespace CEGUI
