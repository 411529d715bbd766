#include "widgets/MultiColumnListEx.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/widgets/ListHeader.h>
#include <CEGUI/widgets/ListboxItem.h>
#include <set>

namespace CEGUI
{
namespace MoxieLook
{
MultiColumnListEx::MultiColumnListEx(const String& type, const String& name)
    : RedrawnWhenUncovered<MultiColumnList>(type, name)
{
}

MultiColumnListEx::~MultiColumnListEx()
{
    for (const auto& row : d_store)
        if (row && !row->visible)
            deleteOwned(*row);
}

void MultiColumnListEx::initialiseComponents()
{
    MultiColumnList::initialiseComponents();
    setUserSortControlEnabled(false);
    // Saved rows keep their items in column order: a column moved by the user would mix them up.
    setUserColumnDraggingEnabled(false);
}

MultiColumnListEx::SavedRow& MultiColumnListEx::saved(uint rowId) const
{
    if (rowId >= d_store.size() || !d_store[rowId])
        throw InvalidRequestException(
            "No saved row with the identifier " + PropertyHelper<uint>::toString(rowId) + " in '" +
            getNamePath() + "' (it holds " +
            PropertyHelper<uint>::toString(static_cast<uint>(d_store.size())) + " rows).");
    return *d_store[rowId];
}

void MultiColumnListEx::save(uint gridIndex)
{
    const ListRow& grid = d_grid[gridIndex];
    auto row = std::make_shared<SavedRow>();
    row->sortColumn = grid.d_sortColumn;
    row->rowId = grid.d_rowID;
    d_store.push_back(std::move(row));
}

void MultiColumnListEx::deleteOwned(SavedRow& row)
{
    for (ListboxItem*& item : row.items)
    {
        if (item && item->isAutoDeleted())
            delete item;
        item = nullptr;
    }
}

uint MultiColumnListEx::addRow(uint rowId)
{
    const uint index = changingGrid([&] { return MultiColumnList::addRow(rowId); });
    if (!d_suppress)
        save(getRowWithID(rowId));
    return index;
}

uint MultiColumnListEx::addRow(ListboxItem* item, uint columnId, uint rowId)
{
    const uint index = addRow(rowId);
    if (item)
        setItem(item, columnId, rowId);
    return index;
}

uint MultiColumnListEx::insertRow(uint rowIndex, uint rowId)
{
    const uint index = changingGrid([&] { return MultiColumnList::insertRow(rowIndex, rowId); });
    if (!d_suppress)
        save(index);
    return index;
}

uint MultiColumnListEx::insertRow(ListboxItem* item, uint columnId, uint rowIndex, uint rowId)
{
    const uint index = insertRow(rowIndex, rowId);
    if (item)
        setItem(item, columnId, rowId);
    return index;
}

void MultiColumnListEx::setItem(ListboxItem* item, uint columnId, uint rowIndex)
{
    SavedRow& row = saved(rowIndex);
    const uint column = getColumnWithID(columnId); // throws for an unknown column
    if (row.visible)
    {
        // The grid holds a shown row's items; CEGUI deletes the one replaced.
        changingGrid([&] { MultiColumnList::setItem(item, columnId, getRowWithID(row.rowId)); });
        return;
    }
    if (d_suppress)
        return;
    if (row.items.size() <= column)
        row.items.resize(column + 1, nullptr);
    ListboxItem*& slot = row.items[column];
    // A hidden row's items are the store's to delete.
    if (!row.visible && slot && slot != item && slot->isAutoDeleted())
        delete slot;
    slot = item;
    if (item)
        item->setOwnerWindow(this);
}

void MultiColumnListEx::setItem(ListboxItem* item, const MCLGridRef& position)
{
    MultiColumnList::setItem(item, position);
}

ListboxItem* MultiColumnListEx::getItemAtGridReference(const MCLGridRef& gridRef) const
{
    const SavedRow& row = saved(gridRef.row);
    if (row.visible && gridRef.column < getColumnCount())
        return MultiColumnList::getItemAtGridReference(
            MCLGridRef(getRowWithID(row.rowId), gridRef.column));
    if (row.visible || gridRef.column >= row.items.size())
        throw InvalidRequestException(
            "No column " + PropertyHelper<uint>::toString(gridRef.column) + " in the saved row " +
            PropertyHelper<uint>::toString(gridRef.row) + ".");
    return row.items[gridRef.column];
}

void MultiColumnListEx::resetList()
{
    for (const auto& row : d_store)
        if (row && !row->visible)
            deleteOwned(*row);
    d_store.clear();
    changingGrid([&] { MultiColumnList::resetList(); });
}

void MultiColumnListEx::HideRow(uint rowId)
{
    SavedRow& row = saved(rowId);
    if (!row.visible)
        return;
    // The items move to the store: CEGUI must not delete them with the grid row.
    std::vector<ListboxItem*>& items = d_grid[getRowWithID(row.rowId)].d_items;
    row.items.assign(items.begin(), items.end());
    for (ListboxItem*& item : items)
        item = nullptr;
    d_suppress = true;
    RemoveRow(rowId);
    d_suppress = false;
    row.visible = false;
}

void MultiColumnListEx::HideRows(uint first, uint last)
{
    for (uint id = first; id <= last && id >= first; ++id)
        HideRow(id);
}

void MultiColumnListEx::ShowRow(uint rowId, uint rowIndex)
{
    SavedRow& row = saved(rowId);
    if (row.visible)
        return;
    d_suppress = true;
    const uint index = insertRow(rowIndex, rowId);
    d_suppress = false;
    ListRow& grid = d_grid[index];
    for (std::size_t column = 0; column < grid.d_items.size(); ++column)
    {
        ListboxItem* item = column < row.items.size() ? row.items[column] : nullptr;
        grid.d_items[column] = item;
        if (item)
            item->setOwnerWindow(this);
    }
    grid.d_sortColumn = row.sortColumn;
    grid.d_rowID = row.rowId;
    row.items.clear(); // the grid's now
    row.visible = true;
    WindowEventArgs args(this);
    changingGrid([&] { onListContentsChanged(args); });
}

void MultiColumnListEx::ShowRows(uint first, uint last)
{
    if (first > last)
        return;
    uint index = GetIndexInsertRow(first);
    for (uint id = first; id <= last && id >= first; ++id, ++index)
        ShowRow(id, index);
}

uint MultiColumnListEx::GetIndexInsertRow(uint rowId) const
{
    for (uint index = 0; index < d_grid.size(); ++index)
        if (d_grid[index].d_rowID > rowId)
            return index;
    return static_cast<uint>(d_grid.size());
}

void MultiColumnListEx::RemoveRow(uint rowId)
{
    std::shared_ptr<SavedRow> row;
    const bool visible = saved(rowId).visible;
    if (!d_suppress)
    {
        row = d_store[rowId];
        d_store.erase(d_store.begin() + rowId);
    }
    if (visible)
    {
        changingGrid([&] { removeRow(getRowWithID(rowId)); });
    }
    else if (row)
        deleteOwned(*row);
}

void MultiColumnListEx::onListContentsChanged(WindowEventArgs& e)
{
    if (!d_changingGrid)
        catchUpWithGrid();
    RedrawnWhenUncovered<MultiColumnList>::onListContentsChanged(e);
}

void MultiColumnListEx::catchUpWithGrid()
{
    std::set<uint> inGrid;
    for (const ListRow& grid : d_grid)
        inGrid.insert(grid.d_rowID);
    std::set<uint> saved;
    for (auto& row : d_store)
        if (row && row->visible && !inGrid.count(row->rowId))
            row.reset(); // removed through CEGUI's own operations; CEGUI deleted its items
        else if (row)
            saved.insert(row->rowId);
    for (uint index = 0; index < d_grid.size(); ++index)
    {
        const uint id = d_grid[index].d_rowID;
        if (saved.count(id))
            continue;
        // Added through CEGUI's own operations: saved where its identifier points.
        if (id >= d_store.size())
            d_store.resize(static_cast<std::size_t>(id) + 1);
        const std::size_t slot = d_store[id] ? d_store.size() : id;
        save(index);
        if (slot != d_store.size() - 1)
        {
            d_store[slot] = d_store.back();
            d_store.pop_back();
        }
        saved.insert(id);
    }
}

Sizef MultiColumnListEx::GetAbsoluteHeaderSize() const
{
    return getListHeader()->getPixelSize();
}

float MultiColumnListEx::GetAbsoluteRowHeight() const
{
    if (d_grid.empty() || d_grid[0].d_items.empty() || !d_grid[0].d_items[0])
        return 0.0f;
    return d_grid[0].d_items[0]->getPixelSize().d_height;
}

} // namespace MoxieLook
} // namespace CEGUI
