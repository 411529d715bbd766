// The types the stock CEGUI skins have beside the module's own: drawn from the family's
// images, with the stock skins' properties, laid out for their children.
#include "looks/MXEditbox.h"
#include "looks/MXPlainWindows.h"
#include "looks/MXProgressBar.h"
#include "looks/MXStatics.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "support/SheetTest.h"
#include "support/Thrown.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/FontManager.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/WindowFactoryManager.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Combobox.h>
#include <CEGUI/widgets/DefaultWindow.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/FrameWindow.h>
#include <CEGUI/widgets/ItemEntry.h>
#include <CEGUI/widgets/ItemListbox.h>
#include <CEGUI/widgets/MenuItem.h>
#include <CEGUI/widgets/Menubar.h>
#include <CEGUI/widgets/PopupMenu.h>
#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <CEGUI/widgets/TabButton.h>
#include <CEGUI/widgets/TabControl.h>
#include <CEGUI/widgets/Thumb.h>
#include <CEGUI/widgets/Titlebar.h>
#include <CEGUI/widgets/Tree.h>
#include <CEGUI/widgets/TreeItem.h>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;
using moxietest::argb;
using moxietest::drawnBy;
using moxietest::DrawnQuad;
using moxietest::find;
using moxietest::spanOf;

namespace
{
using StockSkinTypesTest = moxietest::SheetTest;

} // namespace

TEST_F(StockSkinTypesTest, LabelsAreDefaultWindowsTakingTheStockFormattingNames)
{
    Window& label = moxietest::place("MoxieLook/Label", 10, 10, 200, 30);
    EXPECT_NE(dynamic_cast<DefaultWindow*>(&label), nullptr);
    label.setText("Volume");
    auto quads = drawnBy(label);
    ASSERT_EQ(quads.size(), 1u);
    const float width = label.getFont()->getTextExtent("Volume");
    EXPECT_NEAR(quads[0].rect.left(), (200 - width) / 2, 1.5f); // centred by default
    EXPECT_EQ(argb(quads[0].colours.d_top_left), 0xFF000000u);

    // A layout written for a stock skin names CEGUI 0.8's formatting.
    label.setProperty("HorzFormatting", "RightAligned");
    EXPECT_NEAR(drawnBy(label)[0].rect.right(), 200, 1.5f);
    label.setProperty("HorzFormatting", "CentreAligned");
    EXPECT_NEAR(drawnBy(label)[0].rect.left(), (200 - width) / 2, 1.5f);
    label.disable();
    EXPECT_EQ(argb(drawnBy(label)[0].colours.d_top_left), 0xFF888888u);
    // Upright: from the top, then from the bottom.
    label.setProperty("VertFormatting", "TopAligned");
    const float atTop = drawnBy(label)[0].rect.top();
    label.setProperty("VertFormatting", "BottomAligned");
    EXPECT_GT(drawnBy(label)[0].rect.top(), atTop + 5);
}

TEST_F(StockSkinTypesTest, StaticsDrawTheirFrameAndBackgroundAndHoldChildrenInside)
{
    Window& frame = moxietest::place("MoxieLook/Static", 10, 10, 120, 60);
    auto quads = drawnBy(frame);
    ASSERT_EQ(quads.size(), 9u); // background, then eight frame pieces
    EXPECT_EQ(quads[0].image, "StaticFrameFill");
    EXPECT_EQ(quads[1].image, "StaticFrameTopLeft");
    const Rectf fill = quads[0].rect;
    Window* child = &moxietest::child(frame, "MoxieLook/Label", 0, 0, 20, 10);
    EXPECT_EQ(child->getUnclippedOuterRect().get().d_min, Vector2f(10, 10) + fill.d_min);

    frame.setProperty("BackgroundColours", "tl:FFFF0000 tr:FFFF0000 bl:FF0000FF br:FF0000FF");
    frame.setProperty("FrameEnabled", "False");
    quads = drawnBy(frame);
    ASSERT_EQ(quads.size(), 1u);
    EXPECT_EQ(quads[0].rect, Rectf(0, 0, 120, 60)); // the background takes the frame's room
    EXPECT_EQ(argb(quads[0].colours.d_bottom_left), 0xFF0000FFu);
    EXPECT_EQ(child->getUnclippedOuterRect().get().d_min, Vector2f(10, 10));
    frame.setProperty("BackgroundEnabled", "False");
    EXPECT_TRUE(drawnBy(frame).empty());
}

TEST_F(StockSkinTypesTest, AGroupBoxBreaksItsTopEdgeForTheCaptionAndKeepsChildrenBelowIt)
{
    auto& box = moxietest::placeAs<MXGroupBox>("MoxieLook/GroupBox", 10, 10, 200, 100);
    Window* child = &moxietest::child(box, "MoxieLook/Label", 0, 0, 20, 10);
    const float uncaptioned = child->getUnclippedOuterRect().get().top();
    box.setText("Sound");
    const Rectf caption = box.captionArea();
    ASSERT_GT(caption.getWidth(), 0);
    // The children move below the caption's band, the whole frame with them.
    EXPECT_GT(child->getUnclippedOuterRect().get().top(), uncaptioned);

    const auto quads = drawnBy(box);
    bool textDrawn = false;
    for (const DrawnQuad& quad : quads)
    {
        if (quad.image == "text")
        {
            textDrawn = true;
            EXPECT_GE(quad.rect.left(), caption.left());
            continue;
        }
        // No piece of the frame's top edge shows inside the caption's span.
        if (quad.image == "StaticFrameTop")
        {
            EXPECT_TRUE(quad.rect.right() <= caption.left() + 0.5f ||
                        quad.rect.left() >= caption.right() - 0.5f)
                << quad;
        }
    }
    EXPECT_TRUE(textDrawn);
    EXPECT_TRUE(find(quads, "StaticFrameBottom"));

    // Without its frame it still shows its caption, and draws no frame piece.
    box.setProperty("FrameEnabled", "False");
    const auto bare = drawnBy(box);
    EXPECT_TRUE(find(bare, "text"));
    EXPECT_FALSE(find(bare, "StaticFrameTop"));
    EXPECT_FALSE(find(bare, "StaticFrameTopLeft"));
}

TEST_F(StockSkinTypesTest, ImageIconAndSystemButtonsDrawTheirPictures)
{
    Window& image = moxietest::place("MoxieLook/ImageButton", 10, 10, 48, 32);
    EXPECT_NE(dynamic_cast<PushButton*>(&image), nullptr);
    image.setProperty("NormalImage", "MoxieLook/ToolButtonNormal");
    image.setProperty("PushedImage", "MoxieLook/ToolButtonClicked");
    auto quads = drawnBy(image);
    ASSERT_EQ(quads.size(), 1u); // the picture alone, no frame
    EXPECT_EQ(quads[0].image, "ToolButtonNormal");
    EXPECT_EQ(quads[0].rect, Rectf(0, 0, 48, 32));
    moxietest::pointerTo(30, 20); // hovered, no hover picture: the normal one
    EXPECT_EQ(moxietest::imageNames(drawnBy(image)), std::vector<std::string>{"ToolButtonNormal"});
    moxietest::leftDown();
    EXPECT_EQ(moxietest::imageNames(drawnBy(image)), std::vector<std::string>{"ToolButtonClicked"});
    moxietest::leftUp();
    image.disable();
    quads = drawnBy(image);
    ASSERT_EQ(quads.size(), 1u);
    EXPECT_EQ(argb(quads[0].colours.d_top_left), 0xFF7F7F7Fu); // greyed
    image.enable();
    EXPECT_EQ(argb(drawnBy(image)[0].colours.d_top_left), 0xFFFFFFFFu); // and back

    Window& icon = moxietest::place("MoxieLook/IconButton", 100, 10, 40, 32);
    icon.setProperty("IconImage", "MoxieLook/IconStar");
    quads = drawnBy(icon);
    ASSERT_GE(quads.size(), 2u);
    EXPECT_EQ(quads.front().image, "ButtonArrowFill");
    const auto star = find(quads, "IconStar");
    ASSERT_TRUE(star);
    const Sizef starSize = star->rect.getSize();
    EXPECT_NEAR(star->rect.left(), (40 - starSize.d_width) / 2, 0.51f);
    EXPECT_NEAR(star->rect.top(), (32 - starSize.d_height) / 2, 0.51f);

    Window& system = moxietest::place("MoxieLook/SystemButton", 200, 10, 16, 16);
    EXPECT_TRUE(system.isNonClient());
    EXPECT_EQ(moxietest::imageNames(drawnBy(system)),
              std::vector<std::string>{"CloseButtonNormal"});
    system.setProperty("NormalImage", "MoxieLook/MinimizeButtonNormal");
    EXPECT_EQ(moxietest::imageNames(drawnBy(system)),
              std::vector<std::string>{"MinimizeButtonNormal"});
}

TEST_F(StockSkinTypesTest, TheComboEditPartAndTheBroadBarWorkAsTheirOwnTypes)
{
    auto& edit = moxietest::placeAs<Editbox>("MoxieLook/ComboEditbox", 10, 10, 180, 26);
    moxietest::click(100, 20);
    moxietest::type("abc");
    EXPECT_EQ(edit.getText(), "abc");
    EXPECT_EQ(edit.getCaretIndex(), 3u);

    auto& bar = static_cast<Scrollbar&>(
        moxietest::place("MoxieLook/LargeVerticalScrollbar", 300, 10, 24, 200));
    EXPECT_EQ(bar.getThumb()->getType(), "MoxieLook/LargeVerticalScrollbarThumb");
    bar.setDocumentSize(100);
    bar.setPageSize(20);
    bar.setStepSize(5);
    const Vector2f arrow = moxietest::centreOf(*bar.getIncreaseButton());
    moxietest::click(arrow.d_x, arrow.d_y);
    EXPECT_EQ(bar.getScrollPosition(), 5);
    moxietest::wheel(arrow.d_x, arrow.d_y, -1);
    EXPECT_EQ(bar.getScrollPosition(), 10);
}

TEST_F(StockSkinTypesTest, SegmentedBarsLightTheirBlocksFromTheStartEnd)
{
    // Ten blocks of 8 with gaps of 2 in 98 pixels; 35 % lights the first four (3.5 rounds up).
    auto blocks = meterSegments(Rectf(0, 0, 98, 10), 0.35f, 8, 2, false, false);
    ASSERT_EQ(blocks.size(), 10u);
    EXPECT_EQ(blocks[0].rect, Rectf(0, 0, 8, 10));
    EXPECT_EQ(blocks[1].rect.left(), 10);
    EXPECT_EQ(std::count_if(blocks.begin(), blocks.end(), [](auto& b) { return b.lit; }), 4);
    EXPECT_TRUE(blocks[3].lit);
    EXPECT_FALSE(blocks[4].lit);
    // Upright, the first block is at the bottom; reversed, at the top.
    blocks = meterSegments(Rectf(0, 0, 10, 98), 0.1f, 8, 2, true, false);
    EXPECT_EQ(blocks[0].rect, Rectf(0, 90, 10, 98));
    EXPECT_TRUE(blocks[0].lit);
    blocks = meterSegments(Rectf(0, 0, 10, 98), 0.1f, 8, 2, true, true);
    EXPECT_EQ(blocks[0].rect, Rectf(0, 0, 10, 8));
    // Nothing to light, nothing to place: no numbers, no room.
    EXPECT_FALSE(meterSegments(Rectf(0, 0, 98, 10), NAN, 8, 2, false, false)[0].lit);
    EXPECT_TRUE(meterSegments(Rectf(0, 0, 5, 10), 1, 8, 2, false, false).empty());

    // A meter at its peak: green blocks low, orange higher, red at the top.
    auto& meter = moxietest::placeAs<MXVUMeter>("MoxieLook/VUMeter", 10, 10, 22, 110);
    meter.setProgress(1.0f);
    const auto quads = drawnBy(meter);
    std::vector<argb_t> blockColours;
    for (const DrawnQuad& quad : moxietest::allOf(quads, "MeterSegment"))
        blockColours.push_back(argb(quad.colours.d_top_left));
    ASSERT_EQ(blockColours.size(), meter.segments().size());
    EXPECT_EQ(blockColours.front(), 0xFF2E9B44u);
    EXPECT_EQ(blockColours.back(), 0xFFD9443Cu);
    EXPECT_NE(std::find(blockColours.begin(), blockColours.end(), 0xFFF5A44Au), blockColours.end());
    meter.setProgress(0.0f);
    for (const DrawnQuad& quad : moxietest::allOf(drawnBy(meter), "MeterSegment"))
        EXPECT_EQ(argb(quad.colours.d_top_left), 0xFFC5CED9u);
}

TEST_F(StockSkinTypesTest, ASegmentedBarFarLongerThanTheDisplayDrawsTheBlocksInView)
{
    // Asked for what can be seen, the blocks are those that meet it, numbered as in the whole.
    const Rectf visible(500, 0, 540, 10);
    const auto seen = meterSegments(Rectf(0, 0, 98, 10), 1, 8, 2, false, false, &visible);
    EXPECT_TRUE(seen.empty());
    const auto all = meterSegments(Rectf(0, 0, 1e6f, 10), 0.5f, 8, 2, false, false);
    const auto some = meterSegments(Rectf(0, 0, 1e6f, 10), 0.5f, 8, 2, false, false, &visible);
    ASSERT_FALSE(some.empty());
    EXPECT_LE(some.size(), 6u);
    for (const MeterSegment& block : some)
    {
        EXPECT_TRUE(block.rect.right() > visible.left() - 10 &&
                    block.rect.left() < visible.right());
        const auto index = static_cast<std::size_t>(block.rect.left() / 10);
        EXPECT_EQ(block.rect, all[index].rect);
        EXPECT_EQ(block.lit, all[index].lit);
    }
    Window& meter = moxietest::place("MoxieLook/VUMeter", 10, 10, 22, 2e9f);
    EXPECT_LT(drawnBy(meter).size(), 200u);
}

TEST_F(StockSkinTypesTest, OneMenuItemTypeServesBarsAndPopupsAlike)
{
    WindowManager& windows = WindowManager::getSingleton();
    auto& bar = moxietest::placeAs<Menubar>("MoxieLook/Menubar", 0, 0, 400, 26);
    auto make = [&](Window& parent, const char* type, const String& text)
    {
        auto* item = static_cast<MenuItem*>(windows.createWindow(type));
        item->setText(text);
        parent.addChild(item);
        return item;
    };
    MenuItem* file = make(bar, "MoxieLook/MenuItem", "File");
    MenuItem* edit = make(bar, "MoxieLook/MenubarItem", "File");
    auto* popup = static_cast<PopupMenu*>(windows.createWindow("MoxieLook/PopupMenu"));
    file->addChild(popup);
    MenuItem* open = make(*popup, "MoxieLook/MenuItem", "Open...");
    MenuItem* twin = make(*popup, "MoxieLook/PopupMenuItem", "Open...");
    int clicks = 0;
    open->subscribeEvent(MenuItem::EventClicked, [&clicks] { ++clicks; });

    // Measured as the bar's own items on the bar, as the pop-up's in the pop-up.
    drawnBy(bar);
    EXPECT_EQ(file->getPixelSize(), edit->getPixelSize());
    EXPECT_EQ(file->getAutoPopupTimeout(), 0.0f); // a bar opens by click
    moxietest::clickOn(*file);
    ASSERT_TRUE(popup->isVisible());
    drawnBy(*popup);
    EXPECT_EQ(open->getPixelSize(), twin->getPixelSize());
    EXPECT_GT(open->getAutoPopupTimeout(), 0.0f);
    moxietest::clickOn(*open);
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(popup->isVisible());
}

TEST_F(StockSkinTypesTest, AnItemListboxSelectsScrollsAndHoversItsItemWindows)
{
    auto& list = moxietest::placeAs<ItemListbox>("MoxieLook/ItemListbox", 10, 10, 200, 110);
    for (int i = 0; i < 12; ++i)
    {
        Window* item = WindowManager::getSingleton().createWindow("MoxieLook/ListboxItem");
        item->setText("Item " + PropertyHelper<int>::toString(i));
        list.addItem(static_cast<ItemEntry*>(item));
    }
    int changes = 0;
    list.subscribeEvent(ItemListbox::EventSelectionChanged, [&changes] { ++changes; });
    drawnBy(list);
    Scrollbar* bar = list.getVertScrollbar();
    ASSERT_TRUE(bar->isVisible()); // twelve rows do not fit

    // The items lie inside the frame, clear of the bar.
    ItemEntry* third = list.getItemFromIndex(2);
    const Rectf row = third->getUnclippedOuterRect().get();
    const Rectf barRect = bar->getUnclippedOuterRect().get();
    EXPECT_GT(row.left(), 10);
    EXPECT_LE(row.right(), barRect.left());

    const Vector2f at = moxietest::centreOf(*third);
    moxietest::click(at.d_x, at.d_y);
    EXPECT_EQ(list.getFirstSelectedItem(), third);
    EXPECT_GE(changes, 1); // CEGUI's list reports the old selection going, then the new one
    changes = 0;
    const auto quads = drawnBy(*third);
    ASSERT_FALSE(quads.empty());
    EXPECT_EQ(quads.front().image, "ListboxSelectionBrush");
    EXPECT_EQ(quads.front().rect.getWidth(), row.getWidth());

    // The wheel moves the items; a click then picks the item now under the pointer.
    moxietest::wheel(at.d_x, at.d_y, -1);
    EXPECT_GT(bar->getScrollPosition(), 0);
    drawnBy(list);
    Window* under = moxietest::context().getRootWindow()->getTargetChildAtPosition(at);
    ASSERT_TRUE(under);
    ASSERT_NE(under, third);
    moxietest::click(at.d_x, at.d_y);
    EXPECT_EQ(list.getFirstSelectedItem(), under);
    EXPECT_GE(changes, 1);
    EXPECT_FALSE(third->isSelected());
    // The item the pointer rests on shows the hover brush; the one it left, none.
    ItemEntry* below = list.getItemFromIndex(list.getItemIndex(static_cast<ItemEntry*>(under)) + 1);
    moxietest::hover(*below);
    EXPECT_EQ(moxietest::imageNames(drawnBy(*below)).front(), "ListboxHoverBrush");
    EXPECT_EQ(moxietest::imageNames(drawnBy(*under)).front(), "ListboxSelectionBrush");

    // By keys: Home and End move the one selection and keep it in view.
    list.activate();
    moxietest::press(Key::Home);
    EXPECT_EQ(list.getItemIndex(list.getFirstSelectedItem()), 0u);
    EXPECT_EQ(bar->getScrollPosition(), 0);
    moxietest::press(Key::End);
    EXPECT_EQ(list.getItemIndex(list.getFirstSelectedItem()), 11u);
    EXPECT_GT(bar->getScrollPosition(), 0);
    EXPECT_EQ(list.getSelectedCount(), 1u);
}

TEST_F(StockSkinTypesTest, CeguisOwnTreeOpensBranchesAndSelectsItemsOnTheDarkField)
{
    auto& tree = moxietest::placeAs<Tree>("MoxieLook/Tree", 10, 10, 240, 140);
    auto* fruit = new TreeItem("Fruit");
    tree.addItem(fruit);
    for (const char* name : {"Apples", "Bananas"})
        fruit->addItem(new TreeItem(name));
    auto* bread = new TreeItem("Bread");
    tree.addItem(bread);
    int opened = 0, selections = 0;
    tree.subscribeEvent(Tree::EventBranchOpened, [&opened] { ++opened; });
    tree.subscribeEvent(Tree::EventSelectionChanged, [&selections] { ++selections; });

    auto quads = drawnBy(tree);
    ASSERT_GE(quads.size(), 10u);
    EXPECT_EQ(quads[0].image, "TreeViewFill");
    EXPECT_EQ(quads[1].image, "StaticFrameListTopLeft");
    const auto closed = find(quads, "NavigateClose");
    ASSERT_TRUE(closed); // Fruit's branch, closed
    EXPECT_FALSE(find(quads, "NavigateOpen"));

    // A click on the branch button opens it; the items under it show.
    const Vector2f origin = tree.getUnclippedOuterRect().get().d_min;
    const Vector2f button = origin + (closed->rect.d_min + closed->rect.d_max) * 0.5f;
    moxietest::click(button.d_x, button.d_y);
    EXPECT_TRUE(fruit->getIsOpen());
    EXPECT_EQ(opened, 1);
    quads = drawnBy(tree);
    EXPECT_TRUE(find(quads, "NavigateOpen"));
    // Four rows of text now: the glyph runs reach the fourth row.
    float textBottom = 0;
    for (const DrawnQuad& quad : quads)
        if (quad.image == "text")
            textBottom = std::max(textBottom, quad.rect.bottom());
    EXPECT_GT(textBottom, 3 * fruit->getPixelSize().d_height);

    // A click on an item's text selects it, under the accent-tinted brush.
    const float row = fruit->getPixelSize().d_height;
    moxietest::click(origin.d_x + 60, button.d_y + 2 * row); // "Bananas"
    EXPECT_EQ(selections, 1);
    ASSERT_NE(tree.getFirstSelectedItem(), nullptr);
    EXPECT_EQ(tree.getFirstSelectedItem()->getText(), "Bananas");
    const auto brush = find(drawnBy(tree), "ListboxSelectionBrush");
    ASSERT_TRUE(brush);
    EXPECT_EQ(argb(brush->colours.d_top_left), 0xFF3B78D8u);

    // By keys: up the open branch, to it, closing it, on past it, back and open again.
    int closedCount = 0;
    tree.subscribeEvent(Tree::EventBranchClosed, [&closedCount] { ++closedCount; });
    tree.activate();
    moxietest::press(Key::ArrowUp);
    EXPECT_EQ(tree.getFirstSelectedItem()->getText(), "Apples");
    moxietest::press(Key::ArrowLeft); // a leaf: to its branch
    moxietest::press(Key::ArrowLeft); // an open branch: closes
    EXPECT_FALSE(fruit->getIsOpen());
    EXPECT_EQ(closedCount, 1);
    moxietest::press(Key::ArrowDown);
    EXPECT_EQ(tree.getFirstSelectedItem(), bread);
    moxietest::press(Key::ArrowUp);
    moxietest::press(Key::ArrowRight);
    EXPECT_TRUE(fruit->getIsOpen());
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(selections, 5);
}

TEST_F(StockSkinTypesTest, StockPropertiesChangeWhatIsDrawn)
{
    // "TitlebarFont" sets the title bar's font, which draws its text.
    Window& frame = moxietest::place("MoxieLook/FrameWindow", 10, 10, 300, 200);
    frame.setText("Notes");
    Window* bar = static_cast<FrameWindow&>(frame).getTitlebar();
    const float before = drawnBy(*bar).back().rect.getHeight();
    FontManager::getSingleton().createFreeTypeFont("Big", 24, true, "DejaVuSans.ttf");
    frame.setProperty("TitlebarFont", "Big");
    EXPECT_EQ(frame.getProperty("TitlebarFont"), "Big");
    EXPECT_EQ(bar->getFont(), &FontManager::getSingleton().get("Big"));
    EXPECT_GT(drawnBy(*bar).back().rect.getHeight(), before);
    EXPECT_THROW(frame.setProperty("TitlebarFont", "NoSuchFont"), UnknownObjectException);

    // "BlinkCaret" false keeps the caret shown however long the box has focus; both edit
    // boxes, by what they draw.
    for (const char* type : {"MoxieLook/Editbox", "MoxieLook/MultiLineEditbox"})
    {
        SCOPED_TRACE(type);
        Window& box = moxietest::place(type, 10, 250, 200, 60);
        box.activate();
        auto caretDrawn = [&box] { return find(drawnBy(box), "EditboxCarat").has_value(); };
        EXPECT_TRUE(caretDrawn());
        moxietest::context().injectTimePulse(0.6f);
        EXPECT_FALSE(caretDrawn()); // blinking by default
        box.setProperty("BlinkCaret", "False");
        for (int i = 0; i < 5; ++i)
        {
            moxietest::context().injectTimePulse(0.6f);
            EXPECT_TRUE(caretDrawn());
        }
        box.setProperty("BlinkCaret", "True");
        box.setProperty("BlinkCaretTimeout", "2");
        moxietest::context().injectTimePulse(1.0f);
        EXPECT_TRUE(caretDrawn());
        moxietest::context().injectTimePulse(1.5f);
        EXPECT_FALSE(caretDrawn());
        EXPECT_EQ(box.getProperty("BlinkCaretTimeout"), "2");
        EXPECT_THROW(box.setProperty("BlinkCaretTimeout", "-1"), InvalidRequestException);
        WindowManager::getSingleton().destroyWindow(&box);
    }
}

TEST_F(StockSkinTypesTest, StaticTextScrollsLongTextWhenItsBarsAreOn)
{
    auto& text = moxietest::placeAs<MXStaticText>("MoxieLook/StaticText", 10, 10, 200, 60);
    text.setProperty("HorzFormatting", "WordWrapLeftAligned");
    String lines;
    for (int i = 0; i < 12; ++i)
        lines += "Line " + PropertyHelper<int>::toString(i) + "\n";
    text.setText(lines);
    drawnBy(text);
    EXPECT_FALSE(text.getVertScrollbar()->isVisible()); // off by default, as CEGUI's
    // Switched on, the bar and its sizes are there before a draw.
    text.setProperty("VertScrollbar", "True");
    Scrollbar* bar = text.getVertScrollbar();
    ASSERT_TRUE(bar->isVisible());
    EXPECT_GT(PropertyHelper<float>::fromString(text.getProperty("VertScrollDocumentSize")), 60);
    auto quads = drawnBy(text);
    EXPECT_GT(bar->getDocumentSize(), bar->getPageSize());
    EXPECT_EQ(text.getProperty("VertScrollDocumentSize"), bar->getProperty("DocumentSize"));
    const auto run = find(quads, "text");
    ASSERT_TRUE(run);
    // The text leaves room for the bar and moves up as it scrolls, by wheel or property.
    EXPECT_LE(run->rect.right(), bar->getUnclippedOuterRect().get().left() - 10);
    const Vector2f at = moxietest::centreOf(text);
    moxietest::wheel(at.d_x, at.d_y, -1);
    EXPECT_GT(bar->getScrollPosition(), 0);
    text.setProperty("VertScrollPosition", "20");
    EXPECT_EQ(bar->getScrollPosition(), 20);
    // Scrolled, the first line slides under the area's top edge and is cut there.
    const auto scrolled = drawnBy(text);
    EXPECT_LT(find(scrolled, "text")->rect.top(), run->rect.top());
    // Switched off, the bar goes again and no room is kept for it.
    text.setProperty("VertScrollbar", "False");
    EXPECT_FALSE(bar->isVisible());
    EXPECT_FALSE(find(drawnBy(text), "text")->rect.right() > 190);
    text.setProperty("VertScrollbar", "True");
    // Short text needs no bar.
    text.setText("Short");
    drawnBy(text);
    EXPECT_FALSE(bar->isVisible());

    // A line wider than the area, unwrapped, takes the horizontal bar; right-aligned, a
    // short last line stands past the area's right edge until scrolled to.
    text.setProperty("HorzFormatting", "RightAligned");
    text.setProperty("HorzScrollbar", "True");
    text.setText("A single line far too long to be seen whole in two hundred pixels\nEnd");
    // The glyphs drawn reach down to the second line only once "End" shows.
    auto glyphsBottom = [&text] { return spanOf(drawnBy(text), "text").bottom(); };
    const float before = glyphsBottom();
    Scrollbar* across = text.getHorzScrollbar();
    ASSERT_TRUE(across->isVisible());
    EXPECT_EQ(text.getProperty("HorzScrollDocumentSize"), across->getProperty("DocumentSize"));
    EXPECT_EQ(text.getProperty("HorzScrollPageSize"), across->getProperty("PageSize"));
    EXPECT_EQ(text.getProperty("VertScrollPageSize"), bar->getProperty("PageSize"));
    text.setProperty("HorzScrollPosition", "40");
    EXPECT_EQ(across->getScrollPosition(), 40);
    text.setProperty("HorzScrollPosition", "100000"); // clamped to the end
    EXPECT_GT(glyphsBottom(), before + text.getFont()->getLineSpacing() / 2);
}

TEST_F(StockSkinTypesTest, EditBoxesTakeTheStockSkinsColours)
{
    for (const char* type :
         {"MoxieLook/Editbox", "MoxieLook/MultiLineEditbox", "MoxieLook/ComboEditbox"})
    {
        SCOPED_TRACE(type);
        Window& box = moxietest::place(type, 10, 10, 200, 60);
        box.setText("Hello colours");
        box.activate();
        box.setProperty("NormalTextColour", "FF112233");
        box.setProperty("SelectedTextColour", "FFFFEE00");
        box.setProperty("ActiveSelectionColour", "FF00FF00");
        EXPECT_EQ(box.getProperty("NormalTextColour"),
                  "tl:FF112233 tr:FF112233 bl:FF112233 br:FF112233");
        // Unselected, the text takes the normal colour; wholly selected, the selected one
        // over the tinted brush.
        const auto plain = find(drawnBy(box), "text");
        ASSERT_TRUE(plain);
        EXPECT_EQ(argb(plain->colours.d_top_left), 0xFF112233u);
        box.setProperty("SelectionStart", "0");
        box.setProperty("SelectionLength", "13");
        const auto quads = drawnBy(box);
        const auto brush = find(quads, "EditboxSelection");
        ASSERT_TRUE(brush);
        EXPECT_EQ(argb(brush->colours.d_top_left), 0xFF00FF00u);
        EXPECT_EQ(argb(find(quads, "text")->colours.d_top_left), 0xFFFFEE00u);
        // Focus elsewhere: the inactive brush in its own tint.
        box.setProperty("InactiveSelectionColour", "FF0000FF");
        box.deactivate();
        const auto inactive = find(drawnBy(box), "EditboxSelectionInactive");
        ASSERT_TRUE(inactive);
        EXPECT_EQ(argb(inactive->colours.d_top_left), 0xFF0000FFu);
    }
}

TEST_F(StockSkinTypesTest, FrameWindowAndTabControlTakeTheirStockProperties)
{
    Window& frame = moxietest::place("MoxieLook/FrameWindow", 10, 10, 300, 200);
    frame.setText("Notes");
    Window* bar = static_cast<FrameWindow&>(frame).getTitlebar();
    // The stock skins write colours as four corners.
    frame.setProperty("CaptionColour", "tl:FF102030 tr:FF102030 bl:FF102030 br:FF102030");
    EXPECT_EQ(bar->getProperty("CaptionColour"), "tl:FF102030 tr:FF102030 bl:FF102030 br:FF102030");
    EXPECT_EQ(argb(find(drawnBy(*bar), "text")->colours.d_top_left), 0xFF102030u);

    // Tabs made after "TabButtonType" is set are of that type, on this control only.
    auto& tabs = moxietest::placeAs<TabControl>("MoxieLook/TabControl", 10, 250, 300, 150);
    auto& other = moxietest::placeAs<TabControl>("MoxieLook/TabControl", 350, 250, 300, 150);
    tabs.setProperty("TabButtonType", "MoxieLook/TabButton");
    EXPECT_EQ(tabs.getProperty("TabButtonType"), "MoxieLook/TabButton");
    // A type nobody registered: the tab cannot be made on this control...
    tabs.setProperty("TabButtonType", "MoxieLook/NoSuchType");
    EXPECT_THROW(moxietest::addTabs(tabs, {"first"}), UnknownObjectException);
    // ...while the other control still makes its own.
    moxietest::addTabs(other, {"second"});
    EXPECT_EQ(other.getTabCount(), 1u);
    EXPECT_EQ(other.getProperty("TabButtonType"), "MoxieLook/TabButton");
    // A type that exists under another name: the tab is made by it (CEGUI names a window
    // made through an alias by the type the alias stands for).
    WindowFactoryManager::getSingleton().addWindowTypeAlias("Test/OwnTab", "MoxieLook/TabButton");
    tabs.setProperty("TabButtonType", "Test/OwnTab");
    moxietest::addTabs(tabs, {"third"});
    ASSERT_EQ(tabs.getTabCount(), 1u);
    const Window* made = tabs.getChild(TabControl::TabButtonPaneName)->getChildAtIdx(0);
    EXPECT_EQ(made->getType(), "MoxieLook/TabButton");
    EXPECT_EQ(made->getText(), "third");
    WindowFactoryManager::getSingleton().removeWindowTypeAlias("Test/OwnTab",
                                                               "MoxieLook/TabButton");

    // A disabled control greys every tab's text; the selected tab keeps its raised shape.
    moxietest::addTabs(other, {"fourth"});
    other.disable();
    Window* buttons = other.getChild(TabControl::TabButtonPaneName);
    for (size_t i = 0; i < 2; ++i)
    {
        const auto drawn = drawnBy(*buttons->getChildAtIdx(i));
        EXPECT_EQ(argb(find(drawn, "text")->colours.d_top_left), 0xFF888888u);
        EXPECT_EQ(find(drawn, "TabButtonUpperSelected").has_value(),
                  static_cast<TabButton*>(buttons->getChildAtIdx(i))->isSelected());
    }
}

TEST_F(StockSkinTypesTest, ListItemBrushesAndTheGroupCaptionBackdropFollowTheStockProperties)
{
    // A list item: its own text colours and a tinted, replaced selection brush.
    auto& list = moxietest::placeAs<ItemListbox>("MoxieLook/ItemListbox", 10, 10, 200, 110);
    auto* item = static_cast<ItemEntry*>(
        WindowManager::getSingleton().createWindow("MoxieLook/ListboxItem"));
    item->setText("Pear");
    list.addItem(item);
    item->setProperty("TextColour", "FF112233");
    EXPECT_EQ(item->getProperty("TextColour"), "tl:FF112233 tr:FF112233 bl:FF112233 br:FF112233");
    EXPECT_EQ(argb(find(drawnBy(*item), "text")->colours.d_top_left), 0xFF112233u);
    item->setProperty("SelectedTextColour", "FF445566");
    item->setProperty("SelectionColour", "tl:FF800000 tr:FF800000 bl:FF000080 br:FF000080");
    item->setProperty("SelectionBrush", "MoxieLook/ListboxHoverBrush");
    item->setSelected(true);
    auto quads = drawnBy(*item);
    ASSERT_FALSE(quads.empty());
    EXPECT_EQ(quads.front().image, "ListboxHoverBrush");
    EXPECT_EQ(argb(quads.front().colours.d_bottom_left), 0xFF000080u);
    EXPECT_EQ(argb(find(quads, "text")->colours.d_top_left), 0xFF445566u);
    // An unknown image is logged by CEGUI and leaves no image: the look's own brush is back.
    item->setProperty("SelectionBrush", "MoxieLook/NoSuchImage");
    EXPECT_EQ(drawnBy(*item).front().image, "ListboxSelectionBrush");

    Window& box = moxietest::place("MoxieLook/GroupBox", 300, 150, 200, 100);
    box.setText("Sound");
    // No backdrop behind the caption until a layout asks for one; then it lies under the text.
    auto fills = [&box] { return moxietest::allOf(drawnBy(box), "StaticFrameFill"); };
    EXPECT_TRUE(fills().empty()); // a group box has no background of its own
    box.setProperty("TextBackground", "FF203040");
    ASSERT_EQ(fills().size(), 1u);
    const Rectf caption = static_cast<MXGroupBox&>(box).captionArea();
    EXPECT_EQ(fills()[0].rect.left(), caption.left());
    EXPECT_EQ(fills()[0].rect.right(), caption.right());
    EXPECT_NEAR(fills()[0].rect.bottom(), caption.bottom(), 0.5f); // pixel-aligned
    EXPECT_EQ(argb(fills()[0].colours.d_top_left), 0xFF203040u);
    EXPECT_EQ(box.getProperty("BackgroundTextColours"), box.getProperty("TextBackground"));
    EXPECT_EQ(moxietest::imageNames(drawnBy(box)).back(), "text");
}

TEST_F(StockSkinTypesTest, MenusTakeTheStockTintsAndBorderWidth)
{
    auto& bar = moxietest::placeAs<Menubar>("MoxieLook/Menubar", 0, 0, 400, 28);
    auto* file = static_cast<MenuItem*>(
        WindowManager::getSingleton().createWindow("MoxieLook/MenuItem", "File"));
    file->setText("File");
    bar.addItem(file);
    auto* menu = static_cast<PopupMenu*>(
        WindowManager::getSingleton().createWindow("MoxieLook/PopupMenu", "FileMenu"));
    file->addChild(menu);
    auto* open = static_cast<MenuItem*>(
        WindowManager::getSingleton().createWindow("MoxieLook/MenuItem", "Open"));
    open->setText("Open");
    menu->addItem(open);

    // The border width moves the items off the bar's ends (CEGUI centres them upright).
    EXPECT_EQ(bar.getProperty("BorderWidth"), "3");
    EXPECT_EQ(file->getUnclippedOuterRect().get().left(), 3);
    bar.setProperty("BorderWidth", "5");
    EXPECT_EQ(file->getUnclippedOuterRect().get().left(), 5);

    // Each state's band and the text take their tints.
    file->setProperty("OpenedColour", "FF00FF00");
    open->setProperty("HoverColour", "FFFF0000");
    open->setProperty("DisabledTextColour", "FF808000");
    moxietest::clickOn(*file);
    ASSERT_TRUE(file->isOpened());
    EXPECT_EQ(argb(find(drawnBy(*file), "MenuItemOpenMiddle")->colours.d_top_left), 0xFF00FF00u);
    const Vector2f over = moxietest::centreOf(*open);
    moxietest::pointerTo(over.d_x, over.d_y);
    EXPECT_EQ(argb(find(drawnBy(*open), "MenuItemFocusMiddle")->colours.d_top_left), 0xFFFF0000u);
    open->disable();
    EXPECT_EQ(argb(find(drawnBy(*open), "text")->colours.d_top_left), 0xFF808000u);
    open->enable();
    // Held, the band takes the pushed tint; dragged off the item, the pushed-off one.
    open->setProperty("PushedColour", "FF00FFFF");
    open->setProperty("PushedOffColour", "FFFF00FF");
    moxietest::leftDown();
    EXPECT_EQ(argb(find(drawnBy(*open), "MenuItemOpenMiddle")->colours.d_top_left), 0xFF00FFFFu);
    moxietest::pointerTo(over.d_x, over.d_y + 200);
    const auto heldOff = find(drawnBy(*open), "MenuItemFocusMiddle");
    ASSERT_TRUE(heldOff);
    EXPECT_EQ(argb(heldOff->colours.d_top_left), 0xFFFF00FFu);
    moxietest::pointerTo(over.d_x, over.d_y);
    moxietest::leftUp();
    // The pop-up's border width moves its items from its frame, on every side.
    menu = static_cast<PopupMenu*>(
        WindowManager::getSingleton().createWindow("MoxieLook/PopupMenu", "Spare"));
    moxietest::context().getRootWindow()->addChild(menu);
    auto* spare = static_cast<MenuItem*>(
        WindowManager::getSingleton().createWindow("MoxieLook/MenuItem", "SpareItem"));
    spare->setText("Spare");
    menu->addItem(spare);
    const float before =
        spare->getUnclippedOuterRect().get().left() - menu->getUnclippedOuterRect().get().left();
    EXPECT_EQ(menu->getProperty("BorderWidth"), "2");
    menu->setProperty("BorderWidth", "9");
    EXPECT_EQ(spare->getUnclippedOuterRect().get().left() -
                  menu->getUnclippedOuterRect().get().left(),
              before + 7);
}

TEST_F(StockSkinTypesTest, AProgressBarFillsFromTheEndItIsTold)
{
    auto& bar = moxietest::placeAs<MXProgressBar>("MoxieLook/ProgressBar", 10, 10, 200, 40);
    bar.setProgress(0.6f);
    auto litSpan = [&bar] { return spanOf(drawnBy(bar), "ProgressBarLit"); };
    EXPECT_EQ(litSpan(), Rectf(0, 0, 120, 40));
    bar.setProgress(1.0f);
    EXPECT_EQ(litSpan(), Rectf(0, 0, 200, 40));
    bar.setProgress(0.0f);
    EXPECT_EQ(bar.litWidth(), 0);
    EXPECT_FALSE(find(drawnBy(bar), "ProgressBarLitMiddle"));
    bar.setProgress(0.6f);
    bar.setProperty("ReversedProgress", "True");
    EXPECT_EQ(litSpan(), Rectf(80, 0, 200, 40));
    bar.setProperty("VerticalProgress", "True");
    EXPECT_EQ(litSpan(), Rectf(0, 0, 200, 24)); // upright and reversed: from the top
    bar.setProperty("ReversedProgress", "False");
    EXPECT_EQ(litSpan(), Rectf(0, 16, 200, 40));
    EXPECT_EQ(bar.litWidth(), 24);

    // The tints are the fill's: the track keeps its own colours.
    bar.setProperty("EnabledColour", "FF30A050");
    EXPECT_EQ(argb(find(drawnBy(bar), "ProgressBarMiddle")->colours.d_top_left), 0xFFFFFFFFu);
}

TEST_F(StockSkinTypesTest, ScrollbarsTellTheirOrientationAndRefuseTheOther)
{
    Window& across = moxietest::place("MoxieLook/HorizontalScrollbar", 10, 10, 200, 18);
    Window& upright = moxietest::place("MoxieLook/LargeVerticalScrollbar", 250, 10, 24, 200);
    EXPECT_EQ(across.getProperty("VerticalScrollbar"), "false");
    EXPECT_EQ(upright.getProperty("VerticalScrollbar"), "true");
    // A layout that states what the type is loads; one that asks for the other is told why.
    across.setProperty("VerticalScrollbar", "False");
    upright.setProperty("VerticalScrollbar", "True");
    EXPECT_NE(moxietest::thrownMessage<InvalidRequestException>(
                  [&] { across.setProperty("VerticalScrollbar", "True"); })
                  .find("MoxieLook/HorizontalScrollbar"),
              std::string::npos);
    // The slider likewise lies across for good.
    Window& slider = moxietest::place("MoxieLook/Slider", 10, 300, 200, 30);
    EXPECT_EQ(slider.getProperty("VerticalSlider"), "false");
    slider.setProperty("VerticalSlider", "False");
    EXPECT_THROW(slider.setProperty("VerticalSlider", "True"), InvalidRequestException);
    // The bar still works across: a click right of the thumb pages on.
    auto& bar = static_cast<Scrollbar&>(across);
    bar.setDocumentSize(1000);
    bar.setPageSize(100);
    const Rectf thumb = bar.getThumb()->getUnclippedOuterRect().get();
    moxietest::click(thumb.right() + 40, thumb.top() + thumb.getHeight() / 2);
    EXPECT_GT(bar.getScrollPosition(), 0);
}

TEST_F(StockSkinTypesTest, AComboBoxPassesItsStockPropertiesToItsParts)
{
    auto& combo = moxietest::placeAs<Combobox>("MoxieLook/Combobox", 10, 10, 200, 150);
    combo.setText("Pears");
    combo.setProperty("NormalEditTextColour", "FF102030");
    combo.setProperty("SelectedEditTextColour", "FFFFFF00");
    combo.setProperty("ActiveEditSelectionColour", "FF008000");
    combo.setProperty("InactiveEditSelectionColour", "FF800000");
    EXPECT_EQ(combo.getProperty("NormalEditTextColour"),
              combo.getEditbox()->getProperty("NormalTextColour"));
    Editbox* edit = combo.getEditbox();
    EXPECT_EQ(argb(find(drawnBy(*edit), "text")->colours.d_top_left), 0xFF102030u);
    edit->activate();
    edit->setSelection(0, 5);
    auto quads = drawnBy(*edit);
    EXPECT_EQ(argb(find(quads, "EditboxSelection")->colours.d_top_left), 0xFF008000u);
    EXPECT_EQ(argb(find(quads, "text")->colours.d_top_left), 0xFFFFFF00u);
    edit->deactivate();
    EXPECT_EQ(argb(find(drawnBy(*edit), "EditboxSelectionInactive")->colours.d_top_left),
              0xFF800000u);

    // The button's pictures, stretched as the look's own; the one for rest also while disabled.
    EXPECT_TRUE(combo.isPropertyDefault("DropDownButtonHoverImage"));
    combo.setProperty("DropDownButtonNormalImage", "MoxieLook/IconStar");
    combo.setProperty("DropDownButtonHoverImage", "MoxieLook/IconFolder");
    combo.setProperty("DropDownButtonPushedImage", "MoxieLook/IconHeart");
    EXPECT_FALSE(combo.isPropertyDefault("DropDownButtonHoverImage"));
    PushButton* button = combo.getPushButton();
    EXPECT_TRUE(find(drawnBy(*button), "IconStar"));
    moxietest::hover(*button);
    const auto hovered = find(drawnBy(*button), "IconFolder");
    ASSERT_TRUE(hovered);
    EXPECT_EQ(hovered->rect.getSize(), button->getPixelSize());
    moxietest::leftDown();
    EXPECT_TRUE(find(drawnBy(*button), "IconHeart"));
    moxietest::leftUp();
    moxietest::pointerTo(700, 500);
    combo.disable();
    EXPECT_TRUE(find(drawnBy(*button), "IconStar"));
}

TEST_F(StockSkinTypesTest, AStaticPlacesItsTextInsideTheFrameByTheStockFormatting)
{
    auto& frame = moxietest::placeAs<MXStaticFrame>("MoxieLook/Static", 10, 10, 200, 60);
    frame.setText("Ready");
    const Rectf inside = frame.textArea();
    auto textSpan = [&frame] { return spanOf(drawnBy(frame), "text"); };
    // Left-aligned from the frame's inner edge by default, the text after the frame.
    EXPECT_NEAR(textSpan().left(), inside.left(), 1.5f);
    EXPECT_EQ(drawnBy(frame).back().image, "text");
    frame.setProperty("TextPadding", "12");
    EXPECT_NEAR(textSpan().left(), inside.left() + 12, 1.5f);
    frame.setProperty("HorzFormatting", "RightAligned");
    EXPECT_NEAR(textSpan().right(), inside.right() - 12, 1.5f);
    EXPECT_EQ(frame.getProperty("HorzFormatting"), "RightAligned");
    // A padding larger than the window leaves the text where the middle is, never outside.
    frame.setProperty("TextPadding", "1000");
    const Rectf squeezed = frame.textArea();
    EXPECT_GE(squeezed.getWidth(), 0);
    EXPECT_GE(squeezed.left(), 0);
}

TEST_F(StockSkinTypesTest, AnImageButtonTintsAndPlacesItsPicturesAsTheStockSkinsSay)
{
    Window& button = moxietest::place("MoxieLook/ImageButton", 10, 10, 80, 40);
    button.setProperty("NormalImage", "MoxieLook/IconStar");
    EXPECT_EQ(button.getProperty("HorzImageFormatting"), "Stretched");
    EXPECT_EQ(drawnBy(button)[0].rect, Rectf(0, 0, 80, 40));

    // Centred both ways, the picture keeps its own size; every state follows.
    button.setProperty("HorzImageFormatting", "CentreAligned");
    button.setProperty("VertImageFormatting", "BottomAligned");
    EXPECT_EQ(button.getProperty("VertImageFormatting"), "BottomAligned");
    const Rectf placed = drawnBy(button)[0].rect;
    EXPECT_NEAR(placed.left(), 40 - placed.getWidth() / 2, 0.51f);
    EXPECT_EQ(placed.bottom(), 40);
    EXPECT_LT(placed.getWidth(), 80);

    // A picture given after the formatting takes it too.
    button.setProperty("PushedImage", "MoxieLook/IconHeart");
    moxietest::pointerTo(50, 30);
    moxietest::leftDown();
    const Rectf pushed = find(drawnBy(button), "IconHeart")->rect;
    moxietest::leftUp();
    EXPECT_EQ(pushed.bottom(), 40);
    EXPECT_LT(pushed.getWidth(), 80);

    // Hovered with no hover picture: the normal one, placed alike, in the hover tint for
    // that draw only.
    button.setProperty("HoverImageColour", "FFFF8000");
    const auto hovered = drawnBy(button);
    EXPECT_EQ(hovered[0].image, "IconStar");
    EXPECT_EQ(hovered[0].rect, placed);
    moxietest::pointerTo(600, 500);
    EXPECT_EQ(argb(drawnBy(button)[0].colours.d_top_left), 0xFFFFFFFFu);
}

TEST_F(StockSkinTypesTest, TabPanesDrawTheEdgesTheTabControlAsksFor)
{
    Window& pane = moxietest::place("MoxieLook/TabContentPane", 10, 10, 200, 100);
    Window* child = &moxietest::child(pane, "MoxieLook/Label", 0, 0, 20, 10);
    EXPECT_EQ(moxietest::imageNames(drawnBy(pane)),
              (std::vector<std::string>{"TabPaneLeft", "TabPaneLowerLeft", "TabPaneMiddle",
                                        "TabPaneLower", "TabPaneRight", "TabPaneLowerRight"}));
    Window& strip = moxietest::place("MoxieLook/TabButtonPane", 10, 150, 200, 26);
    auto line = drawnBy(strip);
    ASSERT_EQ(line.size(), 1u);
    EXPECT_EQ(line[0].rect, Rectf(0, 24, 200, 26)); // the line the tabs stand on

    // As CEGUI's tab control sets them for tabs below the content: top edge on, bottom off.
    const float top = child->getUnclippedOuterRect().get().top();
    pane.setProperty("EnableTop", "1");
    pane.setProperty("EnableBottom", "0");
    const auto quads = drawnBy(pane);
    EXPECT_EQ(
        moxietest::imageNames(quads),
        (std::vector<std::string>{"TabPaneLower", "TabPaneLeft", "TabPaneMiddle", "TabPaneRight"}));
    const float row = quads[0].rect.getHeight();
    EXPECT_EQ(quads[0].rect, Rectf(0, 0, 200, row)); // one straight edge across
    EXPECT_EQ(quads[2].rect.bottom(), 100);          // the middle reaches the bottom
    EXPECT_EQ(child->getUnclippedOuterRect().get().top(), top + row); // below the new edge

    strip.setProperty("EnableTop", "1");
    strip.setProperty("EnableBottom", "0");
    line = drawnBy(strip);
    ASSERT_EQ(line.size(), 1u);
    EXPECT_EQ(line[0].rect, Rectf(0, 0, 200, 2));
}

TEST_F(StockSkinTypesTest, ARadioButtonScalesItsPictureAndTheLabelFollows)
{
    Window& radio = moxietest::place("MoxieLook/RadioButton", 10, 10, 200, 40);
    radio.setText("Stereo");
    const auto before = drawnBy(radio);
    const Rectf own = before[0].rect;
    const float textLeft = find(before, "text")->rect.left();

    radio.setProperty("RadioButtonRelativeWidth", "0.5");
    radio.setProperty("RadioButtonRelativeHeight", "1.5");
    const auto after = drawnBy(radio);
    EXPECT_EQ(after[0].image, before[0].image);
    EXPECT_NEAR(after[0].rect.getWidth(), own.getWidth() * 0.5f, 0.01f);
    EXPECT_NEAR(after[0].rect.getHeight(), own.getHeight() * 1.5f, 0.01f);
    EXPECT_NEAR((after[0].rect.top() + after[0].rect.bottom()) / 2, 20, 1.0f); // still centred
    EXPECT_NEAR(find(after, "text")->rect.left(), textLeft - own.getWidth() * 0.5f, 1.0f);

    // A scale that is no size leaves no picture, and no mess.
    // Absurd scales stay numbers.
    radio.setProperty("RadioButtonRelativeHeight", "1e38");
    for (const DrawnQuad& quad : drawnBy(radio))
        EXPECT_TRUE(std::isfinite(quad.rect.top()) && std::isfinite(quad.rect.bottom())) << quad;
    radio.setProperty("RadioButtonRelativeWidth", "-3");
    EXPECT_EQ(radio.getProperty("RadioButtonRelativeWidth"), "0");
    const auto picture = find(drawnBy(radio), before[0].image);
    EXPECT_TRUE(!picture || picture->rect.getWidth() == 0);
}

TEST_F(StockSkinTypesTest, AButtonPlacesItsLabelByTheStockFormatting)
{
    Window& button = moxietest::place("MoxieLook/Button", 10, 10, 200, 60);
    button.setText("Apply");
    auto textSpan = [&button] { return spanOf(drawnBy(button), "text"); };
    const Rectf centred = textSpan();
    EXPECT_NEAR((centred.left() + centred.right()) / 2, 100, 2);
    button.setProperty("HorzLabelFormatting", "LeftAligned");
    button.setProperty("VertLabelFormatting", "BottomAligned");
    const Rectf corner = textSpan();
    EXPECT_LT(corner.left(), 3);
    EXPECT_GT(corner.top(), centred.top());
    EXPECT_EQ(button.getProperty("VertLabelFormatting"), "BottomAligned");
    button.setProperty("VertLabelFormatting", "TopAligned");
    EXPECT_LT(textSpan().top(), centred.top());
}

TEST_F(StockSkinTypesTest, AnEditBoxStandsItsTextWhereTheStockFormattingSays)
{
    auto& box = moxietest::placeAs<MXEditbox>("MoxieLook/Editbox", 10, 10, 240, 30);
    box.setText("42");
    box.setProperty("TextFormatting", "RightAligned");
    auto lastGlyphRight = [&box] { return spanOf(drawnBy(box), "text").right(); };
    const Rectf area = box.textArea();
    EXPECT_GT(lastGlyphRight(), area.right() - 12);

    // Clicks go by where the text stands: left of it, before it; at its end, after it.
    moxietest::click(10 + area.left() + 5, 25);
    EXPECT_EQ(box.getCaretIndex(), 0u);
    moxietest::click(10 + area.right() - 1, 25);
    EXPECT_EQ(box.getCaretIndex(), 2u);

    box.setProperty("TextFormatting", "CentreAligned");
    const float centredRight = lastGlyphRight();
    EXPECT_LT(centredRight, area.right() - 40);
    EXPECT_GT(centredRight, area.left() + area.getWidth() / 2);
    EXPECT_THROW(box.setProperty("TextFormatting", "WordWrapLeftAligned"), InvalidRequestException);
    EXPECT_THROW(box.setProperty("TextFormatting", "Sideways"), InvalidRequestException);
    EXPECT_EQ(box.getProperty("TextFormatting"), "CentreAligned");

    // A text longer than the box scrolls as ever, the caret in view.
    box.setText(String(80, 'w'));
    box.setCaretIndex(80);
    EXPECT_LE(lastGlyphRight(), area.right() + 0.5f);
    EXPECT_LT(box.textOffset(), 0);
}

TEST_F(StockSkinTypesTest, AStaticImageTakesCeguisFormattingNames)
{
    Window& holder = moxietest::place("MoxieLook/StaticImage", 10, 10, 200, 100);
    holder.setProperty("Image", "MoxieLook/IconStar");
    holder.setProperty("HorzFormatting", "CentreAligned");
    holder.setProperty("VertFormatting", "CentreAligned");
    EXPECT_EQ(holder.getProperty("HorzFormatting"), "CentreAligned");
    auto stars = [&holder] { return moxietest::allOf(drawnBy(holder), "IconStar"); };
    ASSERT_EQ(stars().size(), 1u);
    const Rectf centred = stars()[0].rect;
    EXPECT_NEAR(centred.left() + centred.right(), 200, 1.0f);
    EXPECT_NEAR(centred.top() + centred.bottom(), 100, 1.0f);
    EXPECT_LT(centred.getWidth(), 200);

    holder.setProperty("HorzFormatting", "Tiled");
    EXPECT_GT(stars().size(), 1u);
    holder.setProperty("HorzFormatting", "Stretched");
    holder.setProperty("VertFormatting", "Stretched");
    EXPECT_EQ(stars().size(), 1u);
    EXPECT_EQ(stars()[0].rect.getWidth(), 200);
    EXPECT_EQ(holder.getProperty("VertFormatting"), "Stretched");
}

TEST_F(StockSkinTypesTest, SegmentedBarsTurnAndReverseByTheirProperties)
{
    auto& meter = moxietest::placeAs<ProgressBar>("MoxieLook/VUMeter", 10, 10, 30, 200);
    meter.setProgress(0.25f);
    auto litSpan = [&meter]
    {
        std::vector<DrawnQuad> lit;
        for (const DrawnQuad& quad : drawnBy(meter))
            if (quad.image == "MeterSegment" && argb(quad.colours.d_top_left) != 0xFFC5CED9u)
                lit.push_back(quad);
        return spanOf(lit, "MeterSegment");
    };
    // Upright, lit from the bottom; reversed, from the top.
    const Rectf fromBottom = litSpan();
    EXPECT_GT(fromBottom.top(), 100);
    meter.setProperty("ReversedProgress", "True");
    EXPECT_LT(litSpan().bottom(), 100);
    // Laid across, lit from the right while reversed.
    meter.setSize(USize(cegui_absdim(200), cegui_absdim(30)));
    meter.setProperty("VerticalProgress", "False");
    EXPECT_GT(litSpan().left(), 100);
}

TEST_F(StockSkinTypesTest, ButtonsShowEachStatesPicture)
{
    for (const char* type : {"MoxieLook/Button", "MoxieLook/ImageButton", "MoxieLook/SystemButton"})
    {
        SCOPED_TRACE(type);
        Window& button = moxietest::place(type, 10, 10, 40, 30);
        button.setProperty("NormalImage", "MoxieLook/IconStar");
        button.setProperty("HoverImage", "MoxieLook/IconHeart");
        button.setProperty("PushedImage", "MoxieLook/IconFolder");
        button.setProperty("DisabledImage", "MoxieLook/IconDocument");
        EXPECT_TRUE(find(drawnBy(button), "IconStar"));
        moxietest::hover(button);
        EXPECT_TRUE(find(drawnBy(button), "IconHeart"));
        moxietest::leftDown();
        EXPECT_TRUE(find(drawnBy(button), "IconFolder"));
        moxietest::leftUp();
        moxietest::pointerTo(600, 500);
        button.disable();
        EXPECT_TRUE(find(drawnBy(button), "IconDocument"));
        WindowManager::getSingleton().destroyWindow(&button);
    }
}

namespace
{
// What the pointer and the host do before a state is drawn.
enum class Shown
{
    AtRest,
    Hovered,
    Held,
    Disabled,
    Selected
};

// A stock colour property and the picture it tints in one state.
struct Tint
{
    const char* type;
    const char* property;
    Shown state;
    const char* image;
    std::vector<std::pair<const char*, const char*>> setUp = {};
};

void show(Window& window, Shown state)
{
    const Vector2f centre = moxietest::centreOf(window);
    switch (state)
    {
    case Shown::Hovered:
        moxietest::pointerTo(centre.d_x, centre.d_y);
        break;
    case Shown::Held:
        moxietest::pointerTo(centre.d_x, centre.d_y);
        moxietest::leftDown();
        break;
    case Shown::Disabled:
        window.disable();
        break;
    case Shown::Selected:
        static_cast<TabButton&>(window).setSelected(true);
        break;
    case Shown::AtRest:
        break;
    }
}
} // namespace

// Each colour is written in the four-corner form the stock skins use.
TEST_F(StockSkinTypesTest, EveryStockTintReachesWhatItsStateDraws)
{
    using SetUp = std::vector<std::pair<const char*, const char*>>;
    const SetUp framed = {{"FrameEnabled", "True"}, {"BackgroundEnabled", "True"}};
    const SetUp partly = {{"CurrentProgress", "0.6"}}, shown = {{"Visible", "True"}};
    const SetUp readOnly = {{"ReadOnly", "True"}}, icon = {{"IconImage", "MoxieLook/IconStar"}};
    const SetUp star = {{"NormalImage", "MoxieLook/IconStar"}};
    const Tint tints[] = {
        {"MoxieLook/Label", "NormalTextColour", Shown::AtRest, "text"},
        {"MoxieLook/Label", "DisabledTextColour", Shown::Disabled, "text"},
        {"MoxieLook/Checkbox", "NormalTextColour", Shown::AtRest, "text"},
        {"MoxieLook/Checkbox", "HoverTextColour", Shown::Hovered, "text"},
        {"MoxieLook/Checkbox", "PushedTextColour", Shown::Held, "text"},
        {"MoxieLook/Checkbox", "DisabledTextColour", Shown::Disabled, "text"},
        {"MoxieLook/Button", "NormalTextColour", Shown::AtRest, "text"},
        {"MoxieLook/Button", "HoverTextColour", Shown::Hovered, "text"},
        {"MoxieLook/Button", "PushedTextColour", Shown::Held, "text"},
        {"MoxieLook/Button", "DisabledTextColour", Shown::Disabled, "text"},
        {"MoxieLook/RadioButton", "DisabledTextColour", Shown::Disabled, "text"},
        {"MoxieLook/TabButton", "NormalTextColour", Shown::AtRest, "text"},
        {"MoxieLook/TabButton", "HoverTextColour", Shown::Hovered, "text"},
        {"MoxieLook/TabButton", "PushedTextColour", Shown::Held, "text"},
        {"MoxieLook/TabButton", "DisabledTextColour", Shown::Disabled, "text"},
        {"MoxieLook/TabButton", "SelectedTextColour", Shown::Selected, "text"},
        {"MoxieLook/MenuItem", "NormalTextColour", Shown::AtRest, "text"},
        {"MoxieLook/GroupBox", "NormalTextColour", Shown::AtRest, "text"},
        {"MoxieLook/GroupBox", "DisabledTextColour", Shown::Disabled, "text"},
        {"MoxieLook/GroupBox", "FrameColours", Shown::AtRest, "StaticFrameTopLeft", framed},
        {"MoxieLook/GroupBox", "BackgroundColours", Shown::AtRest, "StaticFrameFill", framed},
        {"MoxieLook/Static", "FrameColours", Shown::AtRest, "StaticFrameTopLeft", framed},
        {"MoxieLook/Static", "BackgroundColours", Shown::AtRest, "StaticFrameFill", framed},
        {"MoxieLook/StaticText", "FrameColours", Shown::AtRest, "StaticFrameTopLeft", framed},
        {"MoxieLook/StaticText", "BackgroundColours", Shown::AtRest, "StaticFrameFill", framed},
        {"MoxieLook/StaticImage", "FrameColours", Shown::AtRest, "StaticFrameTopLeft", framed},
        {"MoxieLook/StaticImage", "BackgroundColours", Shown::AtRest, "StaticFrameFill", framed},
        {"MoxieLook/Tree", "FrameColours", Shown::AtRest, "StaticFrameListTopLeft"},
        {"MoxieLook/ProgressBar", "EnabledColour", Shown::AtRest, "ProgressBarLitMiddle", partly},
        {"MoxieLook/ProgressBar", "DisabledColour", Shown::Disabled, "ProgressBarLitMiddle",
         partly},
        {"MoxieLook/Menubar", "BackgroundColours", Shown::AtRest, "MenubarBackground"},
        {"MoxieLook/PopupMenu", "BackgroundColours", Shown::AtRest, "PopupMenuFill", shown},
        {"MoxieLook/FrameWindow", "ClientAreaColour", Shown::AtRest, "Background"},
        {"MoxieLook/Editbox", "NormalTextColour", Shown::AtRest, "text"},
        {"MoxieLook/Editbox", "ReadOnlyBGColour", Shown::AtRest, "EditboxFillReadOnly", readOnly},
        {"MoxieLook/MultiLineEditbox", "NormalTextColour", Shown::AtRest, "text"},
        {"MoxieLook/ImageButton", "NormalImageColour", Shown::AtRest, "IconStar", star},
        {"MoxieLook/ImageButton", "HoverImageColour", Shown::Hovered, "IconStar", star},
        {"MoxieLook/ImageButton", "PushedImageColour", Shown::Held, "IconStar", star},
        {"MoxieLook/ImageButton", "DisabledImageColour", Shown::Disabled, "IconStar", star},
        {"MoxieLook/IconButton", "IconColours", Shown::AtRest, "IconStar", icon},
    };
    argb_t colour = 0x80102030; // half-transparent: the colour's own alpha must reach the drawing
    for (const Tint& tint : tints)
    {
        SCOPED_TRACE(std::string(tint.type) + " " + tint.property);
        moxietest::freshSheet();
        Window& window = moxietest::place(tint.type, 10, 10, 200, 60);
        window.setText("Label");
        for (const auto& [name, value] : tint.setUp)
            window.setProperty(name, value);
        colour += 0x00030507;
        const String hex = PropertyHelper<Colour>::toString(Colour(colour));
        window.setProperty(tint.property, "tl:" + hex + " tr:" + hex + " bl:" + hex + " br:" + hex);
        show(window, tint.state);
        const auto quad = find(drawnBy(window), tint.image);
        if (tint.state == Shown::Held)
            moxietest::leftUp();
        moxietest::pointerTo(700, 500);
        ASSERT_TRUE(quad);
        EXPECT_EQ(argb(quad->colours.d_top_left), colour);
    }
}
