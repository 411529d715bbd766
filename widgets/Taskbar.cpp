#include "widgets/Taskbar.h"

#include "widgets/FrameWindowEx.h"
#include "widgets/TaskbarButton.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/WindowManager.h>
#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// CEGUI 0.8 keeps no imagesets, only images named "<imageset>/<image>".
void requireImageset(const String& imagesetName)
{
    const String prefix = imagesetName + "/";
    ImageManager::ImageIterator images = ImageManager::getSingleton().getIterator();
    for (; !images.isAtEnd(); ++images)
        if (images.getCurrentKey().compare(0, prefix.length(), prefix) == 0)
            return;
    throw UnknownObjectException("No imageset named '" + imagesetName + "' is loaded.");
}
} // namespace

Taskbar::Taskbar(const String& type, const String& name) : RedrawnWhenUncovered<Window>(type, name)
{
}

Taskbar::~Taskbar()
{
    for (Event::Connection& connection : d_connections)
        connection->disconnect();
}

void Taskbar::monitorWindow(FrameWindowEx* window, const String& imagesetName,
                            const String& imageName)
{
    if (!window)
        throw InvalidRequestException("A task bar cannot follow no window.");
    Window* created = WindowManager::getSingleton().createWindow(ButtonType, window->getName() +
                                                                                 ButtonNameSuffix);
    auto* button = dynamic_cast<TaskbarButton*>(created);
    try
    {
        if (!button)
            throw InvalidRequestException("The window type '" + String(ButtonType) +
                                          "' cannot serve as a task-bar button.");
        requireImageset(imagesetName);
        addChild(button); // throws when the bar already holds a button of that name
    }
    catch (...)
    {
        WindowManager::getSingleton().destroyWindow(created);
        throw;
    }

    button->setText(imageName);
    button->setCustomBitmap(imagesetName, imageName);

    auto follow =
        [&](Window* source, const String& event, bool (Taskbar::*handler)(const EventArgs&))
    { d_connections.push_back(source->subscribeEvent(event, Event::Subscriber(handler, this))); };
    follow(window, FrameWindowEx::EventMinimizeClicked, &Taskbar::onWindowMinimized);
    follow(window, Window::EventHidden, &Taskbar::onWindowClosed);
    follow(window, Window::EventShown, &Taskbar::onWindowShown);
    follow(window, Window::EventActivated, &Taskbar::onWindowActivated);
    follow(window, Window::EventDestructionStarted, &Taskbar::onWindowDestroyed);
    follow(button, TaskbarButton::EventExplicitlyClicked, &Taskbar::onButtonChanged);

    d_entries.push_back({window, button, 0});
    layoutButtons();
}

FrameWindowEx* Taskbar::windowOf(const EventArgs& e)
{
    return dynamic_cast<FrameWindowEx*>(static_cast<const WindowEventArgs&>(e).window);
}

TaskbarButton* Taskbar::GrabButtonByWindow(const FrameWindowEx* window) const
{
    for (const Entry& entry : d_entries)
        if (entry.window == window)
            return entry.button;
    return nullptr;
}

FrameWindowEx* Taskbar::GrabWindowByButton(const TaskbarButton* button) const
{
    for (const Entry& entry : d_entries)
        if (entry.button == button)
            return entry.window;
    return nullptr;
}

void Taskbar::setWindowPriorityIfNeeded(const FrameWindowEx* window)
{
    int highest = 0;
    for (const Entry& entry : d_entries)
        highest = std::max(highest, entry.priority);
    for (Entry& entry : d_entries)
        if (entry.window == window && entry.priority == 0)
        {
            entry.priority = highest + 1;
            return;
        }
}

void Taskbar::resetWindowPriority(const FrameWindowEx* window)
{
    for (Entry& entry : d_entries)
        if (entry.window == window)
            entry.priority = 0;
}

bool Taskbar::onWindowClosed(const EventArgs& e)
{
    resetWindowPriority(windowOf(e));
    layoutButtons();
    return true;
}

bool Taskbar::onWindowShown(const EventArgs& e)
{
    setWindowPriorityIfNeeded(windowOf(e));
    layoutButtons();
    return true;
}

bool Taskbar::onWindowMinimized(const EventArgs& e)
{
    if (TaskbarButton* button = GrabButtonByWindow(windowOf(e)))
        button->setSelected(false);
    return true;
}

bool Taskbar::onWindowActivated(const EventArgs& e)
{
    if (TaskbarButton* button = GrabButtonByWindow(windowOf(e)))
        button->setSelected(true);
    return true;
}

bool Taskbar::onButtonChanged(const EventArgs& e)
{
    const auto* button =
        dynamic_cast<const TaskbarButton*>(static_cast<const WindowEventArgs&>(e).window);
    FrameWindowEx* window = GrabWindowByButton(button);
    if (!window)
        return true;
    if (!button->isSelected())
    {
        if (!window->isMinimized())
            window->minimize(true);
    }
    else if (window->isMinimized())
        window->restore(true);
    else
        window->activate();
    return true;
}

bool Taskbar::onWindowDestroyed(const EventArgs& e)
{
    const Window* gone = static_cast<const WindowEventArgs&>(e).window;
    for (auto entry = d_entries.begin(); entry != d_entries.end();)
        if (entry->window == gone)
        {
            WindowManager::getSingleton().destroyWindow(entry->button);
            entry = d_entries.erase(entry);
        }
        else
            ++entry;
    layoutButtons();
    return true;
}

} // namespace MoxieLook
} // namespace CEGUI
