// Cards of the tab control, its buttons and pane, and the tooltip.
#include "Samples.h"
#include "looks/MXTooltip.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/TabControl.h>

namespace gallery
{
using namespace CEGUI;

namespace
{
Window& page(const String& title)
{
    Window& content = *WindowManager::getSingleton().createWindow("DefaultWindow", title);
    content.setText(title);
    content.setSize(USize(cegui_reldim(1), cegui_reldim(1)));
    return content;
}

Window& tabButton(TabControl& tabs, Window& content)
{
    return *tabs.getChild(TabControl::TabButtonPaneName)
                ->getChild(TabControl::TabButtonName + content.getName());
}
} // namespace

std::vector<Sample> tabSamples()
{
    return {
        {"MoxieLook/TabControl", 170,
         [](Card& card)
         {
             auto& tabs =
                 static_cast<TabControl&>(card.add("MoxieLook/TabControl", "", 10, 10, 400, 150));
             Window& general = page("General");
             childOf(general, "MoxieLook/StaticText", "Player name", 10, 12, 100, 22);
             childOf(general, "MoxieLook/Editbox", "Moxie", 120, 10, 160, 26);
             childOf(general, "MoxieLook/Checkbox", "Show hints", 10, 50, 160, 22)
                 .setProperty("Selected", "true");
             childOf(general, "MoxieLook/Checkbox", "Autosave", 10, 78, 160, 22);
             tabs.addTab(&general);
             Window& display = page("Display");
             tabs.addTab(&display);
             tabs.addTab(&page("Sound"));
             card.hoverOn(tabButton(tabs, display));
         }},
        {"MoxieLook/TabButton", 70,
         [](Card& card)
         {
             auto& tabs =
                 static_cast<TabControl&>(card.add("MoxieLook/TabControl", "", 10, 10, 400, 50));
             tabs.addTab(&page("Selected"));
             tabs.addTab(&page("Normal"));
             Window& hover = page("Hover");
             tabs.addTab(&hover);
             Window& disabled = page("Disabled");
             tabs.addTab(&disabled);
             tabButton(tabs, disabled).setEnabled(false);
             card.hoverOn(tabButton(tabs, hover));
         }},
        {"MoxieLook/TabPane", 110,
         [](Card& card)
         {
             Window& pane = card.add("MoxieLook/TabPane", "", 10, 10, 300, 90);
             childOf(pane, "MoxieLook/StaticText", "The area under the tabs", 10, 10, 240, 22);
         }},
        {"MoxieLook/Tooltip", 130,
         [](Card& card)
         {
             Window& button = card.add("MoxieLook/Button", "", 10, 10, 120, 30);
             button.setText("Save");
             button.setTooltipText("Saves the drawing under its name and keeps the previous "
                                   "version beside it");
             card.hoverOn(button);
             card.whenShown(
                 [&button]
                 {
                     auto* tip = dynamic_cast<MoxieLook::TooltipEx*>(
                         button.getGUIContext().getDefaultTooltipObject());
                     if (!tip)
                         return;
                     const float fade = tip->getFadeTime();
                     tip->setFadeTime(0); // photographed at once
                     tip->forceActivation(&button);
                     tip->setFadeTime(fade);
                 });
         }},
    };
}

} // namespace gallery
