// The tree view's node model: children, cursor, open, visible, selected and hovered flags,
// hit tests over the nodes' own rectangles. Changes are reported to the owning tree.
#include "draw/GlyphRun.h"
#include "widgets/TreeView.h"
#include "widgets/TreeViewHits.h"
#include "widgets/TreeViewLineIndex.h"

#include <CEGUI/Font.h>
#include <deque>
#include <limits>
#include <string>

namespace CEGUI
{
namespace MoxieLook
{
using namespace treeview;

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

void TreeView::Node::changed(bool relayout)
{
    if (TreeView* owner = tree())
    {
        if (relayout)
            owner->subtreeChanged(*this);
        else
            owner->nodesChanged(false);
    }
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

void TreeView::Node::SetIconWidth(unsigned width)
{
    d_iconWidth = width;
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
    if (!d_hitRelative || !d_owner || !d_chunk)
        return d_hitRect;
    // The chunk's top is a double: summed in floats, a millionth line would not land on
    // a whole pixel.
    const double top = d_chunk->top + d_owner->d_origin.d_y;
    return Rectf(
        d_hitRect.left() + d_owner->d_origin.d_x, static_cast<float>(top + d_hitRect.top()),
        d_hitRect.right() + d_owner->d_origin.d_x, static_cast<float>(top + d_hitRect.bottom()));
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
    selectIn(select, recursive, select ? tree() : nullptr);
}

void TreeView::Node::selectIn(bool select, bool recursive, TreeView* owner)
{
    // The tree keeps every node it saw selected, so that a click need not walk them all.
    if (select && !d_selected && owner)
        owner->rememberSelected(*this);
    d_selected = select;
    if (recursive)
        for (const auto& child : d_children)
            child->selectIn(select, true, owner);
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
    changed(true);                 // first: the subtree's own changes are then part of this one
    if (!IsLeaf())
        for (const auto& child : d_children)
        {
            child->SetVisible(IsOpened());
            child->SetOpened(opened);
        }
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
    Flagged flagged;
    TreeView* owner = tree();
    const float rowRight = owner ? owner->rowHitRight() : -std::numeric_limits<float>::infinity();
    Node* found = updateHover(point, rowRight, flagged);
    if (owner)
    {
        // From the root, the flags are now exactly as this walk left them, one node at most
        // (overlapping rectangles can leave several); from below it, a flag elsewhere may
        // remain.
        const bool known = !d_parent && !flagged.several;
        owner->d_flaggedNode = known ? flagged.first : nullptr;
        owner->d_hoverFlagsKnown = known;
    }
    return found;
}

TreeView::Node* TreeView::Node::updateHover(const Vector2f& point, float rowRight, Flagged& flagged)
{
    bool onNavigator = false;
    Node* found = hitTest(point, onNavigator, rowRight);
    d_hovered = false;
    Node* last = nullptr;
    for (const auto& child : d_children)
        if (Node* result = child->updateHover(point, rowRight, flagged))
            last = result;
    if (found)
    {
        found->d_hovered = true;
        flagged.several = flagged.several || (flagged.first && flagged.first != found);
        flagged.first = found;
    }
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
            eraseChild(it);
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
            eraseChild(it);
            return true;
        }
        if ((*it)->Remove(name))
            return true;
    }
    return false;
}

void TreeView::Node::eraseChild(Children::iterator child)
{
    const bool atCursor = child == d_cursor;
    TreeView* owner = tree();
    if (owner)
        owner->nodeLeaving(**child); // before it goes: the tree forgets what it held of it
    d_children.erase(child);
    if (atCursor)
        d_cursor = d_children.begin();
    if (owner)
        owner->subtreeChanged(*this);
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
        d_textWidth = glyphExtent(font, d_text);
        d_textWidthFont = &font;
        d_textWidthEpoch = epoch;
        d_textWidthValid = true;
    }
    return d_textWidth;
}

} // namespace MoxieLook
} // namespace CEGUI
