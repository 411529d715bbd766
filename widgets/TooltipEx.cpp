#include "widgets/TooltipEx.h"

#include "draw/GlyphRun.h"
#include "draw/TextDrawing.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/WindowManager.h>
#include <algorithm>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
TooltipExProperties::TextColourProperty s_textColourProperty;
// Balancing lines narrows the width to within this many pixels.
constexpr float BalancePrecision = 0.5f;
} // namespace

TooltipEx::TooltipEx(const String& type, const String& name)
    : RedrawnWhenUncovered<Tooltip>(type, name)
{
    d_fadeTime = DefaultFadeTime;
    addTooltipExProperties();
}

void TooltipEx::addTooltipExProperties()
{
    addProperty(&s_textColourProperty);
    const String propertyOrigin("MoxieLook/Tooltip");
    CEGUI_DEFINE_PROPERTY(TooltipEx, float, "FadeTime",
                          "Property to get/set the seconds the tooltip takes to fade in or out. "
                          "Value is a float.",
                          &TooltipEx::setFadeTime, &TooltipEx::getFadeTime, DefaultFadeTime);
}

TooltipEx::State TooltipEx::getState() const
{
    if (!d_active)
        return Inactive;
    if (d_fadingIn)
        return FadingIn;
    if (d_fadingOut)
        return FadingOut;
    return Active;
}

void TooltipEx::forceActivation(Window* target)
{
    const State state = getState();
    if (state == Active || state == FadingIn)
        return;
    setTargetWindow(target);
    if (state == Inactive)
    {
        switchToActiveState();
        return;
    }
    // Fading out: turn back from the alpha reached.
    d_fadingOut = false;
    d_fadingIn = d_fadeTime > 0;
    d_elapsed = getAlpha() * d_fadeTime;
}

void TooltipEx::forceDeactivaction()
{
    const State state = getState();
    if (state == Inactive || state == FadingOut)
        return;
    d_fadingIn = false;
    d_fadingOut = true;
    d_elapsed = 0.0f;
}

void TooltipEx::setTextColour(const Colour& colour)
{
    d_textColour = colour;
    invalidate();
}

void TooltipEx::setFadeTime(float seconds)
{
    d_fadeTime = std::max(seconds, 0.0f);
}

void TooltipEx::onTooltipActive(WindowEventArgs& e)
{
    d_fadingOut = false;
    d_fadingIn = d_fadeTime > 0;
    setAlpha(d_fadingIn ? 0.0f : 1.0f);
    Tooltip::onTooltipActive(e);
}

void TooltipEx::onTooltipInactive(WindowEventArgs& e)
{
    d_fadingIn = d_fadingOut = false;
    // CEGUI 0.8 leaves hiding to skin animations; this tooltip has none.
    if (isVisible())
        hide();
    setAlpha(1.0f);
    Tooltip::onTooltipInactive(e);
}

void TooltipEx::updateSelf(float elapsed)
{
    const bool timesOut = d_active && !d_fadingIn && !d_fadingOut && d_displayTime > 0 &&
                          d_target && !d_target->getTooltipTextIncludingInheritance().empty() &&
                          d_elapsed + elapsed >= d_displayTime;
    if (timesOut)
    {
        // The fade starts with the next pulse.
        Window::updateSelf(elapsed);
        forceDeactivaction();
        return;
    }
    if (!d_fadingIn && !d_fadingOut)
    {
        Tooltip::updateSelf(elapsed);
        return;
    }

    Window::updateSelf(elapsed);
    if (!d_target || d_target->getTooltipTextIncludingInheritance().empty())
    {
        hide();
        switchToInactiveState();
        return;
    }
    d_elapsed += elapsed;
    const float progress = d_fadeTime > 0 ? std::min(d_elapsed / d_fadeTime, 1.0f) : 1.0f;
    if (d_fadingIn)
    {
        setAlpha(progress);
        if (progress >= 1.0f)
        {
            d_fadingIn = false;
            d_elapsed = 0.0f; // the display time starts now
        }
    }
    else if (progress >= 1.0f)
        switchToInactiveState();
    else
        setAlpha(1.0f - progress);
}

const TooltipEx::Words& TooltipEx::words(const Font& font) const
{
    const String& text = getText();
    // A font keeps its address when its size changes: its line spacing tells.
    if (d_words.font == &font && d_words.lineSpacing == font.getLineSpacing() &&
        d_words.text == text)
        return d_words;
    d_words.text = text;
    d_words.font = &font;
    d_words.lineSpacing = font.getLineSpacing();
    d_words.widths.clear();
    d_words.widest = 0.0f;
    String::size_type start = 0;
    while (start < text.length())
    {
        const String::size_type end = std::min(text.find_first_of(" \t\n", start), text.length());
        if (end > start)
        {
            d_words.widths.push_back(glyphExtent(font, text.substr(start, end - start)));
            d_words.widest = std::max(d_words.widest, d_words.widths.back());
        }
        start = end + 1;
    }
    d_words.space = glyphExtent(font, " ");
    return d_words;
}

std::pair<unsigned, float> TooltipEx::wrapped(float width) const
{
    const TextLines lines =
        countLines(*this, getRenderedString(), width, HorzTextFormat::WordWrapLeft);
    return {static_cast<unsigned>(lines.count), lines.widest};
}

namespace
{
// How many lines words of these widths take at `width`, wrapped greedily as CEGUI does.
unsigned greedyLines(const std::vector<float>& words, float space, float width)
{
    unsigned lines = 1;
    float line = -1.0f; // no word on the line yet
    for (float word : words)
    {
        if (line < 0)
            line = word;
        else if (line + space + word <= width)
            line += space + word;
        else
        {
            ++lines;
            line = word;
        }
    }
    return lines;
}
} // namespace

Sizef TooltipEx::getTextSize(unsigned lines) const
{
    const Font* font = getFont();
    if (!font || lines == 0)
        return Sizef(0, 0);
    // The narrowest width at which the words still fit in `lines` lines. Below the widest
    // word CEGUI would break words apart, so the search stops there.
    const Words& measured = words(*font);
    const float widestWord = measured.widest;
    float fits = unwrappedSize(*this, getRenderedString()).d_width;
    float tooNarrow = widestWord;

    // Searched first on the words' widths; CEGUI's wrapping has the last word, and where
    // it disagrees the search goes on with it.
    // Markup and tabs are measured differently by the wrapper: CEGUI's search alone then.
    const String& text = getText();
    const bool plainWords = text.find_first_of("\n\t") == String::npos &&
                            !(isTextParsingEnabled() && text.find('[') != String::npos);
    if (plainWords)
    {
        float modelFits = fits;
        float modelTooNarrow = widestWord;
        if (greedyLines(measured.widths, measured.space, widestWord) <= lines)
            modelFits = widestWord;
        while (modelFits - modelTooNarrow > BalancePrecision)
        {
            const float width = (modelFits + modelTooNarrow) * 0.5f;
            if (width == modelFits || width == modelTooNarrow)
                break; // widths too large to halve any further
            (greedyLines(measured.widths, measured.space, width) <= lines ? modelFits
                                                                          : modelTooNarrow) = width;
        }
        const std::pair<unsigned, float> atModel = wrapped(modelFits);
        if (atModel.first <= lines)
            return Sizef(atModel.second, lines * font->getLineSpacing());
        tooNarrow = modelFits;
    }

    if (fits - tooNarrow > BalancePrecision && wrapped(widestWord).first <= lines)
        fits = widestWord;
    while (fits - tooNarrow > BalancePrecision)
    {
        const float width = (fits + tooNarrow) * 0.5f;
        if (width == fits || width == tooNarrow)
            break;
        (wrapped(width).first <= lines ? fits : tooNarrow) = width;
    }
    return Sizef(wrapped(fits).second, lines * font->getLineSpacing());
}

Sizef TooltipEx::getTextSize() const
{
    Sizef size = unwrappedSize(*this, getRenderedString());
    if (getText().empty())
        return size;
    unsigned lines = static_cast<unsigned>(std::max<size_t>(getRenderedString().getLineCount(), 1));
    while (size.d_height > 0 && size.d_width / size.d_height > TargetAspect)
    {
        const Sizef more = getTextSize(++lines);
        if (!(more.d_width < size.d_width))
            break;
        size = more;
    }
    return size;
}

namespace TooltipExProperties
{
TextColourProperty::TextColourProperty()
    : Property("TextColour", "Defines the color of text in the tooltip.", "00000000", true,
               "MoxieLook/Tooltip")
{
}

String TextColourProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<Colour>::toString(
        static_cast<const TooltipEx*>(receiver)->getTextColour());
}

void TextColourProperty::set(PropertyReceiver* receiver, const String& value)
{
    static_cast<TooltipEx*>(receiver)->setTextColour(PropertyHelper<Colour>::fromString(value));
}
} // namespace TooltipExProperties

void TooltipEx::setParent(Element* parent)
{
    RedrawnWhenUncovered<Tooltip>::setParent(parent);
    d_parentDestruction.disconnect();
    if (auto* window = dynamic_cast<Window*>(parent))
        d_parentDestruction = window->subscribeEvent(EventDestructionStarted, [this]
                                                     { setDestroyedByParent(!servesAWindow()); });
}

bool TooltipEx::servesAWindow() const
{
    const Window* root = getGUIContext().getRootWindow();
    if (root && getGUIContext().getDefaultTooltipObject() == this)
        return true;
    auto windows = WindowManager::getSingleton().getIterator();
    for (; !windows.isAtEnd(); ++windows)
    {
        const Window* window = windows.getCurrentValue();
        if (!window->isUsingDefaultTooltip() && window->getTooltip() == this)
            return true;
    }
    return false;
}

} // namespace MoxieLook
} // namespace CEGUI
