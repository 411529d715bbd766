// "MoxieLook/HorizontalScrollbar" and "MoxieLook/VerticalScrollbar": a framed track with
// two arrow buttons ("MoxieLook/Button") and a thumb. The vertical bar is the horizontal
// one with the axes exchanged.
// Images: the "StaticFrame..." frame, "Background", the "Large...Arrow" button images,
// the "MouseArrow" cursor.
#pragma once

#include "draw/FramedFill.h"
#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"
#include "widgets/WheelForwarding.h"

#include <CEGUI/widgets/Scrollbar.h>
#include <array>

namespace CEGUI
{
class PushButton;
class Thumb;

namespace MoxieLook
{
class MXScrollbarBase : public RedrawnWhenUncovered<Scrollbar>, public WheelGiver
{
public:
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char BackgroundImageName[] = "Background";
    static constexpr char TopLeftFrameImageName[] = "StaticFrameTopLeft";
    static constexpr char TopRightFrameImageName[] = "StaticFrameTopRight";
    static constexpr char BottomLeftFrameImageName[] = "StaticFrameBottomLeft";
    static constexpr char BottomRightFrameImageName[] = "StaticFrameBottomRight";
    static constexpr char LeftFrameImageName[] = "StaticFrameLeft";
    static constexpr char RightFrameImageName[] = "StaticFrameRight";
    static constexpr char TopFrameImageName[] = "StaticFrameTop";
    static constexpr char BottomFrameImageName[] = "StaticFrameBottom";

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

    // What CEGUI's Scrollbar asks its renderer for; virtual, so a host's look can change it.
    virtual void updateThumb();
    virtual float getValueFromThumb() const;
    virtual float getAdjustDirectionFromPoint(const Vector2f& point) const;
    void populateGeometryBuffer() override;

    const NinePieceFrame& getFrame() const { return d_frame; }
    bool isVertical() const { return d_orientation.vertical; }

protected:
    //! What differs between the two orientations. The type names are read through
    //! pointers because hosts may change them before creating a bar.
    struct Orientation
    {
        bool vertical;
        const char* const* increaseButtonType;
        const char* const* decreaseButtonType;
        const char* const* thumbType;
        const char* increaseImage;
        const char* decreaseImage;
        float minThumbLength;
    };

    MXScrollbarBase(const String& type, const String& name, const Orientation& orientation);

    virtual PushButton* createIncreaseButton(const String& name) const;
    virtual PushButton* createDecreaseButton(const String& name) const;
    virtual Thumb* createThumb(const String& name) const;

    void onSized(ElementEventArgs& e) override;
    void onMouseWheel(MouseEventArgs& e) override;
    void setWheelOwner(WheelHandler handler) override { d_wheelOwner = std::move(handler); }
    void storeFrameSizes();

    NinePieceFrame d_frame;
    const Image* d_background = nullptr;
    EdgeInsets d_frameSizes;

private:
    //! Arrows and thumb; a scoped connection disconnects when it is copied away, so no vector.
    std::array<Event::ScopedConnection, 3> d_partWheels;
    WheelHandler d_wheelOwner;
    PushButton* createArrowButton(const char* type, const String& name, const char* image) const;
    float along(const Vector2f& v) const { return d_orientation.vertical ? v.d_y : v.d_x; }
    float along(const Sizef& s) const { return d_orientation.vertical ? s.d_height : s.d_width; }
    float across(const Sizef& s) const { return d_orientation.vertical ? s.d_width : s.d_height; }
    Vector2f point(float alongAxis, float acrossAxis) const;
    Sizef size(float alongAxis, float acrossAxis) const;

    Orientation d_orientation;
};

class MXHorzScrollbar : public MXScrollbarBase
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/HorizontalScrollbar";
    static const char* IncreaseButtonWidgetType;
    static const char* DecreaseButtonWidgetType;
    static const char* ThumbWidgetType;
    static constexpr char LeftButtonNormalImageName[] = "LargeLeftArrow";
    static constexpr char LeftButtonHighlightImageName[] = "LargeLeftArrow";
    static constexpr char RightButtonNormalImageName[] = "LargeRightArrow";
    static constexpr char RightButtonHighlightImageName[] = "LargeRightArrow";
    static constexpr float MinThumbWidth = 10.0f;

    MXHorzScrollbar(const String& type, const String& name);
};

class MXVertScrollbar : public MXScrollbarBase
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/VerticalScrollbar";
    static const char* IncreaseButtonWidgetType;
    static const char* DecreaseButtonWidgetType;
    static const char* ThumbWidgetType;
    static constexpr char UpButtonNormalImageName[] = "LargeUpArrow";
    static constexpr char UpButtonHighlightImageName[] = "LargeUpArrow";
    static constexpr char DownButtonNormalImageName[] = "LargeDownArrow";
    static constexpr char DownButtonHighlightImageName[] = "LargeDownArrow";
    static constexpr float MinThumbHeight = 10.0f;

    MXVertScrollbar(const String& type, const String& name);
};

//! "MoxieLook/LargeVerticalScrollbar": the stock skins' broad vertical bar, the vertical
//! bar's look with its own thumb type ("MoxieLook/LargeVerticalScrollbarThumb").
class MXLargeVertScrollbar : public MXScrollbarBase
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/LargeVerticalScrollbar";
    static const char* ThumbWidgetType;

    MXLargeVertScrollbar(const String& type, const String& name);
};

//! Forwards what CEGUI's Scrollbar asks of a renderer to the look.
class MXScrollbarRenderer : public LookRenderer<ScrollbarWindowRenderer, MXScrollbarBase>
{
public:
    static constexpr char TypeName[] = "MoxieLook/ScrollbarRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->populateGeometryBuffer();
    }
    void updateThumb() override
    {
        if (look())
            look()->updateThumb();
    }
    float getValueFromThumb() const override { return look() ? look()->getValueFromThumb() : 0; }
    float getAdjustDirectionFromPoint(const Vector2f& point) const override
    {
        return look() ? look()->getAdjustDirectionFromPoint(point) : 0;
    }
};

using MXHorzScrollbarFactory = LookFactory<MXHorzScrollbar>;
using MXLargeVertScrollbarFactory = LookFactory<MXLargeVertScrollbar>;
using MXVertScrollbarFactory = LookFactory<MXVertScrollbar>;
using MXScrollbarRendererFactory = LookRendererFactory<MXScrollbarRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
