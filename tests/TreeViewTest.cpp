#include "looks/MXTreeView.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "support/Thrown.h"

#include <CEGUI/Font.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/widgets/ScrollablePane.h>
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using Node = TreeView::Node;
using moxietest::drawnBy;
using moxietest::imageNames;

namespace
{
class TreeViewTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        tree = &moxietest::placeAs<TreeView>("MoxieLook/TreeView", 10, 10, 300, 200);
        tree->subscribeEvent(TreeView::EventLeafItemClicked, [this] { events.push_back("leaf"); });
        tree->subscribeEvent(TreeView::EventTitleItemClicked,
                             [this] { events.push_back("title"); });
        tree->subscribeEvent(TreeView::EventTitleOpenStateChanged,
                             [this] { events.push_back("open"); });
        tree->subscribeEvent(TreeView::EventLeafItemDoubleClicked,
                             [this] { events.push_back("leaf2"); });
        tree->subscribeEvent(TreeView::EventTitleItemDoubleClicked,
                             [this] { events.push_back("title2"); });
        tree->subscribeEvent(
            TreeView::EventTitleFocusedItemChanged, [this](const EventArgs& a)
            { focused.push_back(static_cast<const TreeView::ItemEventArgs&>(a).node); });
    }

    // Two titles of three leaves each, laid out by a draw.
    Node* twoTitles()
    {
        Node* root = tree->GetRootNode();
        for (const char* title : {"A", "B"})
        {
            Node* t = root->Add(title, String("Title ") + title, nullptr);
            for (int i = 0; i < 3; ++i)
                t->Add(String(title) + PropertyHelper<int>::toString(i), "Leaf", nullptr);
        }
        drawnBy(*tree);
        return root;
    }

    Vector2f inside(const Node* node, float dx = 30, float dy = 5) const
    {
        const Rectf hit = node->GetHitRect();
        return Vector2f(hit.left() + dx, hit.top() + dy);
    }

    void click(const Vector2f& at) { moxietest::click(at.d_x, at.d_y); }

    TreeView* tree = nullptr;
    std::vector<std::string> events;
    std::vector<Node*> focused;
};
} // namespace

TEST_F(TreeViewTest, ChildCursorDescendantsAndRemoval)
{
    Node* root = twoTitles();
    Node* a = root->GetChild("A");
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(root->GetNbDescendants(), 8u);
    EXPECT_EQ(root->GetChildIndex(root->GetChild("B")), 1);
    EXPECT_EQ(root->GetChildIndex(a->GetChild(0)), -1);
    EXPECT_EQ(a->GetChild(0)->GetFirstChild(), nullptr); // a leaf
    EXPECT_EQ(a->GetDepth(), 1u);

    EXPECT_EQ(a->GetFirstChild()->GetName(), "A0");
    EXPECT_FALSE(a->HasPreviousChild());
    EXPECT_EQ(a->GetNextChild()->GetName(), "A1");
    EXPECT_EQ(a->GetNextChild()->GetName(), "A2");
    EXPECT_FALSE(a->HasNextChild());
    EXPECT_EQ(moxietest::thrownMessage<TreeView::OutOfBound>([&] { a->GetNextChild(); }),
              "outOfBounds exception : no more child for the current treeNode");
    a->GetFirstChild();
    EXPECT_EQ(moxietest::thrownMessage<TreeView::OutOfBound>([&] { a->GetPreviousChild(); }),
              "outOfBounds exception : no child before the current node");
    EXPECT_THROW(a->GetChild(3), TreeView::OutOfBound);
    EXPECT_EQ(a->GetChild("nobody"), nullptr);

    // Removing by name searches each child's subtree before the next sibling; the cursor
    // survives the removal of its child.
    a->GetLastChild();
    EXPECT_TRUE(root->Remove("A2"));
    EXPECT_EQ(a->GetNbChildren(), 2u);
    EXPECT_FALSE(root->Remove("A2"));
    EXPECT_TRUE(tree->RemoveNode(root->GetNode("B1")));
    EXPECT_EQ(root->GetNbDescendants(), 6u);
    EXPECT_EQ(tree->GetNodeForName("B2")->GetParent()->GetName(), "B");
}

TEST_F(TreeViewTest, OpeningClosingAndTheRootThatStaysOpen)
{
    Node* root = twoTitles();
    Node* a = root->GetChild("A");
    Node* inner = a->GetChild(0)->Add("deep", "Deep", nullptr);
    Node* a0 = a->GetChild(0);
    a0->SetOpened(false);
    EXPECT_FALSE(inner->IsVisible());
    a->SetOpened(true); // already open: the closed descendant stays closed
    EXPECT_FALSE(a0->IsOpened());
    a->SetOpened(false);
    EXPECT_FALSE(a->GetChild(1)->IsVisible());
    a->SetOpened(true); // opening a closed title opens and shows its whole subtree
    EXPECT_TRUE(a0->IsOpened());
    EXPECT_TRUE(inner->IsVisible());

    root->SetOpened(false);
    EXPECT_TRUE(root->IsOpened());
    EXPECT_FALSE(a->IsOpened());
    EXPECT_TRUE(a->IsVisible());
    EXPECT_TRUE(a->GetChild(1)->IsOpened()); // leaves are always open
}

TEST_F(TreeViewTest, LinesAreIndentedWithImagesAtTheBottomAndTextAtTheTop)
{
    // An empty tree draws no line; the content area is one spare line.
    const float spacing = tree->getFont(true)->getLineSpacing();
    auto quads = drawnBy(*tree);
    EXPECT_EQ(quads.size(), 9u); // the field and its frame
    EXPECT_EQ(tree->GetScrollablePane()->getContentPaneArea(), Rectf(0, 0, 0, spacing));

    tree->SetPixelNodeHeight(20);
    Node* root = twoTitles();
    Node* a = root->GetChild("A");
    a->GetChild(0)->SetIcon(&ImageManager::getSingleton().get("MoxieLook/IconStar"));
    quads = drawnBy(*tree);
    // The frame is 2 pixels: lines start at (2, 2) in the window.
    EXPECT_EQ(quads[9].image, "NavigateOpen");
    EXPECT_EQ(quads[9].rect, Rectf(2, 10, 14, 22)); // 12 high, bottom at 2 + 20
    EXPECT_EQ(quads[10].image, "text");
    EXPECT_NEAR(quads[10].rect.top(), 2, 3.0f);
    EXPECT_EQ(quads[11].image, "NavigatePoint");
    EXPECT_EQ(quads[11].rect.left(), 17); // indented by 15
    EXPECT_EQ(quads[12].image, "IconStar");
    EXPECT_EQ(quads[12].rect, Rectf(29, 26, 45, 42));

    // A node without text takes no line and keeps its children at its own indentation.
    a->SetText("");
    quads = drawnBy(*tree);
    EXPECT_EQ(quads[9].image, "NavigatePoint");
    EXPECT_EQ(quads[9].rect.left(), 2);
    EXPECT_EQ(a->GetChild(0)->GetHitRect(),
              Rectf(12, 15, 12 + 12 + 16 + tree->getFont()->getTextExtent("Leaf"), 32));
    const Sizef content = tree->GetScrollablePane()->getContentPaneArea().getSize();
    EXPECT_EQ(content.d_height, 7 * 20 + spacing);
}

TEST_F(TreeViewTest, ClicksSelectToggleAndFireInOrderButNotInTheTopThreePixels)
{
    Node* root = twoTitles();
    Node* a = root->GetChild("A");
    Node* leaf = a->GetChild(1);

    click(inside(leaf, 30, -1)); // above the hit rectangle: the top 3 pixels of the line
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(tree->GetSelectedNode(), nullptr);

    click(inside(leaf));
    EXPECT_EQ(events, std::vector<std::string>{"leaf"});
    EXPECT_EQ(tree->GetSelectedNode(), leaf);
    events.clear();
    click(inside(a->GetChild(2), 5)); // a leaf's navigation image only selects it
    EXPECT_EQ(events, std::vector<std::string>{"leaf"});
    EXPECT_EQ(tree->GetSelectedNode(), a->GetChild(2));

    events.clear();
    click(inside(a)); // on the text: selects, no toggle
    EXPECT_EQ(events, std::vector<std::string>{"title"});
    EXPECT_TRUE(a->IsOpened());
    events.clear();
    click(inside(a, 5)); // on the navigation image
    EXPECT_EQ(events, (std::vector<std::string>{"open", "title"}));
    EXPECT_FALSE(a->IsOpened());
    EXPECT_EQ(tree->GetSelectedNode(), a);

    // Closed, the leaves under it are not hit where they were.
    drawnBy(*tree);
    events.clear();
    const Node* b = root->GetChild("B");
    EXPECT_EQ(b->GetHitRect().top(), a->GetHitRect().bottom() + 3);
    click(inside(b));
    EXPECT_EQ(events, std::vector<std::string>{"title"});

    events.clear();
    moxietest::pointerTo(inside(b).d_x, inside(b).d_y);
    moxietest::context().injectMouseButtonDoubleClick(LeftButton);
    EXPECT_EQ(events, std::vector<std::string>{"title2"});

    // Selection by name and by node fires as a click does, without toggling.
    events.clear();
    tree->SetSelectionByName("B0");
    EXPECT_EQ(tree->GetSelectedNode()->GetName(), "B0");
    tree->SetSelectionByNode(root->GetChild("B"));
    EXPECT_EQ(events, (std::vector<std::string>{"leaf", "title"}));
    EXPECT_TRUE(root->GetChild("B")->IsOpened());
}

TEST_F(TreeViewTest, HoverFollowsThePointerAndSetsTheTooltip)
{
    Node* root = twoTitles();
    Node* leaf = root->GetChild("B")->GetChild(2);
    const Vector2f at = inside(leaf);
    moxietest::pointerTo(at.d_x, at.d_y);
    EXPECT_TRUE(leaf->IsHovered());
    EXPECT_EQ(tree->getTooltipText(), "Leaf");
    const auto texts = moxietest::allOf(drawnBy(*tree), "text");
    EXPECT_EQ(moxietest::argb(texts.back().colours.d_top_left), 0xFFFF00FFu); // hover leaf colour

    moxietest::pointerTo(250, 150); // empty space in the tree
    EXPECT_FALSE(leaf->IsHovered());
    EXPECT_EQ(tree->getTooltipText(), "");
    EXPECT_EQ(focused, (std::vector<Node*>{leaf, nullptr}));
    moxietest::pointerTo(251, 150); // still nothing: no event
    EXPECT_EQ(focused.size(), 2u);

    // The hovered node removed, the tree redrawn: the next move must not touch it.
    Node* other = root->GetChild("A")->GetChild(0);
    moxietest::pointerTo(at.d_x, at.d_y);
    ASSERT_TRUE(leaf->IsHovered());
    EXPECT_TRUE(tree->RemoveNode(root->GetChild("B")));
    drawnBy(*tree);
    const Vector2f onOther = inside(other);
    moxietest::pointerTo(onOther.d_x, onOther.d_y);
    EXPECT_TRUE(other->IsHovered());
    root->GetChild("A")->RemoveAll();
    drawnBy(*tree);
    moxietest::pointerTo(250, 150);
    EXPECT_EQ(tree->getTooltipText(), "");
}

TEST_F(TreeViewTest, ScrolledOutOfViewAndBackALineIsHitWhereItIsDrawn)
{
    Node* root = tree->GetRootNode();
    for (int i = 0; i < 60; ++i)
        root->Add("n" + PropertyHelper<int>::toString(i),
                  "Line " + PropertyHelper<int>::toString(i), nullptr);
    drawnBy(*tree);
    Node* first = root->GetChild(0);
    const Rectf before = first->GetHitRect();

    moxietest::pointerTo(60, 100);
    moxietest::context().injectMouseWheelChange(3); // += 0.1 of the content per notch
    EXPECT_NEAR(tree->GetScrollablePane()->getVerticalScrollPosition(), 0.3f, 1e-4f);
    drawnBy(*tree);
    EXPECT_LT(first->GetHitRect().bottom(), tree->getInnerRectClipper().top());
    EXPECT_TRUE(imageNames(drawnBy(*tree)).size() > 9);

    tree->GetScrollablePane()->setVerticalScrollPosition(0);
    const auto quads = drawnBy(*tree);
    EXPECT_EQ(first->GetHitRect(), before);
    const Rectf drawn = quads[10].rect; // the first line's text, window-local
    const Vector2f origin = tree->getUnclippedOuterRect().get().d_min;
    click(Vector2f(origin.d_x + drawn.left() + 2, origin.d_y + drawn.top() + 5));
    EXPECT_EQ(tree->GetSelectedNode(), first);
}

TEST_F(TreeViewTest, TheLinesHitTestAgreesWithTheTreeWalk)
{
    Node* root = twoTitles();
    root->GetChild("A")->GetChild(1)->SetText(""); // a stray: hit at its old place
    root->GetChild("B")->SetOpened(false);
    Node* fresh = root->GetChild("B")->Add("fresh", "Fresh", nullptr); // hidden, never drawn
    (void)fresh;
    drawnBy(*tree);
    // Hovering leaves the layout as it is, so every point after the first is answered by
    // the line index; the focus events say which node it found.
    int hits = 0;
    for (float y = 5; y < 140; y += 1.5f)
        for (float x = 5; x < 140; x += 7)
        {
            bool walkNav = false;
            Node* walked = root->GetNodeAt(Vector2f(x, y), walkNav);
            moxietest::pointerTo(x, y);
            Node* hovered = focused.empty() ? nullptr : focused.back();
            EXPECT_EQ(hovered, walked) << x << ", " << y;
            hits += walked != nullptr;
        }
    EXPECT_GT(hits, 100);

    // After changes and a draw, hovering leaves the very flags the hover walk leaves (the
    // stray's rectangle overlaps a line: the walk flags both): the hovered line removed,
    // another title closed and opened, a line added.
    std::function<void(const Node&, std::vector<const Node*>&)> flagged =
        [&](const Node& n, std::vector<const Node*>& out)
    {
        if (n.IsHovered())
            out.push_back(&n);
        for (const auto& child : n.GetChildren())
            flagged(*child, out);
    };
    for (int round = 0; round < 3; ++round)
    {
        if (Node* gone = focused.empty() ? nullptr : focused.back())
            gone->GetParent()->Remove(gone);
        root->GetChild("B")->SetOpened(round % 2 == 0);
        root->GetChild("A")->Add("late", "Late", nullptr);
        drawnBy(*tree);
        for (float y = 5; y < 140; y += 4.5f)
        {
            moxietest::pointerTo(30, y);
            std::vector<const Node*> hovered, walked;
            flagged(*root, hovered);
            root->UpdateHoveringState(Vector2f(30, y));
            flagged(*root, walked);
            EXPECT_EQ(hovered, walked) << y;
        }
    }
}

TEST_F(TreeViewTest, PropertiesTheirDefaultsAndTheTitleFontGetter)
{
    EXPECT_EQ(tree->getProperty("PixelIndent"), "15");
    EXPECT_EQ(tree->getProperty("NormalTitleTextColour"), "FFFFFFFF");
    EXPECT_EQ(tree->getProperty("SelectedLeafTextColour"), "FFFFFF00");
    EXPECT_EQ(tree->getPropertyInstance("SelectedTitleTextColour")->getDefault(tree), "FFFFFF00");
    tree->setProperty("PixelIndent", "22");
    EXPECT_EQ(tree->GetPixelIndent(), 22u);
    tree->setProperty("NormalLeafTextColour", "FF102030");
    EXPECT_EQ(tree->getProperty("NormalLeafTextColour"), "FF102030");

    Node* root = twoTitles();
    tree->setProperty("PixelNodeHeight", "25");
    EXPECT_EQ(root->GetChild("A")->GetChild(2)->GetPixelHeight(), 25u);
    EXPECT_EQ(tree->getProperty("PixelNodeHeight"), "25");

    // Set, it changes the titles' font; got, it names the window's font.
    tree->setProperty("TitleFont", "MoxieLook-10");
    EXPECT_EQ(tree->GetTitleFont(), &FontManager::getSingleton().get("MoxieLook-10"));
    EXPECT_EQ(tree->getProperty("TitleFont"), "");
    tree->setFont("MoxieLook-10"); // the default font
    EXPECT_EQ(tree->getProperty("TitleFont"), "");
    if (!FontManager::getSingleton().isDefined("MoxieLook-12"))
        FontManager::getSingleton().createFreeTypeFont("MoxieLook-12", 12, true, "DejaVuSans.ttf");
    tree->setFont("MoxieLook-12");
    EXPECT_EQ(tree->getProperty("TitleFont"), "MoxieLook-12");
    EXPECT_THROW(tree->setProperty("TitleFont", "NoSuchFont"), UnknownObjectException);
}

TEST_F(TreeViewTest, ChangesLaidOutWhereTheyHappenMatchAWholeLayout)
{
    // Random changes, a draw after a few of them; then the same tree laid out whole (the
    // indent set again lays out everything) must draw and hit the same.
    std::mt19937 random(11);
    // Enough lines for several of the index's chunks.
    for (int t = 0; t < 12; ++t)
    {
        Node* title = tree->GetRootNode()->Add("t", "Title " + std::to_string(t), nullptr);
        for (int l = 0; l < 100; ++l)
            title->Add("l", "Leaf " + std::to_string(l), nullptr);
    }
    std::vector<Node*> nodes;
    std::function<void(Node*)> gather = [&](Node* n)
    {
        nodes.push_back(n);
        for (const auto& child : n->GetChildren())
            gather(child.get());
    };
    gather(tree->GetRootNode());
    // Seldom the root: a change there lays out everything anyway.
    auto pick = [&] { return nodes[random() % 10 == 0 ? 0 : 1 + random() % (nodes.size() - 1)]; };
    auto forget = [&](Node* gone)
    {
        nodes.erase(std::remove_if(nodes.begin(), nodes.end(),
                                   [gone](Node* n)
                                   {
                                       for (; n; n = n->GetParent())
                                           if (n == gone)
                                               return true;
                                       return false;
                                   }),
                    nodes.end());
    };
    struct Seen
    {
        std::vector<std::string> drawn;
        std::vector<Rectf> hits;
        std::vector<bool> clipped;
        std::vector<Node*> found;
    };
    auto look = [&]
    {
        Seen seen;
        moxietest::pointerTo(799, 599); // nothing hovered while drawing
        for (const auto& quad : drawnBy(*tree))
        {
            std::ostringstream text;
            text << quad;
            seen.drawn.push_back(text.str());
        }
        for (Node* node : nodes)
        {
            seen.hits.push_back(node->GetHitRect());
            seen.clipped.push_back(node->IsClipped());
        }
        for (float y = 12; y < 210; y += 5)
        {
            moxietest::pointerTo(60, y);
            seen.found.push_back(focused.empty() ? nullptr : focused.back());
        }
        return seen;
    };
    std::size_t mostLines = 0;
    for (int round = 0; round < 60; ++round)
    {
        for (int change = 0; change < 1 + static_cast<int>(random() % 4); ++change)
        {
            Node* node = pick();
            switch (random() % 9)
            {
            case 0:
            case 1:
            case 2:
            case 3:
                nodes.push_back(node->Add("n", "Line " + std::to_string(random() % 1000), nullptr));
                break;
            case 4:
                if (node->GetParent() && node->GetNbDescendants() < 4)
                {
                    forget(node);
                    node->GetParent()->Remove(node);
                }
                break;
            case 5:
                if (node->GetParent()) // the root's closing closes every title
                    node->SetOpened(!node->IsOpened());
                break;
            case 6:
                node->SetText(random() % 4 == 0 ? "" : "Text " + std::to_string(random() % 100));
                break;
            case 7:
            {
                const unsigned height = random() % 3 == 0 ? 30 : 0;
                node->SetPixelHeight(height, random() % 2 == 0);
                break;
            }
            default:
                node->Select(true, random() % 2 == 0);
            }
        }
        if (round % 5 == 4)
        {
            // A click on a line leaves exactly that line selected, whatever was before.
            const Vector2f at(60, 20 + static_cast<float>(random() % 150));
            bool onNavigator = false;
            Node* hit = tree->GetRootNode()->GetNodeAt(at, onNavigator);
            moxietest::click(at.d_x, at.d_y);
            const auto selected =
                std::count_if(nodes.begin(), nodes.end(), [](Node* n) { return n->IsSelected(); });
            if (hit)
            {
                EXPECT_EQ(selected, 1) << "round " << round;
                EXPECT_TRUE(hit->IsSelected()) << "round " << round;
            }
        }
        if (round % 3 == 1)
            tree->GetScrollablePane()->setVerticalScrollPosition(0.1f * (random() % 8));
        const Seen changed = look();
        tree->SetPixelIndent(tree->GetPixelIndent());
        const Seen whole = look();
        ASSERT_EQ(changed.drawn, whole.drawn) << "round " << round;
        ASSERT_EQ(changed.hits, whole.hits) << "round " << round;
        ASSERT_EQ(changed.clipped, whole.clipped) << "round " << round;
        ASSERT_EQ(changed.found, whole.found) << "round " << round;
        mostLines = std::max(mostLines, tree->GetLaidOutLineCount());
    }
    EXPECT_GT(mostLines, 1000u);
}

TEST_F(TreeViewTest, ChangesBeforeOneDrawKeepTheLastDrawnPlacesAndForgetWhatLeft)
{
    Node* root = tree->GetRootNode();
    Node* a = root->Add("A", "Title A", nullptr);
    a->Add("a1", "Leaf a1", nullptr);
    Node* b = root->Add("B", "Title B", nullptr);
    Node* b1 = b->Add("b1", "Leaf b1", nullptr);
    drawnBy(*tree);
    const Rectf drawn = b1->GetHitRect();
    // A line added above, then b1 losing its line: b1 keeps where the last draw put it.
    a->Add("a2", "Leaf a2", nullptr);
    b1->SetText("");
    drawnBy(*tree);
    EXPECT_EQ(b1->GetHitRect(), drawn);
    b1->SetText("Leaf b1");
    drawnBy(*tree);
    EXPECT_EQ(b1->GetHitRect().top(), drawn.top() + drawn.getHeight() + 3);

    // Nodes that leave before the draw leave no line behind: an empty title's children, a
    // subtree part of which left already.
    Node* empty = a->Add("E", "", nullptr);
    empty->Add("e1", "Under the empty one", nullptr);
    Node* p = b->Add("P", "Title P", nullptr);
    Node* x = p->Add("x", "Leaf x", nullptr);
    p->Add("y", "Leaf y", nullptr);
    drawnBy(*tree);
    const std::size_t lines = tree->GetLaidOutLineCount();
    a->Remove(empty);
    p->Remove(x);
    b->Remove(p);
    drawnBy(*tree);
    EXPECT_EQ(tree->GetLaidOutLineCount(), lines - 4);

    // An icon width set by hand lasts until the line is drawn again.
    a->SetIconWidth(40);
    drawnBy(*tree);
    EXPECT_LT(a->GetIconWidth(), 40u);
}
