// The imagery of the text input looks (edit box, multi-line edit box, spinner, combo box
// edit area): a sunken frame ("EditboxFrame...", "EditboxFrameFocus..." while focused), a
// fill per state ("EditboxFill", "EditboxFillReadOnly", "EditboxFillDisabled"), the caret
// ("EditboxCarat") and the selection brush ("EditboxSelection", "EditboxSelectionInactive"
// while unfocused).
#pragma once

#include "draw/Imagery.h"
#include "draw/NinePieceFrame.h"
#include "draw/TextDrawing.h"

#include <CEGUI/ColourRect.h>
#include <CEGUI/Property.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/Window.h>
#include <optional>

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

    //! Colours a host gave through the stock skins' properties ("NormalTextColour",
    //! "SelectedTextColour", "ActiveSelectionColour", "InactiveSelectionColour",
    //! "ReadOnlyBGColour"); unset, the look's own.
    struct StockColours
    {
        std::optional<ColourRect> normalText;
        std::optional<ColourRect> selectedText;
        std::optional<ColourRect> activeSelection;
        std::optional<ColourRect> inactiveSelection;
        std::optional<ColourRect> readOnlyBackground;
    };
    StockColours colours;

    EditboxImagery();

    //! Draws the frame and the fill of the state; returns the area inside the frame.
    Rectf drawBox(const Window& window, GeometryBuffer& buffer, bool focused, bool readOnly,
                  bool disabled) const;
    Rectf innerRect(const Rectf& outer) const { return d_frame.innerRect(outer); }
    //! The colours to draw with, at the window's `alpha`.
    ColourRect textColour(bool readOnly, bool disabled, float alpha) const;
    ColourRect selectedTextColour(float alpha) const;
    //! The tint over the selection brush: white unless a host gave a colour.
    ColourRect selectionTint(bool focused, float alpha) const;

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
//! starts at the left (at the right, or in the middle, when `alignment` says so); a longer
//! one keeps the caret in view, leaves no blank room after its end, and otherwise keeps the
//! last offset, so that it does not jump while typing.
float scrolledTextOffset(float lastOffset, float areaWidth, float textExtent, float caretWidth,
                         float extentToCaret, HorzTextFormat alignment = HorzTextFormat::Left);

//! One of the stock skins' edit box colours on a look that has `imagery()`.
template <typename Owner>
class EditboxColourProperty : public Property
{
public:
    using Slot = std::optional<ColourRect> EditboxImagery::StockColours::*;

    EditboxColourProperty(const char* name, Slot slot, const Colour& ownColour)
        : Property(name,
                   String("Property to get/set the ") + name +
                       ". Value is \"aarrggbb\" or \"tl:aarrggbb tr:aarrggbb bl:aarrggbb "
                       "br:aarrggbb\".",
                   PropertyHelper<ColourRect>::toString(ColourRect(ownColour)), true,
                   "MoxieLook/EditboxColours"),
          d_slot(slot), d_own(ownColour)
    {
    }

    String get(const PropertyReceiver* receiver) const override
    {
        const auto& colours = static_cast<const Owner*>(receiver)->imagery().colours;
        return PropertyHelper<ColourRect>::toString((colours.*d_slot).value_or(ColourRect(d_own)));
    }

    void set(PropertyReceiver* receiver, const String& value) override
    {
        auto* owner = static_cast<Owner*>(receiver);
        owner->imagery().colours.*d_slot = PropertyHelper<ColourRect>::fromString(value);
        owner->invalidate();
    }

    Property* clone() const override { return new EditboxColourProperty(*this); }

private:
    Slot d_slot;
    Colour d_own;
};

//! Adds the stock skins' five edit box colours to `owner`.
template <typename Owner>
void addEditboxColourProperties(Owner& owner)
{
    using Colours = EditboxImagery::StockColours;
    static EditboxColourProperty<Owner> properties[] = {
        {"NormalTextColour", &Colours::normalText, opaque(EditboxImagery::TextColour)},
        {"SelectedTextColour", &Colours::selectedText, opaque(EditboxImagery::SelectedTextColour)},
        {"ActiveSelectionColour", &Colours::activeSelection, Colour(0xFFFFFFFF)},
        {"InactiveSelectionColour", &Colours::inactiveSelection, Colour(0xFFFFFFFF)},
        {"ReadOnlyBGColour", &Colours::readOnlyBackground, Colour(0xFFFFFFFF)}};
    for (auto& property : properties)
        owner.addProperty(&property);
}

} // namespace MoxieLook
} // namespace CEGUI
