// CEGUI's edit box with what users ask of one beyond it: a grey placeholder text while the
// box is empty and unfocused, whole-text selection when a click gives it focus, and a
// regular-expression matcher of the module's own where CEGUI has none (Debian's builds),
// so that "ValidationString" works, accepting text still being typed (a partial match).
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "widgets/ValidationMatcher.h"

#include <CEGUI/widgets/Editbox.h>
#include <memory>

namespace CEGUI
{
namespace MoxieLook
{
class EditboxEx : public RedrawnWhenUncovered<Editbox>
{
public:
    EditboxEx(const String& type, const String& name);
    ~EditboxEx() override;

    const String& getPlaceholderText() const { return d_placeholderText; }
    void setPlaceholderText(const String& text);
    const Colour& getPlaceholderTextColour() const { return d_placeholderColour; }
    void setPlaceholderTextColour(const Colour& colour);
    //! Shown while the box is empty and has no input focus.
    bool isPlaceholderShown() const;
    bool isSelectAllOnFocus() const { return d_selectAllOnFocus; }
    void setSelectAllOnFocus(bool selectAll) { d_selectAllOnFocus = selectAll; }

    //! Installs the module's matcher on `box` when it has none (CEGUI built without one).
    //! The matcher is owned by `owner`.
    static void ensureValidator(Editbox& box, std::unique_ptr<ValidationMatcher>& owner);

protected:
    void onMouseButtonDown(MouseEventArgs& e) override;
    //! CEGUI 0.8 keeps a change of validity only when a handler of "TextValidityChanged"
    //! accepts it; with no handler that does, a text that matches or may still match
    //! (partial) is accepted, and one that can no longer match is refused.
    void onTextValidityChanged(RegexMatchStateEventArgs& e) override;
    void onActivated(ActivationEventArgs& e) override;
    void onDeactivated(ActivationEventArgs& e) override;

private:
    String d_placeholderText;
    Colour d_placeholderColour{0xFF8C99A8};
    bool d_selectAllOnFocus = false;
    std::unique_ptr<ValidationMatcher> d_matcher;
};

} // namespace MoxieLook
} // namespace CEGUI
