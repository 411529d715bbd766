// Rectangle tests the tree view's layout and its mouse handling share.
#pragma once

#include "widgets/TreeView.h"

#include <algorithm>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
namespace treeview
{
//! The hit test of one rectangle: bounds included.
inline bool within(const Rectf& r, const Vector2f& p)
{
    return p.d_x >= r.left() && p.d_x <= r.right() && p.d_y >= r.top() && p.d_y <= r.bottom();
}

//! A hit rectangle stretched to the right edge every row answers to.
inline bool withinRow(Rectf r, float rowRight, const Vector2f& p)
{
    r.d_max.d_x = std::max(r.d_max.d_x, rowRight);
    return within(r, p);
}

inline Rectf moved(Rectf r, const Vector2f& by)
{
    r.offset(by);
    return r;
}

//! `node` is `subtree` or lies under it.
inline bool isWithin(const TreeView::Node* node, const TreeView::Node& subtree)
{
    for (; node; node = node->GetParent())
        if (node == &subtree)
            return true;
    return false;
}
//! Whether `a` comes before `b` in a pre-order walk of their tree.
inline bool precedes(const TreeView::Node* a, const TreeView::Node* b)
{
    std::vector<const TreeView::Node*> pathA, pathB;
    for (; a; a = a->GetParent())
        pathA.push_back(a);
    for (; b; b = b->GetParent())
        pathB.push_back(b);
    auto ia = pathA.rbegin(), ib = pathB.rbegin();
    while (ia != pathA.rend() && ib != pathB.rend() && *ia == *ib)
        ++ia, ++ib;
    if (ia == pathA.rend())
        return ib != pathB.rend(); // an ancestor comes first
    if (ib == pathB.rend())
        return false;
    const TreeView::Node* parent = (*ia)->GetParent();
    return parent->GetChildIndex(*ia) < parent->GetChildIndex(*ib);
}
} // namespace treeview
} // namespace MoxieLook
} // namespace CEGUI
