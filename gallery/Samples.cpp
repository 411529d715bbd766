#include "Samples.h"

#include "Label.h"
#include "draw/Imagery.h"
#include "widgets/PushButtonEx.h"

#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/ButtonBase.h>
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
        x += width + 16;
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
    };
    return all;
}

} // namespace gallery
