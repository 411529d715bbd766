// The imagery of the text input looks (edit box, multi-line edit box, spinner, combo box
// edit area): a sunken frame ("EditboxFrame...", "EditboxFrameFocus..." while focused), a
// fill per state ("EditboxFill", "EditboxFillReadOnly", "EditboxFillDisabled"), the caret
// ("EditboxCarat") and the selection brush ("EditboxSelection", "EditboxSelectionInactive"
// while unfocused).
#pragma once

#include "draw/NinePieceFrame.h"

#include <CEGUI/ColourRect.h>

namespace CEGUI
{
class Window;

namespace MoxieLook
{
class EditboxImagery
{
public:
    static constexpr char FillImageName[] = "EditboxFill";
    static constexpr char ReadOnlyFillImageName[] = "EditboxFillReadOnly";
    static constexpr char DisabledFillImageName[] = "EditboxFillDisabled";
    static constexpr char CaretImageName[] = "EditboxCarat";
    static constexpr char SelectionImageName[] = "EditboxSelection";
    static constexpr char InactiveSelectionImageName[] = "EditboxSelectionInactive";
    static constexpr char FramePrefix[] = "EditboxFrame";
    static constexpr char FocusFramePrefix[] = "EditboxFrameFocus";
    static const Colour TextColour;
    static const Colour SelectedTextColour;
    static const Colour ReadOnlyTextColour;
    static const Colour DisabledTextColour;
    //! Room between the frame and the text on the left and right.
    static constexpr float TextPadding = 3.0f;

    EditboxImagery();

    //! Draws the frame and the fill of the state; returns the area inside the frame.
    Rectf drawBox(const Window& window, GeometryBuffer& buffer, bool focused, bool readOnly,
                  bool disabled) const;
    Rectf innerRect(const Rectf& outer) const { return d_frame.innerRect(outer); }
    const Colour& textColour(bool readOnly, bool disabled) const;

    const Image& caret() const { return *d_caret; }
    const Image& selection(bool focused) const { return focused ? *d_selection : *d_inactive; }

private:
    mutable NinePieceFrame d_frame;
    mutable NinePieceFrame d_focusFrame;
    const Image* d_fill;
    const Image* d_readOnlyFill;
    const Image* d_disabledFill;
    const Image* d_caret;
    const Image* d_selection;
    const Image* d_inactive;
};

//! Where the text of a one-line box starts, from the text area's left: a text that fits
//! starts at the left; a longer one keeps the caret in view, leaves no blank room after its
//! end, and otherwise keeps the last offset, so that it does not jump while typing.
float scrolledTextOffset(float lastOffset, float areaWidth, float textExtent, float caretWidth,
                         float extentToCaret);

} // namespace MoxieLook
} // namespace CEGUI
