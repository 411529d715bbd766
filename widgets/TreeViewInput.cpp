// The tree view's mouse handling: hit tests by the laid-out lines (or, before the next
// layout, by every node's rectangle of the last draw), hover flags, selection, events.
#include "widgets/TreeView.h"
#include "widgets/TreeViewHits.h"
#include "widgets/TreeViewLineIndex.h"

#include <CEGUI/widgets/ScrollablePane.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
using namespace treeview;

TreeView::Node* TreeView::nodeAt(const Vector2f& point, bool& onNavigator)
{
    bool several = false;
    return nodeAt(point, onNavigator, several);
}

TreeView::Node* TreeView::nodeAt(const Vector2f& point, bool& onNavigator, bool& several)
{
    several = false;
    if (!d_indexValid)
        return d_root->GetNodeAt(point, onNavigator);
    // At most one line holds the point's height; a stray earlier in the walk wins over it.
    const double y = point.d_y - d_origin.d_y;
    const float rowRight = rowHitRight();
    Node* best = nullptr;
    for (auto at = d_lines->firstEndingAfter(y, true);
         !d_lines->isEnd(at) && d_lines->topOf(at) + 3.0 <= y; at = d_lines->next(at))
    {
        Node* node = d_lines->at(at).node;
        if (node->d_visible && withinRow(node->GetHitRect(), rowRight, point))
        {
            best = node;
            break;
        }
    }
    for (Node* stray : d_strays)
        if (withinRow(stray->GetHitRect(), rowRight, point))
        {
            several = several || best;
            if (!best || precedes(stray, best))
                best = stray;
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
    bool several = false;
    Node* found = nodeAt(point, onNavigator, several);
    // Where rectangles overlap, the hover walk flags more than the first: walk.
    if (several)
        return d_root->UpdateHoveringState(point);
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
    clearSelection();
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

namespace
{
// The lines a page holds, at the first line's height.
std::size_t linesPerPage(float viewHeight, float lineHeight)
{
    return lineHeight > 0
               ? std::max<std::size_t>(1, static_cast<std::size_t>(viewHeight / lineHeight))
               : 1;
}
} // namespace

bool TreeView::moveByKey(Key::Scan key)
{
    if (!d_layoutValid)
        layOut();
    if (!d_lines || d_lines->size() == 0)
        return false;
    // The selected node with a line, the last one selected when several are.
    Node* selected = nullptr;
    for (auto it = d_selectedNodes.rbegin(); it != d_selectedNodes.rend() && !selected; ++it)
        if ((*it)->d_selected && (*it)->d_hitRelative && (*it)->d_chunk)
            selected = *it;
    LineIndex::Position at = d_lines->end();
    if (selected)
        at = d_lines->find(*selected->d_chunk, selected->d_hitRect.top() - 3.0f);

    const Rectf view = getInnerRectClipper();
    const std::size_t page = linesPerPage(view.getHeight(), d_lines->at(d_lines->begin()).height);
    auto step = [this](LineIndex::Position from, std::size_t count, bool down)
    {
        for (std::size_t i = 0; i < count; ++i)
        {
            const LineIndex::Position to = down ? d_lines->next(from) : d_lines->previous(from);
            if (d_lines->isEnd(to))
                break;
            from = to;
        }
        return from;
    };
    LineIndex::Position to = at;
    switch (key)
    {
    case Key::ArrowUp:
        to = d_lines->isEnd(at) ? d_lines->begin() : step(at, 1, false);
        break;
    case Key::ArrowDown:
        to = d_lines->isEnd(at) ? d_lines->begin() : step(at, 1, true);
        break;
    case Key::PageUp:
        to = d_lines->isEnd(at) ? d_lines->begin() : step(at, page, false);
        break;
    case Key::PageDown:
        to = d_lines->isEnd(at) ? d_lines->begin() : step(at, page, true);
        break;
    case Key::Home:
        to = d_lines->begin();
        break;
    case Key::End:
        to = d_lines->last();
        break;
    case Key::ArrowLeft:
    case Key::ArrowRight:
    {
        if (!selected)
            return false;
        const bool open = key == Key::ArrowRight;
        if (!selected->IsLeaf() && selected->IsOpened() != open)
        {
            selected->SetOpened(open);
            fireItemEvent(EventTitleOpenStateChanged, selected);
            invalidate();
            return true;
        }
        Node* parent = selected->d_parent;
        if (open || !parent || !parent->d_parent)
            return true; // nothing further that way
        if (!parent->d_hitRelative || !parent->d_chunk)
        {
            SetSelectionByNode(parent); // a title with no line of its own (an empty text)
            return true;
        }
        to = d_lines->find(*parent->d_chunk, parent->d_hitRect.top() - 3.0f);
        break;
    }
    default:
        return false;
    }
    Node* node = d_lines->at(to).node;
    if (node != selected)
        SetSelectionByNode(node);
    // Kept in view: the pane scrolls by fractions of the content's height.
    const Sizef content = contentSize();
    const double top = d_lines->topOf(to);
    const double bottom = top + d_lines->at(to).height;
    const double shownTop = d_pane->getVerticalScrollPosition() * content.d_height;
    const double shownBottom = shownTop + view.getHeight();
    if (content.d_height > 0 && (top < shownTop || bottom > shownBottom))
    {
        const double wanted = top < shownTop ? top : bottom - view.getHeight();
        d_pane->setVerticalScrollPosition(static_cast<float>(wanted / content.d_height));
    }
    return true;
}

} // namespace MoxieLook
} // namespace CEGUI
