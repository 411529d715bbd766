#include "widgets/StaticLayout.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/WindowManager.h>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <stdexcept>

namespace CEGUI
{
namespace MoxieLook
{
bool StaticLayout::mbDraggingInProgress = false;
StaticLayout* StaticLayout::mplayoutModifier = nullptr;

namespace
{
StaticLayoutProperties::LayoutProperty s_layoutProperty;
StaticLayoutProperties::BorderProperty s_borderProperty;
StaticLayoutProperties::MarginProperty s_marginProperty;
StaticLayoutProperties::FlowLayoutHorizontalAlignmentProperty s_flowAlignmentProperty;
StaticLayoutProperties::GridSizeProperty s_gridSizeProperty;

// Toward zero, then read as unsigned 32-bit; values no int holds are clamped first.
std::uint32_t truncated(float value)
{
    if (!(value > static_cast<float>(INT_MIN)))
        return value != value ? 0u : static_cast<std::uint32_t>(INT_MIN);
    if (value >= static_cast<float>(INT_MAX))
        return static_cast<std::uint32_t>(INT_MAX);
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(value));
}

float asFloat(std::uint32_t value)
{
    return static_cast<float>(value);
}

// What atoi reads, without its undefined behaviour on overflow.
int atoiLike(const std::string& text)
{
    errno = 0;
    const long value = std::strtol(text.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}
} // namespace

StaticLayout::LayoutException::LayoutException(const String& message)
    : Exception(message, "CEGUI::MoxieLook::StaticLayout::LayoutException")
{
}

StaticLayout::StaticLayout(const String& type, const String& name) : Static(type, name)
{
    addStaticLayoutProperties();
    addEvent(EventDragStarted);
    addEvent(EventDropCancelled);
}

void StaticLayout::addStaticLayoutProperties()
{
    addProperty(&s_layoutProperty);
    addProperty(&s_borderProperty);
    addProperty(&s_marginProperty);
    addProperty(&s_flowAlignmentProperty);
    addProperty(&s_gridSizeProperty);
}

void StaticLayout::initialiseComponents()
{
    Static::initialiseComponents();
    setFrameEnabled(false);
    d_layout = DefaultLayout;
    d_margin = 0;
    d_flowAlignment = HA_LEFT;
    d_gridRows = 1;
    d_gridCols = 1;
    std::fill(std::begin(d_regions), std::end(d_regions), nullptr);
    d_currentBorder = NoBorder;
    d_dragAuthorised = false;
    d_mouseDownPosition = Vector2f(0, 0);
    d_accumulatedMovement = 0;
    d_dragging = false;
    d_armed = false;
    d_dropTargets.clear();
    d_positionBeforeDrag = UVector2();
    d_grabOffset = Vector2f(0, 0);
    d_sourceDragInfo.clear();

    subscribeEvent(EventMouseButtonDown, Event::Subscriber(&StaticLayout::MouseDown, this));
    subscribeEvent(EventMouseMove, Event::Subscriber(&StaticLayout::MouseMove, this));
    subscribeEvent(EventMouseButtonUp, Event::Subscriber(&StaticLayout::MouseUp, this));
}

void StaticLayout::layoutUnlessMuted()
{
    if (!isMuted())
        DoLayout();
}

void StaticLayout::SetLayout(Layout layout)
{
    d_layout = layout;
    layoutUnlessMuted();
}

void StaticLayout::SetMargin(unsigned margin)
{
    d_margin = margin;
    layoutUnlessMuted();
}

void StaticLayout::SetGridSize(unsigned rows, unsigned cols)
{
    d_gridRows = rows;
    d_gridCols = cols;
    layoutUnlessMuted();
}

void StaticLayout::SetFlowLayoutHorizontalAlignment(HorizontalAlignment alignment)
{
    d_flowAlignment = alignment;
}

void StaticLayout::SetCurrentBorder(Border border)
{
    d_currentBorder = border;
}

void StaticLayout::addChildWindowInBorder(Window* window, Border border)
{
    SetCurrentBorder(border);
    addChild(window);
}

void StaticLayout::addChildWindowInBorder(const String& name, Border border)
{
    Window* root = getGUIContext().getRootWindow();
    if (!root)
        throw UnknownObjectException("There is no root window in which to find '" + name + "'.");
    addChildWindowInBorder(root->getChild(name), border);
}

StaticLayout::Border StaticLayout::GetBorderForChild(Window* window) const
{
    for (std::uint32_t slot = 0; slot < 5; ++slot)
        if (d_regions[slot] == window)
            return static_cast<Border>(slot);
    return NoBorder;
}

void StaticLayout::addChild_impl(Element* element)
{
    if (d_layout == BorderLayout)
    {
        Window* child = static_cast<Window*>(element);
        if (d_currentBorder > CenterBorder)
        {
            const String message = "BorderLayout error : trying to add " + child->getName() +
                                   "  in " + getName() + " without specified border";
            abandonLoadedTree(child);
            throw LayoutException(message);
        }
        d_regions[d_currentBorder] = child;
        d_currentBorder = NoBorder;
    }
    Static::addChild_impl(element);
    layoutUnlessMuted();
}

void StaticLayout::removeChild_impl(Element* element)
{
    for (Window*& slot : d_regions)
        if (slot == element)
        {
            slot = nullptr;
            break;
        }
    Static::removeChild_impl(element);
}

void StaticLayout::onSized(ElementEventArgs& e)
{
    layoutUnlessMuted();
    Static::onSized(e);
}

void StaticLayout::onChildAdded(ElementEventArgs& e)
{
    layoutUnlessMuted();
    Static::onChildAdded(e);
}

void StaticLayout::onChildRemoved(ElementEventArgs& e)
{
    layoutUnlessMuted();
    Static::onChildRemoved(e);
}

void StaticLayout::endInitialisation()
{
    Static::endInitialisation();
    layoutUnlessMuted();
}

void StaticLayout::place(Window& child, float x, float y, float width, float height) const
{
    // Children sit in the client area, inside any frame; the rules measure from the edge.
    const Rectf area = localInnerRect();
    child.setArea(UVector2(cegui_absdim(x - area.left()), cegui_absdim(y - area.top())),
                  USize(cegui_absdim(width), cegui_absdim(height)));
}

void StaticLayout::placeAt(Window& child, float x, float y) const
{
    const Rectf area = localInnerRect();
    child.setPosition(UVector2(cegui_absdim(x - area.left()), cegui_absdim(y - area.top())));
}

void StaticLayout::DoLayout()
{
    const Rectf inner = getUnclippedInnerRect().get();
    const Rectf outer = getUnclippedOuterRect().get();
    const Rectf area(inner.left() - outer.left(), inner.top() - outer.top(),
                     inner.right() - outer.left(), inner.bottom() - outer.top());
    switch (d_layout)
    {
    case FlowLayout:
        flowLayout(area);
        break;
    case FillLayout:
        fillLayout(area);
        break;
    case GridLayout:
        gridLayout(area);
        break;
    case BorderLayout:
        borderLayout(area);
        break;
    default:
        break;
    }
}

void StaticLayout::flowLayout(const Rectf& area)
{
    const float m = asFloat(d_margin);
    const bool fromLeft = d_flowAlignment == HA_LEFT;
    const float s = fromLeft ? m : -m;
    float x = fromLeft ? area.left() + m : area.right() - m;
    float y = area.top() + m;
    std::uint32_t rowHeight = 0;

    for (std::size_t i = 0; i < getChildCount(); ++i)
    {
        Window& child = *getChildAtIdx(i);
        child.setHorizontalAlignment(HA_LEFT);
        child.setVerticalAlignment(VA_TOP);
        if (!child.isVisible())
            continue;
        const Sizef size = child.getPixelSize();
        rowHeight = std::max(rowHeight, truncated(size.d_height));

        if (fromLeft)
        {
            placeAt(child, x, y);
            x = x + asFloat(truncated(size.d_width)) + m;
            // Wrap after placing: an overrunning child stays, the next starts a new row.
            if (x >= area.right())
            {
                y = y + asFloat(rowHeight) + m;
                rowHeight = 0;
                x = area.left() + m;
            }
        }
        else
        {
            x = x - (size.d_width + s);
            if (area.left() >= x)
            {
                y = y + asFloat(rowHeight) + m;
                rowHeight = 0;
                x = area.right() - m;
            }
            placeAt(child, x, y);
        }
    }
}

void StaticLayout::fillLayout(const Rectf& area)
{
    const float m = asFloat(d_margin);
    const float twoM = asFloat(2u * d_margin);
    for (std::size_t i = 0; i < getChildCount(); ++i)
        place(*getChildAtIdx(i), area.left() + m, area.top() + m, area.getWidth() - twoM,
              area.getHeight() - twoM);
}

void StaticLayout::gridLayout(const Rectf& area)
{
    if (getChildCount() == 0)
        return;
    const std::uint32_t m = d_margin;
    const std::uint32_t cellWidth =
        (truncated(area.getWidth()) - (d_gridCols + 1) * m) / d_gridCols;
    const std::uint32_t cellHeight =
        (truncated(area.getHeight()) - (d_gridRows + 1) * m) / d_gridRows;
    const std::uint32_t x0 = truncated(area.left()) + m;
    const std::uint32_t y0 = truncated(area.top()) + m;
    std::uint32_t x = x0;
    std::uint32_t y = y0;
    for (std::size_t i = 0; i < getChildCount(); ++i)
    {
        place(*getChildAtIdx(i), asFloat(x), asFloat(y), asFloat(cellWidth), asFloat(cellHeight));
        if ((i + 1) % d_gridCols != 0)
            x = x + m + cellWidth;
        else
        {
            x = x0;
            y = y + m + cellHeight;
        }
    }
}

void StaticLayout::borderLayout(const Rectf& area)
{
    auto height = [](Window* w) { return w ? truncated(w->getPixelSize().d_height) : 0u; };
    auto width = [](Window* w) { return w ? truncated(w->getPixelSize().d_width) : 0u; };
    Window* north = d_regions[NorthBorder];
    Window* south = d_regions[SouthBorder];
    Window* west = d_regions[WestBorder];
    Window* east = d_regions[EastBorder];
    Window* center = d_regions[CenterBorder];

    const std::uint32_t northH = height(north);
    const std::uint32_t southH = height(south);
    const std::uint32_t westW = width(west);
    const std::uint32_t eastW = width(east);
    const float m = asFloat(d_margin);
    const float middleTop = area.top() + asFloat(northH) + m;
    const float middleHeight = area.getHeight() - asFloat(northH + southH + 2u * d_margin);

    if (north)
        place(*north, area.left(), area.top(), area.getWidth(), asFloat(northH));
    if (south)
        place(*south, area.left(), area.top() + area.getHeight() - asFloat(southH), area.getWidth(),
              asFloat(southH));
    if (west)
        place(*west, area.left(), middleTop, asFloat(westW), middleHeight);
    if (east)
        place(*east, area.left() + area.getWidth() - asFloat(eastW), middleTop, asFloat(eastW),
              middleHeight);
    if (center)
        place(*center, area.left() + asFloat(westW) + m, middleTop,
              area.getWidth() - asFloat(westW + eastW + 2u * d_margin), middleHeight);
}

void StaticLayout::AddDropTarget(Window* window)
{
    d_dropTargets.insert(window);
}

void StaticLayout::RemoveDropTarget(Window* window)
{
    window->removeEvent(EventDropped);
}

void StaticLayout::setDragging(bool on)
{
    d_dragging = on;
    Window* parent = getParent();
    if (on)
    {
        mbDraggingInProgress = true;
        mplayoutModifier = this;
        d_mutedParent = parent;
        if (parent)
            parent->setMutedState(true);
        setClippedByParent(false);
        setModalState(true);
        // Last: a handler may end the drag, even destroy the window.
        DragEventArgs args(this, parent);
        fireEvent(EventDragStarted, args, "");
        return;
    }
    else if (mplayoutModifier == this)
    {
        // Only the parent it muted, and only while it is still the parent.
        if (d_mutedParent && d_mutedParent == parent)
            parent->setMutedState(false);
        d_mutedParent = nullptr;
        mplayoutModifier = nullptr;
        mbDraggingInProgress = false;
    }
    setClippedByParent(!on);
    setModalState(on);
}

namespace
{
// Reads any window's initialisation flag (set while a layout file builds it).
struct InitialisationProbe : Window
{
    static bool initialising(const Window& window)
    {
        return window.*(&InitialisationProbe::d_initialising);
    }
};
} // namespace

void StaticLayout::abandonLoadedTree(Window* refusedChild)
{
    // Only inside a layout load: this window and all its ancestors being initialised, the
    // top one not yet given to anyone. CEGUI's loader cleans up only after its own
    // exceptions, so the windows it made so far would stay behind.
    const Window* top = this;
    for (; top; top = top->getParent())
    {
        if (!InitialisationProbe::initialising(*top))
            return;
        if (!top->getParent())
            break;
    }
    WindowManager& windows = WindowManager::getSingleton();
    if (refusedChild && !refusedChild->getParent())
        windows.destroyWindow(refusedChild);
    windows.destroyWindow(const_cast<Window*>(top));
}

void StaticLayout::onDestructionStarted(WindowEventArgs& e)
{
    if (d_dragging)
        setDragging(false);
    d_armed = false;
    if (mplayoutModifier == this)
    {
        mplayoutModifier = nullptr;
        mbDraggingInProgress = false;
    }
    Static::onDestructionStarted(e);
}

bool StaticLayout::MouseDown(const EventArgs& args)
{
    if (d_dragAuthorised)
    {
        const auto& mouse = static_cast<const MouseEventArgs&>(args);
        d_mouseDownPosition = mouse.position;
        d_grabOffset = mouse.position - getUnclippedOuterRect().get().d_min;
        d_accumulatedMovement = 0;
        d_armed = true;
    }
    return true;
}

bool StaticLayout::MouseMove(const EventArgs& args)
{
    if (!d_dragAuthorised || !d_armed)
        return true;
    const auto& mouse = static_cast<const MouseEventArgs&>(args);
    if (d_dragging)
    {
        moveKeepingGrab(*this, mouse.position, d_grabOffset);
        return true;
    }
    d_accumulatedMovement += squaredStep(mouse);
    if (d_accumulatedMovement > muiSquaredThreshold)
    {
        d_positionBeforeDrag = getPosition();
        setDragging(true);
        DragEventArgs started(this, nullptr);
        fireEvent(EventDragStarted, started, "");
    }
    return true;
}

void StaticLayout::CancelDrag()
{
    if (!d_dragging)
        return;
    d_armed = false;
    d_accumulatedMovement = 0;
    endDrag(false);
}

void StaticLayout::endDrag(bool dropHere)
{
    setPosition(d_positionBeforeDrag);
    setDragging(false);
    Window* target = dropHere ? dropTargetUnderCursor(*this, d_dropTargets) : nullptr;
    if (target)
    {
        DragEventArgs dropped(this, target);
        target->fireEvent(EventDropped, dropped, "");
    }
    else
    {
        DragEventArgs cancelled(this, nullptr);
        fireEvent(EventDropCancelled, cancelled, "");
    }
    setEnabled(true);
}

bool StaticLayout::MouseUp(const EventArgs&)
{
    d_armed = false;
    d_accumulatedMovement = 0;
    if (!d_dragAuthorised || !d_dragging)
        return true;
    endDrag(true);
    return true;
}

namespace StaticLayoutProperties
{
namespace
{
StaticLayout& layoutOf(PropertyReceiver* receiver)
{
    return *static_cast<StaticLayout*>(receiver);
}
} // namespace

LayoutProperty::LayoutProperty()
    : Property("Layout", "Property to change the StaticLayout layout.", "DefaultLayout")
{
}

String LayoutProperty::get(const PropertyReceiver*) const
{
    return "";
}

void LayoutProperty::set(PropertyReceiver* receiver, const String& value)
{
    StaticLayout::Layout layout = StaticLayout::DefaultLayout;
    if (value == "FillLayout")
        layout = StaticLayout::FillLayout;
    else if (value == "BorderLayout")
        layout = StaticLayout::BorderLayout;
    else if (value == "GridLayout")
        layout = StaticLayout::GridLayout;
    else if (value == "FlowLayout")
        layout = StaticLayout::FlowLayout;
    layoutOf(receiver).SetLayout(layout);
}

BorderProperty::BorderProperty()
    : Property("Border", "Property to change the current Border.", "CenterBorder")
{
}

String BorderProperty::get(const PropertyReceiver*) const
{
    return "";
}

void BorderProperty::set(PropertyReceiver* receiver, const String& value)
{
    StaticLayout::Border border = StaticLayout::WestBorder;
    if (value == "CenterBorder")
        border = StaticLayout::CenterBorder;
    else if (value == "NorthBorder")
        border = StaticLayout::NorthBorder;
    else if (value == "SouthBorder")
        border = StaticLayout::SouthBorder;
    else if (value == "EastBorder")
        border = StaticLayout::EastBorder;
    layoutOf(receiver).SetCurrentBorder(border);
}

MarginProperty::MarginProperty()
    : Property("Margin", "Property to change the StaticLayout margins.", "0")
{
}

String MarginProperty::get(const PropertyReceiver*) const
{
    return "0";
}

void MarginProperty::set(PropertyReceiver* receiver, const String& value)
{
    layoutOf(receiver).SetMargin(PropertyHelper<uint>::fromString(value));
}

FlowLayoutHorizontalAlignmentProperty::FlowLayoutHorizontalAlignmentProperty()
    : Property("FlowLayoutHorizontalAlignment", "Property to change the horizontal alignment.",
               "Left")
{
}

String FlowLayoutHorizontalAlignmentProperty::get(const PropertyReceiver*) const
{
    return "";
}

void FlowLayoutHorizontalAlignmentProperty::set(PropertyReceiver* receiver, const String& value)
{
    layoutOf(receiver).SetFlowLayoutHorizontalAlignment(value == "Right" ? HA_RIGHT : HA_LEFT);
}

GridSizeProperty::GridSizeProperty()
    : Property("GridSize", "Property to change the grid size.", "rows:1 cols:1")
{
}

String GridSizeProperty::get(const PropertyReceiver*) const
{
    return "";
}

void GridSizeProperty::set(PropertyReceiver* receiver, const String& value)
{
    StaticLayout& layout = layoutOf(receiver);
    std::pair<unsigned, unsigned> size;
    try
    {
        size = parseGridSize(value.c_str());
    }
    catch (const std::out_of_range&)
    {
        layout.abandonLoadedTree(nullptr);
        throw;
    }
    layout.SetGridSize(size.first, size.second);
}

std::pair<unsigned, unsigned> parseGridSize(const std::string& text)
{
    const std::string::size_type blank = text.find(' ');
    // With no blank, blank + 6 wraps round to 5: the columns repeat the rows.
    const int rows = atoiLike(text.substr(5, blank));
    const int cols = atoiLike(text.substr(blank + 6));
    return {static_cast<unsigned>(std::max(rows, 1)), static_cast<unsigned>(std::max(cols, 1))};
}
} // namespace StaticLayoutProperties

} // namespace MoxieLook
} // namespace CEGUI
