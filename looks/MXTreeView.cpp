#include "looks/MXTreeView.h"

#include "draw/Imagery.h"
#include "looks/AutoParts.h"
#include "looks/MXScrollablePane.h"

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
    return &lookImage(IsLeaf()     ? MXTreeView::LeafNodeImage
                      : IsOpened() ? MXTreeView::OpenedNodeImage
                                   : MXTreeView::ClosedNodeImage);
}

float MXTreeViewNode::renderFirstColumn(GeometryBuffer& buffer, const TreeView::Line& line,
                                        const Rectf& clip, TreeView& tree)
{
    const float alpha = tree.getEffectiveAlpha();
    const ColourRect white(withAlpha(Colour(0x00FFFFFF), alpha));
    const float bottom = line.y + line.height;
    float x = line.x;
    if (const Image* nav = GetNavigationImage())
    {
        const Sizef size = nav->getRenderedSize();
        nav->render(buffer, Rectf(Vector2f(x, bottom - size.d_height), size), &clip, white);
        x += size.d_width;
    }
    if (const Image* icon = GetIcon())
    {
        const Sizef size = icon->getRenderedSize();
        icon->render(buffer, Rectf(Vector2f(x, bottom - size.d_height), size), &clip, white);
        x += size.d_width;
    }
    const Font* font = IsLeaf() ? tree.getFont(true) : tree.GetTitleFont();
    if (font)
    {
        ColourRect colours(tree.GetColour(IsLeaf(), IsSelected(), IsHovered()));
        colours.modulateAlpha(alpha);
        font->drawText(buffer, GetText(), Vector2f(x, line.y), &clip, colours);
    }
    return x;
}

void MXTreeViewNode::Render(GeometryBuffer& buffer, const TreeView::Line& line, const Rectf& clip,
                            TreeView& tree)
{
    renderFirstColumn(buffer, line, clip, tree);
}

// --- tree ---------------------------------------------------------------------------------

MXTreeView::MXTreeView(const String& type, const String& name)
    : TreeView(type, name), d_background(&lookImage(BackgroundImage))
{
    d_frame.setImages({TopLeftImage, TopRightImage, BottomLeftImage, BottomRightImage, LeftImage,
                       TopImage, RightImage, BottomImage});
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXTreeView::initialiseComponents()
{
    TreeView::initialiseComponents();
    // The pane, made the tree's size, sits inside the frame.
    const float l = d_frame.pieceWidth(NinePieceFrame::Left);
    const float t = d_frame.pieceHeight(NinePieceFrame::Top);
    const float r = d_frame.pieceWidth(NinePieceFrame::Right);
    const float b = d_frame.pieceHeight(NinePieceFrame::Bottom);
    GetScrollablePane()->setArea(UVector2(cegui_absdim(l), cegui_absdim(t)),
                                 USize(UDim(1.0f, -(l + r)), UDim(1.0f, -(t + b))));
    SetPixelIndent(IncrementPixelWidth);
    using namespace TreeViewProperties;
    SetNormalTitleTextColour(
        PropertyHelper<Colour>::fromString(NormalTitleTextColourProperty::DefaultTextColour));
    SetHoverTitleTextColour(
        PropertyHelper<Colour>::fromString(HoverTitleTextColourProperty::DefaultTextColour));
    SetSelectedTitleTextColour(
        PropertyHelper<Colour>::fromString(SelectedTitleTextColourProperty::DefaultTextColour));
    SetNormalLeafTextColour(
        PropertyHelper<Colour>::fromString(NormalLeafTextColourProperty::DefaultTextColour));
    SetHoverLeafTextColour(
        PropertyHelper<Colour>::fromString(HoverLeafTextColourProperty::DefaultTextColour));
    SetSelectedLeafTextColour(
        PropertyHelper<Colour>::fromString(SelectedLeafTextColourProperty::DefaultTextColour));
}

TreeView::Node* MXTreeView::CreateRootNode()
{
    return new MXTreeViewNode(getName() + "_root", "", nullptr, nullptr);
}

ScrollablePane* MXTreeView::CreateScrollablePane()
{
    lookImage(TopLeftImage); // the imageset must have the list frame
    auto* pane = createAutoPart<ScrollablePane>(MXScrollablePane::WidgetTypeName,
                                                getName() + "_scrollablePane",
                                                "a tree view's scrollable pane");
    // The tree draws the frame and the field; the pane brings only its scroll bars,
    // inside the frame.
    pane->setProperty("FrameEnabled", "False");
    pane->setProperty("BackgroundEnabled", "False");
    return pane;
}

void MXTreeView::onSized(ElementEventArgs& e)
{
    TreeView::onSized(e);
    d_frame.setSize(getPixelSize());
}

void MXTreeView::drawFrame(GeometryBuffer& buffer)
{
    const float alpha = getEffectiveAlpha();
    const ColourRect white(withAlpha(Colour(0x00FFFFFF), alpha));
    d_background->render(buffer, d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize())), nullptr,
                         white);
    d_frame.setColours(white);
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
}

void MXTreeView::populateGeometryBuffer()
{
    const Rectf visible = getOuterRectClipper();
    if (!(visible.getWidth() > 0) || !(visible.getHeight() > 0))
        return;
    drawFrame(getGeometryBuffer());
    RenderNodes(getGeometryBuffer());
}

} // namespace MoxieLook
} // namespace CEGUI
