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

protected:
    //! The navigation image, the icon and the text of the line; returns the text's left.
    float renderFirstColumn(GeometryBuffer& buffer, const TreeView::Line& line, const Rectf& clip,
                            TreeView& tree);
};

class MXTreeView : public TreeView
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TreeView";
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

    MXTreeView(const String& type, const String& name);

    void initialiseComponents() override;

protected:
    Node* CreateRootNode() override;
    ScrollablePane* CreateScrollablePane() override;
    void populateGeometryBuffer() override;
    void onSized(ElementEventArgs& e) override;

    //! Background and frame, before the lines.
    void drawFrame(GeometryBuffer& buffer);

    NinePieceFrame d_frame;
    const Image* d_background;
};

using MXTreeViewFactory = LookFactory<MXTreeView>;

} // namespace MoxieLook
} // namespace CEGUI
