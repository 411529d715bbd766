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

} // namespace MoxieLook
} // namespace CEGUI
