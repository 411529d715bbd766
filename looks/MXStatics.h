// The looks of the static family: they choose the "MoxieLook" imagery; drawing is the
// logic classes' own.
// Images: the "StaticFrame..." frame and "StaticFrameFill" (statics and the layout),
// "ListboxSelectionBrush" and "ListboxHoverBrush" (the extended text item).
#pragma once

#include "looks/LookFactory.h"
#include "widgets/AnimatedStaticImage.h"
#include "widgets/StaticImage.h"
#include "widgets/StaticImageEx.h"
#include "widgets/StaticLayout.h"
#include "widgets/StaticText.h"
#include "widgets/TextItemEx.h"

#include <CEGUI/Event.h>

namespace CEGUI
{
class Scrollbar;
namespace MoxieLook
{
//! The "StaticFrame..." images every static look frames itself with.
struct StaticFrameImages
{
    static constexpr char TopLeftImage[] = "StaticFrameTopLeft";
    static constexpr char TopImage[] = "StaticFrameTop";
    static constexpr char TopRightImage[] = "StaticFrameTopRight";
    static constexpr char LeftImage[] = "StaticFrameLeft";
    static constexpr char RightImage[] = "StaticFrameRight";
    static constexpr char BottomLeftImage[] = "StaticFrameBottomLeft";
    static constexpr char BottomImage[] = "StaticFrameBottom";
    static constexpr char BottomRightImage[] = "StaticFrameBottomRight";
    static constexpr char BackgroundImage[] = "StaticFrameFill";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";

    //! Gives `target` the frame images and the background image (states unchanged).
    static void applyTo(Static& target);
    //! The pointer over a static look.
    static void setCursorOf(Window& target);
};

//! "MoxieLook/StaticLayout": framed, with the fill image set but not drawn.
class MXStaticLayout : public StaticLayout, public StaticFrameImages
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/StaticLayout";
    MXStaticLayout(const String& type, const String& name) : StaticLayout(type, name) {}
    void initialiseComponents() override;
};

//! "MoxieLook/StaticText": framed and filled, black text.
class MXStaticText : public StaticText, public StaticFrameImages
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/StaticText";
    static constexpr char VertScrollbarName[] = "__auto_vscrollbar__";
    static constexpr char HorzScrollbarName[] = "__auto_hscrollbar__";
    static constexpr char VertScrollbarType[] = "MoxieLook/VerticalScrollbar";
    static constexpr char HorzScrollbarType[] = "MoxieLook/HorizontalScrollbar";
    static constexpr float ScrollbarThickness = 16.0f;

    MXStaticText(const String& type, const String& name);
    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

    //! CEGUI's core static text's scrolling: a bar, when enabled, shows when the text is
    //! larger than the area that way, and the text scrolls with it.
    void setVertScrollbarEnabled(bool enabled);
    bool isVertScrollbarEnabled() const { return d_vertEnabled; }
    void setHorzScrollbarEnabled(bool enabled);
    bool isHorzScrollbarEnabled() const { return d_horzEnabled; }
    Scrollbar* getVertScrollbar() const;
    Scrollbar* getHorzScrollbar() const;

protected:
    void drawContent(GeometryBuffer& buffer, const Rectf& inner) override;
    void onMouseWheel(MouseEventArgs& e) override;
    //! The bars follow the text's size as CEGUI's static text keeps them: on every change.
    void onTextChanged(WindowEventArgs& e) override;
    void onFontChanged(WindowEventArgs& e) override;
    void onSized(ElementEventArgs& e) override;

private:
    //! Shows the bars the text needs inside `inner` and gives them its sizes; returns the
    //! area left for the text.
    Rectf configureScrollbars(const Rectf& inner);
    void addScrollProperties();

    //! The window-local area inside the frame, where the text and the bars go.
    Rectf contentArea() const;

    bool d_vertEnabled = false;
    bool d_horzEnabled = false;
    Event::ScopedConnection d_vertScrolled;
    Event::ScopedConnection d_horzScrolled;
};

//! "MoxieLook/StaticImage": a bare picture; frame and fill can be switched on.
class MXStaticImage : public StaticImage, public StaticFrameImages
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/StaticImage";
    MXStaticImage(const String& type, const String& name);
};

//! "MoxieLook/StaticImageEx": the static image look, with extra images over the picture.
class MXStaticImageEx : public StaticImageEx, public StaticFrameImages
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/StaticImageEx";
    MXStaticImageEx(const String& type, const String& name);
};

//! "MoxieLook/AnimatedStaticImage": the static image look, its picture changing with time.
class MXAnimatedStaticImage : public AnimatedStaticImage, public StaticFrameImages
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/AnimatedStaticImage";
    MXAnimatedStaticImage(const String& type, const String& name);
};

//! "MoxieLook/TextItem".
class MXTextItem : public TextItem
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TextItem";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    MXTextItem(const String& type, const String& name);
};

//! "MoxieLook/TextItemEx".
class MXTextItemEx : public TextItemEx
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TextItemEx";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char SelectionBrushImageName[] = "ListboxSelectionBrush";
    static constexpr char HoverBrushImageName[] = "ListboxHoverBrush";
    MXTextItemEx(const String& type, const String& name);
};

using MXStaticLayoutFactory = LookFactory<MXStaticLayout>;
using MXStaticTextFactory = LookFactory<MXStaticText>;
using MXStaticImageFactory = LookFactory<MXStaticImage>;
using MXStaticImageExFactory = LookFactory<MXStaticImageEx>;
using MXAnimatedStaticImageFactory = LookFactory<MXAnimatedStaticImage>;
using MXTextItemFactory = LookFactory<MXTextItem>;
using MXTextItemExFactory = LookFactory<MXTextItemEx>;

} // namespace MoxieLook
} // namespace CEGUI
