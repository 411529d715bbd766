#include "widgets/TreeView.h"

#include "draw/Imagery.h"
#include "widgets/WheelForwarding.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/System.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/ScrolledContainer.h>
#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>

namespace CEGUI
{
namespace MoxieLook
{
const String TreeView::EventNamespace("TreeView");
const String TreeView::EventLeafItemClicked("TreeViewLeafItemClicked");
const String TreeView::EventLeafItemDoubleClicked("TreeViewLeafItemDoubleClicked");
const String TreeView::EventTitleItemClicked("TreeViewTitleItemClicked");
const String TreeView::EventTitleItemDoubleClicked("TreeViewTitleItemDoubleClicked");
const String TreeView::EventTitleOpenStateChanged("TreeViewTitleStateChanged");
const String TreeView::EventTitleFocusedItemChanged("TreeViewFocusedItemChanged");

namespace
{
TreeViewProperties::PixelIndentProperty s_pixelIndentProperty;
TreeViewProperties::NormalTitleTextColourProperty s_normalTitleColourProperty;
TreeViewProperties::HoverTitleTextColourProperty s_hoverTitleColourProperty;
TreeViewProperties::SelectedTitleTextColourProperty s_selectedTitleColourProperty;
TreeViewProperties::NormalLeafTextColourProperty s_normalLeafColourProperty;
TreeViewProperties::HoverLeafTextColourProperty s_hoverLeafColourProperty;
TreeViewProperties::SelectedLeafTextColourProperty s_selectedLeafColourProperty;
TreeViewProperties::PixelNodeHeightProperty s_pixelNodeHeightProperty;
TreeViewProperties::TitleFontProperty s_titleFontProperty;

// The hit test of one rectangle: bounds included.
bool within(const Rectf& r, const Vector2f& p)
{
    return p.d_x >= r.left() && p.d_x <= r.right() && p.d_y >= r.top() && p.d_y <= r.bottom();
}

// A hit rectangle stretched to the right edge every row answers to.
bool withinRow(Rectf r, float rowRight, const Vector2f& p)
{
    r.d_max.d_x = std::max(r.d_max.d_x, rowRight);
    return within(r, p);
}

Rectf moved(Rectf r, const Vector2f& by)
{
    r.offset(by);
    return r;
}
} // namespace

// --- Node ---------------------------------------------------------------------------------

TreeView::Node::Node(const String& name, const String& text, Node* parent, void* data)
    : d_parent(parent), d_name(name), d_text(text), d_data(data), d_cursor(d_children.begin())
{
}

TreeView::Node::~Node() = default;

TreeView* TreeView::Node::tree() const
{
    const Node* root = this;
    while (root->d_parent)
        root = root->d_parent;
    return root->d_owner;
}

void TreeView::Node::changed(bool relayout) const
{
    if (TreeView* owner = tree())
        owner->nodesChanged(relayout);
}

void TreeView::Node::SetText(const String& text)
{
    d_text = text;
    d_textWidthValid = false;
    changed(true);
}

void TreeView::Node::SetIcon(const Image* icon)
{
    d_icon = icon;
    changed(true);
}

unsigned TreeView::Node::GetDepth() const
{
    unsigned depth = 0;
    for (const Node* n = d_parent; n; n = n->d_parent)
        ++depth;
    return depth;
}

bool TreeView::Node::IsClipped() const
{
    if (d_hitRelative && d_owner)
        return d_owner->d_clipRight < d_textRight + d_owner->d_origin.d_x;
    return d_clipped;
}

Rectf TreeView::Node::GetHitRect() const
{
    return d_hitRelative && d_owner ? moved(d_hitRect, d_owner->d_origin) : d_hitRect;
}

std::size_t TreeView::Node::GetNbDescendants() const
{
    std::size_t count = 0;
    std::deque<const Node*> queue{this};
    while (!queue.empty())
    {
        const Node* node = queue.front();
        queue.pop_front();
        for (const auto& child : node->d_children)
        {
            ++count;
            queue.push_back(child.get());
        }
    }
    return count;
}

int TreeView::Node::GetChildIndex(const Node* child) const
{
    int index = 0;
    for (const auto& c : d_children)
    {
        if (c.get() == child)
            return index;
        ++index;
    }
    return -1;
}

TreeView::Node* TreeView::Node::GetFirstChild()
{
    if (d_children.empty())
        return nullptr;
    d_cursor = d_children.begin();
    return d_cursor->get();
}

TreeView::Node* TreeView::Node::GetLastChild()
{
    if (d_children.empty())
        return nullptr;
    d_cursor = std::prev(d_children.end());
    return d_cursor->get();
}

bool TreeView::Node::HasNextChild() const
{
    return !d_children.empty() && d_cursor != d_children.end() &&
           std::next(Children::const_iterator(d_cursor)) != d_children.end();
}

bool TreeView::Node::HasPreviousChild() const
{
    return !d_children.empty() && Children::const_iterator(d_cursor) != d_children.begin();
}

TreeView::Node* TreeView::Node::GetNextChild()
{
    if (!HasNextChild())
        throw OutOfBound("outOfBounds exception : no more child for the current treeNode");
    return (++d_cursor)->get();
}

TreeView::Node* TreeView::Node::GetPreviousChild()
{
    if (!HasPreviousChild())
        throw OutOfBound("outOfBounds exception : no child before the current node");
    return (--d_cursor)->get();
}

TreeView::Node* TreeView::Node::GetChild(int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= d_children.size())
        throw OutOfBound("outOfBounds exception : no child at index " + std::to_string(index));
    d_cursor = std::next(d_children.begin(), index);
    return d_cursor->get();
}

TreeView::Node* TreeView::Node::GetChild(const String& name)
{
    for (d_cursor = d_children.begin(); d_cursor != d_children.end(); ++d_cursor)
        if ((*d_cursor)->d_name == name)
            return d_cursor->get();
    d_cursor = d_children.begin();
    return nullptr;
}

TreeView::Node* TreeView::Node::GetNode(const String& name)
{
    if (d_name == name)
        return this;
    for (const auto& child : d_children)
        if (Node* found = child->GetNode(name))
            return found;
    return nullptr;
}

TreeView::Node* TreeView::Node::GetSelectedNode()
{
    if (d_selected)
        return this;
    for (const auto& child : d_children)
        if (Node* found = child->GetSelectedNode())
            return found;
    return nullptr;
}

void TreeView::Node::Select(bool select, bool recursive)
{
    d_selected = select;
    if (recursive)
        for (const auto& child : d_children)
            child->Select(select, true);
}

void TreeView::Node::SetPixelHeight(unsigned height, bool recursive)
{
    d_pixelHeight = height;
    if (recursive)
        for (const auto& child : d_children)
            child->SetPixelHeight(d_pixelHeight, true);
    changed(true);
}

void TreeView::Node::SetVisible(bool visible)
{
    d_visible = visible;
    for (const auto& child : d_children)
        child->SetVisible(visible);
}

void TreeView::Node::SetOpened(bool opened)
{
    if (d_opened == opened)
        return;
    d_opened = opened || IsRoot(); // the root stays open
    if (!IsLeaf())
        for (const auto& child : d_children)
        {
            child->SetVisible(IsOpened());
            child->SetOpened(opened);
        }
    changed(true);
}

TreeView::Node* TreeView::Node::hitTest(const Vector2f& point, bool& onNavigator, float rowRight)
{
    if (d_visible && withinRow(GetHitRect(), rowRight, point))
    {
        onNavigator = !IsLeaf() && point.d_x <= GetHitRect().left() + d_iconWidth;
        return this;
    }
    for (const auto& child : d_children)
        if (Node* found = child->hitTest(point, onNavigator, rowRight))
            return found;
    return nullptr;
}

TreeView::Node* TreeView::Node::GetNodeAt(const Vector2f& point, bool& onNavigator)
{
    const TreeView* owner = tree();
    return hitTest(point, onNavigator,
                   owner ? owner->rowHitRight() : -std::numeric_limits<float>::infinity());
}

TreeView::Node* TreeView::Node::UpdateHoveringState(const Vector2f& point)
{
    Node* found = updateHover(point);
    if (TreeView* owner = tree())
    {
        // From the root, the flags are now exactly as this walk left them; from below it,
        // a flag elsewhere may remain.
        owner->d_flaggedNode = d_parent ? nullptr : found;
        owner->d_hoverFlagsKnown = !d_parent;
    }
    return found;
}

TreeView::Node* TreeView::Node::updateHover(const Vector2f& point)
{
    bool onNavigator = false;
    Node* found = GetNodeAt(point, onNavigator);
    d_hovered = false;
    Node* last = nullptr;
    for (const auto& child : d_children)
        if (Node* result = child->updateHover(point))
            last = result;
    if (found)
        found->d_hovered = true;
    return found ? found : last;
}

TreeView::Node* TreeView::Node::Add(const String& name, const String& text, void* data)
{
    auto child = std::shared_ptr<Node>(CreateNode(name, text, this, data));
    d_children.push_back(child);
    if (d_children.size() == 1)
        d_cursor = d_children.begin();
    child->SetPixelHeight(d_pixelHeight, false);
    changed(true);
    return child.get();
}

bool TreeView::Node::Remove(Node* node)
{
    for (auto it = d_children.begin(); it != d_children.end(); ++it)
    {
        if (it->get() == node)
        {
            const bool atCursor = it == d_cursor;
            TreeView* owner = tree();
            if (owner)
                owner->nodeLeaving(*node);
            d_children.erase(it);
            if (atCursor)
                d_cursor = d_children.begin();
            if (owner)
                owner->nodesChanged(true);
            return true;
        }
        if ((*it)->Remove(node))
            return true;
    }
    return false;
}

bool TreeView::Node::Remove(const String& name)
{
    for (auto it = d_children.begin(); it != d_children.end(); ++it)
    {
        if ((*it)->d_name == name)
        {
            const bool atCursor = it == d_cursor;
            TreeView* owner = tree();
            if (owner)
                owner->nodeLeaving(**it);
            d_children.erase(it);
            if (atCursor)
                d_cursor = d_children.begin();
            if (owner)
                owner->nodesChanged(true);
            return true;
        }
        if ((*it)->Remove(name))
            return true;
    }
    return false;
}

void TreeView::Node::RemoveAll()
{
    if (TreeView* owner = tree())
        for (const auto& child : d_children)
            owner->nodeLeaving(*child);
    d_children.clear();
    d_cursor = d_children.begin();
    changed(true);
}

float TreeView::Node::textWidth(const Font& font, std::uint32_t epoch)
{
    if (!d_textWidthValid || d_textWidthFont != &font || d_textWidthEpoch != epoch)
    {
        d_textWidth = font.getTextExtent(d_text);
        d_textWidthFont = &font;
        d_textWidthEpoch = epoch;
        d_textWidthValid = true;
    }
    return d_textWidth;
}

// --- TreeView -----------------------------------------------------------------------------

TreeView::TreeView(const String& type, const String& name)
    : RedrawnWhenUncovered<Window>(type, name)
{
}

TreeView::~TreeView() = default;

void TreeView::initialiseComponents()
{
    RedrawnWhenUncovered<Window>::initialiseComponents();
    d_root.reset(CreateRootNode());
    d_root->d_owner = this;
    d_hoveredNode = nullptr;
    if (d_pixelNodeHeight != 0)
        d_root->SetPixelHeight(d_pixelNodeHeight, false);

    d_pane = CreateScrollablePane();
    d_pane->setInheritsTooltipText(true);
    // The pane lies over the whole tree, outside its inner area: the tree itself takes
    // the mouse, the pane's scroll bars stay clickable.
    d_pane->setNonClient(true);
    d_pane->setMousePassThroughEnabled(true);
    addChild(d_pane);
    d_pane->setSize(USize(cegui_reldim(1.0f), cegui_reldim(1.0f)));
    d_pane->setContentPaneAutoSized(false);
    if (Window* content = const_cast<ScrolledContainer*>(d_pane->getContentPane()))
        content->setMousePassThroughEnabled(true);
    d_pane->subscribeEvent(ScrollablePane::EventContentPaneScrolled,
                           Event::Subscriber(&TreeView::Update, this));
    for (Scrollbar* bar : {d_pane->getVertScrollbar(), d_pane->getHorzScrollbar()})
        giveWheelTo(*bar, *this, [this](MouseEventArgs& e) { onMouseWheel(e); });

    for (const String* event :
         {&EventLeafItemClicked, &EventLeafItemDoubleClicked, &EventTitleItemClicked,
          &EventTitleItemDoubleClicked, &EventTitleOpenStateChanged, &EventTitleFocusedItemChanged})
        if (!isEventPresent(*event))
            addEvent(*event);
    addTreeViewProperties();
    d_titleFont = nullptr;
    nodesChanged(true);
}

void TreeView::addTreeViewProperties()
{
    if (isPropertyPresent(s_pixelIndentProperty.getName()))
        return;
    for (Property* property : std::initializer_list<Property*>{
             &s_pixelIndentProperty, &s_normalTitleColourProperty, &s_hoverTitleColourProperty,
             &s_selectedTitleColourProperty, &s_normalLeafColourProperty,
             &s_hoverLeafColourProperty, &s_selectedLeafColourProperty, &s_pixelNodeHeightProperty,
             &s_titleFontProperty})
        addProperty(property);
}

void TreeView::nodesChanged(bool relayout)
{
    if (relayout)
    {
        d_layoutValid = false;
        d_indexValid = false;
    }
    invalidate();
}

void TreeView::nodeLeaving(const Node& node)
{
    // Only the flagged node carries a hover flag: if it goes, none is left.
    for (const Node* n = d_flaggedNode; n; n = n->d_parent)
        if (n == &node)
        {
            d_flaggedNode = nullptr;
            return;
        }
}

bool TreeView::RemoveNode(Node* node)
{
    const bool removed = d_root->Remove(node);
    if (removed)
        nodesChanged(true);
    return removed;
}

TreeView::Node* TreeView::GetNodeForName(const String& name, Node* start)
{
    return (start ? start : d_root.get())->GetNode(name);
}

TreeView::Node* TreeView::GetSelectedNode()
{
    return d_root->GetSelectedNode();
}

void TreeView::SetSelectionByName(const String& name)
{
    if (Node* node = d_root->GetNode(name))
        SetSelectionByNode(node);
}

void TreeView::SetSelectionByNode(Node* node)
{
    if (!node)
        return;
    d_root->Select(false, true);
    node->Select(true, false);
    invalidate();
    fireItemEvent(node->IsLeaf() ? EventLeafItemClicked : EventTitleItemClicked, node);
}

void TreeView::SetPixelIndent(unsigned indent)
{
    d_pixelIndent = indent;
    nodesChanged(true);
}

void TreeView::SetPixelNodeHeight(unsigned height)
{
    d_pixelNodeHeight = height;
    d_root->SetPixelHeight(height, true);
}

void TreeView::SetTitleFont(const String& name)
{
    d_titleFont = &FontManager::getSingleton().get(name);
    nodesChanged(true);
}

const Font* TreeView::GetTitleFont() const
{
    return d_titleFont ? d_titleFont : getFont(true);
}

void TreeView::SetNormalTitleTextColour(const Colour& colour)
{
    d_normalTitleColour = colour;
    invalidate();
}

void TreeView::SetHoverTitleTextColour(const Colour& colour)
{
    d_hoverTitleColour = colour;
    invalidate();
}

void TreeView::SetSelectedTitleTextColour(const Colour& colour)
{
    d_selectedTitleColour = colour;
    invalidate();
}

void TreeView::SetNormalLeafTextColour(const Colour& colour)
{
    d_normalLeafColour = colour;
    invalidate();
}

void TreeView::SetHoverLeafTextColour(const Colour& colour)
{
    d_hoverLeafColour = colour;
    invalidate();
}

void TreeView::SetSelectedLeafTextColour(const Colour& colour)
{
    d_selectedLeafColour = colour;
    invalidate();
}

const Colour& TreeView::GetColour(bool leaf, bool selected, bool hovered) const
{
    if (leaf)
        return selected ? d_selectedLeafColour : hovered ? d_hoverLeafColour : d_normalLeafColour;
    return selected ? d_selectedTitleColour : hovered ? d_hoverTitleColour : d_normalTitleColour;
}

bool TreeView::Update(const EventArgs&)
{
    invalidate();
    return true;
}

Rectf TreeView::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    const Rectf outer = skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                              : getUnclippedOuterRect().get();
    if (!d_pane)
        return outer;
    // The pane's viewable area: inside its frame, clear of its scroll bars.
    const Rectf pane = skipAllPixelAlignment ? d_pane->getUnclippedOuterRect().getFresh(true)
                                             : d_pane->getUnclippedOuterRect().get();
    return moved(d_pane->getViewableArea(), pane.d_min);
}

void TreeView::notifyScreenAreaChanged(bool recursive)
{
    RedrawnWhenUncovered<Window>::notifyScreenAreaChanged(recursive);
    if (d_clipWatch.uncovers(*this, getInnerRectClipper()))
        invalidate(false);
}

Rectf TreeView::linesArea() const
{
    return getUnclippedInnerRect().get();
}

Sizef TreeView::contentSize() const
{
    const Font* font = getFont(true);
    return Sizef(d_laidOutSize.d_width,
                 d_laidOutSize.d_height + (font ? font->getLineSpacing() : 0.0f));
}

void TreeView::layOut()
{
    // Nodes laid out before and now without a line keep their last screen rectangle.
    const Vector2f lastOrigin = d_origin;
    d_lines.clear();
    d_strays.clear();
    std::size_t order = 0;
    float bottom = 0;
    float right = 0;
    const Font* leafFont = getFont(true);
    const Font* titleFont = GetTitleFont();

    // Pre-order walk of every node; `x` is the indentation, `shown` whether the node's
    // line is drawn (all its ancestors open).
    struct Frame
    {
        Node* node;
        float x;
        bool shown;
    };
    std::vector<Frame> stack{{d_root.get(), 0.0f, true}};
    while (!stack.empty())
    {
        const Frame frame = stack.back();
        stack.pop_back();
        Node& node = *frame.node;
        float x = frame.x;
        bool drawn = false;
        if (frame.shown)
        {
            node.d_owner = this;
            const Font* font = node.IsLeaf() ? leafFont : titleFont;
            if (!node.d_text.empty() && font)
            {
                const float h = node.d_pixelHeight != 0 ? static_cast<float>(node.d_pixelHeight)
                                                        : std::trunc(font->getBaseline());
                const Image* nav = node.GetNavigationImage();
                const float navWidth = nav ? nav->getRenderedSize().d_width : 0.0f;
                const float iconWidth = node.d_icon ? node.d_icon->getRenderedSize().d_width : 0.0f;
                const float textRight =
                    x + navWidth + iconWidth + node.textWidth(*font, d_metricsEpoch);
                node.d_iconWidth = static_cast<unsigned>(navWidth);
                node.d_hitRect = Rectf(x, bottom + 3.0f, textRight, bottom + h);
                node.d_textRight = textRight;
                node.d_hitRelative = true;
                d_lines.push_back({&node, x, bottom, h, navWidth, iconWidth, textRight, order});
                right = std::max(right, textRight);
                bottom += h;
                drawn = true;
            }
            else
                x -= static_cast<float>(d_pixelIndent); // children at this node's indentation
        }
        if (!drawn)
        {
            if (node.d_hitRelative)
            {
                node.d_clipped = d_clipRight < node.d_textRight + lastOrigin.d_x;
                node.d_hitRect = moved(node.d_hitRect, lastOrigin);
                node.d_hitRelative = false;
            }
            if (node.d_visible)
                d_strays.push_back({order, &node});
        }
        ++order;
        const bool childrenShown = frame.shown && !node.IsLeaf() && node.d_opened;
        const float childX = x + static_cast<float>(d_pixelIndent);
        for (auto it = node.d_children.rbegin(); it != node.d_children.rend(); ++it)
            stack.push_back({it->get(), childX, childrenShown});
    }
    d_laidOutSize = Sizef(right, bottom);
    d_layoutValid = true;
    d_indexValid = true;
}

void TreeView::RenderNodes(GeometryBuffer& buffer)
{
    if (!d_layoutValid)
        layOut();
    const Rectf inner = linesArea();
    const Sizef content = contentSize();
    const Rectf contentArea(0, 0, content.d_width, content.d_height);
    if (contentArea != d_contentArea)
    {
        d_contentArea = contentArea;
        d_pane->setContentPaneArea(contentArea);
    }
    // The pane's scroll positions are fractions of its content area.
    d_origin =
        Vector2f(inner.left() - d_pane->getHorizontalScrollPosition() * contentArea.getWidth(),
                 inner.top() - d_pane->getVerticalScrollPosition() * contentArea.getHeight());
    const Rectf clip = getInnerRectClipper();
    d_clipRight = clip.right();
    d_clipWatch.drawnWith(*this, clip);
    if (clip.getWidth() <= 0 || clip.getHeight() <= 0)
        return;

    // Only the lines that meet the clip area: they are in order of their tops.
    const Vector2f window = getUnclippedOuterRect().get().d_min;
    const float top = clip.top() - d_origin.d_y;
    const float bottom = clip.bottom() - d_origin.d_y;
    auto first =
        std::lower_bound(d_lines.begin(), d_lines.end(), top,
                         [](const Line& line, float y) { return line.y + line.height <= y; });
    const Rectf localClip = moved(clip, Vector2f(-window.d_x, -window.d_y));
    const Vector2f toLocal(d_origin.d_x - window.d_x, d_origin.d_y - window.d_y);
    for (auto it = first; it != d_lines.end() && it->y < bottom; ++it)
    {
        Line line = *it;
        line.x += toLocal.d_x;
        line.y += toLocal.d_y;
        line.textRight += toLocal.d_x;
        line.node->Render(buffer, line, localClip, *this);
    }
}

TreeView::Node* TreeView::nodeAt(const Vector2f& point, bool& onNavigator)
{
    if (!d_indexValid)
        return d_root->GetNodeAt(point, onNavigator);
    // At most one line holds the point's height; a stray earlier in the walk wins over it.
    const float y = point.d_y - d_origin.d_y;
    const float rowRight = rowHitRight();
    Node* best = nullptr;
    std::size_t bestOrder = SIZE_MAX;
    auto it =
        std::lower_bound(d_lines.begin(), d_lines.end(), y,
                         [](const Line& line, float at) { return line.y + line.height < at; });
    for (; it != d_lines.end() && it->y + 3.0f <= y; ++it)
        if (it->node->d_visible && withinRow(it->node->GetHitRect(), rowRight, point))
        {
            best = it->node;
            bestOrder = it->order;
            break;
        }
    for (const auto& [order, stray] : d_strays)
    {
        if (order >= bestOrder)
            break;
        if (withinRow(stray->GetHitRect(), rowRight, point))
        {
            best = stray;
            break;
        }
    }
    if (best)
        onNavigator = !best->IsLeaf() && point.d_x <= best->GetHitRect().left() + best->d_iconWidth;
    return best;
}

TreeView::Node* TreeView::hoverAt(const Vector2f& point)
{
    if (!d_hoverFlagsKnown || !d_indexValid)
        return d_root->UpdateHoveringState(point);
    bool onNavigator = false;
    Node* found = nodeAt(point, onNavigator);
    if (d_flaggedNode)
        d_flaggedNode->d_hovered = false;
    if (found)
        found->d_hovered = true;
    d_flaggedNode = found;
    return found;
}

void TreeView::fireItemEvent(const String& name, Node* node)
{
    ItemEventArgs args(node);
    fireEvent(name, args, EventNamespace);
}

void TreeView::onMouseMove(MouseEventArgs& e)
{
    Node* hovered = hoverAt(e.position);
    invalidate();
    if (hovered == d_hoveredNode)
        return;
    d_hoveredNode = hovered;
    const String tip = hovered ? hovered->GetText() : String();
    setTooltipText(tip);
    d_pane->setTooltipText(tip);
    fireItemEvent(EventTitleFocusedItemChanged, hovered);
}

void TreeView::onMouseLeaves(MouseEventArgs& e)
{
    Window::onMouseLeaves(e);
    hoverAt(Vector2f(-20.0f, -20.0f));
    invalidate();
}

void TreeView::onMouseButtonDown(MouseEventArgs& e)
{
    bool onNavigator = false;
    Node* node = nodeAt(e.position, onNavigator);
    if (!node)
        return;
    d_root->Select(false, true);
    node->Select(true, false);
    if (node->IsLeaf())
        fireItemEvent(EventLeafItemClicked, node);
    else
    {
        if (onNavigator)
        {
            node->SetOpened(!node->IsOpened());
            fireItemEvent(EventTitleOpenStateChanged, node);
        }
        fireItemEvent(EventTitleItemClicked, node);
    }
    invalidate();
}

void TreeView::onMouseDoubleClicked(MouseEventArgs& e)
{
    bool onNavigator = false;
    if (Node* node = nodeAt(e.position, onNavigator))
        fireItemEvent(node->IsLeaf() ? EventLeafItemDoubleClicked : EventTitleItemDoubleClicked,
                      node);
}

void TreeView::onMouseWheel(MouseEventArgs& e)
{
    d_pane->setVerticalScrollPosition(d_pane->getVerticalScrollPosition() + e.wheelChange * 0.1f);
}

void TreeView::onFontChanged(WindowEventArgs& e)
{
    RedrawnWhenUncovered<Window>::onFontChanged(e);
    ++d_metricsEpoch;
    nodesChanged(true);
}

// --- properties ---------------------------------------------------------------------------

namespace TreeViewProperties
{
namespace
{
TreeView& treeOf(PropertyReceiver* receiver)
{
    return *static_cast<TreeView*>(receiver);
}
const TreeView& treeOf(const PropertyReceiver* receiver)
{
    return *static_cast<const TreeView*>(receiver);
}
} // namespace

PixelIndentProperty::PixelIndentProperty()
    : Property("PixelIndent", "Property to change the indentation in pixels.", "15", true,
               "MoxieLook/TreeView")
{
}
String PixelIndentProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<uint>::toString(treeOf(receiver).GetPixelIndent());
}
void PixelIndentProperty::set(PropertyReceiver* receiver, const String& value)
{
    treeOf(receiver).SetPixelIndent(PropertyHelper<uint>::fromString(value));
}

PixelNodeHeightProperty::PixelNodeHeightProperty()
    : Property("PixelNodeHeight", "Specify a height for the nodes.", "0", true,
               "MoxieLook/TreeView")
{
}
String PixelNodeHeightProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<uint>::toString(treeOf(receiver).GetPixelNodeHeight());
}
void PixelNodeHeightProperty::set(PropertyReceiver* receiver, const String& value)
{
    treeOf(receiver).SetPixelNodeHeight(PropertyHelper<uint>::fromString(value));
}

TitleFontProperty::TitleFontProperty()
    : Property("TitleFont", "Property to change the font used for titles.", "", true,
               "MoxieLook/TreeView")
{
}
// Reports the window's font, not the title font: kept so.
String TitleFontProperty::get(const PropertyReceiver* receiver) const
{
    const Font* font = treeOf(receiver).getFont(true);
    if (!font || font == System::getSingleton().getDefaultGUIContext().getDefaultFont())
        return "";
    return font->getName();
}
void TitleFontProperty::set(PropertyReceiver* receiver, const String& value)
{
    try
    {
        treeOf(receiver).SetTitleFont(value);
    }
    catch (const UnknownObjectException&)
    {
        throw UnknownObjectException("\"TitleFont\": no font named '" + value + "' is loaded.");
    }
}

TextColourProperty::TextColourProperty(const String& name, const String& help,
                                       const String& defaultValue, Getter getter, Setter setter)
    : Property(name, help, defaultValue, true, "MoxieLook/TreeView"), d_getter(getter),
      d_setter(setter)
{
}
String TextColourProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<Colour>::toString((treeOf(receiver).*d_getter)());
}
void TextColourProperty::set(PropertyReceiver* receiver, const String& value)
{
    (treeOf(receiver).*d_setter)(PropertyHelper<Colour>::fromString(value));
}

#define MOXIE_TREE_COLOUR_PROPERTY(Class, Name, Help, Default, Getter, Setter)                     \
    const String Class::DefaultTextColour(Default);                                                \
    Class::Class() : TextColourProperty(Name, Help, Default, &TreeView::Getter, &TreeView::Setter) \
    {                                                                                              \
    }
MOXIE_TREE_COLOUR_PROPERTY(NormalTitleTextColourProperty, "NormalTitleTextColour",
                           "Property to change the normal text colour of titles.", "FFFFFFFF",
                           GetNormalTitleTextColour, SetNormalTitleTextColour)
MOXIE_TREE_COLOUR_PROPERTY(HoverTitleTextColourProperty, "HoverTitleTextColour",
                           "Property to change the hover text colour of titles.", "FFFF00FF",
                           GetHoverTitleTextColour, SetHoverTitleTextColour)
MOXIE_TREE_COLOUR_PROPERTY(SelectedTitleTextColourProperty, "SelectedTitleTextColour",
                           "Property to change the selected text colour of titles.", "FFFFFF00",
                           GetSelectedTitleTextColour, SetSelectedTitleTextColour)
MOXIE_TREE_COLOUR_PROPERTY(NormalLeafTextColourProperty, "NormalLeafTextColour",
                           "Property to change the normal text colour of leaves.", "FFFFFFFF",
                           GetNormalLeafTextColour, SetNormalLeafTextColour)
MOXIE_TREE_COLOUR_PROPERTY(HoverLeafTextColourProperty, "HoverLeafTextColour",
                           "Property to change the hover text colour of leaves.", "FFFF00FF",
                           GetHoverLeafTextColour, SetHoverLeafTextColour)
MOXIE_TREE_COLOUR_PROPERTY(SelectedLeafTextColourProperty, "SelectedLeafTextColour",
                           "Property to change the selected text colour of leaves.", "FFFFFF00",
                           GetSelectedLeafTextColour, SetSelectedLeafTextColour)
#undef MOXIE_TREE_COLOUR_PROPERTY
} // namespace TreeViewProperties

} // namespace MoxieLook
} // namespace CEGUI
