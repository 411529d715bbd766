// Cards of the frame window, its title bar and buttons, and the task bar.
#include "Samples.h"
#include "looks/MXFrameWindow.h"
#include "looks/MXTaskbar.h"

#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/PushButton.h>

namespace gallery
{
using namespace CEGUI;
using MoxieLook::MXFrameWindow;

namespace
{
MXFrameWindow& frameWindow(Card& card, const String& title, float x, float y, float w, float h)
{
    auto& window = static_cast<MXFrameWindow&>(card.add("MoxieLook/FrameWindow", "", x, y, w, h));
    window.setText(title);
    return window;
}

} // namespace

std::vector<Sample> windowSamples()
{
    return {
        {"MoxieLook/FrameWindow", 190,
         [](Card& card)
         {
             MXFrameWindow& inactive = frameWindow(card, "Inactive", 10, 10, 190, 140);
             childOf(inactive, "MoxieLook/StaticText", "Behind", 4, 8, 120, 24);
             MXFrameWindow& rolled = frameWindow(card, "Rolled up", 400, 10, 190, 140);
             rolled.setRollupEnabled(true);
             rolled.getTitleizeButton()->show();
             rolled.toggleRollup();
             MXFrameWindow& active = frameWindow(card, "Active", 210, 10, 180, 160);
             childOf(active, "MoxieLook/StaticText", "Notes to self", 4, 8, 150, 24);
             childOf(active, "MoxieLook/Button", "OK", 4, 44, 80, 28);
             active.getMinimizeButton()->show();
             card.whenShown([&active] { active.activate(); });
         }},
        {"MoxieLook/Titlebar", 50,
         [](Card& card) { card.add("MoxieLook/Titlebar", "", 10, 10, 300, 22).setText("Title"); }},
        {"MoxieLook/CloseButton", 60,
         [](Card& card)
         {
             card.states("MoxieLook/CloseButton", "", 16, 16,
                         {Card::State::Normal, Card::State::Hover, Card::State::Pushed,
                          Card::State::Disabled});
         }},
        {"MoxieLook/Taskbar", 200,
         [](Card& card)
         {
             MXFrameWindow* windows[3] = {&frameWindow(card, "Notes", 10, 10, 180, 120),
                                          &frameWindow(card, "Files", 200, 10, 180, 120),
                                          &frameWindow(card, "Favourites", 390, 10, 180, 120)};
             const char* bitmaps[3] = {"TaskbarWindowNotes", "TaskbarWindowFiles",
                                       "TaskbarWindowFavourites"};
             auto& bar = static_cast<MoxieLook::MXTaskbar&>(
                 card.add("MoxieLook/Taskbar", "", 0, 160, 600, 32));
             for (int i = 0; i < 3; ++i)
             {
                 windows[i]->setName(bitmaps[i] + String("Window"));
                 windows[i]->getMinimizeButton()->show();
                 bar.monitorWindow(windows[i], "MoxieLook", bitmaps[i]);
             }
             windows[1]->minimize(false);
             MXFrameWindow* notes = windows[0];
             card.whenShown([notes] { notes->activate(); });
             card.animation([notes] { notes->minimize(true); }, {1, 10, 20, 30, 40, 41});
         }},
        {"MoxieLook/TaskbarButton", 60,
         [](Card& card)
         {
             Window& normal = card.add("MoxieLook/TaskbarButton", "Normal", 10, 10, 100, 22);
             normal.setText("Notes");
             Window& selected = card.add("MoxieLook/TaskbarButton", "Selected", 130, 10, 100, 22);
             selected.setText("Files");
             selected.setProperty("Selected", "true");
             selected.setProperty("GroupID", "1");
             Window& hover = card.add("MoxieLook/TaskbarButton", "Hover", 250, 10, 100, 22);
             hover.setText("Mail");
             hover.setProperty("GroupID", "2");
             card.hoverOn(hover);
             auto& bitmap = static_cast<MoxieLook::TaskbarButton&>(
                 card.add("MoxieLook/TaskbarButton", "Bitmap", 370, 8, 40, 26));
             bitmap.setCustomBitmap("MoxieLook", "TaskbarWindowNotes");
             auto& chosen = static_cast<MoxieLook::TaskbarButton&>(
                 card.add("MoxieLook/TaskbarButton", "Bitmap, selected", 450, 8, 40, 26));
             chosen.setCustomBitmap("MoxieLook", "TaskbarWindowFiles");
             chosen.setProperty("GroupID", "3");
             chosen.setSelected(true);
         }},
    };
}

} // namespace gallery
