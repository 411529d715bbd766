// CEGUI's tooltip with a text colour, forced showing and hiding with a fade, and a box
// that keeps near a 5 : 1 shape by spreading long texts over more lines.
#pragma once

#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/Property.h>
#include <CEGUI/widgets/Tooltip.h>
#include <utility>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class TooltipEx : public RedrawnWhenUncovered<Tooltip>
{
public:
    //! CEGUI 0.8's tooltip only knows active or not; fading is this class's.
    enum State
    {
        Inactive = 0,
        Active = 1,
        FadingIn = 2,
        FadingOut = 3
    };
    //! Width over height the box aims at.
    static constexpr float TargetAspect = 5.0f;
    static constexpr float DefaultFadeTime = 0.33f;

    TooltipEx(const String& type, const String& name);

    State getState() const;

    //! Unless already active or fading in, shows the tip for `target`, fading in.
    void forceActivation(Window* target);
    //! Unless inactive or already fading out, starts fading out from the beginning.
    void forceDeactivaction();

    const Colour& getTextColour() const { return d_textColour; }
    void setTextColour(const Colour& colour);

    //! Seconds a fade takes; 0 shows and hides at once.
    float getFadeTime() const { return d_fadeTime; }
    void setFadeTime(float seconds);

    //! One line of text, or more while that keeps the box narrowing towards 5 : 1.
    virtual Sizef getTextSize() const;

protected:
    //! The size the text takes in `lines` lines of balanced width: the widest line, and
    //! `lines` line spacings high.
    virtual Sizef getTextSize(unsigned lines) const;
    //! How many lines the text wraps to in `width` pixels, and the widest of them.
    std::pair<unsigned, float> wrapped(float width) const;

    void updateSelf(float elapsed) override;
    //! Every showing fades in; a tip that times out fades out.
    void onTooltipActive(WindowEventArgs& e) override;
    //! CEGUI 0.8 leaves hiding to skin animations; this tooltip hides itself.
    void onTooltipInactive(WindowEventArgs& e) override;
    //! CEGUI keeps a tooltip alive when its parent goes, for the windows it serves; one that
    //! serves none (a plain child in a layout) goes with its parent instead of lingering.
    void setParent(Element* parent) override;

private:
    bool servesAWindow() const;
    //! The text's words as widths in a font, measured once per text and font.
    struct Words
    {
        String text;
        const Font* font = nullptr;
        float lineSpacing = 0.0f;
        std::vector<float> widths; //!< split at blanks and line breaks
        float widest = 0.0f;
        float space = 0.0f;
    };

    void addTooltipExProperties();
    const Words& words(const Font& font) const;

    mutable Words d_words;

    Colour d_textColour{0.0f, 0.0f, 0.0f, 0.0f};
    Event::ScopedConnection d_parentDestruction;
    bool d_fadingIn = false;
    bool d_fadingOut = false;
};

namespace TooltipExProperties
{
//! The colour of the text; its alpha is always the window's.
class TextColourProperty : public Property
{
public:
    TextColourProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new TextColourProperty(*this); }
};
} // namespace TooltipExProperties

} // namespace MoxieLook
} // namespace CEGUI
