#include "widgets/ButtonEx.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"
#include "module/Soundification.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/Image.h>
#include <CEGUI/ImageManager.h>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
ButtonExProperties::VerticalTextAlignmentProperty s_verticalTextAlignmentProperty;
} // namespace

ButtonEx::ButtonEx(const String& type, const String& name) : PushButtonEx(type, name)
{
    addProperty(&s_verticalTextAlignmentProperty);
    addEvent(EventDragStarted);
    addEvent(EventDropCancelled);
}

void ButtonEx::initialiseComponents()
{
    PushButtonEx::initialiseComponents();
    d_dragAuthorised = false;
    d_accumulatedMovement = 0;
    d_dragging = false;
    d_mouseHeld = false;
    d_normalBackground = d_hoverBackground = d_pushedBackground = d_disabledBackground = nullptr;
    subscribeEvent(EventMouseButtonDown, Event::Subscriber(&ButtonEx::MouseDown, this));
    subscribeEvent(EventMouseMove, Event::Subscriber(&ButtonEx::MouseMove, this));
    subscribeEvent(EventMouseButtonUp, Event::Subscriber(&ButtonEx::MouseUp, this));
}

void ButtonEx::SetVerticalTextAlignment(VerticalTextAlignment alignment)
{
    d_verticalAlignment = alignment;
    invalidate();
}

void ButtonEx::SetStandardizedFrame(const std::string& imageset, const std::string& base, int mask)
{
    setStandardImageryEnabled(false);
    FormattedImage image;
    image.setHorzFormatting(FormattedImage::HorzStretched);
    image.setVertFormatting(FormattedImage::VertStretched);
    image.setSize(getPixelSize());
    setCustomImageryAutoSized(true);

    const struct
    {
        int bit;
        const char* suffix;
        void (PushButtonEx::*set)(const FormattedImage*);
    } states[] = {{1, "Normal", &PushButtonEx::setNormalImage},
                  {2, "Focus", &PushButtonEx::setHoverImage},
                  {4, "Clicked", &PushButtonEx::setPushedImage},
                  {8, "Disabled", &PushButtonEx::setDisabledImage}};
    for (const auto& state : states)
        if (mask & state.bit)
        {
            image.setImage(&ImageManager::getSingleton().get(
                String((imageset + "/" + base).c_str()) + state.suffix));
            (this->*state.set)(&image);
        }
}

void ButtonEx::RemoveDropTarget(Window* window)
{
    window->removeEvent(EventDropped);
}

Rectf ButtonEx::localFrameInnerRect() const
{
    const Rectf all(Vector2f(0, 0), getPixelSize());
    return isStandardImageryEnabled() ? d_normalFrame.innerRect(all) : all;
}

Rectf ButtonEx::GetLocalUnclippedInnerRect() const
{
    return toLocal(*this, getUnclippedInnerRect().get());
}

Rectf ButtonEx::GetLocalInnerRect() const
{
    return toLocal(*this, getInnerRectClipper());
}

Rectf ButtonEx::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    Rectf inner = localFrameInnerRect();
    inner.offset((skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                        : getUnclippedOuterRect().get())
                     .d_min);
    return inner;
}

void ButtonEx::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    // Pushed wins even over disabled: a pushed button is drawn pushed.
    if (isPushed())
        drawPushed();
    else if (isHovering())
        drawHover();
    else if (!isEffectiveDisabled())
        drawNormal();
    else
        drawDisabled();
}

void ButtonEx::drawNormal()
{
    drawState(d_normalFrame, d_normalBackground, isNormalImageEnabled(), d_normalImage,
              Colour(0xFFFFFFFF), getNormalTextColour());
}

void ButtonEx::drawHover()
{
    drawState(d_hoverFrame, d_hoverBackground, isHoverImageEnabled(), d_hoverImage,
              Colour(0xFFFFFFFF), getHoverTextColour());
}

void ButtonEx::drawPushed()
{
    drawState(d_pushedFrame, d_pushedBackground, isPushedImageEnabled(), d_pushedImage,
              Colour(0xFFFFFFFF), getPushedTextColour());
}

void ButtonEx::drawDisabled()
{
    drawState(d_disabledFrame, d_disabledBackground, isDisabledImageEnabled(), d_disabledImage,
              d_disabledColour, getDisabledTextColour());
}

void ButtonEx::drawState(NinePieceFrame& frame, const Image* background, bool useCustomImage,
                         FormattedImage& customImage, const Colour& imageryColour,
                         const Colour& textColour)
{
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    const Rectf all(Vector2f(0, 0), getPixelSize());
    const ColourRect imagery = faded(ColourRect(imageryColour), alpha);

    if (isStandardImageryEnabled())
    {
        if (background)
        {
            frame.setSize(all.getSize());
            frame.setColours(imagery);
            drawImage(buffer, *background, frame.innerRect(all), nullptr, imagery);
            frame.draw(buffer, all.d_min, nullptr);
            if (useCustomImage)
            {
                customImage.setColours(withAlpha(customImage.getColours(), alpha));
                const Rectf seen = seenForDrawing();
                customImage.draw(buffer, all.d_min, nullptr, &seen);
            }
        }
    }
    else if (useCustomImage && customImage.getImage())
    {
        const Rectf inner = localFrameInnerRect();
        customImage.setColours(withAlpha(customImage.getColours(), alpha));
        const Rectf seen = seenForDrawing();
        customImage.draw(buffer, inner.d_min, nullptr, &seen);
    }

    drawImages(buffer, alpha);

    if (getFont())
    {
        const VertTextFormat vertical = d_verticalAlignment == VTA_Top ? VertTextFormat::Top
                                        : d_verticalAlignment == VTA_Middle
                                            ? VertTextFormat::Centred
                                            : VertTextFormat::Bottom;
        drawText(*this, buffer, getRenderedString(), localFrameInnerRect(), HorzTextFormat::Centred,
                 vertical, ColourRect(withAlpha(textColour, alpha)), nullptr);
    }
}

void ButtonEx::onSized(ElementEventArgs& e)
{
    PushButtonEx::onSized(e);
    // The disabled frame is sized when it is drawn.
    sizeFrames({&d_hoverFrame, &d_normalFrame, &d_pushedFrame}, getPixelSize());
    MyOnSizedInternal();
}

void ButtonEx::MyOnSized()
{
    ElementEventArgs args(this);
    onSized(args);
}

void ButtonEx::setDragging(bool on)
{
    d_dragging = on;
    if (on)
    {
        d_mutedParent = getParent();
        if (d_mutedParent)
            d_mutedParent->setMutedState(true);
    }
    else
    {
        // Only the parent it muted, and only while it is still the parent.
        if (d_mutedParent && d_mutedParent == getParent())
            d_mutedParent->setMutedState(false);
        d_mutedParent = nullptr;
    }
    setClippedByParent(!on);
    setModalState(on);
}

void ButtonEx::onDestructionStarted(WindowEventArgs& e)
{
    if (d_dragging)
        setDragging(false);
    d_mouseHeld = false;
    PushButtonEx::onDestructionStarted(e);
}

bool ButtonEx::MouseDown(const EventArgs& args)
{
    if (!d_dragAuthorised)
        return false;
    const auto& mouse = static_cast<const MouseEventArgs&>(args);
    d_grabOffset = mouse.position - getUnclippedOuterRect().get().d_min;
    d_accumulatedMovement = 0;
    d_mouseHeld = true;
    return false;
}

bool ButtonEx::MouseMove(const EventArgs& args)
{
    if (!d_dragAuthorised || !d_mouseHeld)
        return false;
    const auto& mouse = static_cast<const MouseEventArgs&>(args);
    if (d_dragging)
    {
        moveKeepingGrab(*this, mouse.position, d_grabOffset);
        return true;
    }
    d_accumulatedMovement += squaredStep(mouse);
    if (d_accumulatedMovement > DragThreshold)
    {
        d_positionBeforeDrag = getPosition();
        setDragging(true);
        DragEventArgs started(this, nullptr);
        fireEvent(EventDragStarted, started, "");
    }
    return true;
}

void ButtonEx::PlayClickSound()
{
    MXSoundification::GetInstance().PlaySound(this, d_clickSound);
}

void ButtonEx::CancelDrag()
{
    if (!d_dragging)
        return;
    d_mouseHeld = false;
    d_dragCancelled = true;
    endDrag(false);
}

void ButtonEx::endDrag(bool dropHere)
{
    setPosition(d_positionBeforeDrag);
    setDragging(false);
    Window* target = dropHere ? dropTargetUnderCursor(*this, d_dropTargets) : nullptr;
    if (target)
    {
        DragEventArgs dropped(this, target);
        target->fireEvent(EventDropped, dropped, "");
        MXSoundification::GetInstance().PlaySound(this, d_dropSound);
    }
    else
    {
        DragEventArgs cancelled(this, nullptr);
        fireEvent(EventDropCancelled, cancelled, "");
        MXSoundification::GetInstance().PlaySound(this, d_cancelSound);
    }
    setEnabled(true);
}

bool ButtonEx::MouseUp(const EventArgs& args)
{
    const auto& mouse = static_cast<const MouseEventArgs&>(args);
    d_mouseHeld = false;
    d_accumulatedMovement = 0;
    if (d_dragCancelled)
    {
        d_dragCancelled = false;
        return true;
    }
    if (!d_dragging)
    {
        if (mouse.button == LeftButton)
            PlayClickSound();
        return false;
    }
    endDrag(true);
    return true;
}

namespace ButtonExProperties
{
VerticalTextAlignmentProperty::VerticalTextAlignmentProperty()
    : Property("VerticalTextAlignment", "Property to change the text vertical alignment.", "Middle",
               true, "MoxieLook/ButtonEx")
{
}

String VerticalTextAlignmentProperty::get(const PropertyReceiver* receiver) const
{
    switch (static_cast<const ButtonEx*>(receiver)->GetVerticalTextAlignment())
    {
    case ButtonEx::VTA_Top:
        return "Top";
    case ButtonEx::VTA_Middle:
        return "Middle";
    default:
        return "Bottom";
    }
}

void VerticalTextAlignmentProperty::set(PropertyReceiver* receiver, const String& value)
{
    static_cast<ButtonEx*>(receiver)->SetVerticalTextAlignment(value == "Top" ? ButtonEx::VTA_Top
                                                               : value == "Middle"
                                                                   ? ButtonEx::VTA_Middle
                                                                   : ButtonEx::VTA_Bottom);
}
} // namespace ButtonExProperties

} // namespace MoxieLook
} // namespace CEGUI
