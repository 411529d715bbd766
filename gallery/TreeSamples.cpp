// Cards of the trees.
#include "Samples.h"
#include "looks/MXSmartButtonNodeItem.h"
#include "looks/MXTreeView.h"
#include "widgets/ButtonEx.h"

#include <CEGUI/ImageManager.h>
#include <CEGUI/WindowManager.h>

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
// A smart node with its text, icon and sizes: unselected 120 x 34, selected 140 x 40 (the
// opened arrow beside it); its child nodes stand in a column to its right.
MoxieLook::SmartButtonNodeItem& smartNode(const String& text, const char* icon)
{
    auto& node = static_cast<MoxieLook::SmartButtonNodeItem&>(
        *WindowManager::getSingleton().createWindow("MoxieLook/SmartButtonNodeItem"));
    node.setText(text);
    node.setProperty("NormalIcon",
                     String("MoxieLook/") + icon + "selected:false imageAlignment:Left");
    node.setProperty("NormalIcon",
                     String("MoxieLook/") + icon + "selected:true imageAlignment:Left");
    node.setProperty("HoverIcon", "MoxieLook/IconStarselected:false imageAlignment:Left");
    node.setProperty("DisplayNbChildrenEnable", "True");
    node.setProperty("ResizeStepNumber", "6");
    node.setProperty("OpenedImage", "MoxieLook/PopupMenuArrow");
    node.setProperty("SmartAbsoluteSize", "w:120 h:34 selected:false");
    node.setProperty("SmartAbsoluteSize", "w:140 h:40 selected:true");
    node.setProperty("ChildIndentation", "170");
    node.setProperty("ChildMargin", "4");
    // The counter sits under the label.
    node.GetButton()->setProperty("VerticalTextAlignment", "Top");
    return node;
}
} // namespace

std::vector<Sample> treeSamples()
{
    return {
        {"MoxieLook/SmartButtonNodeItem", 220,
         [](Card& card)
         {
             Window& field = card.add("MoxieLook/StaticImage", "three levels, one branch open", 10,
                                      10, 600, 190);
             auto& root = smartNode("Library", "IconFolder");
             root.setPosition(UVector2(cegui_absdim(10), cegui_absdim(70)));
             root.setProperty("ChildAlignment", "Centre");
             field.addChild(&root);
             auto& books = smartNode("Books", "IconFolder");
             auto& music = smartNode("Music", "IconFolder");
             root.AddNode(&books);
             root.AddNode(&music);
             for (const char* title : {"Novels", "Poetry", "Essays"})
             {
                 auto& leaf = smartNode(title, "IconDocument");
                 books.AddNode(&leaf);
             }
             music.AddNode(&smartNode("Jazz", "IconDocument"));
             books.SetSelected(true);
             // Opening "Music" closes "Books": both resize in their six steps.
             card.animation([&music] { music.SetSelected(true); }, {1, 3, 6, 7});
         }},
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
