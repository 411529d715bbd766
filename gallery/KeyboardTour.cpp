#include "KeyboardTour.h"

#include "module/KeyboardNavigation.h"

#include <CEGUI/CEGUI.h>
#include <set>
#include <vector>

namespace gallery
{
using namespace CEGUI;

namespace
{
GUIContext& gui()
{
    return System::getSingleton().getDefaultGUIContext();
}

void focusables(Window& parent, std::vector<Window*>& out, std::size_t& frames, bool inFrame)
{
    for (std::size_t i = 0; i < parent.getChildCount(); ++i)
    {
        Window& child = *parent.getChildAtIdx(i);
        if (MoxieLook::isFocusable(child))
            out.push_back(&child);
        const bool frame = !inFrame && dynamic_cast<FrameWindow*>(&child);
        frames += frame;
        focusables(child, out, frames, inFrame || frame);
    }
}

bool press(Key::Scan key, bool control = false)
{
    if (control)
        gui().injectKeyDown(Key::LeftControl);
    const bool taken = gui().injectKeyDown(key);
    gui().injectKeyUp(key);
    if (control)
        gui().injectKeyUp(Key::LeftControl);
    return taken;
}
} // namespace

TourResult tourByKeys()
{
    TourResult result;
    Window* sheet = gui().getRootWindow();
    if (!sheet)
        return result;
    std::vector<Window*> all;
    focusables(*sheet, all, result.frames, false);
    result.focusable = all.size();
    const std::set<Window*> onPage(all.begin(), all.end());
    std::set<Window*> reached;
    for (Window* start : all)
    {
        // A widget no round reached yet begins a round of its own (its frame window's).
        if (reached.count(start) || !MoxieLook::focusWidget(*start))
            continue;
        ++result.rounds;
        for (int guard = 0; guard < 1000; ++guard)
        {
            Window* focused = MoxieLook::focusedWidget(gui());
            if (!focused || !reached.insert(focused).second)
                break;
            for (Key::Scan key : {Key::Space, Key::ArrowDown, Key::Escape})
                result.operated += press(key);
            // The keys may have moved the focus (a tab switched, a window closed).
            if (MoxieLook::focusedWidget(gui()) != focused)
                MoxieLook::focusWidget(*focused);
            const bool inText = dynamic_cast<MultiLineEditbox*>(focused) != nullptr;
            press(Key::Tab, inText);
        }
    }
    for (Window* w : reached)
        result.reached += onPage.count(w);
    return result;
}

} // namespace gallery
