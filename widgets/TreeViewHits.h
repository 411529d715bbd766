// Rectangle tests the tree view's layout and its mouse handling share.
#pragma once

#include "widgets/TreeView.h"

#include <algorithm>

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
} // namespace treeview
} // namespace MoxieLook
} // namespace CEGUI
