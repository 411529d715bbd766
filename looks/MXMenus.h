// The menu looks: "MoxieLook/Menubar" (a bar, "MenubarBackground"), "MoxieLook/PopupMenu"
// (a raised box with a drop shadow: "PopupMenuShadow" under the "PopupMenuFrame..." frame
// and "PopupMenuFill"), "MoxieLook/MenubarItem" and "MoxieLook/PopupMenuItem". An item
// under the pointer takes the highlight band ("MenuItemFocusLeft", "...Middle",
// "...Right"), an item held down or with its menu open the pressed band ("MenuItemOpen...");
// a popup item shows a check mark ("CheckboxMark") while a host has it selected (CEGUI's
// ItemEntry selection) and an arrow ("PopupMenuArrow") when it opens a sub-menu; a popup
// item without text is a separator ("MenuSeparator"). Behaviour is CEGUI's own, with a
// sub-menu opening after the pointer rests on its item and menus closing on a click
// anywhere outside them, which CEGUI leaves to skins and hosts; its item
// lists and items ask renderers for the item area and item sizes: MXItemListRenderer and
// MXMenuItemRenderer forward to the looks.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "draw/ThreePieceBar.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"

#include <CEGUI/widgets/MenuItem.h>
#include <CEGUI/widgets/Menubar.h>
#include <CEGUI/widgets/PopupMenu.h>
#include <optional>

namespace CEGUI
{
namespace MoxieLook
{
//! What the item list renderer asks of the bar and the pop-up looks.
class ItemListLook
{
public:
    virtual ~ItemListLook() = default;
    virtual Rectf itemRenderArea() const = 0;
    virtual void drawList() = 0;
};

//! What the item renderer asks of the two item looks.
class MenuItemLook
{
public:
    virtual ~MenuItemLook() = default;
    virtual Sizef itemPixelSize() const = 0;
    virtual void drawItem() = 0;
};

//! The vocabulary the menu looks share.
struct MenuImagery
{
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char BarImageName[] = "MenubarBackground";
    static constexpr char PopupFramePrefix[] = "PopupMenuFrame";
    static constexpr char PopupFillImageName[] = "PopupMenuFill";
    static constexpr char ShadowImageName[] = "PopupMenuShadow";
    static constexpr char HoverLeftImageName[] = "MenuItemFocusLeft";
    static constexpr char HoverMiddleImageName[] = "MenuItemFocusMiddle";
    static constexpr char HoverRightImageName[] = "MenuItemFocusRight";
    static constexpr char OpenLeftImageName[] = "MenuItemOpenLeft";
    static constexpr char OpenMiddleImageName[] = "MenuItemOpenMiddle";
    static constexpr char OpenRightImageName[] = "MenuItemOpenRight";
    static constexpr char CheckMarkImageName[] = "CheckboxMark";
    static constexpr char SubMenuArrowImageName[] = "PopupMenuArrow";
    static constexpr char SeparatorImageName[] = "MenuSeparator";
    static const Colour TextColour;
    static const Colour DisabledTextColour;
    static constexpr float ShadowOffset = 3.0f;
};

//! The stock skins' "BackgroundColours" (tints the list's own imagery, not its shadow) and
//! "BorderWidth" (pixels between the frame and the items on every side; until set, the
//! look's own spacing).
class MenuListStyle
{
public:
    //! `ownSpacing`: the look's own, left, top, right and bottom, until "BorderWidth" is set
    //! (which reads back its left).
    MenuListStyle(ItemListBase& list, const Rectf& ownSpacing)
        : d_list(list), d_ownSpacing(ownSpacing)
    {
    }

    void setBackgroundColours(const ColourRect& colours);
    const ColourRect& getBackgroundColours() const { return d_background; }
    void setBorderWidth(uint width);
    uint getBorderWidth() const;
    //! The spacing on each side: left, top, right, bottom.
    Rectf spacing() const;

private:
    ItemListBase& d_list;
    Rectf d_ownSpacing;
    ColourRect d_background{Colour(0xFFFFFFFF)};
    std::optional<uint> d_borderWidth;
};

class MXMenubar : public RedrawnWhenUncovered<Menubar>,
                  public ItemListLook,
                  public MenuImagery,
                  public MenuListStyle
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Menubar";
    static constexpr float Padding = 3.0f; //!< between the bar's ends and its items

    MXMenubar(const String& type, const String& name);
    Rectf itemRenderArea() const override;
    void drawList() override;
    void destroy() override;

protected:
    //! A click elsewhere closes the open menu.
    void onDeactivated(ActivationEventArgs& e) override;

private:
    bool d_destroyed = false;
    Event::ScopedConnection d_pressOutside;
};

class MXPopupMenu : public RedrawnWhenUncovered<PopupMenu>,
                    public ItemListLook,
                    public MenuImagery,
                    public MenuListStyle
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/PopupMenu";
    static constexpr float Padding = 2.0f; //!< between the frame and the items

    MXPopupMenu(const String& type, const String& name);
    Rectf itemRenderArea() const override;
    void drawList() override;
    void destroy() override;

protected:
    //! A menu of its own (not a menu item's) closes on a click elsewhere.
    void onDeactivated(ActivationEventArgs& e) override;

private:
    NinePieceFrame d_frame;
    bool d_destroyed = false;
    Event::ScopedConnection d_pressOutside;
};

//! An item's state as the looks show it.
enum class MenuItemState
{
    Normal,
    Hover,
    Pushed,
    Open,
    Disabled
};
MenuItemState menuItemStateOf(const MenuItem& item);

//! The stock skins' tints of a menu item: its band while hovered, held, held with the
//! pointer off it, or open ("HoverColour", "PushedColour", "PushedOffColour",
//! "OpenedColour"), and its text ("NormalTextColour", "DisabledTextColour").
class MenuItemTints
{
public:
    explicit MenuItemTints(Window& item);

    void setHoverColour(const ColourRect& colours) { set(d_hover, colours); }
    const ColourRect& getHoverColour() const { return d_hover; }
    void setPushedColour(const ColourRect& colours) { set(d_pushed, colours); }
    const ColourRect& getPushedColour() const { return d_pushed; }
    void setPushedOffColour(const ColourRect& colours) { set(d_pushedOff, colours); }
    const ColourRect& getPushedOffColour() const { return d_pushedOff; }
    void setOpenedColour(const ColourRect& colours) { set(d_opened, colours); }
    const ColourRect& getOpenedColour() const { return d_opened; }
    void setNormalTextColour(const ColourRect& colours) { set(d_normalText, colours); }
    const ColourRect& getNormalTextColour() const { return d_normalText; }
    void setDisabledTextColour(const ColourRect& colours) { set(d_disabledText, colours); }
    const ColourRect& getDisabledTextColour() const { return d_disabledText; }

    //! The band's tint for `item` in `state`, faded by the item's alpha.
    ColourRect bandColours(const MenuItem& item, MenuItemState state) const;
    //! The text's tint in `state`, faded by the item's alpha.
    ColourRect textColours(const MenuItem& item, MenuItemState state) const;

private:
    void set(ColourRect& slot, const ColourRect& colours);

    Window& d_item;
    ColourRect d_hover{Colour(0xFFFFFFFF)};
    ColourRect d_pushed{Colour(0xFFFFFFFF)};
    ColourRect d_pushedOff{Colour(0xFFFFFFFF)};
    ColourRect d_opened{Colour(0xFFFFFFFF)};
    ColourRect d_normalText;
    ColourRect d_disabledText;
};

class MXMenubarItem : public RedrawnWhenUncovered<MenuItem>,
                      public MenuItemLook,
                      public MenuImagery,
                      public MenuItemTints
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/MenubarItem";
    static constexpr float HorzPadding = 10.0f;
    static constexpr float VertPadding = 4.0f;

    MXMenubarItem(const String& type, const String& name);
    Sizef itemPixelSize() const override;
    void drawItem() override;

    //! How any menu item measures and draws on a bar.
    static Sizef barItemSize(const MenuItem& item);
    static void drawBarItem(MenuItem& item, const MenuItemTints& tints);

protected:
    void onFontChanged(WindowEventArgs& e) override;
};

class MXPopupMenuItem : public RedrawnWhenUncovered<MenuItem>,
                        public MenuItemLook,
                        public MenuImagery,
                        public MenuItemTints
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/PopupMenuItem";
    static constexpr float CheckColumn = 20.0f; //!< left of the text: the check mark
    static constexpr float ArrowColumn = 18.0f; //!< right of the text: the sub-menu arrow
    static constexpr float TextGap = 12.0f;     //!< after the text
    static constexpr float VertPadding = 3.0f;
    static constexpr float SeparatorHeight = 7.0f;
    //! Seconds the pointer rests on an item before its sub-menu opens.
    static constexpr float SubMenuDelay = 0.25f;

    MXPopupMenuItem(const String& type, const String& name);
    Sizef itemPixelSize() const override;
    void drawItem() override;
    bool isSeparator() const { return getText().empty(); }
    //! A separator is never hit: the pointer is over its menu there, so it is not hovered,
    //! held or chosen.
    bool isHit(const Vector2f& position, const bool allowDisabled = false) const override;

protected:
    void onFontChanged(WindowEventArgs& e) override;
};

//! "MoxieLook/MenuItem": CEGUI's menu item as the stock skins have it, one type for bars and
//! pop-ups alike: on a menu bar it measures and draws as a bar item (and opens its pop-up by
//! click), elsewhere as a pop-up item.
class MXMenuItem : public MXPopupMenuItem
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/MenuItem";

    using MXPopupMenuItem::MXPopupMenuItem;
    bool isOnBar() const;
    Sizef itemPixelSize() const override;
    void drawItem() override;
    bool isHit(const Vector2f& position, const bool allowDisabled = false) const override;

protected:
    void setParent(Element* parent) override;
};

class MXItemListRenderer : public LookRenderer<ItemListBaseWindowRenderer, ItemListLook>
{
public:
    static constexpr char TypeName[] = "MoxieLook/ItemListRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->drawList();
    }
    Rectf getItemRenderArea() const override
    {
        return look() ? look()->itemRenderArea() : Rectf(0, 0, 0, 0);
    }
};

class MXMenuItemRenderer : public LookRenderer<ItemEntryWindowRenderer, MenuItemLook>
{
public:
    static constexpr char TypeName[] = "MoxieLook/MenuItemRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->drawItem();
    }
    Sizef getItemPixelSize() const override
    {
        return look() ? look()->itemPixelSize() : Sizef(0, 0);
    }
};

using MXMenubarFactory = LookFactory<MXMenubar>;
using MXPopupMenuFactory = LookFactory<MXPopupMenu>;
using MXMenubarItemFactory = LookFactory<MXMenubarItem>;
using MXPopupMenuItemFactory = LookFactory<MXPopupMenuItem>;
using MXMenuItemFactory = LookFactory<MXMenuItem>;
using MXItemListRendererFactory = LookRendererFactory<MXItemListRenderer>;
using MXMenuItemRendererFactory = LookRendererFactory<MXMenuItemRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
