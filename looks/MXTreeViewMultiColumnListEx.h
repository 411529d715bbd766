// "MoxieLook/TreeViewMultiColumnListEx": the tree view's look with a "MoxieLook/ListHeader"
// over the lines; a line's first column is drawn as the tree view draws it, clipped to the
// first segment, and each further column's text from its segment's left edge.
#pragma once

#include "looks/MXTreeView.h"
#include "widgets/TreeViewMultiColumnListEx.h"

namespace CEGUI
{
namespace MoxieLook
{
class MXNodeIndex : public TreeViewMultiColumnListEx::NodeIndex
{
public:
    using NodeIndex::NodeIndex;

    void Render(GeometryBuffer& buffer, const TreeView::Line& line, const Rectf& clip,
                TreeView& tree) override;
    Node* CreateNode(const String& name, const String& text, Node* parent, void* data) override;
    const Image* GetNavigationImage() const override;
};

class MXTreeViewMultiColumnListEx : public TreeViewLookOf<TreeViewMultiColumnListEx>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TreeViewMultiColumnListEx";
    static constexpr char ListHeaderTypeName[] = "MoxieLook/ListHeader";

    using TreeViewLookOf::TreeViewLookOf;

    void initialiseComponents() override;

protected:
    Node* CreateRootNode() override;
    ListHeader* CreateListHeader(const String& name) const override;
    float paneTop() const override;
};

using MXTreeViewMultiColumnListExFactory = LookFactory<MXTreeViewMultiColumnListEx>;

} // namespace MoxieLook
} // namespace CEGUI
