#include "Samples.h"

#include "Label.h"
#include "draw/Imagery.h"
#include "widgets/ButtonEx.h"
#include "widgets/PushButtonEx.h"
#include "widgets/StaticImageEx.h"
#include "widgets/StaticLayout.h"
#include "widgets/TextItemEx.h"

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
    d_windows.push_back(window);
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

// A small StaticLayout using `rule`, filled with `count` numbered buttons.
MoxieLook::StaticLayout& layoutSample(Card& card, const char* rule, const String& caption, float x,
                                      int count)
{
    auto& layout = static_cast<MoxieLook::StaticLayout&>(
        card.add("MoxieLook/StaticLayout", caption, x, 10, 112, 96));
    layout.setProperty("Layout", rule);
    layout.setProperty("Margin", "3");
    const char* borders[] = {"NorthBorder", "SouthBorder", "WestBorder", "EastBorder",
                             "CenterBorder"};
    for (int i = 0; i < count; ++i)
    {
        if (String(rule) == "BorderLayout")
            layout.setProperty("Border", borders[i]);
        Window* button = WindowManager::getSingleton().createWindow("MoxieLook/Button");
        button->setSize(USize(cegui_absdim(i % 2 ? 34.0f : 28.0f), cegui_absdim(20)));
        button->setText(PropertyHelper<int>::toString(i + 1));
        layout.addChild(button);
    }
    return layout;
}

// An icon at the left and a badge at the top right, as a host decorates its buttons.
void decorate(MoxieLook::MultiImage& target, bool badge)
{
    const ColourRect white(Colour(0xFFFFFFFF));
    target.AddImage("MoxieLook", "IconStar", 6, 0, 1.0f, MoxieLook::MultiImage::Left, white);
    if (badge)
        target.AddImage("MoxieLook", "BadgeRed", -1, 1, 1.0f, MoxieLook::MultiImage::TopRight,
                        white);
}

Window& childOf(Window& parent, const String& type, const String& text, float x, float y, float w,
                float h)
{
    Window& window = *WindowManager::getSingleton().createWindow(type);
    window.setText(text);
    window.setArea(UVector2(cegui_absdim(x), cegui_absdim(y)),
                   USize(cegui_absdim(w), cegui_absdim(h)));
    parent.addChild(&window);
    return window;
}

const std::vector<Sample>& samples()
{
    static const std::vector<Sample> all = []
    {
        std::vector<Sample> gathered;
        for (auto group :
             {staticAndScrollingSamples, selectableSamples, treeSamples, inputSamples, chartSamples,
              menuSamples, tabSamples, windowSamples, columnSamples, stockSkinSamples})
            for (Sample& sample : group())
                gathered.push_back(std::move(sample));
        return gathered;
    }();
    return all;
}

std::vector<Sample> staticAndScrollingSamples()
{
    using State = Card::State;
    return {
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
        {"MoxieLook/ButtonEx", 112,
         [](Card& card)
         {
             card.states("MoxieLook/ButtonEx", "Button", 110, 30,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
             for (std::size_t i = 0; i < card.count(); ++i)
                 if (auto* button = dynamic_cast<MoxieLook::ButtonEx*>(&card.at(i)))
                     decorate(*button, i == 0 || i == 2);
             // Drag the button onto the text to try drag-and-drop.
             Window& target = card.add("MoxieLook/StaticText", "", 150, 62, 150, 30);
             target.setText("drop here");
             target.setProperty("HorzFormatting", "HorzCentred");
             auto& draggable = static_cast<MoxieLook::ButtonEx&>(
                 card.add("MoxieLook/ButtonEx", "drag me", 10, 62, 110, 30));
             draggable.setText("Drag me");
             draggable.SetDragAuthorized(true);
             draggable.AddDropTarget(&target);
             target.subscribeEvent(MoxieLook::EventDropped,
                                   [&target] { target.setText("dropped!"); });
             draggable.subscribeEvent(MoxieLook::EventDropCancelled,
                                      [&target] { target.setText("cancelled"); });
         }},
        {"MoxieLook/MenuButton", 64,
         [](Card& card)
         {
             card.states("MoxieLook/MenuButton", "Menu", 110, 24,
                         {State::Normal, State::Hover, State::Pushed, State::Disabled});
         }},
        {"MoxieLook/StaticImageEx", 74,
         [](Card& card)
         {
             auto framed = [&](const String& caption, float x,
                               const char* image) -> MoxieLook::StaticImageEx&
             {
                 auto& w = static_cast<MoxieLook::StaticImageEx&>(
                     card.add("MoxieLook/StaticImageEx", caption, x, 10, 90, 44));
                 w.setProperty("Image", String("MoxieLook/") + image);
                 w.setProperty("HorzFormatting", "HorzCentred");
                 w.setProperty("VertFormatting", "VertCentred");
                 w.setProperty("FrameEnabled", "True");
                 w.setProperty("BackgroundEnabled", "True");
                 return w;
             };
             framed("badge", 10, "IconFolder")
                 .AddImage("MoxieLook", "BadgeRed", -2, 2, 1.0f, MoxieLook::MultiImage::TopRight,
                           ColourRect(Colour(0xFFFFFFFF)));
             auto& corners = framed("four corners", 120, "IconDocument");
             const char* names[] = {"TopLeft", "TopRight", "BottomLeft", "BottomRight"};
             for (const char* name : names)
                 corners.AddImage("MoxieLook", "BadgeGreen", 0, 0, 0.8f,
                                  MoxieLook::MultiImage::alignmentFromName(name),
                                  ColourRect(Colour(0xFFFFFFFF)));
             framed("scaled overlay", 230, "IconFolder")
                 .AddImage("MoxieLook", "IconInfo", 0, 0, 1.5f, MoxieLook::MultiImage::BottomRight,
                           ColourRect(Colour(0xC0FFFFFF)));
         }},
        {"MoxieLook/StaticLayout", 130,
         [](Card& card)
         {
             layoutSample(card, "FlowLayout", "flow", 10, 6);
             layoutSample(card, "FillLayout", "fill", 130, 1);
             auto& grid = layoutSample(card, "GridLayout", "grid 2 x 3", 250, 6);
             grid.setProperty("GridSize", "rows:2 cols:3");
             layoutSample(card, "BorderLayout", "border", 370, 5);
             // Drag the small layout onto the text to try drag-and-drop.
             Window& target = card.add("MoxieLook/StaticText", "", 490, 60, 112, 46);
             target.setText("drop here");
             target.setProperty("HorzFormatting", "HorzCentred");
             auto& draggable = layoutSample(card, "FlowLayout", "drag me", 490, 2);
             draggable.setSize(USize(cegui_absdim(70), cegui_absdim(32)));
             draggable.SetDragAuthorized(true);
             draggable.AddDropTarget(&target);
             target.subscribeEvent(MoxieLook::EventDropped,
                                   [&target] { target.setText("dropped!"); });
             draggable.subscribeEvent(MoxieLook::EventDropCancelled,
                                      [&target] { target.setText("cancelled"); });
         }},
        {"MoxieLook/StaticText", 64,
         [](Card& card)
         {
             card.add("MoxieLook/StaticText", "left aligned", 10, 10, 140, 34)
                 .setText("Static text");
             Window& centred = card.add("MoxieLook/StaticText", "centred", 160, 10, 140, 34);
             centred.setText("Centred");
             centred.setProperty("HorzFormatting", "HorzCentred");
             Window& wrapped = card.add("MoxieLook/StaticText", "word wrapped", 310, 10, 140, 34);
             wrapped.setText("Words wrap onto the next line");
             wrapped.setProperty("HorzFormatting", "WordWrapCentred");
             Window& bare =
                 card.add("MoxieLook/StaticText", "no frame, coloured", 460, 10, 140, 34);
             bare.setText("Plain label");
             bare.setProperty("FrameEnabled", "False");
             bare.setProperty("BackgroundEnabled", "False");
             bare.setProperty("TextColours", "tl:FF2858A8 tr:FF2858A8 bl:FF8A2020 br:FF8A2020");
         }},
        {"MoxieLook/StaticImage", 74,
         [](Card& card)
         {
             auto image = [&](const String& caption, float x, const char* horz, const char* vert,
                              bool framed) -> Window&
             {
                 Window& w = card.add("MoxieLook/StaticImage", caption, x, 10, 100, 44);
                 w.setProperty("Image", "MoxieLook/IconStar");
                 w.setProperty("HorzFormatting", horz);
                 w.setProperty("VertFormatting", vert);
                 w.setProperty("FrameEnabled", framed ? "True" : "False");
                 w.setProperty("BackgroundEnabled", framed ? "True" : "False");
                 return w;
             };
             image("stretched", 10, "HorzStretched", "VertStretched", false);
             image("centred, framed", 130, "HorzCentred", "VertCentred", true);
             image("tiled, framed", 250, "HorzTiled", "VertTiled", true);
             image("tinted", 370, "HorzCentred", "VertCentred", false)
                 .setProperty("ImageColours", "tl:FF80C0FF tr:FF80C0FF bl:FF2040A0 br:FF2040A0");
             Window& folder = image("folder, right", 490, "RightAligned", "VertCentred", true);
             folder.setProperty("Image", "MoxieLook/IconFolder");
         }},
        {"MoxieLook/TextItem", 50,
         [](Card& card)
         {
             Window& plain = card.add("MoxieLook/TextItem", "", 10, 10, 180, 20);
             plain.setText("A text item");
             Window& red = card.add("MoxieLook/TextItem", "", 200, 10, 180, 20);
             red.setText("Red and centred");
             red.setProperty("TextColour", "FFC02020");
             red.setProperty("TextFormatting", "HorzCentred");
             Window& sized = card.add("MoxieLook/TextItem", "", 390, 10, 20, 20);
             sized.setProperty("AutoSized", "True");
             sized.setText("Sized to its text");
         }},
        {"MoxieLook/TextItemEx", 98,
         [](Card& card)
         {
             const char* icons[] = {"IconFolder", "IconDocument", "IconStar", "IconInfo"};
             const char* texts[] = {"Documents", "Report.txt", "Favourites", "selected"};
             for (int i = 0; i < 4; ++i)
             {
                 Window& item = card.add("MoxieLook/TextItemEx", "", 10, 8 + i * 20.0f, 200, 20);
                 item.setText(texts[i]);
                 item.setProperty("Icon", String("MoxieLook/") + icons[i]);
                 if (i == 3)
                     item.setProperty("Selected", "True");
                 if (i == 1)
                     card.hoverOn(item);
             }
         }},
    };
}

} // namespace gallery
