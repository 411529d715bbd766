#include "looks/MXTreeViewMultiColumnListEx.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "looks/AutoParts.h"
#include "looks/MXListHeader.h"

#include <CEGUI/Font.h>
#include <CEGUI/widgets/ListHeader.h>

namespace CEGUI
{
namespace MoxieLook
{
TreeView::Node* MXNodeIndex::CreateNode(const String& name, const String& text, Node* parent,
                                        void* data)
{
    return new MXNodeIndex(name, text, parent, data);
}

const Image* MXNodeIndex::GetNavigationImage() const
{
    return MXTreeViewMultiColumnListEx::navigationImage(*this);
}

void MXNodeIndex::Render(GeometryBuffer& buffer, const TreeView::Line& line, const Rectf& clip,
                         TreeView& tree)
{
    auto& list = static_cast<TreeViewMultiColumnListEx&>(tree);
    const unsigned columns = list.getColumnCount();
    if (columns == 0)
    {
        renderTreeLine(*this, buffer, line, clip, tree);
        return;
    }
    // Columns are measured from the content origin; lines are window-local.
    const float originX = list.GetContentOrigin().d_x - list.getUnclippedOuterRect().get().left();
    auto columnClip = [&](unsigned column)
    {
        const float left = originX + list.getColumnLeft(column);
        return Rectf(std::max(clip.left(), left), clip.top(),
                     std::min(clip.right(), left + list.getColumnWidth(column)), clip.bottom());
    };
    renderTreeLine(*this, buffer, line, columnClip(0), tree);

    const Font* font = IsLeaf() ? tree.getFont(true) : tree.GetTitleFont();
    if (!font)
        return;
    ColourRect colours(tree.GetColour(IsLeaf(), IsSelected(), IsHovered()));
    colours.modulateAlpha(tree.getEffectiveAlpha());
    for (unsigned column = 1; column < columns; ++column)
    {
        const String& text = GetColumnText(column);
        if (text.empty())
            continue;
        const Rectf cell = columnClip(column);
        if (cell.getWidth() <= 0)
            continue;
        drawGlyphs(
            buffer, *font, text,
            Vector2f(originX + list.getColumnLeft(column) + TreeViewMultiColumnListEx::CellPadding,
                     line.y),
            &cell, colours);
    }
}

void MXTreeViewMultiColumnListEx::initialiseComponents()
{
    TreeViewLookOf::initialiseComponents();
    const float l = d_frame.pieceWidth(NinePieceFrame::Left);
    const float r = d_frame.pieceWidth(NinePieceFrame::Right);
    const float t = d_frame.pieceHeight(NinePieceFrame::Top);
    ListHeader* header = getListHeader();
    header->setArea(UVector2(cegui_absdim(l), cegui_absdim(t)),
                    USize(UDim(1.0f, -(l + r)), cegui_absdim(paneTop() - t)));
}

TreeView::Node* MXTreeViewMultiColumnListEx::CreateRootNode()
{
    return new MXNodeIndex(getName() + "_root", "", nullptr, nullptr);
}

ListHeader* MXTreeViewMultiColumnListEx::CreateListHeader(const String& name) const
{
    return createAutoPart<ListHeader>(ListHeaderTypeName, name, "a tree list's header");
}

float MXTreeViewMultiColumnListEx::paneTop() const
{
    const auto* header = dynamic_cast<const MXListHeader*>(getListHeader());
    const float height = header ? header->naturalHeight() : 0.0f;
    return d_frame.pieceHeight(NinePieceFrame::Top) + height;
}

} // namespace MoxieLook
} // namespace CEGUI
