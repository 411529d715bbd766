#include "widgets/EditboxEx.h"

#include <CEGUI/PropertyHelper.h>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// The box's matcher is protected: reached through a pointer to it, on the box itself.
struct MatcherAccess : Editbox
{
    using Member = RegexMatcher* Editbox::*;
    static constexpr Member validator = &MatcherAccess::d_validator;
};
} // namespace

EditboxEx::EditboxEx(const String& type, const String& name)
    : RedrawnWhenUncovered<Editbox>(type, name)
{
    ensureValidator(*this, d_matcher);
    const String propertyOrigin("MoxieLook/EditboxEx");
    CEGUI_DEFINE_PROPERTY(EditboxEx, String, "PlaceholderText",
                          "Property to get/set the text shown in grey while the box is empty "
                          "and unfocused. Value is the text.",
                          &EditboxEx::setPlaceholderText, &EditboxEx::getPlaceholderText, "");
    CEGUI_DEFINE_PROPERTY(EditboxEx, Colour, "PlaceholderTextColour",
                          "Property to get/set the colour of the placeholder text. Value is "
                          "\"aarrggbb\".",
                          &EditboxEx::setPlaceholderTextColour,
                          &EditboxEx::getPlaceholderTextColour, Colour(0xFF8C99A8));
    CEGUI_DEFINE_PROPERTY(EditboxEx, bool, "SelectAllOnFocus",
                          "Property to get/set whether a click that gives the box focus selects "
                          "the whole text. Value is either \"True\" or \"False\".",
                          &EditboxEx::setSelectAllOnFocus, &EditboxEx::isSelectAllOnFocus, false);
}

EditboxEx::~EditboxEx()
{
    // The box forgets the matcher before it goes.
    if (d_matcher)
        setValidator(nullptr);
}

void EditboxEx::ensureValidator(Editbox& box, std::unique_ptr<ValidationMatcher>& owner)
{
    if (box.*MatcherAccess::validator)
        return;
    owner = std::make_unique<ValidationMatcher>();
    box.setValidator(owner.get());
}

void EditboxEx::setPlaceholderText(const String& text)
{
    d_placeholderText = text;
    invalidate();
}

void EditboxEx::setPlaceholderTextColour(const Colour& colour)
{
    d_placeholderColour = colour;
    invalidate();
}

bool EditboxEx::isPlaceholderShown() const
{
    return getText().empty() && !hasInputFocus() && !d_placeholderText.empty();
}

void EditboxEx::onMouseButtonDown(MouseEventArgs& e)
{
    const bool hadFocus = hasInputFocus();
    RedrawnWhenUncovered<Editbox>::onMouseButtonDown(e);
    if (!hadFocus && d_selectAllOnFocus && e.button == LeftButton)
    {
        setSelection(0, getText().length());
        // CEGUI would turn the least move before the release into a drag selection.
        d_dragging = false;
    }
}

void EditboxEx::onTextValidityChanged(RegexMatchStateEventArgs& e)
{
    RedrawnWhenUncovered<Editbox>::onTextValidityChanged(e);
    if (e.handled == 0 && e.matchState != RegexMatcher::MS_INVALID)
        ++e.handled;
}

void EditboxEx::onActivated(ActivationEventArgs& e)
{
    RedrawnWhenUncovered<Editbox>::onActivated(e);
    invalidate();
}

void EditboxEx::onDeactivated(ActivationEventArgs& e)
{
    RedrawnWhenUncovered<Editbox>::onDeactivated(e);
    invalidate();
}

} // namespace MoxieLook
} // namespace CEGUI
