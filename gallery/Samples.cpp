#include "Samples.h"

#include "Label.h"
#include "draw/Imagery.h"
#include "widgets/PushButtonEx.h"

#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/ButtonBase.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/Slider.h>
#include <CEGUI/widgets/Thumb.h>
#include <algorithm>

namespace gallery
{
using namespace CEGUI;

namespace
{
constexpr float CaptionHeight = 18.0f;
constexpr float MinCaptionWidth = 120.0f;

const char* stateName(Card::State state)
{
    switch (state)
    {
    case Card::State::Hover:
        return "hover";
    case Card::State::Pushed:
        return "pushed";
    case Card::State::Disabled:
        return "disabled";
    case Card::State::Selected:
        return "selected";
    case Card::State::Normal:
        break;
    }
    return "normal";
}
} // namespace

Window& Card::add(const String& type, const String& caption, float x, float y, float width,
                  float height)
{
    Window* window = WindowManager::getSingleton().createWindow(type);
    window->setArea(UVector2(cegui_absdim(x), cegui_absdim(y)),
                    USize(cegui_absdim(width), cegui_absdim(height)));
    d_content.addChild(window);
    if (!caption.empty())
    {
        Window* label = WindowManager::getSingleton().createWindow(Label::WidgetTypeName);
        label->setArea(
            UVector2(cegui_absdim(x), cegui_absdim(y + height + 2)),
            USize(cegui_absdim(std::max(width, MinCaptionWidth)), cegui_absdim(CaptionHeight)));
        label->setText(caption);
        d_content.addChild(label);
    }
    return *window;
}

void Card::states(const String& type, const String& text, float width, float height,
                  std::initializer_list<State> states)
{
    float x = 10;
    for (State state : states)
    {
        Window& window = add(type, stateName(state), x, 10, width, height);
        window.setText(text);
        if (state == State::Hover)
            hoverOn(window);
        else if (state == State::Pushed)
        {
            if (auto* button = dynamic_cast<ButtonBase*>(&window))
                button->setPushedState(true);
        }
        else if (state == State::Disabled)
            window.setEnabled(false);
        x += std::max(width, 80.0f) + 16; // room for the caption under narrow windows
    }
}

// A bar over a document of 100 with a page of `page`, at `position`.
Scrollbar& bar(Card& card, const char* type, const String& caption, float x, float y, float w,
               float h, float page, float position)
{
    auto& scrollbar = static_cast<Scrollbar&>(card.add(type, caption, x, y, w, h));
    scrollbar.setDocumentSize(100);
    scrollbar.setPageSize(page);
    scrollbar.setStepSize(5);
    scrollbar.setScrollPosition(position);
    return scrollbar;
}

Slider& slider(Card& card, const String& caption, float x, float y, float value)
{
    auto& widget = static_cast<Slider&>(card.add("MoxieLook/Slider", caption, x, y, 180, 30));
    widget.setMaxValue(1.0f);
    widget.setClickStep(0.05f);
    widget.setCurrentValue(value);
    return widget;
}

// A pane over content larger than itself: a grid of buttons.
void paneWithContent(Card& card, const String& caption, float x, float w, float h, int columns,
                     int rows)
{
    auto& pane =
        static_cast<ScrollablePane&>(card.add("MoxieLook/ScrollablePane", caption, x, 10, w, h));
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
        {
            Window* button = WindowManager::getSingleton().createWindow("MoxieLook/Button");
            button->setArea(
                UVector2(cegui_absdim(8 + column * 96.0f), cegui_absdim(8 + row * 34.0f)),
                USize(cegui_absdim(88), cegui_absdim(28)));
            button->setText("Item " + PropertyHelper<int>::toString(row * columns + column + 1));
            pane.addChild(button);
        }
}

const std::vector<Sample>& samples()
{
    using State = Card::State;
    static const std::vector<Sample> all = {
        {"MoxieLook/Button", 64,
         [](Card& card)
         {
             card.states("MoxieLook/Button", "Button", 110, 30,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
             // A host's icon over the standard imagery, centred by the C++ interface.
             auto& icon = static_cast<MoxieLook::PushButtonEx&>(
                 card.add("MoxieLook/Button", "custom image", 526, 10, 60, 30));
             MoxieLook::FormattedImage star;
             star.setImage(&MoxieLook::lookImage("IconStar"));
             star.setHorzFormatting(MoxieLook::FormattedImage::HorzCentred);
             star.setVertFormatting(MoxieLook::FormattedImage::VertCentred);
             star.setSize(icon.getPixelSize());
             icon.setNormalImage(&star);
             icon.setHoverImage(&star);
         }},
        {"MoxieLook/HorizontalScrollbar", 92,
         [](Card& card)
         {
             const char* type = "MoxieLook/HorizontalScrollbar";
             bar(card, type, "at the start", 10, 10, 280, 18, 20, 0);
             Scrollbar& hovered = bar(card, type, "hover on thumb", 320, 10, 280, 18, 20, 40);
             card.hoverOn(*hovered.getThumb());
             bar(card, type, "at the end, large page", 10, 52, 280, 18, 70, 30);
             bar(card, type, "disabled", 320, 52, 280, 18, 20, 60).setEnabled(false);
         }},
        {"MoxieLook/VerticalScrollbar", 150,
         [](Card& card)
         {
             const char* type = "MoxieLook/VerticalScrollbar";
             const float positions[] = {0, 40, 80};
             for (int i = 0; i < 3; ++i)
                 bar(card, type,
                     i == 0   ? "start"
                     : i == 1 ? "middle"
                              : "end",
                     10 + i * 130.0f, 10, 18, 110, 20, positions[i]);
             Scrollbar& hovered = bar(card, type, "hover", 400, 10, 18, 110, 40, 30);
             card.hoverOn(*hovered.getThumb());
             bar(card, type, "disabled", 530, 10, 18, 110, 20, 50).setEnabled(false);
         }},
        {"MoxieLook/HorizontalScrollbarThumb", 50,
         [](Card& card)
         {
             card.states("MoxieLook/HorizontalScrollbarThumb", "", 110, 14,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
         }},
        {"MoxieLook/VerticalScrollbarThumb", 96,
         [](Card& card)
         {
             card.states("MoxieLook/VerticalScrollbarThumb", "", 14, 60,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
         }},
        {"MoxieLook/Slider", 110,
         [](Card& card)
         {
             slider(card, "value 0", 10, 10, 0.0f);
             card.hoverOn(*slider(card, "value 0.5, hover", 210, 10, 0.5f).getThumb());
             slider(card, "value 1", 410, 10, 1.0f);
             slider(card, "no ticks", 10, 60, 0.3f).setProperty("TickFrequency", "0");
             slider(card, "disabled", 210, 60, 0.7f).setEnabled(false);
         }},
        {"MoxieLook/SliderThumb", 56,
         [](Card& card)
         {
             card.states("MoxieLook/SliderThumb", "", 11, 20,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
         }},
        {"MoxieLook/ScrollablePane", 150,
         [](Card& card)
         {
             paneWithContent(card, "content larger both ways", 10, 300, 120, 5, 6);
             paneWithContent(card, "taller content only", 330, 270, 120, 2, 6);
         }},
    };
    return all;
}

} // namespace gallery
