#include "looks/MXMenus.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"

#include <CEGUI/Font.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/WindowManager.h>
#include <gtest/gtest.h>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;

namespace
{
// The menus' own item types.
MenuItem& item(Window& menu, const char* type, const String& text)
{
    return moxietest::menuItem(menu, text, type);
}

using moxietest::popupOf;

void pulse()
{
    moxietest::context().injectTimePulse(0.5f);
}

class MenuTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        moxietest::freshSheet();
        bar = &moxietest::placeAs<Menubar>("MoxieLook/Menubar", 10, 10, 400, 26);
        file = &item(*bar, "MoxieLook/MenubarItem", "File");
        edit = &item(*bar, "MoxieLook/MenubarItem", "Edit");
        view = &item(*bar, "MoxieLook/MenubarItem", "View");
        fileMenu = &popupOf(*file);
        open = &item(*fileMenu, "MoxieLook/PopupMenuItem", "Open");
        recent = &item(*fileMenu, "MoxieLook/PopupMenuItem", "Recent");
        disabled = &item(*fileMenu, "MoxieLook/PopupMenuItem", "Disabled");
        disabled->setEnabled(false);
        recentMenu = &popupOf(*recent);
        item(*recentMenu, "MoxieLook/PopupMenuItem", "a.txt");
        editMenu = &popupOf(*edit);
        item(*editMenu, "MoxieLook/PopupMenuItem", "Copy");
    }

    Menubar* bar = nullptr;
    MenuItem *file = nullptr, *edit = nullptr, *view = nullptr;
    MenuItem *open = nullptr, *recent = nullptr, *disabled = nullptr;
    PopupMenu *fileMenu = nullptr, *recentMenu = nullptr, *editMenu = nullptr;
};
} // namespace

TEST_F(MenuTest, ItemsSizeToTheirTextsAndTheBarLaysThemOut)
{
    const Font& font = *file->getFont();
    const Sizef fileSize = file->getItemPixelSize();
    EXPECT_EQ(fileSize.d_width, std::ceil(font.getTextExtent("File")) + 20);
    EXPECT_EQ(file->getPixelSize(), fileSize);
    EXPECT_EQ(edit->getUnclippedOuterRect().get().left(),
              file->getUnclippedOuterRect().get().right() + bar->getItemSpacing());
    view->setText("A much longer view");
    EXPECT_EQ(view->getPixelSize().d_width,
              std::ceil(font.getTextExtent("A much longer view")) + 20);
    // Pop-up items leave room for the check mark, and for the arrow when they open a menu.
    EXPECT_EQ(recent->getItemPixelSize().d_width - open->getItemPixelSize().d_width,
              std::ceil(font.getTextExtent("Recent")) - std::ceil(font.getTextExtent("Open")) +
                  MXPopupMenuItem::ArrowColumn);
}

TEST_F(MenuTest, AMenuFromALayoutSizesItsItemsToTheirTexts)
{
    Window* loaded = WindowManager::getSingleton().loadLayoutFromString(
        "<GUILayout version=\"4\">"
        "<Window type=\"MoxieLook/Menubar\" name=\"bar\">"
        "<Property name=\"Area\" value=\"{{0,10},{0,300},{0,400},{0,326}}\" />"
        "<Window type=\"MoxieLook/MenubarItem\" name=\"file\">"
        "<Property name=\"Text\" value=\"File\" />"
        "<Window type=\"MoxieLook/PopupMenu\" name=\"menu\">"
        "<Window type=\"MoxieLook/PopupMenuItem\" name=\"open\">"
        "<Property name=\"Text\" value=\"Open a file\" /></Window>"
        "<Window type=\"MoxieLook/PopupMenuItem\" name=\"line\" />"
        "</Window></Window>"
        "<Window type=\"MoxieLook/MenubarItem\" name=\"help\">"
        "<Property name=\"Text\" value=\"Help and about\" /></Window>"
        "</Window></GUILayout>");
    moxietest::context().getRootWindow()->addChild(loaded);
    const Font& font = *loaded->getFont();
    const auto width = [&](const String& text) { return std::ceil(font.getTextExtent(text)); };
    Window& fileItem = *loaded->getChild("file");
    Window& help = *loaded->getChild("help");
    EXPECT_EQ(fileItem.getPixelSize().d_width, width("File") + 2 * MXMenubarItem::HorzPadding);
    EXPECT_EQ(help.getPixelSize().d_width,
              width("Help and about") + 2 * MXMenubarItem::HorzPadding);
    EXPECT_EQ(help.getUnclippedOuterRect().get().left(),
              fileItem.getUnclippedOuterRect().get().right() +
                  static_cast<Menubar*>(loaded)->getItemSpacing());

    moxietest::clickOn(fileItem);
    auto& menu = static_cast<PopupMenu&>(*loaded->getChild("file/menu"));
    ASSERT_TRUE(menu.isPopupMenuOpen());
    Window& openItem = *menu.getChild("open");
    EXPECT_EQ(openItem.getPixelSize().d_width,
              MXPopupMenuItem::CheckColumn + width("Open a file") + MXPopupMenuItem::TextGap);
    EXPECT_EQ(menu.getChild("line")->getPixelSize().d_height, MXPopupMenuItem::SeparatorHeight);
    WindowManager::getSingleton().destroyWindow(loaded);
}

TEST_F(MenuTest, OpeningMovingHoveringChoosingAndClosing)
{
    int opened = 0;
    open->subscribeEvent(MenuItem::EventClicked, [&] { ++opened; });
    int disabledClicks = 0;
    disabled->subscribeEvent(MenuItem::EventClicked, [&] { ++disabledClicks; });

    moxietest::clickOn(*file);
    ASSERT_TRUE(fileMenu->isPopupMenuOpen());
    EXPECT_EQ(fileMenu->getUnclippedOuterRect().get().top(),
              file->getUnclippedOuterRect().get().bottom());
    System::getSingleton().renderAllGUIContexts();

    // Moving across the bar while a menu is open opens the next one.
    moxietest::hover(*edit);
    pulse();
    EXPECT_TRUE(editMenu->isPopupMenuOpen());
    EXPECT_FALSE(fileMenu->isPopupMenuOpen());

    // Back on File (open again by hovering, the bar being active), a sub-menu opens on hover.
    moxietest::hover(*file);
    pulse();
    ASSERT_TRUE(fileMenu->isPopupMenuOpen());
    moxietest::hover(*recent);
    pulse();
    pulse();
    EXPECT_TRUE(recentMenu->isPopupMenuOpen());
    EXPECT_TRUE(recent->isHovering() || recent->isOpened());
    EXPECT_EQ(recentMenu->getUnclippedOuterRect().get().left(),
              recent->getUnclippedOuterRect().get().right());

    // A disabled item cannot be chosen; choosing one fires its click and closes the menus.
    moxietest::clickOn(*disabled);
    EXPECT_EQ(disabledClicks, 0);
    EXPECT_TRUE(fileMenu->isPopupMenuOpen());
    moxietest::clickOn(*open);
    EXPECT_EQ(opened, 1);
    pulse();
    EXPECT_FALSE(fileMenu->isPopupMenuOpen());

    // A click outside closes an open menu.
    moxietest::clickOn(*file);
    ASSERT_TRUE(fileMenu->isPopupMenuOpen());
    Window& elsewhere = moxietest::place("MoxieLook/Button", 500, 400, 100, 30);
    moxietest::clickOn(elsewhere);
    pulse();
    EXPECT_FALSE(fileMenu->isPopupMenuOpen());
    // So does one on the bare sheet, which changes no window's activation; one in a sub-menu
    // chooses its item.
    moxietest::clickOn(*file);
    moxietest::hover(*recent);
    pulse();
    pulse();
    ASSERT_TRUE(recentMenu->isPopupMenuOpen());
    int reopened = 0;
    recentMenu->getChildAtIdx(0)->subscribeEvent(MenuItem::EventClicked, [&] { ++reopened; });
    moxietest::clickOn(*recentMenu->getChildAtIdx(0));
    EXPECT_EQ(reopened, 1);
    moxietest::clickOn(*file);
    ASSERT_TRUE(fileMenu->isPopupMenuOpen());
    moxietest::click(600, 300);
    pulse();
    EXPECT_FALSE(fileMenu->isPopupMenuOpen());

    // A menu of its own, opened by a host, closes the same way.
    auto& context = moxietest::placeAs<PopupMenu>("MoxieLook/PopupMenu", 300, 200, 100, 60);
    item(context, "MoxieLook/PopupMenuItem", "Cut");
    context.openPopupMenu();
    ASSERT_TRUE(context.isPopupMenuOpen());
    moxietest::click(600, 300);
    pulse();
    EXPECT_FALSE(context.isPopupMenuOpen());

    // A host that destroys its menu bar once its menu closes, inside the very press that
    // closes it: the bar stops listening without pulling the ground from under CEGUI.
    auto& once = moxietest::placeAs<Menubar>("MoxieLook/Menubar", 10, 300, 200, 26);
    MenuItem& tools = item(once, "MoxieLook/MenubarItem", "Tools");
    item(popupOf(tools), "MoxieLook/PopupMenuItem", "Options");
    once.subscribeEvent(MenuBase::EventPopupClosed,
                        [&once] { WindowManager::getSingleton().destroyWindow(&once); });
    moxietest::clickOn(tools);
    ASSERT_TRUE(tools.getPopupMenu()->isPopupMenuOpen());
    moxietest::click(600, 200);
    EXPECT_FALSE(WindowManager::getSingleton().isAlive(&once));
    WindowManager::getSingleton().cleanDeadPool();
    moxietest::leftDown(); // nobody left listening for it
    moxietest::leftUp();
}

TEST_F(MenuTest, StatesDrawTheirBandsMarksAndArrows)
{
    moxietest::clickOn(*file);
    moxietest::hover(*open);
    EXPECT_EQ(menuItemStateOf(*open), MenuItemState::Hover);
    auto names = moxietest::imageNames(moxietest::drawnBy(*open));
    EXPECT_EQ(names, (std::vector<std::string>{"MenuItemFocusLeft", "MenuItemFocusMiddle",
                                               "MenuItemFocusRight", "text"}));
    EXPECT_EQ(moxietest::imageNames(moxietest::drawnBy(*file))[0], "MenuItemOpenLeft");
    names = moxietest::imageNames(moxietest::drawnBy(*recent));
    EXPECT_EQ(names, (std::vector<std::string>{"PopupMenuArrow", "text"}));
    open->setSelectable(true);
    open->setSelected(true);
    moxietest::pointerTo(600, 500);
    EXPECT_EQ(moxietest::imageNames(moxietest::drawnBy(*open)),
              (std::vector<std::string>{"CheckboxMark", "text"}));
    const auto disabledText = moxietest::drawnBy(*disabled).back();
    EXPECT_EQ(moxietest::argb(disabledText.colours.d_top_left), 0xFF9AA3ADu);

    MenuItem& separator = item(*fileMenu, "MoxieLook/PopupMenuItem", "");
    EXPECT_EQ(separator.getPixelSize().d_height, MXPopupMenuItem::SeparatorHeight);
    EXPECT_EQ(moxietest::imageNames(moxietest::drawnBy(separator)),
              std::vector<std::string>{"MenuSeparator"});
    // A separator is only a line: it is neither hovered nor chosen.
    int separatorClicks = 0;
    separator.subscribeEvent(MenuItem::EventClicked, [&] { ++separatorClicks; });
    ASSERT_TRUE(fileMenu->isPopupMenuOpen());
    moxietest::hover(separator);
    EXPECT_EQ(menuItemStateOf(separator), MenuItemState::Normal);
    moxietest::leftDown();
    EXPECT_EQ(menuItemStateOf(separator), MenuItemState::Normal);
    moxietest::leftUp();
    pulse();
    EXPECT_EQ(separatorClicks, 0);
    EXPECT_TRUE(fileMenu->isPopupMenuOpen());
    const auto popupQuads = moxietest::imageNames(moxietest::drawnBy(*fileMenu));
    EXPECT_EQ(popupQuads[0], "PopupMenuShadow");
    EXPECT_EQ(popupQuads[1], "PopupMenuFill");
}
