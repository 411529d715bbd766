#include "module/KeyboardNavigation.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "module/WidgetKeys.h"
#include "widgets/ButtonEx.h"
#include "widgets/RadioButtonEx.h"
#include "widgets/SmartButtonNodeItem.h"
#include "widgets/StaticLayout.h"
#include "widgets/TaskbarButton.h"
#include "widgets/TextItemEx.h"
#include "widgets/ToggleButton.h"
#include "widgets/TreeView.h"
#include "widgets/WidgetDropDownListbox.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/GlobalEventSet.h>
#include <CEGUI/InputEvent.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Combobox.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/FrameWindow.h>
#include <CEGUI/widgets/ItemEntry.h>
#include <CEGUI/widgets/ItemListbox.h>
#include <CEGUI/widgets/Listbox.h>
#include <CEGUI/widgets/MenuItem.h>
#include <CEGUI/widgets/Menubar.h>
#include <CEGUI/widgets/MultiColumnList.h>
#include <CEGUI/widgets/MultiLineEditbox.h>
#include <CEGUI/widgets/PopupMenu.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/RadioButton.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/Slider.h>
#include <CEGUI/widgets/Spinner.h>
#include <CEGUI/widgets/TabControl.h>
#include <CEGUI/widgets/ToggleButton.h>
#include <CEGUI/widgets/Tree.h>
#include <cmath>
#include <limits>
#include <map>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
constexpr char TabStopKey[] = "MoxieLook.TabStop";
constexpr float RingWidth = 2.0f;

class TabStopProperty : public Property
{
public:
    TabStopProperty()
        : Property("TabStop",
                   "Property to get/set whether Tab and the arrow keys stop at the widget. "
                   "Value is either \"True\" or \"False\".",
                   "True", true, "bool", "MoxieLook/KeyboardNavigation")
    {
    }
    String get(const PropertyReceiver* receiver) const override
    {
        const auto* window = static_cast<const Window*>(receiver);
        return window->isUserStringDefined(TabStopKey) ? window->getUserString(TabStopKey)
                                                       : String("True");
    }
    void set(PropertyReceiver* receiver, const String& value) override
    {
        auto* window = static_cast<Window*>(receiver);
        window->setUserString(
            TabStopKey, PropertyHelper<bool>::toString(PropertyHelper<bool>::fromString(value)));
        window->invalidate(true); // a ring drawn on it may have to go
    }
    Property* clone() const override { return new TabStopProperty(*this); }
};

TabStopProperty s_tabStop;

bool isMoxieLook(const Window& window)
{
    return window.getType().compare(0, 10, "MoxieLook/") == 0;
}

bool isSelectableText(const Window& w)
{
    const auto* item = dynamic_cast<const TextItemEx*>(&w);
    return item && item->isSelectable();
}

// The widgets one operates, as opposed to labels, frames and containers.
bool isOperable(const Window& w)
{
    return dynamic_cast<const PushButton*>(&w) || dynamic_cast<const CEGUI::ToggleButton*>(&w) ||
           dynamic_cast<const RadioButton*>(&w) || dynamic_cast<const Editbox*>(&w) ||
           dynamic_cast<const MultiLineEditbox*>(&w) || dynamic_cast<const Spinner*>(&w) ||
           dynamic_cast<const Slider*>(&w) || dynamic_cast<const Listbox*>(&w) ||
           dynamic_cast<const Combobox*>(&w) || dynamic_cast<const MultiColumnList*>(&w) ||
           dynamic_cast<const ItemListbox*>(&w) || dynamic_cast<const Menubar*>(&w) ||
           dynamic_cast<const TabControl*>(&w) || dynamic_cast<const Tree*>(&w) ||
           dynamic_cast<const TreeView*>(&w) || dynamic_cast<const WidgetDropDownListbox*>(&w) ||
           dynamic_cast<const Scrollbar*>(&w) || dynamic_cast<const PopupMenu*>(&w) ||
           dynamic_cast<const SmartButtonNodeItem*>(&w) || isSelectableText(w);
}

// Arrows a widget uses itself beyond the keys WidgetKeys gives it: a caret's, a combo box's
// stepping (its own handler).
bool usesArrow(const Window& w, Key::Scan key)
{
    if (dynamic_cast<const MultiLineEditbox*>(&w) || dynamic_cast<const Combobox*>(&w) ||
        dynamic_cast<const Spinner*>(&w))
        return true;
    if (dynamic_cast<const Editbox*>(&w))
        return key == Key::ArrowLeft || key == Key::ArrowRight;
    return false;
}

struct ContextState
{
    bool enabled = true;
    bool ringShown = false;
    Window* ringWidget = nullptr; //!< the focused widget
    Window* ringOwner = nullptr;  //!< the window the ring is drawn in: the widget's face
    Event::Connection drawn;
    Event::Connection gone;
    Event::Connection left; //!< the widget losing the focus by other means: redraw without
};

std::map<const GUIContext*, ContextState>& states()
{
    static std::map<const GUIContext*, ContextState> all;
    return all;
}

ContextState& stateOf(const GUIContext& context)
{
    return states()[&context];
}

// Calls the protected click handler, as a released mouse button would.
struct ClickAccess : PushButton
{
    static void click(PushButton& button)
    {
        WindowEventArgs args(&button);
        (button.*(&ClickAccess::onClicked))(args);
    }
};

// Where a widget shows its focus: a combo box and a spinner in their edit part (the combo
// box's own area reaches over its closed list), other widgets in themselves.
Window& faceOf(Window& widget)
{
    if (auto* combo = dynamic_cast<Combobox*>(&widget))
        return *combo->getEditbox();
    if (auto* spinner = dynamic_cast<Spinner*>(&widget))
        return *spinner->getChild(Spinner::EditboxName);
    return widget;
}

void drawRing(Window& window)
{
    const Sizef size = window.getPixelSize();
    if (size.d_width < 2 * RingWidth || size.d_height < 2 * RingWidth)
        return;
    const ColourRect colours(withAlpha(Colour(0x00FFFFFF), window.getEffectiveAlpha()));
    const Image& bar = lookImage("FocusRing");
    QuadBatch batch(window.getGeometryBuffer());
    const float w = size.d_width, h = size.d_height;
    for (const Rectf& side : {Rectf(0, 0, w, RingWidth), Rectf(0, h - RingWidth, w, h),
                              Rectf(0, RingWidth, RingWidth, h - RingWidth),
                              Rectf(w - RingWidth, RingWidth, w, h - RingWidth)})
        batch.add(bar, side, nullptr, colours);
}

bool connected(const Event::Connection& connection)
{
    return connection.isValid() && connection->connected();
}

void setRing(ContextState& state, Window* widget, bool shown)
{
    Window* owner = widget ? &faceOf(*widget) : nullptr;
    if (state.ringOwner && (state.ringOwner != owner || state.ringShown != shown))
        state.ringOwner->invalidate();
    if (owner != state.ringOwner)
    {
        for (Event::Connection* c : {&state.drawn, &state.gone, &state.left})
            if (connected(*c))
                (*c)->disconnect();
        if (owner)
        {
            ContextState* kept = &state;
            state.drawn =
                owner->subscribeEvent(Window::EventRenderingEnded,
                                      [owner, kept](const EventArgs&)
                                      {
                                          // Only while the widget still has the focus and can take
                                          // it.
                                          if (kept->ringOwner == owner && kept->ringWidget &&
                                              hasFocusRing(*kept->ringWidget))
                                              drawRing(*owner);
                                          return false;
                                      });
            state.left = widget->subscribeEvent(Window::EventDeactivated,
                                                [owner](const EventArgs&)
                                                {
                                                    owner->invalidate();
                                                    return false;
                                                });
            state.gone = owner->subscribeEvent(Window::EventDestructionStarted,
                                               [kept](const EventArgs&)
                                               {
                                                   kept->ringOwner = nullptr;
                                                   kept->ringWidget = nullptr;
                                                   kept->ringShown = false;
                                                   return false;
                                               });
        }
    }
    state.ringOwner = owner;
    state.ringWidget = widget;
    state.ringShown = shown && owner;
    if (owner)
        owner->invalidate();
}

// The window the keys go to decides where Tab looks: its outermost frame window, the modal
// window, or the whole sheet.
Window* scopeOf(const GUIContext& context, Window* from)
{
    if (Window* modal = context.getModalWindow())
        return modal;
    Window* scope = context.getRootWindow();
    for (Window* w = from; w; w = w->getParent())
        if (dynamic_cast<FrameWindow*>(w))
            scope = w;
    return scope;
}

void collect(Window& parent, std::vector<Window*>& out)
{
    for (std::size_t i = 0; i < parent.getChildCount(); ++i)
    {
        Window& child = *parent.getChildAtIdx(i);
        if (!child.isVisible())
            continue;
        if (isFocusable(child))
            out.push_back(&child);
        collect(child, out);
    }
}

Vector2f centreOf(const Window& window)
{
    const Rectf r = window.getUnclippedOuterRect().get();
    return Vector2f((r.left() + r.right()) * 0.5f, (r.top() + r.bottom()) * 0.5f);
}

// The nearest widget whose centre lies in the direction (dx, dy) from `from`'s: distance
// along the direction, plus twice the distance across it.
Window* nearestToward(const std::vector<Window*>& candidates, const Window& from, float dx,
                      float dy)
{
    const Vector2f origin = centreOf(from);
    Window* best = nullptr;
    float bestScore = std::numeric_limits<float>::infinity();
    for (Window* candidate : candidates)
    {
        if (candidate == &from)
            continue;
        const Vector2f c = centreOf(*candidate);
        const float along = (c.d_x - origin.d_x) * dx + (c.d_y - origin.d_y) * dy;
        const float across = std::fabs((c.d_x - origin.d_x) * dy - (c.d_y - origin.d_y) * dx);
        if (along <= 0)
            continue;
        const float score = along + 2 * across;
        if (score < bestScore)
        {
            bestScore = score;
            best = candidate;
        }
    }
    return best;
}

// What CEGUI's Editbox does with Tab: the text is accepted as the focus leaves.
struct EditboxAccess : Editbox
{
    static void accept(Editbox& box)
    {
        WindowEventArgs args(&box);
        (box.*(&EditboxAccess::onTextAcceptedEvent))(args);
    }
};

// A widget reached inside a scrolled pane comes into view, as far as the pane scrolls.
void scrollIntoView(Window& target)
{
    // The bar's position in pixels: how far the place `at` (in view) must move to show
    // `size` pixels from it within `viewSize`.
    auto bring = [](Scrollbar& bar, float at, float size, float viewSize)
    {
        const float position = bar.getScrollPosition();
        if (at < 0)
            bar.setScrollPosition(position + at);
        else if (at + size > viewSize)
            bar.setScrollPosition(position + std::min(at, at + size - viewSize));
    };
    for (Window* w = target.getParent(); w; w = w->getParent())
        if (auto* pane = dynamic_cast<ScrollablePane*>(w))
        {
            const Rectf view = pane->getViewableArea();
            const Vector2f corner = pane->getUnclippedOuterRect().get().d_min + view.d_min;
            const Rectf shown = target.getUnclippedOuterRect().get();
            bring(*pane->getVertScrollbar(), shown.top() - corner.d_y, shown.getHeight(),
                  view.getHeight());
            bring(*pane->getHorzScrollbar(), shown.left() - corner.d_x, shown.getWidth(),
                  view.getWidth());
        }
}

bool moveFocus(GUIContext& context, Window* target)
{
    if (!target)
        return false;
    scrollIntoView(*target);
    target->activate();
    // Activating a window leaves its active children active: the keys would still go to
    // another widget inside it (a tab control reached from a widget on its page). Its own
    // parts (a combo box's edit part) are its.
    if (focusedWidget(context) != target)
        for (std::size_t i = 0; i < target->getChildCount(); ++i)
            if (Window* child = target->getChildAtIdx(i); child->isActive())
                child->deactivate();
    setRing(stateOf(context), target, true);
    return true;
}

bool tab(GUIContext& context, Window* focused, bool backwards)
{
    if (auto* box = dynamic_cast<Editbox*>(focused); box && !box->isReadOnly())
        EditboxAccess::accept(*box);
    std::vector<Window*> order;
    if (Window* scope = scopeOf(context, focused))
    {
        if (isFocusable(*scope))
            order.push_back(scope);
        collect(*scope, order);
    }
    if (order.empty())
        return false;
    const auto at = std::find(order.begin(), order.end(), focused);
    if (at == order.end())
        return moveFocus(context, backwards ? order.back() : order.front());
    const std::size_t i = static_cast<std::size_t>(at - order.begin());
    const std::size_t n = order.size();
    return moveFocus(context, order[backwards ? (i + n - 1) % n : (i + 1) % n]);
}

// An arrow the focused widget left unused moves the focus that way (a gamepad's pad).
bool arrow(GUIContext& context, Window& focused, Key::Scan key, float dx, float dy)
{
    if (usesArrow(focused, key))
        return false;
    std::vector<Window*> candidates;
    if (Window* scope = scopeOf(context, &focused))
        collect(*scope, candidates);
    return moveFocus(context, nearestToward(candidates, focused, dx, dy));
}

// What a click does, by keys: the same events and sounds.
bool operate(Window& focused)
{
    if (auto* dragged = dynamic_cast<ButtonEx*>(&focused); dragged && dragged->IsDragging())
        return true; // a drag in progress is no click
    if (auto* taskbarButton = dynamic_cast<TaskbarButton*>(&focused))
    {
        taskbarButton->ClickByKey();
        return true;
    }
    if (auto* text = dynamic_cast<TextItemEx*>(&focused); text && text->isSelectable())
    {
        text->setSelected(!text->isSelected()); // as a click: "SelectStateChanged"
        return true;
    }
    if (auto* node = dynamic_cast<SmartButtonNodeItem*>(&focused))
    {
        // What a click on its button does: the button's sound, the node selected or not.
        if (ButtonEx* button = node->GetButton())
            button->PlayClickSound();
        node->SetSelected(!node->IsSelected());
        return true;
    }
    if (auto* ours = dynamic_cast<RadioButtonEx*>(&focused))
        ours->setSelected(true);
    else if (auto* ownToggle = dynamic_cast<MoxieLook::ToggleButton*>(&focused))
        ownToggle->setSelected(!ownToggle->isSelected());
    else if (auto* radio = dynamic_cast<RadioButton*>(&focused))
    {
        radio->setSelected(true);
        return true;
    }
    else if (auto* toggle = dynamic_cast<CEGUI::ToggleButton*>(&focused))
    {
        toggle->setSelected(!toggle->isSelected());
        return true;
    }
    else if (auto* combo = dynamic_cast<Combobox*>(&focused))
    {
        // Open, the list takes Return itself (accepting the highlighted item).
        if (combo->isDropDownListVisible())
            return false;
        combo->showDropList();
        return true;
    }
    else if (auto* selector = dynamic_cast<WidgetDropDownListbox*>(&focused))
    {
        if (selector->getDropList()->isVisible())
            selector->HideDropList(); // the arrows chose already
        else
            selector->ShowDropList();
        return true;
    }
    if (auto* button = dynamic_cast<PushButton*>(&focused))
    {
        if (auto* extended = dynamic_cast<ButtonEx*>(button))
            extended->PlayClickSound();
        ClickAccess::click(*button);
        return true;
    }
    return false;
}

bool close(Window& focused)
{
    // A drag in progress: the dragged window, or the one the focus is in.
    for (Window* w = &focused; w; w = w->getParent())
    {
        if (auto* button = dynamic_cast<ButtonEx*>(w); button && button->IsDragging())
        {
            button->CancelDrag();
            return true;
        }
        if (auto* layout = dynamic_cast<StaticLayout*>(w); layout && layout->IsDragging())
        {
            layout->CancelDrag();
            return true;
        }
    }
    if (auto* combo = dynamic_cast<Combobox*>(&focused); combo && combo->isDropDownListVisible())
    {
        combo->hideDropList();
        return true;
    }
    if (auto* selector = dynamic_cast<WidgetDropDownListbox*>(&focused);
        selector && selector->getDropList()->isVisible())
    {
        selector->HideDropList();
        return true;
    }
    return false;
}

// An open pop-up of a menu bar takes the focus as it opens: its keys are the bar's.
Window* menuBarAbove(Window* focused)
{
    for (Window* w = focused; w; w = w->getParent())
    {
        if (dynamic_cast<Menubar*>(w))
            return w;
        if (!dynamic_cast<PopupMenu*>(w) && !dynamic_cast<MenuItem*>(w))
            break;
    }
    return focused;
}

// A box one types into keeps Space (and, unless read-only, its own keys).
bool typesInto(const Window& target)
{
    const auto* box = dynamic_cast<const Editbox*>(&target);
    return box && !box->isReadOnly();
}

bool onKeyDown(const EventArgs& args)
{
    const auto& key = static_cast<const KeyEventArgs&>(args);
    Window* window = key.window;
    if (key.handled || !window)
        return false;
    GUIContext& context = window->getGUIContext();
    // Taken where the key arrives, before the widget's own handling (widgets fire the
    // event first): an edit box would otherwise take Tab for itself.
    Window* root = context.getRootWindow();
    Window* modal = context.getModalWindow();
    Window* target = modal ? modal->getActiveChild() : root ? root->getActiveChild() : nullptr;
    if (modal && !target)
        target = modal;
    if (window != target || !stateOf(context).enabled)
        return false;
    Window* focused = menuBarAbove(focusedWidget(context));
    const bool shift = (key.sysKeys & Shift) != 0;
    const bool control = (key.sysKeys & Control) != 0;
    // A widget out of the Tab round keeps its own keys; Ctrl+Tab works from anywhere in a
    // tab control.
    if (focused && (takesKeys(*focused) || (key.scancode == Key::Tab && control)) &&
        operateInside(*focused, key.scancode, shift, control))
        return true;
    switch (key.scancode)
    {
    case Key::Tab:
        // A multi-line box keeps Tab for its text unless Ctrl is held.
        if (focused && dynamic_cast<MultiLineEditbox*>(focused) && !control)
            return false;
        return tab(context, focused, shift);
    case Key::ArrowUp:
        return focused && arrow(context, *focused, key.scancode, 0, -1);
    case Key::ArrowDown:
        return focused && arrow(context, *focused, key.scancode, 0, 1);
    case Key::ArrowLeft:
        return focused && arrow(context, *focused, key.scancode, -1, 0);
    case Key::ArrowRight:
        return focused && arrow(context, *focused, key.scancode, 1, 0);
    case Key::Space:
        if (typesInto(*target))
            return false;
        [[fallthrough]];
    case Key::Return:
    case Key::NumpadEnter:
        // An edit box (a combo box's too) takes Return as its own "accepted".
        if (key.scancode != Key::Space && typesInto(*target))
            return false;
        return focused && takesKeys(*focused) && operate(*focused);
    case Key::Escape:
        return focused && close(*focused);
    default:
        return false;
    }
}

bool onMouseDown(const EventArgs& args)
{
    const auto& mouse = static_cast<const MouseEventArgs&>(args);
    if (!mouse.window)
        return false;
    ContextState& state = stateOf(mouse.window->getGUIContext());
    if (state.ringShown)
        setRing(state, state.ringWidget, false); // a click hides the ring, as in browsers
    return false;
}

bool onWindowCreated(const EventArgs& args)
{
    Window* window = static_cast<const WindowEventArgs&>(args).window;
    if (window && isMoxieLook(*window) && isOperable(*window) &&
        !window->isPropertyPresent(s_tabStop.getName()))
        window->addProperty(&s_tabStop);
    return false;
}

} // namespace

void setKeyboardNavigation(GUIContext& context, bool enabled)
{
    ContextState& state = stateOf(context);
    state.enabled = enabled;
    if (!enabled)
        setRing(state, nullptr, false);
}

bool isKeyboardNavigationEnabled(const GUIContext& context)
{
    const auto found = states().find(&context);
    return found == states().end() || found->second.enabled;
}

bool takesKeys(const Window& window)
{
    return isMoxieLook(window) && !window.isAutoWindow() && isOperable(window) &&
           window.isEffectiveVisible() && !window.isEffectiveDisabled();
}

bool isFocusable(const Window& window)
{
    // An open pop-up menu takes the keys, but Tab does not stop at menus.
    return takesKeys(window) && !dynamic_cast<const PopupMenu*>(&window) &&
           (!window.isUserStringDefined(TabStopKey) ||
            PropertyHelper<bool>::fromString(window.getUserString(TabStopKey)));
}

Window* focusedWidget(const GUIContext& context)
{
    Window* root = context.getRootWindow();
    Window* base = context.getModalWindow() ? context.getModalWindow() : root;
    Window* active = base ? base->getActiveChild() : nullptr;
    if (!active && base != root)
        active = base; // the modal window itself takes the keys
    // Parts belong to their widget: auto windows, and the item windows of a list (a clicked
    // item keeps the keys otherwise).
    while (active && (active->isAutoWindow() || dynamic_cast<ItemEntry*>(active)) &&
           active->getParent())
        active = active->getParent();
    return active == root ? nullptr : active;
}

bool focusWidget(Window& window)
{
    return isFocusable(window) && isKeyboardNavigationEnabled(window.getGUIContext()) &&
           moveFocus(window.getGUIContext(), &window);
}

bool hasFocusRing(const Window& window)
{
    const auto found = states().find(&window.getGUIContext());
    return found != states().end() && found->second.ringShown &&
           found->second.ringWidget == &window && isFocusable(window) &&
           focusedWidget(window.getGUIContext()) == &window;
}

namespace
{
Event::Connection s_keys, s_mouse, s_created;
} // namespace

void detachKeyboardNavigation()
{
    for (Event::Connection* c : {&s_keys, &s_mouse, &s_created})
        if (connected(*c))
            (*c)->disconnect();
    for (auto& [context, state] : states())
        setRing(state, nullptr, false);
}

void attachKeyboardNavigation()
{
    Event::Connection& keys = s_keys;
    Event::Connection& mouse = s_mouse;
    Event::Connection& created = s_created;
    if (GlobalEventSet* events = GlobalEventSet::getSingletonPtr(); events && !connected(keys))
    {
        keys = events->subscribeEvent("Window/" + Window::EventKeyDown, &onKeyDown);
        mouse = events->subscribeEvent("Window/" + Window::EventMouseButtonDown, &onMouseDown);
        // A new CEGUI: the windows the rings were on are gone; the host's switches stay.
        for (auto& entry : states())
            entry.second.ringOwner = entry.second.ringWidget = nullptr,
            entry.second.ringShown = false;
    }
    if (WindowManager* windows = WindowManager::getSingletonPtr(); windows && !connected(created))
        created = windows->subscribeEvent(WindowManager::EventWindowCreated, &onWindowCreated);
}

} // namespace MoxieLook
} // namespace CEGUI
