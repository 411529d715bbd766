// A bar with one button per monitored frame window, in the order the windows were last
// shown. A button shows whether its window is the active one; clicking it minimises,
// restores or activates the window.
#pragma once

#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/Window.h>
#include <list>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class FrameWindowEx;
class TaskbarButton;

class Taskbar : public RedrawnWhenUncovered<Window>
{
public:
    static constexpr char ButtonType[] = "MoxieLook/TaskbarButton";
    static constexpr char ButtonNameSuffix[] = "_minimized";

    struct Entry
    {
        FrameWindowEx* window; //!< not owned
        TaskbarButton* button; //!< a child of the task bar
        int priority;          //!< 0: not placed; else the rank of its last showing
    };

    Taskbar(const String& type, const String& name);
    ~Taskbar() override;

    //! Gives `window` a button showing images `imageName` (+ "Focus", "Select",
    //! "SelectFocus") of `imagesetName`. An unknown imageset throws before anything is
    //! added; a missing image throws once the button is in the bar, before the window is
    //! followed.
    void monitorWindow(FrameWindowEx* window, const String& imagesetName, const String& imageName);

    virtual void layoutButtons() = 0;
    virtual void setButtonPositionOffset(const Vector2f& offset) = 0;

    //! In display order after the last layout.
    const std::list<Entry>& getEntries() const { return d_entries; }

protected:
    virtual bool onWindowClosed(const EventArgs& e);
    virtual bool onWindowMinimized(const EventArgs& e);
    virtual bool onWindowShown(const EventArgs& e);
    virtual bool onWindowActivated(const EventArgs& e);
    virtual bool onButtonChanged(const EventArgs& e);

    TaskbarButton* GrabButtonByWindow(const FrameWindowEx* window) const;
    FrameWindowEx* GrabWindowByButton(const TaskbarButton* button) const;
    void setWindowPriorityIfNeeded(const FrameWindowEx* window);
    void resetWindowPriority(const FrameWindowEx* window);

    std::list<Entry> d_entries;

private:
    //! A monitored window going away takes its button with it.
    bool onWindowDestroyed(const EventArgs& e);
    static FrameWindowEx* windowOf(const EventArgs& e);

    std::vector<Event::Connection> d_connections;
};

} // namespace MoxieLook
} // namespace CEGUI
