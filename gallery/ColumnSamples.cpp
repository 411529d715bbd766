// Cards of the list header, the multi-column lists and the tree list.
#include "Samples.h"
#include "looks/MXTreeViewMultiColumnListEx.h"
#include "widgets/MultiColumnListEx.h"

#include <CEGUI/ImageManager.h>
#include <CEGUI/widgets/ListHeader.h>
#include <CEGUI/widgets/ListboxTextItem.h>

namespace gallery
{
using namespace CEGUI;

namespace
{
const char* const Files[][3] = {{"report.txt", "12 KB", "Text"},   {"budget.ods", "48 KB", "Sheet"},
                                {"logo.png", "220 KB", "Picture"}, {"notes.md", "3 KB", "Text"},
                                {"talk.odp", "1.2 MB", "Slides"},  {"song.ogg", "4.8 MB", "Sound"}};

void fileColumns(MultiColumnList& list)
{
    list.addColumn("Name", 0, cegui_absdim(150));
    list.addColumn("Size", 1, cegui_absdim(90));
    list.addColumn("Kind", 2, cegui_absdim(100));
}

template <typename List>
void fileRows(List& list)
{
    for (uint id = 0; id < sizeof Files / sizeof Files[0]; ++id)
    {
        list.addRow(new ListboxTextItem(Files[id][0]), 0, id);
        for (uint column = 1; column < 3; ++column)
            list.setItem(new ListboxTextItem(Files[id][column]), column, id);
    }
}
} // namespace

std::vector<Sample> columnSamples()
{
    return {
        {"MoxieLook/MultiColumnList", 170,
         [](Card& card)
         {
             auto& list = static_cast<MultiColumnList&>(
                 card.add("MoxieLook/MultiColumnList", "", 10, 10, 380, 150));
             fileColumns(list);
             fileRows(list);
             list.setSelectionMode(MultiColumnList::RowSingle);
             list.setItemSelectState(MCLGridRef(1, 0), true);
             list.setSortColumn(0);
             list.setSortDirection(ListHeaderSegment::Ascending);
         }},
        {"MoxieLook/MultiColumnListEx", 170,
         [](Card& card)
         {
             auto& list = static_cast<MoxieLook::MultiColumnListEx&>(
                 card.add("MoxieLook/MultiColumnListEx", "rows 1 and 3 hidden", 10, 10, 380, 130));
             fileColumns(list);
             fileRows(list);
             list.HideRow(1);
             list.HideRow(3);
         }},
        {"MoxieLook/ListHeader", 60,
         [](Card& card)
         {
             auto& header =
                 static_cast<ListHeader&>(card.add("MoxieLook/ListHeader", "", 10, 10, 380, 24));
             header.addColumn("Name", 0, cegui_absdim(150));
             header.addColumn("Size", 1, cegui_absdim(90));
             header.addColumn("Kind", 2, cegui_absdim(100));
             header.setSortColumn(1);
             header.setSortDirection(ListHeaderSegment::Descending);
         }},
        {"MoxieLook/ListHeaderSegment", 60,
         [](Card& card)
         {
             auto& header =
                 static_cast<ListHeader&>(card.add("MoxieLook/ListHeader", "", 10, 10, 380, 24));
             header.addColumn("Normal", 0, cegui_absdim(120));
             header.addColumn("Hover", 1, cegui_absdim(120));
             header.addColumn("Sorted", 2, cegui_absdim(120));
             header.setSortColumn(2);
             header.setSortDirection(ListHeaderSegment::Ascending);
             card.hoverOn(header.getSegmentFromColumn(1));
         }},
        {"MoxieLook/TreeViewMultiColumnListEx", 200,
         [](Card& card)
         {
             auto& tree = static_cast<MoxieLook::TreeViewMultiColumnListEx&>(
                 card.add("MoxieLook/TreeViewMultiColumnListEx", "", 10, 10, 420, 180));
             tree.addColumn("Name", 0, cegui_absdim(190));
             tree.addColumn("Size", 1, cegui_absdim(90));
             tree.addColumn("Kind", 2, cegui_absdim(110));
             using Node = MoxieLook::TreeViewMultiColumnListEx::NodeIndex;
             auto* root = static_cast<Node*>(tree.GetRootNode());
             auto* docs = static_cast<Node*>(root->Add("docs", "Documents", nullptr));
             docs->SetIcon(&ImageManager::getSingleton().get("MoxieLook/IconFolder"));
             docs->SetColumnText(2, "Folder");
             for (int i = 0; i < 4; ++i)
             {
                 auto* file = static_cast<Node*>(docs->Add(Files[i][0], Files[i][0], nullptr));
                 file->SetIcon(&ImageManager::getSingleton().get("MoxieLook/IconDocument"));
                 file->SetColumnText(1, Files[i][1]);
                 file->SetColumnText(2, Files[i][2]);
             }
             auto* media = static_cast<Node*>(root->Add("media", "Media", nullptr));
             media->SetIcon(&ImageManager::getSingleton().get("MoxieLook/IconFolder"));
             media->SetColumnText(2, "Folder");
             for (int i = 4; i < 6; ++i)
             {
                 auto* file = static_cast<Node*>(media->Add(Files[i][0], Files[i][0], nullptr));
                 file->SetColumnText(1, Files[i][1]);
                 file->SetColumnText(2, Files[i][2]);
             }
             tree.SetSelectionByName("budget.ods");
         }},
    };
}

} // namespace gallery
