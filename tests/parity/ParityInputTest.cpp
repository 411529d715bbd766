// Text boxes, toggles, sliders, bars: the same clicks, keys and wheel turns on TaharezLook and
// MoxieLook leave a host seeing the same state and the same events.
#include "parity/Parity.h"
#include "support/Gui.h"

#include <CEGUI/InputEvent.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/MultiLineEditbox.h>
#include <CEGUI/widgets/ProgressBar.h>
#include <CEGUI/widgets/RadioButton.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/Slider.h>
#include <CEGUI/widgets/Thumb.h>
#include <CEGUI/widgets/ToggleButton.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace moxietest;

namespace
{
ParityStep clickOn(const char* name, float fx, float fy)
{
    return {name, [fx, fy](Window& w) { clickAt(pointIn(w, fx, fy)); }};
}

ParityStep keys(const char* name, std::vector<Key::Scan> scans)
{
    return {name, [scans](Window&)
            {
                for (Key::Scan scan : scans)
                    pressKey(scan);
            }};
}

ParityStep typing(const char* name, const char* text)
{
    return {name, [text](Window&) { typeText(text); }};
}

ParityStep shiftKey(const char* name, Key::Scan scan)
{
    return {name, [scan](Window&)
            {
                context().injectKeyDown(Key::LeftShift);
                pressKey(scan);
                context().injectKeyUp(Key::LeftShift);
            }};
}

// A point on a slider's track between its thumb and the end of the top (or bottom) value:
// the right end of a lying slider, the top of an upright one.
Vector2f towardsEnd(Window& slider, bool top)
{
    const Rectf track = slider.getUnclippedOuterRect().get();
    const Rectf thumb = partOf(slider, "__auto_thumb__").getUnclippedOuterRect().get();
    if (slider.getPixelSize().d_height > slider.getPixelSize().d_width)
        return Vector2f(track.left() + track.getWidth() * 0.5f,
                        top ? (track.top() + thumb.top()) * 0.5f
                            : (thumb.bottom() + track.bottom()) * 0.5f);
    return Vector2f(top ? (thumb.right() + track.right()) * 0.5f
                        : (track.left() + thumb.left()) * 0.5f,
                    track.top() + track.getHeight() * 0.5f);
}

ParityStep wheelAt(const char* name, float fx, float fy, float notches)
{
    return {name, [=](Window& w)
            {
                const Vector2f at = pointIn(w, fx, fy);
                wheel(at.d_x, at.d_y, notches);
            }};
}
} // namespace

TEST(Parity, Editbox)
{
    ParityScript script;
    script.type = "Editbox";
    script.area = Rectf(100, 100, 400, 130);
    script.steps = {clickOn("click into the empty box", 0.5f, 0.5f),
                    typing("type", "hello world"),
                    keys("home", {Key::Home}),
                    shiftKey("select to the end", Key::End),
                    keys("erase the selection", {Key::Backspace}),
                    typing("type again", "abc def"),
                    keys("left twice", {Key::ArrowLeft, Key::ArrowLeft}),
                    keys("delete", {Key::Delete}),
                    {"double click a word",
                     [](Window& w)
                     {
                         const Vector2f at = pointIn(w, 0.5f, 0.5f);
                         doubleClick(at.d_x, at.d_y);
                     }},
                    keys("erase to empty",
                         {Key::End, Key::Backspace, Key::Backspace, Key::Backspace, Key::Backspace,
                          Key::Backspace, Key::Backspace, Key::Backspace, Key::Backspace}),
                    clickOn("click the emptied box", 0.9f, 0.5f),
                    typing("type into it", "x"),
                    {"read-only refuses typing", [](Window& w)
                     {
                         static_cast<Editbox&>(w).setReadOnly(true);
                         typeText("zz");
                         pressKey(Key::Backspace);
                     }}};
    script.observe = [](const Window& w, Observation& seen)
    {
        const auto& box = static_cast<const Editbox&>(w);
        seen.set("text", box.getText());
        seen.set("caret", static_cast<float>(box.getCaretIndex()));
        seen.set("selection start", static_cast<float>(box.getSelectionStartIndex()));
        seen.set("selection length", static_cast<float>(box.getSelectionLength()));
    };
    script.events = {Window::EventTextChanged, Editbox::EventCaretMoved,
                     Editbox::EventTextSelectionChanged, Editbox::EventReadOnlyModeChanged};
    expectSameBehaviour(script);
}

TEST(Parity, MultiLineEditbox)
{
    ParityScript script;
    script.type = "MultiLineEditbox";
    script.area = Rectf(100, 100, 300, 200);
    script.steps = {
        clickOn("click into the empty box", 0.5f, 0.5f),
        typing("type", "one two"),
        keys("new line", {Key::Return}),
        typing("type the second line", "three"),
        keys("up and end", {Key::ArrowUp, Key::End}),
        shiftKey("select a line down", Key::ArrowDown),
        keys("erase", {Key::Backspace}),
        keys("erase to empty", {Key::Home, Key::Delete, Key::Delete, Key::Delete, Key::Delete,
                                Key::Delete, Key::Delete, Key::Delete, Key::Delete, Key::Delete}),
        clickOn("click the emptied box", 0.5f, 0.8f),
        {"double click it",
         [](Window& w)
         {
             const Vector2f at = pointIn(w, 0.5f, 0.5f);
             doubleClick(at.d_x, at.d_y);
         }},
        typing("type again", "z"),
        {"many lines, then the wheel", [](Window& w)
         {
             String text;
             for (int i = 0; i < 40; ++i)
                 text += "line\n";
             w.setText(text);
             const Vector2f at = pointIn(w, 0.4f, 0.5f);
             wheel(at.d_x, at.d_y, -2);
         }}};
    script.observe = [](const Window& w, Observation& seen)
    {
        const auto& box = static_cast<const MultiLineEditbox&>(w);
        seen.set("text", box.getText());
        seen.set("caret", static_cast<float>(box.getCaretIndex()));
        seen.set("selection start", static_cast<float>(box.getSelectionStartIndex()));
        seen.set("selection length", static_cast<float>(box.getSelectionLength()));
        seen.set("scrolled", box.getVertScrollbar()->getScrollPosition() > 0);
    };
    script.events = {Window::EventTextChanged, MultiLineEditbox::EventCaretMoved};
    expectSameBehaviour(script);
}

TEST(Parity, CheckboxAndRadioButton)
{
    ParityScript check;
    check.type = "Checkbox";
    check.area = Rectf(100, 100, 250, 124);
    check.setUp = [](Window& w) { w.setText("Sound"); };
    check.steps = {clickOn("click", 0.1f, 0.5f),
                   clickOn("click again", 0.5f, 0.5f),
                   {"press, slip off, release",
                    [](Window& w) { dragFrom(pointIn(w, 0.1f, 0.5f), pointIn(w, 1.5f, 3.0f)); }},
                   {"disabled", [](Window& w)
                    {
                        w.disable();
                        clickAt(pointIn(w, 0.1f, 0.5f));
                    }}};
    check.observe = [](const Window& w, Observation& seen)
    { seen.set("selected", static_cast<const ToggleButton&>(w).isSelected()); };
    check.events = {ToggleButton::EventSelectStateChanged, PushButton::EventMouseClick};
    expectSameBehaviour(check);

    // Three buttons of one group: the script clicks among the siblings.
    ParityScript radio;
    radio.type = "RadioButton";
    radio.area = Rectf(100, 100, 250, 124);
    radio.setUp = [](Window& w)
    {
        w.setText("First");
        for (int i = 1; i < 3; ++i)
        {
            Window* other = WindowManager::getSingleton().createWindow(w.getType());
            other->setArea(URect(cegui_absdim(100), cegui_absdim(100 + 30.0f * i),
                                 cegui_absdim(250), cegui_absdim(124 + 30.0f * i)));
            w.getParent()->addChild(other);
        }
    };
    auto sibling = [](Window& w, int i) -> Window& { return *w.getParent()->getChildAtIdx(i); };
    radio.steps = {
        clickOn("select the first", 0.1f, 0.5f),
        {"select the third", [&](Window& w) { clickAt(pointIn(sibling(w, 2), 0.1f, 0.5f)); }},
        clickOn("the first again", 0.1f, 0.5f),
        clickOn("re-click the selected first", 0.1f, 0.5f)};
    radio.observe = [sibling](const Window& w, Observation& seen)
    {
        for (int i = 0; i < 3; ++i)
            seen.set("selected " + std::to_string(i),
                     sibling(const_cast<Window&>(w), i).getProperty("Selected"));
    };
    radio.events = {RadioButton::EventSelectStateChanged};
    expectSameBehaviour(radio);
}

TEST(Parity, SliderAndScrollbars)
{
    ParityScript slider;
    slider.type = "Slider";
    slider.area = Rectf(100, 100, 400, 124);
    slider.stockArea = Rectf(100, 100, 124, 400); // TaharezLook's slider stands upright
    slider.setUp = [](Window& w)
    {
        auto& s = static_cast<Slider&>(w);
        s.setMaxValue(100);
        s.setClickStep(10);
        s.setCurrentValue(50);
    };
    slider.steps = {{"click the track past the thumb, towards the top value",
                     [](Window& w) { clickAt(towardsEnd(w, true)); }},
                    {"click the track towards the bottom value",
                     [](Window& w) { clickAt(towardsEnd(w, false)); }},
                    {"wheel over the thumb",
                     [](Window& w)
                     {
                         const Vector2f at = pointIn(partOf(w, "__auto_thumb__"), 0.5f, 0.5f);
                         wheel(at.d_x, at.d_y, 1);
                     }},
                    wheelAt("wheel over the track", 0.9f, 0.5f, -2),
                    {"drag the thumb beyond the top end", [](Window& w)
                     {
                         const bool upright = w.getPixelSize().d_height > w.getPixelSize().d_width;
                         dragFrom(pointIn(partOf(w, "__auto_thumb__"), 0.5f, 0.5f),
                                  upright ? pointIn(w, 0.5f, -0.5f) : pointIn(w, 1.5f, 0.5f));
                     }}};
    slider.observe = [](const Window& w, Observation& seen)
    { seen.set("value", static_cast<const Slider&>(w).getCurrentValue()); };
    slider.events = {Slider::EventValueChanged, Slider::EventThumbTrackStarted,
                     Slider::EventThumbTrackEnded};
    expectSameBehaviour(slider);

    for (const char* type : {"VerticalScrollbar", "HorizontalScrollbar"})
    {
        const bool vertical = type[0] == 'V';
        ParityScript bar;
        bar.type = type;
        bar.area = vertical ? Rectf(100, 100, 120, 400) : Rectf(100, 100, 400, 120);
        bar.setUp = [](Window& w)
        {
            auto& b = static_cast<Scrollbar&>(w);
            b.setDocumentSize(1000);
            b.setPageSize(100);
            b.setStepSize(10);
        };
        auto along = [vertical](Window& w, float f)
        { return vertical ? pointIn(w, 0.5f, f) : pointIn(w, f, 0.5f); };
        bar.steps = {
            {"the increase arrow",
             [](Window& w) { clickAt(pointIn(partOf(w, "__auto_incbtn__"), 0.5f, 0.5f)); }},
            {"the decrease arrow",
             [](Window& w) { clickAt(pointIn(partOf(w, "__auto_decbtn__"), 0.5f, 0.5f)); }},
            {"the track near the end", [along](Window& w) { clickAt(along(w, 0.85f)); }},
            {"wheel over the thumb",
             [](Window& w)
             {
                 const Vector2f at = pointIn(partOf(w, "__auto_thumb__"), 0.5f, 0.5f);
                 wheel(at.d_x, at.d_y, -1);
             }},
            {"wheel over the track",
             [along](Window& w)
             {
                 const Vector2f at = along(w, 0.8f);
                 wheel(at.d_x, at.d_y, 1);
             }},
            {"wheel over the increase arrow",
             [](Window& w)
             {
                 const Vector2f at = pointIn(partOf(w, "__auto_incbtn__"), 0.5f, 0.5f);
                 wheel(at.d_x, at.d_y, -1);
             }},
            {"drag the thumb far", [along](Window& w)
             { dragFrom(pointIn(partOf(w, "__auto_thumb__"), 0.5f, 0.5f), along(w, 2.0f)); }}};
        bar.observe = [](const Window& w, Observation& seen)
        { seen.set("position", static_cast<const Scrollbar&>(w).getScrollPosition()); };
        bar.events = {Scrollbar::EventScrollPositionChanged};
        // TaharezLook's arrow buttons keep the wheel and do nothing; ours scroll the bar.
        bar.differences = {"wheel over the increase arrow/position",
                           "wheel over the increase arrow/event ScrollPositionChanged"};
        expectSameBehaviour(bar);
    }
}

TEST(Parity, ProgressBar)
{
    ParityScript bar;
    bar.type = "ProgressBar";
    bar.area = Rectf(100, 100, 300, 120);
    bar.steps = {
        {"set half", [](Window& w) { static_cast<ProgressBar&>(w).setProgress(0.5f); }},
        {"step",
         [](Window& w)
         {
             auto& p = static_cast<ProgressBar&>(w);
             p.setStepSize(0.3f);
             p.step();
         }},
        {"step past the end", [](Window& w) { static_cast<ProgressBar&>(w).step(); }},
        {"adjust below zero", [](Window& w) { static_cast<ProgressBar&>(w).adjustProgress(-5); }},
        clickOn("a click changes nothing", 0.5f, 0.5f)};
    bar.observe = [](const Window& w, Observation& seen)
    { seen.set("progress", static_cast<const ProgressBar&>(w).getProgress()); };
    bar.events = {ProgressBar::EventProgressChanged, ProgressBar::EventProgressDone};
    expectSameBehaviour(bar);
}
