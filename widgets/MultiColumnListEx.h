// CEGUI's multi-column list whose rows can be hidden and shown again with their items and
// their place. Beside CEGUI's grid of visible rows it keeps a saved copy of every row,
// indexed by row identifier: a host gives rows the identifiers 0, 1, 2, ... in the order it
// adds them. An identifier outside the store throws CEGUI's InvalidRequestException.
//
// CEGUI 0.8's row operations are not virtual. A host (or CEGUI) changing the grid through
// MultiColumnList's own operations is caught up with at the contents-changed notification:
// rows added there get saved rows, rows removed there lose theirs. A shown row's items live in
// the grid only, so nothing CEGUI deletes is ever held here.
#pragma once

#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/widgets/MultiColumnList.h>
#include <memory>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class MultiColumnListEx : public RedrawnWhenUncovered<MultiColumnList>
{
public:
    struct SavedRow
    {
        //! A hidden row's items, one per column, owned here; empty while the row is shown.
        std::vector<ListboxItem*> items;
        uint sortColumn = 0;
        uint rowId = 0;
        bool visible = true;
    };

    MultiColumnListEx(const String& type, const String& name);
    ~MultiColumnListEx() override;

    //! CEGUI's, then user sorting off: the store and the grid both rest on identifiers.
    void initialiseComponents() override;

    uint addRow(uint rowId = 0);
    uint addRow(ListboxItem* item, uint columnId, uint rowId = 0);
    virtual uint insertRow(uint rowIndex, uint rowId = 0);
    uint insertRow(ListboxItem* item, uint columnId, uint rowIndex, uint rowId = 0);
    //! On a hidden row only the saved copy changes.
    void setItem(ListboxItem* item, uint columnId, uint rowIndex);
    void setItem(ListboxItem* item, const MCLGridRef& position);
    //! Answered from the store: the saved row whose identifier is the reference's row.
    ListboxItem* getItemAtGridReference(const MCLGridRef& gridRef) const;
    //! Also forgets the hidden rows.
    void resetList();

    void HideRow(uint rowId);
    void HideRows(uint first, uint last);
    void ShowRow(uint rowId, uint rowIndex);
    void ShowRows(uint first, uint last);
    //! Forgets the row; the later saved rows move down one place in the store.
    void RemoveRow(uint rowId);

    Scrollbar* GetVerticalScrollbar() const { return getVertScrollbar(); }
    Sizef GetAbsoluteHeaderSize() const;
    float GetTotalRowsHeight() const { return getTotalRowsHeight(); }
    float GetAbsoluteRowHeight() const;

    //! Indexed by identifier; null where no row has that identifier any more.
    const std::vector<std::shared_ptr<SavedRow>>& getSavedRows() const { return d_store; }

protected:
    void onListContentsChanged(WindowEventArgs& e) override;

private:
    void removeRow(uint rowIndex) { MultiColumnList::removeRow(rowIndex); }
    uint GetIndexInsertRow(uint rowId) const;
    SavedRow& saved(uint rowId) const;
    void save(uint gridIndex);
    //! Brings the store up to date with a grid changed through CEGUI's own operations.
    void catchUpWithGrid();
    //! Items of hidden rows belong to the store; the grid's to CEGUI.
    static void deleteOwned(SavedRow& row);

    std::vector<std::shared_ptr<SavedRow>> d_store;
    bool d_suppress = false;
    //! Set while this class changes the grid itself, which keeps the store as it goes.
    bool d_changingGrid = false;
    //! Runs `change` to the grid with d_changingGrid set, however it ends.
    template <typename Change>
    auto changingGrid(Change change)
    {
        struct Guard
        {
            bool& flag;
            ~Guard() { flag = false; }
        } guard{d_changingGrid};
        d_changingGrid = true;
        return change();
    }
};

} // namespace MoxieLook
} // namespace CEGUI
