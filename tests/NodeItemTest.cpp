#include "looks/MXSmartButtonNodeItem.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "widgets/ButtonEx.h"
#include "widgets/TextItem.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/System.h>
#include <CEGUI/WindowManager.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;

namespace
{
using Node = SmartButtonNodeItem;

Node& node(const char* name, float w = 100, float h = 20)
{
    auto& n = static_cast<Node&>(
        *WindowManager::getSingleton().createWindow("MoxieLook/SmartButtonNodeItem", name));
    n.setSize(USize(cegui_absdim(w), cegui_absdim(h)));
    return n;
}

// A host's frame: a time pulse, then drawing.
void frame()
{
    moxietest::context().injectTimePulse(0.016f);
    System::getSingleton().renderAllGUIContexts();
}

const Image* image(const char* name)
{
    return &ImageManager::getSingleton().get(String("MoxieLook/") + name);
}

class NodeItemTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        root = &node("root");
        root->setPosition(UVector2(cegui_absdim(100), cegui_absdim(300)));
        moxietest::freshSheet().addChild(root);
    }

    Node* root = nullptr;
};
} // namespace

TEST_F(NodeItemTest, SelectionSpreadsUpAndDeselectsSiblingsAndSubtrees)
{
    Node& a = node("a");
    Node& b = node("b");
    root->AddNode(&a);
    root->AddNode(&b);
    Node& a1 = node("a1");
    Node& a2 = node("a2");
    a.AddNode(&a1);
    a.AddNode(&a2);
    Node& deep = node("deep");
    a1.AddNode(&deep);
    std::vector<std::string> events;
    for (Node* n : {&a, &b, &a1, &deep})
    {
        n->subscribeEvent(NodeItem::EventTitleSelectedStateChanged, [&events, n]
                          { events.push_back(std::string(n->getName().c_str()) + "+"); });
        n->subscribeEvent(NodeItem::EventLeafSelectedStateChanged, [&events, n]
                          { events.push_back(std::string(n->getName().c_str()) + "."); });
    }

    EXPECT_TRUE(root->IsSelected()); // a root always is
    EXPECT_TRUE(a.isVisible());
    EXPECT_FALSE(a1.isVisible());
    b.SetSelected(true);
    events.clear();

    deep.SetSelected(true); // spreads up: a1, then a (which unselects b)
    EXPECT_TRUE(a1.IsSelected());
    EXPECT_TRUE(a.IsSelected());
    EXPECT_FALSE(b.IsSelected());
    EXPECT_TRUE(deep.isVisible());
    EXPECT_EQ(events, (std::vector<std::string>{"b.", "a+", "a1+", "deep."}));

    // Deselecting a hides its children and deselects the whole subtree.
    a.SetSelected(false);
    EXPECT_FALSE(a1.isVisible());
    EXPECT_FALSE(a1.IsSelected());
    EXPECT_FALSE(deep.IsSelected());

    // A click on a node's button toggles it.
    frame();
    const Rectf button = b.GetButton()->getUnclippedOuterRect().get();
    moxietest::click(button.left() + 5, button.top() + 5);
    EXPECT_TRUE(b.IsSelected());

    // With multi selection the siblings stay selected.
    a.SetMultiSelectionEnabled(true);
    a.SetSelected(true);
    EXPECT_TRUE(b.IsSelected());

    // The last child node removed, the node is deselected.
    a.RemoveChild(&a1);
    a.RemoveChildAtIdx(0);
    EXPECT_FALSE(a.IsSelected());
    WindowManager::getSingleton().destroyWindow(&a1);
    WindowManager::getSingleton().destroyWindow(&a2);
}

TEST_F(NodeItemTest, ColumnsByAlignmentIndentationAndMargin)
{
    Node& a = node("a", 100, 20);
    Node& b = node("b", 100, 20);
    root->setProperty("ChildMargin", "5");
    root->setProperty("ChildAlignment", "Top");
    root->AddNode(&a);
    root->AddNode(&b);
    EXPECT_EQ(a.getPosition(), UVector2(cegui_absdim(10), cegui_absdim(-50)));
    EXPECT_EQ(b.getPosition(), UVector2(cegui_absdim(10), cegui_absdim(-25)));

    // Inherit under an inheriting root lays out as Bottom.
    root->setProperty("ChildAlignment", "Inherit");
    Node& a1 = node("a1", 50, 10);
    a.AddNode(&a1);
    EXPECT_EQ(a.getProperty("ChildAlignment"), "Bottom");
    EXPECT_EQ(a1.getPosition(), UVector2(cegui_absdim(10), cegui_absdim(20)));
    root->setProperty("ChildAlignment", "Centre");
    EXPECT_EQ(a.getProperty("ChildAlignment"), "Centre");
    root->setProperty("ChildAlignment", "Center"); // not a value: ignored
    EXPECT_EQ(root->getProperty("ChildAlignment"), "Centre");
    root->DoLayout();
    // Centre: a column taller than the node starts at its top.
    EXPECT_EQ(a.getPosition().d_y, cegui_absdim(0));

    EXPECT_EQ(root->getProperty("ChildIndentation"), "");
    EXPECT_EQ(root->getProperty("ChildMargin"), "");
    EXPECT_EQ(root->getProperty("MultiSelectionEnabled"), "");
    EXPECT_EQ(root->getPropertyInstance("ChildIndentation")->getHelp(),
              "Ajust, in absolute pixel value, the child indentation");
    root->setProperty("ChildIndentation", "12.5px");
    EXPECT_FLOAT_EQ(root->GetChildIndentation(), 12.5f);
    root->setProperty("ChildIndentation", "none");
    EXPECT_FLOAT_EQ(root->GetChildIndentation(), 0.0f);
    EXPECT_THROW(root->setProperty("ChildMargin", "1e99"), InvalidRequestException);

    // Every child that is not the button counts, decoration too.
    Window* label = WindowManager::getSingleton().createWindow("MoxieLook/TextItem");
    root->addChild(label);
    EXPECT_EQ(root->GetNbChildren(), 3u);
    EXPECT_EQ(root->GetChildIndex(&b), 1u);
    EXPECT_EQ(root->GetChildIndex(&a1), 2u);
    EXPECT_EQ(root->GetChildAtIdx(1), &b);
}

TEST_F(NodeItemTest, AddNodeAtIndexGathersTheNodesFromThereOn)
{
    Node& a = node("a");
    Node& b = node("b");
    Node& c = node("c");
    root->AddNode(&a); // window children: button, a
    root->AddNode(&b); // button, a, b
    root->AddNodeAtIndex(&c, 1);
    EXPECT_EQ(root->GetChildAtIdx(0), &c);
    EXPECT_EQ(root->GetChildAtIdx(1), &a);
    EXPECT_EQ(root->GetChildAtIdx(2), &b);
    // At position 0 stands the button: it stops the gathering, c goes last.
    Node& d = node("d");
    root->AddNodeAtIndex(&d, 0);
    EXPECT_EQ(root->GetChildAtIdx(3), &d);
}

TEST_F(NodeItemTest, ResizeTakesItsStepsOnePerFrame)
{
    Node& child = node("child");
    root->AddNode(&child);
    child.SetAbsoluteSize(Sizef(100, 20), false);
    child.SetAbsoluteSize(Sizef(140, 20), true);
    child.setProperty("ResizeStepNumber", "4");
    frame();
    child.SetSelected(true);
    std::vector<float> widths;
    for (int i = 0; i < 5; ++i)
    {
        frame();
        widths.push_back(child.getPixelSize().d_width);
    }
    EXPECT_EQ(widths, (std::vector<float>{110, 120, 130, 140, 140}));
    EXPECT_EQ(child.GetButton()->getPixelSize().d_width, 140);

    // Steps smaller than a pixel: CEGUI rounds them away and the rest carries on.
    Node& small = node("small");
    root->AddNode(&small);
    small.SetAbsoluteSize(Sizef(100, 20), false);
    small.SetAbsoluteSize(Sizef(103, 20), true);
    small.SetResizeStepNumber(4);
    frame();
    small.SetSelected(true);
    widths.clear();
    for (int i = 0; i < 5; ++i)
    {
        frame();
        widths.push_back(small.getPixelSize().d_width);
    }
    // 100.75 -> 101; 101 + 0.67 - 0.25 -> 101; then 102 and 103.
    EXPECT_EQ(widths, (std::vector<float>{101, 101, 102, 103, 103}));

    // A size between two pixels is reached at the nearer one and stays there.
    small.SetAbsoluteSize(Sizef(110.4f, 20), true);
    widths.clear();
    for (int i = 0; i < 8; ++i)
    {
        frame();
        widths.push_back(small.getPixelSize().d_width);
    }
    EXPECT_EQ(std::vector<float>(widths.begin() + 4, widths.end()),
              (std::vector<float>{110, 110, 110, 110}));

    child.SetResizeStepNumber(1);
    child.SetSelected(false);
    frame();
    EXPECT_EQ(child.getPixelSize().d_width, 100);
    child.SetResizeStepNumber(0.5f);
    child.SetSelected(true);
    frame();
    EXPECT_EQ(child.getPixelSize().d_width, 140);

    // A (0, 0) size keeps the node's size in that state.
    child.SetAbsoluteSize(Sizef(0, 0), false);
    child.SetSelected(false);
    frame();
    frame();
    EXPECT_EQ(child.getPixelSize().d_width, 140);
}

TEST_F(NodeItemTest, IconsCounterAndOpenedImage)
{
    Node& child = node("child", 100, 30);
    root->AddNode(&child);
    EXPECT_EQ(root->GetTextItem()->getText(), "1");
    EXPECT_EQ(child.GetTextItem()->getText(), ""); // no children, no count
    EXPECT_EQ(child.GetTextItem()->getTextColour().getARGB(), 0xFFFF0000u);
    EXPECT_TRUE(child.GetTextItem()->isDisabled());
    EXPECT_EQ(child.GetButton()->getName(), "child__autoButton");
    EXPECT_EQ(child.GetTextItem()->getName(), "child__autoTextItem");

    child.setProperty("NormalIcon", "MoxieLook/IconStarselected:true");
    EXPECT_EQ(child.GetIconToUse(true), image("IconStar"));
    EXPECT_EQ(child.GetAlignment(image("IconStar"), true), MultiImage::None);
    EXPECT_EQ(child.GetIconToUse(false), nullptr);
    child.setProperty("NormalIcon", "MoxieLook/IconFolderselected:false imageAlignment:Right");
    child.setProperty("HoverIcon", "MoxieLook/IconInfoselected:false imageAlignment:Left");
    EXPECT_EQ(child.GetAlignment(image("IconFolder"), false), MultiImage::Right);
    EXPECT_EQ(child.GetAlignment(image("IconHeart"), false), 9);
    EXPECT_EQ(child.GetIconToUse(false), image("IconFolder")); // not hovered
    EXPECT_THROW(child.setProperty("NormalIcon", "MoxieLook/IconStar"), InvalidRequestException);
    EXPECT_EQ(child.getProperty("NormalIcon"), "");

    frame();
    EXPECT_TRUE(moxietest::find(moxietest::drawnBy(*child.GetButton()), "IconFolder"));
    moxietest::pointerTo(child.GetButton()->getUnclippedOuterRect().get().left() + 4,
                         child.GetButton()->getUnclippedOuterRect().get().top() + 4);
    frame();
    EXPECT_EQ(child.GetIconToUse(false), image("IconInfo"));
    EXPECT_EQ(child.GetButton()->GetImage(0), image("IconInfo"));

    child.setProperty("SmartAbsoluteSize", "w:120 h:30 selected:true");
    EXPECT_EQ(child.GetAbsoluteSize(true), Sizef(120, 30));
    EXPECT_THROW(child.setProperty("SmartAbsoluteSize", "w:120 h:30"), InvalidRequestException);

    // The opened image needs room beside the button while selected.
    child.SetOpenedImage(image("PopupMenuArrow"));
    child.SetResizeStepNumber(1);
    child.SetSelected(true);
    frame();
    EXPECT_EQ(child.getPixelSize().d_width, 128); // 120 + the 8-pixel arrow
    EXPECT_EQ(child.GetButton()->getPixelSize().d_width, 120);
    EXPECT_EQ(static_cast<MXSmartButtonNodeItem&>(child).openedImageRect(),
              Rectf(120, 11, 128, 19));
}
