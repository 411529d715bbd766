#include "looks/MXListHeader.h"
#include "looks/MXMultiColumnList.h"
#include "looks/MXTreeViewMultiColumnListEx.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/ListHeader.h>
#include <CEGUI/widgets/ListboxTextItem.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <gtest/gtest.h>
#include <memory>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::context;
using moxietest::drawnBy;

namespace
{
ListboxTextItem* cell(const String& text)
{
    return new ListboxTextItem(text);
}

class MultiColumnListTest : public ::testing::Test
{
protected:
    void SetUp() override { moxietest::freshSheet(); }

    static MultiColumnListEx& exList(int rows)
    {
        auto& list = static_cast<MultiColumnListEx&>(
            moxietest::place("MoxieLook/MultiColumnListEx", 10, 10, 300, 200));
        list.addColumn("Name", 0, cegui_absdim(120));
        list.addColumn("Size", 1, cegui_absdim(80));
        for (int id = 0; id < rows; ++id)
        {
            const String n = PropertyHelper<int>::toString(id);
            list.addRow(cell("name " + n), 0, id);
            list.setItem(cell("size " + n), 1, id);
        }
        return list;
    }

    // Identifiers of the grid rows, top to bottom.
    static std::vector<uint> gridIds(const MultiColumnList& list)
    {
        std::vector<uint> ids;
        for (uint row = 0; row < list.getRowCount(); ++row)
            ids.push_back(list.getRowID(row));
        return ids;
    }

    static String gridText(const MultiColumnList& list, uint row, uint column)
    {
        return list.MultiColumnList::getItemAtGridReference(MCLGridRef(row, column))->getText();
    }
};
} // namespace

TEST_F(MultiColumnListTest, HiddenRowsLeaveTheGridAndComeBackInIdentifierOrder)
{
    MultiColumnListEx& list = exList(5);
    list.HideRow(1);
    list.HideRow(3);
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 2, 4}));
    // The store answers for row 1, not the grid's second row.
    EXPECT_EQ(list.getItemAtGridReference(MCLGridRef(1, 0))->getText(), "name 1");
    EXPECT_EQ(gridText(list, 1, 0), "name 2");

    // Hiding a hidden row does nothing; a hidden row takes a new item in its saved copy only.
    list.HideRow(1);
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 2, 4}));
    list.setItem(cell("renamed 3"), 0, 3);
    EXPECT_EQ(gridText(list, 2, 0), "name 4");

    list.ShowRows(1, 3);
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 1, 2, 3, 4}));
    EXPECT_EQ(gridText(list, 1, 0), "name 1");
    EXPECT_EQ(gridText(list, 1, 1), "size 1");
    EXPECT_EQ(gridText(list, 3, 0), "renamed 3");
    // Showing a shown row does nothing.
    list.ShowRow(2, 0);
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 1, 2, 3, 4}));

    // All five rows are drawn again: the text runs down through the fifth row.
    const float rowHeight = list.GetAbsoluteRowHeight();
    ASSERT_GT(rowHeight, 0);
    const auto quads = drawnBy(list);
    ASSERT_EQ(quads.back().image, "text");
    EXPECT_GT(quads.back().rect.getHeight(), 4 * rowHeight);
    EXPECT_LE(quads.back().rect.getHeight(), 5 * rowHeight);
}

TEST_F(MultiColumnListTest, RemovingShiftsTheLaterSavedRowsAndBadIdentifiersThrow)
{
    MultiColumnListEx& list = exList(4);
    list.HideRow(2);
    list.RemoveRow(1);
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 3}));
    ASSERT_EQ(list.getSavedRows().size(), 3u);
    // The store is not renumbered: the saved row 2 now sits at index 1.
    EXPECT_EQ(list.getSavedRows()[1]->rowId, 2u);
    EXPECT_FALSE(list.getSavedRows()[1]->visible);
    EXPECT_EQ(list.getItemAtGridReference(MCLGridRef(1, 0))->getText(), "name 2");

    EXPECT_THROW(list.HideRow(9), InvalidRequestException);
    EXPECT_THROW(list.ShowRow(9, 0), InvalidRequestException);
    EXPECT_THROW(list.getItemAtGridReference(MCLGridRef(0, 7)), InvalidRequestException);
    // A refused item stays the caller's.
    const std::unique_ptr<ListboxTextItem> stray(cell("x"));
    EXPECT_THROW(list.setItem(stray.get(), 5, 0), InvalidRequestException);
    list.ShowRows(3, 1); // an empty range
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 3}));
}

// A host holding the list as CEGUI's MultiColumnList (or CEGUI itself) changes the grid
// through operations the extended list cannot override; its saved rows follow all the same.
TEST_F(MultiColumnListTest, SavedRowsFollowChangesMadeThroughCeguisOwnInterface)
{
    MultiColumnListEx& list = exList(5);
    MultiColumnList& plain = list;

    // An item replaced the plain way (the old one auto-deleted) survives hiding and showing.
    plain.setItem(cell("replaced 2"), 0, plain.getRowWithID(2));
    EXPECT_EQ(list.getItemAtGridReference(MCLGridRef(2, 0))->getText(), "replaced 2");
    list.HideRows(1, 3);
    EXPECT_EQ(list.getItemAtGridReference(MCLGridRef(2, 0))->getText(), "replaced 2");
    list.ShowRows(1, 3);
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 1, 2, 3, 4}));
    EXPECT_EQ(gridText(list, 2, 0), "replaced 2");

    // A row added the plain way can be hidden and shown like the others.
    plain.addRow(cell("added 5"), 0, 5);
    EXPECT_NO_THROW(list.HideRow(5));
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 1, 2, 3, 4}));
    list.ShowRow(5, 5);
    EXPECT_EQ(gridText(list, 5, 0), "added 5");

    // A row removed the plain way is gone from the saved rows too.
    plain.removeRow(plain.getRowWithID(0));
    EXPECT_THROW(list.HideRow(0), InvalidRequestException);
    EXPECT_EQ(list.getItemAtGridReference(MCLGridRef(4, 1))->getText(), "size 4");

    // Emptied the plain way with rows hidden: the hidden rows stay the list's, and go with it.
    list.HideRow(3);
    plain.setItem(cell("replaced 4"), 1, plain.getRowWithID(4));
    plain.resetList();
    EXPECT_EQ(list.getRowCount(), 0u);
    list.ShowRow(3, 0);
    EXPECT_EQ(gridText(list, 0, 0), "name 3");
    moxietest::drawnBy(list);
    WindowManager::getSingleton().destroyWindow(&list);
    WindowManager::getSingleton().cleanDeadPool();
}

TEST_F(MultiColumnListTest, HeaderClicksDoNotSortTheExtendedList)
{
    MultiColumnListEx& list = exList(3);
    EXPECT_FALSE(list.isUserSortControlEnabled());
    EXPECT_FALSE(list.isUserColumnDraggingEnabled()); // the saved rows keep column order
    list.setItem(cell("zzz"), 0, 0);
    const Rectf name = list.getHeaderSegmentForColumn(0).getUnclippedOuterRect().get();
    moxietest::click(name.left() + 20, name.top() + 5);
    EXPECT_EQ(gridIds(list), (std::vector<uint>{0, 1, 2}));
    EXPECT_EQ(gridText(list, 0, 0), "zzz");
}

TEST_F(MultiColumnListTest, DraggingASplitterSizesTheColumn)
{
    auto& list = static_cast<MultiColumnList&>(
        moxietest::place("MoxieLook/MultiColumnList", 10, 10, 300, 200));
    list.addColumn("Name", 0, cegui_absdim(120));
    list.addColumn("Size", 1, cegui_absdim(80));
    const uint row = list.addRow();
    list.setItem(cell("1 KB"), 1, row); // only the second column has text
    EXPECT_EQ(list.getListHeader()->getType(), "MoxieLook/ListHeader");
    EXPECT_EQ(list.getHeaderSegmentForColumn(0).getType(), "MoxieLook/ListHeaderSegment");

    const Rectf seg = list.getHeaderSegmentForColumn(0).getUnclippedOuterRect().get();
    const float y = seg.top() + seg.getHeight() / 2;
    moxietest::pointerTo(seg.right() - 1, y);
    EXPECT_TRUE(
        static_cast<ListHeaderSegment&>(list.getHeaderSegmentForColumn(0)).isSplitterHovering());
    moxietest::leftDown();
    moxietest::pointerTo(seg.right() + 39, y);
    moxietest::leftUp();
    EXPECT_NEAR(list.getHeaderSegmentForColumn(0).getPixelSize().d_width, 160, 0.5f);

    // The second column's cell follows the wider first column.
    const Rectf area = list.getListRenderArea();
    const float sizeLeft = drawnBy(list).back().rect.left();
    EXPECT_GE(sizeLeft, area.left() + 160);
    EXPECT_LT(sizeLeft, area.left() + 170);
}

TEST_F(MultiColumnListTest, SegmentStatesAndTheListFrame)
{
    auto& list = static_cast<MultiColumnList&>(
        moxietest::place("MoxieLook/MultiColumnList", 10, 10, 300, 200));
    list.addColumn("Name", 0, cegui_absdim(120));
    auto& segment = list.getHeaderSegmentForColumn(0);
    const auto normal = moxietest::imageNames(drawnBy(segment));
    EXPECT_EQ(normal.front(), "HeaderBarBackdropNormal");
    EXPECT_EQ(normal[1], "HeaderBarSplitterNormal");
    EXPECT_EQ(normal.back(), "text");

    list.setSortColumn(0);
    list.setSortDirection(ListHeaderSegment::Descending);
    const auto sorted = moxietest::imageNames(drawnBy(segment));
    EXPECT_NE(std::find(sorted.begin(), sorted.end(), "HeaderBarSortDown"), sorted.end());

    const Rectf r = segment.getUnclippedOuterRect().get();
    moxietest::pointerTo(r.left() + 20, r.top() + 5);
    EXPECT_EQ(moxietest::imageNames(drawnBy(segment)).front(), "HeaderBarBackdropHover");

    const auto frame = moxietest::imageNames(drawnBy(list));
    EXPECT_EQ(frame.front(), "StaticFrameFill");
    EXPECT_EQ(frame[1], "StaticFrameListTopLeft");
    list.setWidth(cegui_absdim(0));
    EXPECT_TRUE(drawnBy(list).empty());
}

TEST_F(MultiColumnListTest, TreeColumnsFollowTheirSegments)
{
    auto& tree = static_cast<TreeViewMultiColumnListEx&>(
        moxietest::place("MoxieLook/TreeViewMultiColumnListEx", 10, 10, 400, 200));
    tree.addColumn("Name", 0, cegui_absdim(150));
    tree.addColumn("Size", 1, cegui_absdim(80));
    tree.addColumn("Kind", 2, cegui_absdim(90));
    EXPECT_EQ(tree.getColumnCount(), 3u);
    EXPECT_FALSE(tree.getListHeader()->isSortingEnabled());

    auto* root = static_cast<TreeViewMultiColumnListEx::NodeIndex*>(tree.GetRootNode());
    auto* docs =
        static_cast<TreeViewMultiColumnListEx::NodeIndex*>(root->Add("docs", "Documents", nullptr));
    auto* file = static_cast<TreeViewMultiColumnListEx::NodeIndex*>(
        docs->Add("report", "report.txt", nullptr));
    file->SetColumnText(2, "Text");
    EXPECT_EQ(file->GetColumnText(2), "Text");
    EXPECT_EQ(file->GetColumnText(1), "");
    EXPECT_EQ(file->GetColumnText(0), "report.txt");

    // The lines sit below the header.
    const Rectf header = tree.getListHeader()->getUnclippedOuterRect().get();
    drawnBy(tree); // lays the tree out
    EXPECT_GE(docs->GetHitRect().top(), header.bottom() - 3);

    // The last text of the file's line is its "Kind" cell: it ends inside that column and
    // moves right as much as the "Size" column widens.
    auto kindRight = [&] { return moxietest::spanOf(drawnBy(tree), "text").right(); };
    const float before = kindRight();
    tree.getListHeader()->setColumnWidth(1, cegui_absdim(130));
    const float after = kindRight();
    EXPECT_NEAR(after - before, 50, 0.5f);

    // A row answers clicks across its columns: a click in the "Kind" cell selects it.
    std::vector<TreeView::Node*> clicked;
    tree.subscribeEvent(TreeView::EventLeafItemClicked,
                        [&](const EventArgs& a) {
                            clicked.push_back(static_cast<const TreeView::ItemEventArgs&>(a).node);
                        });
    const Rectf line = file->GetHitRect();
    moxietest::click(line.left() + 150 + 130 + 40, line.top() + 4);
    EXPECT_EQ(clicked, (std::vector<TreeView::Node*>{file}));
}
