#include "looks/MXEditbox.h"
#include "looks/MXMultiLineEditBox.h"
#include "looks/MXSpinner.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;
using moxietest::drawnBy;

namespace
{
class EditboxTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        box = &moxietest::placeAs<MXEditbox>("MoxieLook/Editbox", 10, 10, 200, 26);
    }

    //! Screen x of the boundary before character `index` of the box's text.
    float boundaryX(std::size_t index) const
    {
        const Font& font = *box->getFont();
        return box->getUnclippedOuterRect().get().left() + box->textArea().left() +
               box->textOffset() + font.getTextAdvance(box->visualText().substr(0, index));
    }

    MXEditbox* box = nullptr;
};
} // namespace

TEST_F(EditboxTest, TypingCaretClicksAndSelections)
{
    moxietest::click(100, 20);
    ASSERT_TRUE(box->hasInputFocus());
    moxietest::type("Hello world");
    EXPECT_EQ(box->getText(), "Hello world");
    EXPECT_EQ(box->getCaretIndex(), 11u);
    moxietest::press(Key::ArrowLeft);
    moxietest::press(Key::Backspace);
    EXPECT_EQ(box->getText(), "Hello word");

    // A click lands on the glyph boundary nearest the pointer.
    drawnBy(*box);
    const float between = (boundaryX(4) + boundaryX(5)) / 2;
    moxietest::click(boundaryX(4) + 1, 20);
    EXPECT_EQ(box->getCaretIndex(), 4u);
    moxietest::click(between + 1.5f, 20);
    EXPECT_EQ(box->getCaretIndex(), 5u);

    // Dragging selects; so do shift and the arrows.
    moxietest::drag(Vector2f(boundaryX(0) + 1, 20), Vector2f(boundaryX(5) + 1, 20));
    EXPECT_EQ(box->getSelectionStartIndex(), 0u);
    EXPECT_EQ(box->getSelectionEndIndex(), 5u);
    moxietest::press(Key::End);
    moxietest::press(Key::ArrowLeft, true);
    moxietest::press(Key::ArrowLeft, true);
    EXPECT_EQ(box->getSelectionLength(), 2u);
    const auto quads = drawnBy(*box);
    const auto brush = moxietest::find(quads, "EditboxSelection");
    ASSERT_TRUE(brush);
    EXPECT_NEAR(brush->rect.getWidth(), box->getFont()->getTextAdvance("rd"), 0.5f);
    EXPECT_EQ(quads[0].image, "EditboxFill"); // under the focused frame
    EXPECT_EQ(quads[1].image, "EditboxFrameFocusTopLeft");
}

TEST_F(EditboxTest, LongTextsScrollToKeepTheCaretInView)
{
    box->activate();
    moxietest::type(std::string(80, 'm'));
    drawnBy(*box);
    const float caretX = boundaryX(80);
    const Rectf area = box->textArea();
    const float left = box->getUnclippedOuterRect().get().left();
    EXPECT_LT(box->textOffset(), 0);
    EXPECT_LE(caretX, left + area.right());
    EXPECT_GE(caretX, left + area.left());
    moxietest::press(Key::Home);
    drawnBy(*box);
    EXPECT_EQ(box->textOffset(), 0);

    // Deleting before the end keeps the end at the right: no blank room opens after it.
    moxietest::press(Key::End);
    drawnBy(*box);
    for (int i = 0; i < 10; ++i)
        moxietest::press(Key::ArrowLeft);
    drawnBy(*box);
    for (int i = 0; i < 10; ++i)
        moxietest::press(Key::Delete);
    drawnBy(*box);
    const float caretWidth =
        ImageManager::getSingleton().get("MoxieLook/EditboxCarat").getRenderedSize().d_width;
    EXPECT_NEAR(boundaryX(70), left + area.right() - caretWidth, 0.5f);

    // A scrolled text replaced by a short one is drawn from the left, in view.
    const auto shortTextAt = [&]
    {
        const auto text = moxietest::find(drawnBy(*box), "text");
        return text ? text->rect.left() : -1e9f;
    };
    box->setText("Hi");
    EXPECT_NEAR(shortTextAt(), area.left(), 2);
    moxietest::type(std::string(80, 'm'));
    box->setSelection(0, 82);
    moxietest::type("x");
    EXPECT_EQ(box->getText(), "x");
    EXPECT_NEAR(shortTextAt(), area.left(), 2);
}

TEST_F(EditboxTest, MaskReadOnlyPlaceholderAndSelectAllOnFocus)
{
    box->setProperty("PlaceholderText", "Search...");
    auto quads = drawnBy(*box);
    EXPECT_EQ(quads.back().image, "text");
    EXPECT_EQ(moxietest::argb(quads.back().colours.d_top_left), 0xFF8C99A8u);
    EXPECT_TRUE(box->isPlaceholderShown());
    box->activate();
    EXPECT_FALSE(box->isPlaceholderShown());

    box->setText("secret");
    box->setTextMasked(true);
    EXPECT_EQ(box->visualText(), String(6, box->getMaskCodePoint()));

    box->setReadOnly(true);
    moxietest::type("x");
    EXPECT_EQ(box->getText(), "secret");
    quads = drawnBy(*box);
    EXPECT_EQ(quads[0].image, "EditboxFillReadOnly");

    // A click that gives focus selects everything, with the property on.
    Window& other = moxietest::place("MoxieLook/Editbox", 10, 60, 200, 26);
    other.setText("all of it");
    other.setProperty("SelectAllOnFocus", "True");
    moxietest::pointerTo(60, 70);
    moxietest::leftDown();
    moxietest::pointerTo(63, 71); // a hand is never quite still
    moxietest::leftUp();
    EXPECT_EQ(static_cast<Editbox&>(other).getSelectionLength(), 9u);
    moxietest::leftDown(); // already focused: a plain click
    moxietest::leftUp();
    EXPECT_EQ(static_cast<Editbox&>(other).getSelectionLength(), 0u);
}

TEST_F(EditboxTest, ValidationRejectsWrongInputAndAcceptsPartial)
{
    box->setProperty("ValidationString", "[0-9]{2}-[0-9]{2}");
    box->activate();
    moxietest::type("12-");
    EXPECT_EQ(box->getText(), "12-"); // partial: still being typed
    moxietest::type("x");
    EXPECT_EQ(box->getText(), "12-");
    moxietest::type("34");
    EXPECT_EQ(box->getText(), "12-34");
    EXPECT_EQ(box->getTextMatchState(), RegexMatcher::MS_VALID);
    // The box can be emptied to start again.
    for (int i = 0; i < 5; ++i)
        moxietest::press(Key::Backspace);
    EXPECT_EQ(box->getText(), "");
    moxietest::type("9");
    EXPECT_EQ(box->getText(), "9");

    // Every branch is tried against the whole text.
    box->setText("");
    box->setProperty("ValidationString", "\\d+|\\d+\\.\\d+");
    moxietest::type("1.5");
    EXPECT_EQ(box->getText(), "1.5");
    EXPECT_EQ(box->getTextMatchState(), RegexMatcher::MS_VALID);
    moxietest::press(Key::Backspace);
    EXPECT_EQ(box->getText(), "1.");
    EXPECT_EQ(box->getTextMatchState(), RegexMatcher::MS_PARTIAL);
    moxietest::type("x");
    EXPECT_EQ(box->getText(), "1.");
    EXPECT_THROW(box->setProperty("ValidationString", "([0-9"), InvalidRequestException);
    // A host's handler decides over the default.
    box->setProperty("ValidationString", "[a-z]*");
    box->subscribeEvent(Editbox::EventTextValidityChanged, [] { return true; });
    box->setText("");
    moxietest::type("A");
    EXPECT_EQ(box->getText(), "A");
}

TEST_F(EditboxTest, MultiLineTextWrapsAndScrollsToTheCaret)
{
    auto& lines = static_cast<MXMultiLineEditBox&>(
        moxietest::place("MoxieLook/MultiLineEditbox", 10, 60, 160, 50));
    lines.activate();
    moxietest::type(
        "one two three four five six seven eight nine ten eleven twelve thirteen fourteen");
    EXPECT_GT(lines.getFormattedLines().size(), 3u); // wrapped
    const Rectf area = lines.textRenderArea();
    EXPECT_LE(area.right(), 160 - 2 - MXMultiLineEditBox::ScrollbarThickness);
    Scrollbar* bar = lines.getVertScrollbar();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_GT(bar->getScrollPosition(), 0); // the caret, at the end, is in view
    moxietest::press(Key::Home);
    moxietest::press(Key::Home, false, true);
    EXPECT_EQ(bar->getScrollPosition(), 0);

    // Lines no longer wrapped bring the other bar too; the two meet at the corner.
    auto& both = static_cast<MXMultiLineEditBox&>(
        moxietest::place("MoxieLook/MultiLineEditbox", 300, 60, 160, 50));
    both.setText("one two three four five six seven\n2\n3\n4\n5\n6");
    ASSERT_FALSE(both.getHorzScrollbar()->isVisible());
    both.setWordWrapping(false);
    Scrollbar* vert = both.getVertScrollbar();
    Scrollbar* horz = both.getHorzScrollbar();
    ASSERT_TRUE(vert->isVisible());
    ASSERT_TRUE(horz->isVisible());
    EXPECT_EQ(vert->getUnclippedOuterRect().get().bottom(),
              horz->getUnclippedOuterRect().get().top());
    EXPECT_EQ(horz->getUnclippedOuterRect().get().right(),
              vert->getUnclippedOuterRect().get().left());

    lines.setSelection(4, 12);
    const auto quads = drawnBy(lines);
    EXPECT_NE(std::find_if(quads.begin(), quads.end(),
                           [](const moxietest::DrawnQuad& q)
                           { return q.image == "EditboxSelection"; }),
              quads.end());
}

TEST_F(EditboxTest, SpinnerStepsByItsButtonsAndTakesTypedValues)
{
    auto& spinner = moxietest::placeAs<Spinner>("MoxieLook/Spinner", 10, 100, 120, 26);
    spinner.setMaximumValue(10);
    spinner.setCurrentValue(5);
    const Rectf up = spinner.getChild(Spinner::IncreaseButtonName)->getUnclippedOuterRect().get();
    moxietest::click(up.left() + 4, up.top() + 4);
    EXPECT_EQ(spinner.getCurrentValue(), 6);
    const Rectf down = spinner.getChild(Spinner::DecreaseButtonName)->getUnclippedOuterRect().get();
    moxietest::click(down.left() + 4, down.top() + 4);
    moxietest::leftDown();
    moxietest::leftUp();
    EXPECT_EQ(spinner.getCurrentValue(), 4);

    // Each text mode takes a value typed in its notation and refuses a character outside it.
    struct Typed
    {
        Spinner::TextInputMode mode;
        const char* valid;
        double value;
        const char* invalid;
    };
    spinner.setMinimumValue(-100);
    spinner.setMaximumValue(100);
    auto& edit = static_cast<Editbox&>(*spinner.getChild(Spinner::EditboxName));
    for (const Typed& t :
         {Typed{Spinner::FloatingPoint, "2.5", 2.5, "x"}, Typed{Spinner::Integer, "-7", -7, "."},
          Typed{Spinner::Hexadecimal, "1f", 31, "g"}, Typed{Spinner::Octal, "17", 15, "8"}})
    {
        SCOPED_TRACE(t.valid);
        spinner.setTextInputMode(t.mode);
        edit.activate();
        edit.setSelection(0, edit.getText().length());
        moxietest::press(Key::Delete);
        moxietest::type(t.valid);
        EXPECT_EQ(spinner.getCurrentValue(), t.value);
        const String before = edit.getText();
        moxietest::type(t.invalid);
        EXPECT_EQ(edit.getText(), before);
        EXPECT_EQ(spinner.getCurrentValue(), t.value);
    }
}

// However a multi-line box came to be empty, it takes clicks, drags, double clicks and keys.
TEST_F(EditboxTest, EmptyMultiLineBoxesTakeEveryKindOfInput)
{
    using moxietest::centreOf;
    auto make = [](float y)
    {
        return static_cast<MultiLineEditbox*>(
            &moxietest::place("MoxieLook/MultiLineEditbox", 10, y, 200, 60));
    };
    std::vector<std::pair<const char*, MultiLineEditbox*>> boxes;
    boxes.emplace_back("new", make(60));
    boxes.emplace_back("set empty", make(130));
    boxes.back().second->setText("gone");
    boxes.back().second->setText("");
    boxes.emplace_back("erased by keys", make(200));
    boxes.back().second->setText("ab");
    boxes.back().second->activate();
    boxes.back().second->setCaretIndex(2);
    moxietest::press(Key::Backspace);
    moxietest::press(Key::Backspace);
    moxietest::press(Key::Backspace);
    Window* loaded = WindowManager::getSingleton().loadLayoutFromString(
        "<GUILayout version=\"4\"><Window type=\"MoxieLook/MultiLineEditbox\" name=\"fromFile\">"
        "<Property name=\"Area\" value=\"{{0,10},{0,270},{0,210},{0,330}}\" />"
        "<Property name=\"Text\" value=\"\" /></Window></GUILayout>");
    context().getRootWindow()->addChild(loaded);
    boxes.emplace_back("from a layout", static_cast<MultiLineEditbox*>(loaded));
    boxes.emplace_back("read-only", make(340));
    boxes.back().second->setReadOnly(true);

    for (const auto& [how, lines] : boxes)
    {
        SCOPED_TRACE(how);
        drawnBy(*lines);
        const Vector2f at = centreOf(*lines);
        moxietest::click(at.d_x, at.d_y);
        EXPECT_EQ(lines->getCaretIndex(), 0u);
        moxietest::drag(at, at + Vector2f(40, 20));
        moxietest::doubleClick(at.d_x, at.d_y);
        for (Key::Scan scan : {Key::ArrowLeft, Key::ArrowRight, Key::ArrowUp, Key::ArrowDown,
                               Key::Home, Key::End, Key::Delete, Key::Backspace, Key::Return})
            moxietest::press(scan);
        drawnBy(*lines);
        if (lines->isReadOnly())
            continue;
        moxietest::type("xy");
        EXPECT_EQ(lines->getText().substr(0, 3), "\nxy") << "Return, then the typing";
        moxietest::click(at.d_x, at.d_y);
        drawnBy(*lines);
    }
}
