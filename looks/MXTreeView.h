// "MoxieLook/TreeView": the tree's lines on a dark slate field ("TreeViewFill") inside the
// sunken list frame ("StaticFrameList..."), with a "MoxieLook/ScrollablePane" (frame and
// fill off) for its scroll bars. Each line: the navigation image ("NavigatePoint" for a
// leaf, "NavigateOpen" / "NavigateClose" for a title) and the icon bottom-aligned, the
// text top-aligned, in a line of height H.
#pragma once

#include "draw/NinePieceFrame.h"
#include "looks/LookFactory.h"
#include "widgets/TreeView.h"

namespace CEGUI
{
namespace MoxieLook
{
//! The first column of a tree line: the navigation image, the icon, the text; returns the
//! text's left.
float renderTreeLine(TreeView::Node& node, GeometryBuffer& buffer, const TreeView::Line& line,
                     const Rectf& clip, TreeView& tree);

class MXTreeViewNode : public TreeView::Node
{
public:
    MXTreeViewNode(const String& name, const String& text, Node* parent, void* data)
        : Node(name, text, parent, data)
    {
    }

    void Render(GeometryBuffer& buffer, const TreeView::Line& line, const Rectf& clip,
                TreeView& tree) override;
    Node* CreateNode(const String& name, const String& text, Node* parent, void* data) override;
    const Image* GetNavigationImage() const override;
};

//! The look of a tree view `Base` (TreeView or a tree built on it): frame, field and pane.
template <typename Base>
class TreeViewLookOf : public Base
{
public:
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char TopLeftImage[] = "StaticFrameListTopLeft";
    static constexpr char TopImage[] = "StaticFrameListTop";
    static constexpr char TopRightImage[] = "StaticFrameListTopRight";
    static constexpr char LeftImage[] = "StaticFrameListLeft";
    static constexpr char RightImage[] = "StaticFrameListRight";
    static constexpr char BottomLeftImage[] = "StaticFrameListBottomLeft";
    static constexpr char BottomImage[] = "StaticFrameListBottom";
    static constexpr char BottomRightImage[] = "StaticFrameListBottomRight";
    static constexpr char BackgroundImage[] = "TreeViewFill";
    static constexpr char OpenedNodeImage[] = "NavigateOpen";
    static constexpr char ClosedNodeImage[] = "NavigateClose";
    static constexpr char LeafNodeImage[] = "NavigatePoint";
    static constexpr unsigned IncrementPixelWidth = 15;

    //! The navigation image for a node in this state.
    static const Image* navigationImage(const TreeView::Node& node);

    TreeViewLookOf(const String& type, const String& name);

    void initialiseComponents() override;

protected:
    ScrollablePane* CreateScrollablePane() override;
    //! Where the pane goes, inside the frame (window-local pixels from the top).
    virtual float paneTop() const;
    void populateGeometryBuffer() override;
    void onSized(ElementEventArgs& e) override;

    //! Background and frame, before the lines.
    void drawFrame(GeometryBuffer& buffer);

    NinePieceFrame d_frame;
    const Image* d_background;
};

class MXTreeView : public TreeViewLookOf<TreeView>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TreeView";

    using TreeViewLookOf::TreeViewLookOf;

protected:
    Node* CreateRootNode() override;
};

using MXTreeViewFactory = LookFactory<MXTreeView>;

} // namespace MoxieLook
} // namespace CEGUI
