#include "widgets/TreeViewMultiColumnListEx.h"

#include <CEGUI/widgets/ListHeader.h>
#include <CEGUI/widgets/ListHeaderSegment.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
void TreeViewMultiColumnListEx::NodeIndex::SetColumnText(unsigned column, const String& text)
{
    if (column == 0)
    {
        SetText(text);
        return;
    }
    if (d_columns.size() < column)
        d_columns.resize(column);
    d_columns[column - 1] = text;
    changed(false);
}

const String& TreeViewMultiColumnListEx::NodeIndex::GetColumnText(unsigned column) const
{
    static const String none;
    if (column == 0)
        return GetText();
    return column <= d_columns.size() ? d_columns[column - 1] : none;
}

TreeViewMultiColumnListEx::TreeViewMultiColumnListEx(const String& type, const String& name)
    : TreeView(type, name)
{
}

void TreeViewMultiColumnListEx::initialiseComponents()
{
    TreeView::initialiseComponents();
    if (d_header)
        return;
    d_header = CreateListHeader(ListHeaderName);
    d_header->setNonClient(true);
    addChild(d_header);
    // The tree's order is its own: columns neither sort it nor move.
    d_header->setSortingEnabled(false);
    d_header->setColumnDraggingEnabled(false);
    for (const String& event : {ListHeader::EventSegmentSized, ListHeader::EventSegmentAdded,
                                ListHeader::EventSegmentRemoved})
        d_header->subscribeEvent(
            event, Event::Subscriber(&TreeViewMultiColumnListEx::columnsChanged, this));
    GetScrollablePane()->subscribeEvent(
        ScrollablePane::EventContentPaneScrolled,
        Event::Subscriber(&TreeViewMultiColumnListEx::contentScrolled, this));
}

void TreeViewMultiColumnListEx::addColumn(const String& title, unsigned id, const UDim& width)
{
    d_header->addColumn(title, id, width);
}

unsigned TreeViewMultiColumnListEx::getColumnCount() const
{
    return d_header ? d_header->getColumnCount() : 0;
}

float TreeViewMultiColumnListEx::getColumnLeft(unsigned column) const
{
    return d_header->getPixelOffsetToColumn(column);
}

float TreeViewMultiColumnListEx::getColumnWidth(unsigned column) const
{
    return d_header->getSegmentFromColumn(column).getPixelSize().d_width;
}

Sizef TreeViewMultiColumnListEx::contentSize() const
{
    Sizef size = TreeView::contentSize();
    if (d_header)
        size.d_width = std::max(size.d_width, d_header->getTotalSegmentsPixelExtent());
    return size;
}

float TreeViewMultiColumnListEx::rowHitRight() const
{
    return d_header ? GetContentOrigin().d_x + d_header->getTotalSegmentsPixelExtent()
                    : TreeView::rowHitRight();
}

bool TreeViewMultiColumnListEx::columnsChanged(const EventArgs&)
{
    nodesChanged(false);
    return true;
}

bool TreeViewMultiColumnListEx::contentScrolled(const EventArgs&)
{
    const ScrollablePane* pane = GetScrollablePane();
    const float width = pane->getContentPaneArea().getWidth();
    d_header->setSegmentOffset(pane->getHorizontalScrollPosition() * width);
    return true;
}

} // namespace MoxieLook
} // namespace CEGUI
