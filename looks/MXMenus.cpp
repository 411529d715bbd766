#include "looks/MXMenus.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

#include <CEGUI/Font.h>
#include <CEGUI/GlobalEventSet.h>
#include <CEGUI/Image.h>
#include <CEGUI/TplWindowProperty.h>
#include <CEGUI/widgets/ItemListBase.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MenuImagery::TextColour(0x0026313D);
const Colour MenuImagery::DisabledTextColour(0x009AA3AD);

namespace
{
ColourRect white(const Window& window)
{
    return withAlpha(ColourRect(Colour(0x00FFFFFF)), window.getEffectiveAlpha());
}

// The band under an item that is hovered, held or open.
void drawBand(const MenuItem& item, const MenuItemTints& tints, MenuItemState state,
              const Rectf& area)
{
    if (state != MenuItemState::Hover && state != MenuItemState::Pushed &&
        state != MenuItemState::Open)
        return;
    const bool pressed = state != MenuItemState::Hover;
    const ThreePieceBar band = pressed ? ThreePieceBar::named(MenuImagery::OpenLeftImageName,
                                                              MenuImagery::OpenMiddleImageName,
                                                              MenuImagery::OpenRightImageName)
                                       : ThreePieceBar::named(MenuImagery::HoverLeftImageName,
                                                              MenuImagery::HoverMiddleImageName,
                                                              MenuImagery::HoverRightImageName);
    band.draw(const_cast<MenuItem&>(item).getGeometryBuffer(), area,
              tints.bandColours(item, state));
}

template <typename Owner>
void addMenuItemTintProperties(Owner& owner)
{
    static const char* const origin = "MoxieLook/MenuItemTints";
    using Tint = TplWindowProperty<Owner, ColourRect>;
    static const char* const help = MOXIE_COLOURS_VALUE_HELP;
    static Tint hover("HoverColour",
                      String("Property to get/set the band's colours under the "
                             "pointer.") +
                          help,
                      origin, &Owner::setHoverColour, &Owner::getHoverColour,
                      ColourRect(Colour(0xFFFFFFFF)));
    static Tint pushed(
        "PushedColour", String("Property to get/set the band's colours while held.") + help, origin,
        &Owner::setPushedColour, &Owner::getPushedColour, ColourRect(Colour(0xFFFFFFFF)));
    static Tint pushedOff("PushedOffColour",
                          String("Property to get/set the band's colours while held with the "
                                 "pointer off the item.") +
                              help,
                          origin, &Owner::setPushedOffColour, &Owner::getPushedOffColour,
                          ColourRect(Colour(0xFFFFFFFF)));
    static Tint opened(
        "OpenedColour",
        String("Property to get/set the band's colours while its menu is open.") + help, origin,
        &Owner::setOpenedColour, &Owner::getOpenedColour, ColourRect(Colour(0xFFFFFFFF)));
    static Tint normalText("NormalTextColour",
                           String("Property to get/set the text's colours.") + help, origin,
                           &Owner::setNormalTextColour, &Owner::getNormalTextColour,
                           ColourRect(opaque(MenuImagery::TextColour)));
    static Tint disabledText("DisabledTextColour",
                             String("Property to get/set the text's colours while disabled.") +
                                 help,
                             origin, &Owner::setDisabledTextColour, &Owner::getDisabledTextColour,
                             ColourRect(opaque(MenuImagery::DisabledTextColour)));
    for (Property* property : {&hover, &pushed, &pushedOff, &opened, &normalText, &disabledText})
        owner.addProperty(property);
}

// Activation alone misses a click on the bare root sheet: CEGUI 0.8 moves an already active
// root to the front without a change of activation, so the menu would stay open. Every
// press on any window is watched instead.
// `gone` is set when the menu is destroyed: the connection itself goes with the window,
// never while CEGUI may be walking the event's subscribers.
Event::Connection onPressOutside(Window& menu, const bool& gone, void (*close)(Window&))
{
    return GlobalEventSet::getSingleton().subscribeEvent(
        Window::EventNamespace + "/" + Window::EventMouseButtonDown,
        Event::Subscriber(
            [&menu, &gone, close](const EventArgs& args)
            {
                if (gone)
                    return false;
                const Window* pressed = static_cast<const MouseEventArgs&>(args).window;
                if (pressed && pressed != &menu && !pressed->isAncestor(&menu))
                    close(menu);
                return false;
            }));
}

void closeBarMenus(Window& window)
{
    auto& bar = static_cast<Menubar&>(window);
    if (bar.getPopupMenuItem())
        bar.changePopupMenuItem(nullptr);
}

void closeOwnPopup(Window& window)
{
    auto& popup = static_cast<PopupMenu&>(window);
    if (!dynamic_cast<MenuItem*>(popup.getParent()) && popup.isPopupMenuOpen())
        popup.closePopupMenu();
}

// A changed font changes the item's size: its list lays out again.
void itemChangedSize(MenuItem& item)
{
    if (ItemListBase* list = item.getOwnerList())
        list->handleUpdatedItemData();
}
} // namespace

MenuItemState menuItemStateOf(const MenuItem& item)
{
    if (item.isEffectiveDisabled())
        return MenuItemState::Disabled;
    if (item.isOpened() && !(item.hasAutoPopup() && item.isPopupClosing()))
        return MenuItemState::Open;
    if (item.isPushed())
        return item.isHovering() ? MenuItemState::Pushed : MenuItemState::Hover;
    return item.isHovering() ? MenuItemState::Hover : MenuItemState::Normal;
}

template <typename Owner>
void addMenuListStyleProperties(Owner& owner)
{
    static TplWindowProperty<Owner, ColourRect> background(
        "BackgroundColours",
        "Property to get/set the colours of the list's imagery." MOXIE_COLOURS_VALUE_HELP,
        "MoxieLook/MenuListStyle", &Owner::setBackgroundColours, &Owner::getBackgroundColours,
        ColourRect(Colour(0xFFFFFFFF)));
    static TplWindowProperty<Owner, uint> border(
        "BorderWidth",
        "Property to get/set the pixels between the frame and the items. Value is an unsigned "
        "integer.",
        "MoxieLook/MenuListStyle", &Owner::setBorderWidth, &Owner::getBorderWidth, 0);
    owner.addProperty(&background);
    owner.addProperty(&border);
}

void MenuListStyle::setBackgroundColours(const ColourRect& colours)
{
    d_background = colours;
    d_list.invalidate();
}

void MenuListStyle::setBorderWidth(uint width)
{
    // "-1" reads as four billion: a list sized to its items would grow without end.
    constexpr uint Widest = 1000;
    d_borderWidth = std::min(width, Widest);
    d_list.handleUpdatedItemData();
    d_list.invalidate();
}

uint MenuListStyle::getBorderWidth() const
{
    return d_borderWidth.value_or(static_cast<uint>(d_ownSpacing.left()));
}

Rectf MenuListStyle::spacing() const
{
    if (!d_borderWidth)
        return d_ownSpacing;
    const float width = static_cast<float>(*d_borderWidth);
    return Rectf(width, width, width, width);
}

MenuItemTints::MenuItemTints(Window& item)
    : d_item(item), d_normalText(opaque(MenuImagery::TextColour)),
      d_disabledText(opaque(MenuImagery::DisabledTextColour))
{
}

void MenuItemTints::set(ColourRect& slot, const ColourRect& colours)
{
    slot = colours;
    d_item.invalidate();
}

ColourRect MenuItemTints::bandColours(const MenuItem& item, MenuItemState state) const
{
    const ColourRect& colours = state == MenuItemState::Open     ? d_opened
                                : state == MenuItemState::Pushed ? d_pushed
                                : item.isPushed()                ? d_pushedOff
                                                                 : d_hover;
    return faded(colours, item.getEffectiveAlpha());
}

ColourRect MenuItemTints::textColours(const MenuItem& item, MenuItemState state) const
{
    return faded(state == MenuItemState::Disabled ? d_disabledText : d_normalText,
                 item.getEffectiveAlpha());
}

// --- the bar ----------------------------------------------------------------------------

MXMenubar::MXMenubar(const String& type, const String& name)
    // Only the bar's ends keep their distance: its items reach its top and bottom.
    : RedrawnWhenUncovered<Menubar>(type, name), MenuListStyle(*this, Rectf(Padding, 0, Padding, 0))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setWindowRenderer(MXItemListRenderer::TypeName);
    addMenuListStyleProperties(*this);
    d_pressOutside = onPressOutside(*this, d_destroyed, closeBarMenus);
}

Rectf MXMenubar::itemRenderArea() const
{
    const Sizef own = getPixelSize();
    const Rectf space = spacing();
    return Rectf(space.left(), space.top(), std::max(space.left(), own.d_width - space.right()),
                 std::max(space.top(), own.d_height - space.bottom()));
}

void MXMenubar::drawList()
{
    if (!hasVisibleArea(*this))
        return;
    drawImage(getGeometryBuffer(), lookImage(BarImageName), Rectf(Vector2f(0, 0), getPixelSize()),
              nullptr, faded(getBackgroundColours(), getEffectiveAlpha()));
}

void MXMenubar::destroy()
{
    // A destroyed bar waits in CEGUI's dead pool, its items already gone.
    d_destroyed = true;
    RedrawnWhenUncovered<Menubar>::destroy();
}

void MXMenubar::onDeactivated(ActivationEventArgs& e)
{
    RedrawnWhenUncovered<Menubar>::onDeactivated(e);
    closeBarMenus(*this);
}

// --- the pop-up -------------------------------------------------------------------------

MXPopupMenu::MXPopupMenu(const String& type, const String& name)
    : RedrawnWhenUncovered<PopupMenu>(type, name),
      MenuListStyle(*this, Rectf(Padding, Padding, Padding, Padding))
{
    addMenuListStyleProperties(*this);
    const String prefix(PopupFramePrefix);
    const String names[8] = {prefix + "TopLeft",     prefix + "TopRight", prefix + "BottomLeft",
                             prefix + "BottomRight", prefix + "Left",     prefix + "Top",
                             prefix + "Right",       prefix + "Bottom"};
    d_frame.setImages({names[0].c_str(), names[1].c_str(), names[2].c_str(), names[3].c_str(),
                       names[4].c_str(), names[5].c_str(), names[6].c_str(), names[7].c_str()});
    setMouseCursor(&lookImage(MouseCursorImageName));
    setWindowRenderer(MXItemListRenderer::TypeName);
    // It hangs off its menu item, over everything.
    setClippedByParent(false);
    setAlwaysOnTop(true);
    d_pressOutside = onPressOutside(*this, d_destroyed, closeOwnPopup);
}

Rectf MXPopupMenu::itemRenderArea() const
{
    const Sizef own = getPixelSize();
    // The box leaves room at its right and bottom for its shadow.
    const Rectf box(0, 0, std::max(0.0f, own.d_width - ShadowOffset),
                    std::max(0.0f, own.d_height - ShadowOffset));
    Rectf area = d_frame.innerRect(box);
    const Rectf space = spacing();
    area.d_min.d_x += space.left();
    area.d_min.d_y += space.top();
    area.d_max.d_x = std::max(area.d_min.d_x, area.d_max.d_x - space.right());
    area.d_max.d_y = std::max(area.d_min.d_y, area.d_max.d_y - space.bottom());
    return area;
}

void MXPopupMenu::drawList()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const Sizef own = getPixelSize();
    const Sizef box(std::max(0.0f, own.d_width - ShadowOffset),
                    std::max(0.0f, own.d_height - ShadowOffset));
    drawImage(buffer, lookImage(ShadowImageName), Rectf(Vector2f(ShadowOffset, ShadowOffset), box),
              nullptr, white(*this));
    const Rectf boxRect(Vector2f(0, 0), box);
    const ColourRect colours = faded(getBackgroundColours(), getEffectiveAlpha());
    drawImage(buffer, lookImage(PopupFillImageName), d_frame.innerRect(boxRect), nullptr, colours);
    d_frame.setSize(box);
    d_frame.setColours(colours);
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
}

void MXPopupMenu::destroy()
{
    d_destroyed = true;
    RedrawnWhenUncovered<PopupMenu>::destroy();
}

void MXPopupMenu::onDeactivated(ActivationEventArgs& e)
{
    RedrawnWhenUncovered<PopupMenu>::onDeactivated(e);
    closeOwnPopup(*this);
}

// --- bar items --------------------------------------------------------------------------

MXMenubarItem::MXMenubarItem(const String& type, const String& name)
    : RedrawnWhenUncovered<MenuItem>(type, name), MenuItemTints(static_cast<Window&>(*this))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setWindowRenderer(MXMenuItemRenderer::TypeName);
    addMenuItemTintProperties(*this);
}

Sizef MXMenubarItem::barItemSize(const MenuItem& item)
{
    const Font* font = item.getFont();
    if (!font)
        return Sizef(2 * HorzPadding, 2 * VertPadding);
    return Sizef(std::ceil(font->getTextExtent(item.getTextVisual())) + 2 * HorzPadding,
                 std::ceil(font->getLineSpacing()) + 2 * VertPadding);
}

void MXMenubarItem::drawBarItem(MenuItem& item, const MenuItemTints& tints)
{
    if (!hasVisibleArea(item))
        return;
    const MenuItemState state = menuItemStateOf(item);
    const Rectf area(Vector2f(0, 0), item.getPixelSize());
    drawBand(item, tints, state, area);
    if (const Font* font = item.getFont())
    {
        const float top = std::floor((area.getHeight() - font->getLineSpacing()) * 0.5f);
        drawGlyphs(item.getGeometryBuffer(), *font, item.getTextVisual(),
                   Vector2f(HorzPadding, top), nullptr, tints.textColours(item, state));
    }
}

Sizef MXMenubarItem::itemPixelSize() const
{
    return barItemSize(*this);
}

void MXMenubarItem::drawItem()
{
    drawBarItem(*this, *this);
}

void MXMenubarItem::onFontChanged(WindowEventArgs& e)
{
    RedrawnWhenUncovered<MenuItem>::onFontChanged(e);
    itemChangedSize(*this);
}

// --- pop-up items -----------------------------------------------------------------------

MXPopupMenuItem::MXPopupMenuItem(const String& type, const String& name)
    : RedrawnWhenUncovered<MenuItem>(type, name), MenuItemTints(static_cast<Window&>(*this))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setAutoPopupTimeout(SubMenuDelay);
    setWindowRenderer(MXMenuItemRenderer::TypeName);
    addMenuItemTintProperties(*this);
}

Sizef MXPopupMenuItem::itemPixelSize() const
{
    const Font* font = getFont();
    if (isSeparator() || !font)
        return Sizef(CheckColumn + TextGap, SeparatorHeight);
    return Sizef(CheckColumn + std::ceil(font->getTextExtent(getTextVisual())) + TextGap +
                     (getPopupMenu() ? ArrowColumn : 0.0f),
                 std::ceil(font->getLineSpacing()) + 2 * VertPadding);
}

bool MXPopupMenuItem::isHit(const Vector2f& position, const bool allowDisabled) const
{
    return !isSeparator() && RedrawnWhenUncovered<MenuItem>::isHit(position, allowDisabled);
}

void MXPopupMenuItem::drawItem()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const Rectf area(Vector2f(0, 0), getPixelSize());
    if (isSeparator())
    {
        const Image& line = lookImage(SeparatorImageName);
        const float h = line.getRenderedSize().d_height;
        const float top = std::floor((area.getHeight() - h) * 0.5f);
        drawImage(buffer, line, Rectf(area.left() + 2, top, area.right() - 2, top + h), nullptr,
                  white(*this));
        return;
    }
    const MenuItemState state = menuItemStateOf(*this);
    drawBand(*this, *this, state, area);
    const float alpha = state == MenuItemState::Disabled ? 0.5f : 1.0f;
    auto centred = [&](const Image& image, float left, float width)
    {
        const Sizef size = image.getRenderedSize();
        return Rectf(Vector2f(left + std::floor((width - size.d_width) * 0.5f),
                              std::floor((area.getHeight() - size.d_height) * 0.5f)),
                     size);
    };
    if (isSelectable() && isSelected())
    {
        const Image& mark = lookImage(CheckMarkImageName);
        drawImage(buffer, mark, centred(mark, 0, CheckColumn), nullptr, faded(white(*this), alpha));
    }
    if (getPopupMenu())
    {
        const Image& arrow = lookImage(SubMenuArrowImageName);
        drawImage(buffer, arrow, centred(arrow, area.right() - ArrowColumn, ArrowColumn), nullptr,
                  faded(white(*this), alpha));
    }
    if (const Font* font = getFont())
    {
        const float top = std::floor((area.getHeight() - font->getLineSpacing()) * 0.5f);
        drawGlyphs(buffer, *font, getTextVisual(), Vector2f(CheckColumn, top), nullptr,
                   textColours(*this, state));
    }
}

void MXPopupMenuItem::onFontChanged(WindowEventArgs& e)
{
    RedrawnWhenUncovered<MenuItem>::onFontChanged(e);
    itemChangedSize(*this);
}

// --- items for bars and pop-ups alike ----------------------------------------------------

bool MXMenuItem::isOnBar() const
{
    return dynamic_cast<const Menubar*>(getParent()) != nullptr;
}

Sizef MXMenuItem::itemPixelSize() const
{
    return isOnBar() ? MXMenubarItem::barItemSize(*this) : MXPopupMenuItem::itemPixelSize();
}

void MXMenuItem::drawItem()
{
    if (isOnBar())
        MXMenubarItem::drawBarItem(*this, *this);
    else
        MXPopupMenuItem::drawItem();
}

bool MXMenuItem::isHit(const Vector2f& position, const bool allowDisabled) const
{
    // On a bar an empty text is an item still, not a separator.
    return isOnBar() ? RedrawnWhenUncovered<MenuItem>::isHit(position, allowDisabled)
                     : MXPopupMenuItem::isHit(position, allowDisabled);
}

void MXMenuItem::setParent(Element* parent)
{
    MXPopupMenuItem::setParent(parent);
    // A bar opens its pop-ups by click, a pop-up its sub-menus by resting on them.
    setAutoPopupTimeout(isOnBar() ? 0.0f : SubMenuDelay);
}

} // namespace MoxieLook
} // namespace CEGUI
