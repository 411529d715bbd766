#include "looks/MXTreeView.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/MXScrollablePane.h"
#include "widgets/TreeViewMultiColumnListEx.h"

#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/WindowManager.h>

namespace CEGUI
{
namespace MoxieLook
{
// --- node ---------------------------------------------------------------------------------

TreeView::Node* MXTreeViewNode::CreateNode(const String& name, const String& text, Node* parent,
                                           void* data)
{
    return new MXTreeViewNode(name, text, parent, data);
}

const Image* MXTreeViewNode::GetNavigationImage() const
{
    return MXTreeView::navigationImage(*this);
}

float renderTreeLine(TreeView::Node& node, GeometryBuffer& buffer, const TreeView::Line& line,
                     const Rectf& clip, TreeView& tree)
{
    const float alpha = tree.getEffectiveAlpha();
    const ColourRect white(withAlpha(Colour(0x00FFFFFF), alpha));
    const float bottom = line.y + line.height;
    float x = line.x;
    if (const Image* nav = node.GetNavigationImage())
    {
        const Sizef size = nav->getRenderedSize();
        drawImage(buffer, *nav, Rectf(Vector2f(x, bottom - size.d_height), size), &clip, white);
        x += size.d_width;
    }
    if (const Image* icon = node.GetIcon())
    {
        const Sizef size = icon->getRenderedSize();
        drawImage(buffer, *icon, Rectf(Vector2f(x, bottom - size.d_height), size), &clip, white);
        x += size.d_width;
    }
    const Font* font = node.IsLeaf() ? tree.getFont(true) : tree.GetTitleFont();
    if (font)
    {
        ColourRect colours(tree.GetColour(node.IsLeaf(), node.IsSelected(), node.IsHovered()));
        colours.modulateAlpha(alpha);
        drawGlyphs(buffer, *font, node.GetText(), Vector2f(x, line.y), &clip, colours);
    }
    return x;
}

void MXTreeViewNode::Render(GeometryBuffer& buffer, const TreeView::Line& line, const Rectf& clip,
                            TreeView& tree)
{
    renderTreeLine(*this, buffer, line, clip, tree);
}

// --- tree ---------------------------------------------------------------------------------

template <typename Base>
const Image* TreeViewLookOf<Base>::navigationImage(const TreeView::Node& node)
{
    return &lookImage(node.IsLeaf()     ? LeafNodeImage
                      : node.IsOpened() ? OpenedNodeImage
                                        : ClosedNodeImage);
}

template <typename Base>
TreeViewLookOf<Base>::TreeViewLookOf(const String& type, const String& name)
    : Base(type, name), d_background(&lookImage(BackgroundImage))
{
    d_frame.setImages({TopLeftImage, TopRightImage, BottomLeftImage, BottomRightImage, LeftImage,
                       TopImage, RightImage, BottomImage});
    this->setMouseCursor(&lookImage(MouseCursorImageName));
}

template <typename Base>
float TreeViewLookOf<Base>::paneTop() const
{
    return d_frame.pieceHeight(NinePieceFrame::Top);
}

template <typename Base>
void TreeViewLookOf<Base>::initialiseComponents()
{
    Base::initialiseComponents();
    // The pane, made the tree's size, sits inside the frame.
    const float l = d_frame.pieceWidth(NinePieceFrame::Left);
    const float t = paneTop();
    const float r = d_frame.pieceWidth(NinePieceFrame::Right);
    const float b = d_frame.pieceHeight(NinePieceFrame::Bottom);
    this->GetScrollablePane()->setArea(UVector2(cegui_absdim(l), cegui_absdim(t)),
                                       USize(UDim(1.0f, -(l + r)), UDim(1.0f, -(t + b))));
    this->SetPixelIndent(IncrementPixelWidth);
    using namespace TreeViewProperties;
    this->SetNormalTitleTextColour(
        PropertyHelper<Colour>::fromString(NormalTitleTextColourProperty::DefaultTextColour));
    this->SetHoverTitleTextColour(
        PropertyHelper<Colour>::fromString(HoverTitleTextColourProperty::DefaultTextColour));
    this->SetSelectedTitleTextColour(
        PropertyHelper<Colour>::fromString(SelectedTitleTextColourProperty::DefaultTextColour));
    this->SetNormalLeafTextColour(
        PropertyHelper<Colour>::fromString(NormalLeafTextColourProperty::DefaultTextColour));
    this->SetHoverLeafTextColour(
        PropertyHelper<Colour>::fromString(HoverLeafTextColourProperty::DefaultTextColour));
    this->SetSelectedLeafTextColour(
        PropertyHelper<Colour>::fromString(SelectedLeafTextColourProperty::DefaultTextColour));
}

TreeView::Node* MXTreeView::CreateRootNode()
{
    return new MXTreeViewNode(getName() + "_root", "", nullptr, nullptr);
}

template <typename Base>
ScrollablePane* TreeViewLookOf<Base>::CreateScrollablePane()
{
    lookImage(TopLeftImage); // the imageset must have the list frame
    auto* pane = createAutoPart<ScrollablePane>(MXScrollablePane::WidgetTypeName,
                                                this->getName() + "_scrollablePane",
                                                "a tree view's scrollable pane");
    // The tree draws the frame and the field; the pane brings only its scroll bars,
    // inside the frame.
    pane->setProperty("FrameEnabled", "False");
    pane->setProperty("BackgroundEnabled", "False");
    return pane;
}

template <typename Base>
void TreeViewLookOf<Base>::onSized(ElementEventArgs& e)
{
    Base::onSized(e);
    d_frame.setSize(this->getPixelSize());
}

template <typename Base>
void TreeViewLookOf<Base>::drawFrame(GeometryBuffer& buffer)
{
    const float alpha = this->getEffectiveAlpha();
    const ColourRect white(withAlpha(Colour(0x00FFFFFF), alpha));
    drawImage(buffer, *d_background, d_frame.innerRect(Rectf(Vector2f(0, 0), this->getPixelSize())),
              nullptr, white);
    d_frame.setColours(white);
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
}

template <typename Base>
void TreeViewLookOf<Base>::populateGeometryBuffer()
{
    const Rectf visible = this->getOuterRectClipper();
    if (!(visible.getWidth() > 0) || !(visible.getHeight() > 0))
        return;
    drawFrame(this->getGeometryBuffer());
    this->RenderNodes(this->getGeometryBuffer());
}

template class TreeViewLookOf<TreeView>;
template class TreeViewLookOf<TreeViewMultiColumnListEx>;

} // namespace MoxieLook
} // namespace CEGUI
