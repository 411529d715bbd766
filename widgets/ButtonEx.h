// The extended push button: a nine-piece frame and a background per state, extra images
// (MultiImage), vertical text alignment, sounds through the host's hook, and
// drag-and-drop onto registered target windows.
#pragma once

#include "draw/FramedFill.h"
#include "draw/NinePieceFrame.h"
#include "widgets/DragEventArgs.h"
#include "widgets/MultiImage.h"
#include "widgets/PushButtonEx.h"

#include <cstdint>
#include <set>
#include <string>

namespace CEGUI
{
namespace MoxieLook
{
class ButtonEx : public PushButtonEx, public MultiImage
{
public:
    enum VerticalTextAlignment
    {
        VTA_Top = 0,
        VTA_Middle = 1,
        VTA_Bottom = 2
    };

    //! The summed squared pointer steps after which a press becomes a drag.
    static const std::uint32_t DragThreshold = 50;

    ButtonEx(const String& type, const String& name);

    void initialiseComponents() override;

    void SetNormalFrame(const NinePieceFrame& frame)
    {
        d_normalFrame = frame;
        invalidate();
    }
    void SetHoverFrame(const NinePieceFrame& frame)
    {
        d_hoverFrame = frame;
        invalidate();
    }
    void SetPushedFrame(const NinePieceFrame& frame)
    {
        d_pushedFrame = frame;
        invalidate();
    }
    void SetDisabledFrame(const NinePieceFrame& frame)
    {
        d_disabledFrame = frame;
        invalidate();
    }
    void SetNormalBackground(const Image* image)
    {
        d_normalBackground = image;
        invalidate();
    }
    void SetHoverBackground(const Image* image)
    {
        d_hoverBackground = image;
        invalidate();
    }
    void SetPushedBackground(const Image* image)
    {
        d_pushedBackground = image;
        invalidate();
    }
    void SetDisabledBackground(const Image* image)
    {
        d_disabledBackground = image;
        invalidate();
    }
    //! Tints the disabled state's frame and background.
    void setDisabledColour(const Colour& colour)
    {
        d_disabledColour = colour;
        invalidate();
    }
    const Colour& getDisabledColour() const { return d_disabledColour; }

    void SetVerticalTextAlignment(VerticalTextAlignment alignment);
    VerticalTextAlignment GetVerticalTextAlignment() const { return d_verticalAlignment; }

    //! Standard imagery off; the images named `base` + "Normal", "Focus", "Clicked",
    //! "Disabled" (for mask bits 1, 2, 4, 8) become the stretched custom state images.
    void SetStandardizedFrame(const std::string& imageset, const std::string& base, int mask);

    void SetDragAuthorized(bool authorised) { d_dragAuthorised = authorised; }
    bool IsDragging() const { return d_dragging; }
    void AddDropTarget(Window* window) { d_dropTargets.insert(window); }
    //! Removes the target's "DropEvent" and its subscribers; the window stays a target.
    void RemoveDropTarget(Window* window);
    void ClearDropTargets() { d_dropTargets.clear(); }
    void SetSourceDragInfo(const std::string& info) { d_sourceDragInfo = info; }
    //! The sound of a click, for a click made without the mouse (a key).
    void PlayClickSound();
    //! Ends a drag in progress as a drop on no target does (back in place, "DropCancelled",
    //! its sound); the release that follows clicks nothing. For Escape.
    void CancelDrag();
    const std::string& GetSourceDragInfo() const { return d_sourceDragInfo; }

    //! The inner rectangle (inside the frame of the standard imagery, the whole window
    //! without it), unclipped or clipped, from the window's unclipped top-left.
    Rectf GetLocalUnclippedInnerRect() const override;
    Rectf GetLocalInnerRect() const override;

protected:
    void populateGeometryBuffer() override;
    void drawNormal() override;
    void drawHover() override;
    void drawPushed() override;
    void drawDisabled() override;
    void onSized(ElementEventArgs& e) override;
    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;
    //! A drag ends with the window: the parent is unmuted and the modal state let go.
    void onDestructionStarted(WindowEventArgs& e) override;

    // MultiImage's hooks.
    void MyOnSized() override;
    void MyRequestRedraw() override { invalidate(); }
    Rectf MyGetInnerRect() const override { return getInnerRectClipper(); }

    std::string d_clickSound = "clic";
    std::string d_dropSound = "cloc";
    std::string d_cancelSound = "meup";

    NinePieceFrame d_normalFrame;
    NinePieceFrame d_hoverFrame;
    NinePieceFrame d_pushedFrame;
    NinePieceFrame d_disabledFrame;
    Colour d_disabledColour{0xFFFFFFFF};

private:
    void drawState(NinePieceFrame& frame, const Image* background, bool useCustomImage,
                   FormattedImage& customImage, const Colour& imageryColour,
                   const Colour& textColour);
    void setDragging(bool on);
    //! Back in place; dropped on the target under the pointer if `dropHere` finds one, else
    //! cancelled. Events and sounds as the drop or cancel.
    void endDrag(bool dropHere);
    bool MouseDown(const EventArgs& args);
    bool MouseMove(const EventArgs& args);
    bool MouseUp(const EventArgs& args);

    Rectf localFrameInnerRect() const;

    VerticalTextAlignment d_verticalAlignment = VTA_Middle;
    bool d_dragAuthorised = false;
    Vector2f d_grabOffset{0, 0};
    std::uint32_t d_accumulatedMovement = 0;
    bool d_dragging = false;
    Window* d_mutedParent = nullptr;
    bool d_mouseHeld = false;
    bool d_dragCancelled = false; //!< until the button that dragged is released
    const Image* d_normalBackground = nullptr;
    const Image* d_hoverBackground = nullptr;
    const Image* d_pushedBackground = nullptr;
    const Image* d_disabledBackground = nullptr;
    std::set<Window*> d_dropTargets;
    UVector2 d_positionBeforeDrag;
    std::string d_sourceDragInfo;
};

namespace ButtonExProperties
{
//! "Top", "Middle" (the default), anything else bottom.
class VerticalTextAlignmentProperty : public Property
{
public:
    VerticalTextAlignmentProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new VerticalTextAlignmentProperty(*this); }
};
} // namespace ButtonExProperties

} // namespace MoxieLook
} // namespace CEGUI
