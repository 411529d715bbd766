// Cards of the trees.
#include "Samples.h"
#include "looks/MXTreeView.h"

#include <CEGUI/ImageManager.h>

namespace gallery
{
using namespace CEGUI;

namespace
{
MoxieLook::TreeView::Node* leaf(MoxieLook::TreeView::Node* title, const char* name,
                                const char* icon)
{
    MoxieLook::TreeView::Node* node = title->Add(name, name, nullptr);
    if (icon)
        node->SetIcon(&ImageManager::getSingleton().get(String("MoxieLook/") + icon));
    return node;
}
} // namespace

std::vector<Sample> treeSamples()
{
    return {
        {"MoxieLook/TreeView", 190,
         [](Card& card)
         {
             auto& tree = static_cast<MoxieLook::TreeView&>(card.add(
                 "MoxieLook/TreeView", "titles, leaves and icons; one closed", 10, 10, 260, 150));
             MoxieLook::TreeView::Node* root = tree.GetRootNode();
             MoxieLook::TreeView::Node* documents = leaf(root, "Documents", "IconFolder");
             leaf(documents, "Report.txt", "IconDocument");
             MoxieLook::TreeView::Node* selected = leaf(documents, "Notes.txt", "IconDocument");
             leaf(documents, "Favourites", "IconStar");
             MoxieLook::TreeView::Node* pictures = leaf(root, "Pictures", "IconFolder");
             leaf(pictures, "Holiday.png", "IconDocument");
             pictures->SetOpened(false);
             MoxieLook::TreeView::Node* music = leaf(root, "Music", "IconFolder");
             card.hoverOn(tree);
             for (int i = 1; i <= 6; ++i)
                 leaf(music, ("Track " + std::to_string(i)).c_str(), nullptr);
             tree.SetSelectionByNode(selected);

             auto& big = static_cast<MoxieLook::TreeView&>(
                 card.add("MoxieLook/TreeView", "1,000 titles of 100 leaves", 300, 10, 300, 150));
             for (int t = 0; t < 1000; ++t)
             {
                 MoxieLook::TreeView::Node* title =
                     big.GetRootNode()->Add("t" + PropertyHelper<int>::toString(t),
                                            "Title " + PropertyHelper<int>::toString(t), nullptr);
                 for (int l = 0; l < 100; ++l)
                     title->Add("l", "Leaf " + PropertyHelper<int>::toString(t * 100 + l), nullptr);
             }
         }},
    };
}

} // namespace gallery
