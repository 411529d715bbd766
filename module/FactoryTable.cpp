#include "module/FactoryTable.h"

#include "draw/GlyphRun.h"
#include "looks/MXButton.h"
#include "looks/MXButtonEx.h"
#include "looks/MXClock.h"
#include "looks/MXCloseButton.h"
#include "looks/MXCombobox.h"
#include "looks/MXDiagram.h"
#include "looks/MXEditbox.h"
#include "looks/MXFrameWindow.h"
#include "looks/MXItemListbox.h"
#include "looks/MXListHeader.h"
#include "looks/MXListbox.h"
#include "looks/MXMenus.h"
#include "looks/MXMultiColumnList.h"
#include "looks/MXMultiLineEditBox.h"
#include "looks/MXPlainWindows.h"
#include "looks/MXProgressBar.h"
#include "looks/MXScrollablePane.h"
#include "looks/MXScrollbar.h"
#include "looks/MXScrollbarThumb.h"
#include "looks/MXSelectableButtons.h"
#include "looks/MXSlider.h"
#include "looks/MXSmartButtonNodeItem.h"
#include "looks/MXSpinner.h"
#include "looks/MXStatics.h"
#include "looks/MXTabButton.h"
#include "looks/MXTabControl.h"
#include "looks/MXTabPane.h"
#include "looks/MXTaskbar.h"
#include "looks/MXTitlebar.h"
#include "looks/MXTooltip.h"
#include "looks/MXTree.h"
#include "looks/MXTreeView.h"
#include "looks/MXTreeViewMultiColumnListEx.h"
#include "looks/MXWidgetDropDownList.h"
#include "module/KeyboardNavigation.h"

#include <CEGUI/WindowFactoryManager.h>
#include <CEGUI/WindowRendererManager.h>
#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// One instance per type, built at load and destroyed at unload in reverse order.
MXScrollbarRendererFactory s_scrollbarRenderer;
MXScrollablePaneRendererFactory s_scrollablePaneRenderer;
MXEditboxRendererFactory s_editboxRenderer;
MXMultiLineEditBoxRendererFactory s_multiLineEditBoxRenderer;
MXListboxRendererFactory s_listboxRenderer;
MXItemListRendererFactory s_itemListRenderer;
MXMenuItemRendererFactory s_menuItemRenderer;
MXTabControlRendererFactory s_tabControlRenderer;
MXListHeaderRendererFactory s_listHeaderRenderer;
MXMultiColumnListRendererFactory s_multiColumnListRenderer;
MXTooltipRendererFactory s_tooltipRenderer;

MXStaticLayoutFactory s_staticLayout;
MXStaticTextFactory s_staticText;
MXStaticImageFactory s_staticImage;
MXStaticImageExFactory s_staticImageEx;
MXButtonFactory s_button;
MXButtonExFactory s_buttonEx;
MXSliderThumbFactory s_sliderThumb;
MXSliderFactory s_slider;
MXVertScrollbarThumbFactory s_vertScrollbarThumb;
MXVertScrollbarFactory s_vertScrollbar;
MXHorzScrollbarThumbFactory s_horzScrollbarThumb;
MXHorzScrollbarFactory s_horzScrollbar;
MXScrollablePaneFactory s_scrollablePane;
MXTextItemFactory s_textItem;
MXTextItemExFactory s_textItemEx;
MXMenuButtonFactory s_menuButton;
MXCheckboxFactory s_checkbox;
MXClockFactory s_clock;
MXTreeViewFactory s_treeView;
MXSmartButtonNodeItemFactory s_smartButtonNodeItem;
MXDiagramFactory s_diagram;
MXEditboxFactory s_editbox;
MXMultiLineEditBoxFactory s_multiLineEditBox;
MXSpinnerFactory s_spinner;
MXListboxFactory s_listbox;
MXComboDropListFactory s_comboDropList;
MXComboboxFactory s_combobox;
MXMenubarItemFactory s_menubarItem;
MXPopupMenuItemFactory s_popupMenuItem;
MXMenubarFactory s_menubar;
MXPopupMenuFactory s_popupMenu;
MXWidgetDropDownListFactory s_widgetDropDownList;
MXWidgetDropDownListboxFactory s_widgetDropDownListbox;
MXProgressBarFactory s_progressBar;
MXToggleButtonFactory s_toggleButton;
MXRadioButtonFactory s_radioButton;
MXAnimatedStaticImageFactory s_animatedStaticImage;
MXTabControlFactory s_tabControl;
MXTabButtonFactory s_tabButton;
MXTabPaneFactory s_tabPane;
MXTooltipFactory s_tooltip;
MXTitlebarFactory s_titlebar;
MXCloseButtonFactory s_closeButton;
MXFrameWindowFactory s_frameWindow;
MXTaskbarButtonFactory s_taskbarButton;
MXTaskbarFactory s_taskbar;
MXListHeaderSegmentFactory s_listHeaderSegment;
MXListHeaderFactory s_listHeader;
MXMultiColumnListFactory s_multiColumnList;
MXMultiColumnListExFactory s_multiColumnListEx;
MXTreeViewMultiColumnListExFactory s_treeViewMultiColumnListEx;
MXLabelFactory s_label;
MXStaticFrameFactory s_static;
MXGroupBoxFactory s_groupBox;
MXTabContentPaneFactory s_tabContentPane;
MXTabButtonPaneFactory s_tabButtonPane;
MXImageButtonFactory s_imageButton;
MXIconButtonFactory s_iconButton;
MXSystemButtonFactory s_systemButton;
MXComboEditboxFactory s_comboEditbox;
MXLargeVertScrollbarThumbFactory s_largeVertScrollbarThumb;
MXLargeVertScrollbarFactory s_largeVertScrollbar;
MXAlternateProgressBarFactory s_alternateProgressBar;
MXVUMeterFactory s_vuMeter;
MXMenuItemFactory s_menuItem;
MXListboxItemFactory s_listboxItem;
MXItemListboxFactory s_itemListbox;
MXTreeFactory s_tree;

// A type joins the module with one line here (and one in MoxieLook.scheme).
const std::array k_table{
    FactoryEntry{MXStaticLayout::WidgetTypeName, &s_staticLayout, nullptr},
    FactoryEntry{MXStaticText::WidgetTypeName, &s_staticText, nullptr},
    FactoryEntry{MXStaticImage::WidgetTypeName, &s_staticImage, nullptr},
    FactoryEntry{MXStaticImageEx::WidgetTypeName, &s_staticImageEx, nullptr},
    FactoryEntry{MXButton::WidgetTypeName, &s_button, nullptr},
    FactoryEntry{MXButtonEx::WidgetTypeName, &s_buttonEx, nullptr},
    FactoryEntry{MXMultiColumnListEx::WidgetTypeName, &s_multiColumnListEx,
                 &s_multiColumnListRenderer},
    FactoryEntry{MXTreeViewMultiColumnListEx::WidgetTypeName, &s_treeViewMultiColumnListEx,
                 nullptr},
    FactoryEntry{MXTitlebar::WidgetTypeName, &s_titlebar, nullptr},
    FactoryEntry{MXCloseButton::WidgetTypeName, &s_closeButton, nullptr},
    FactoryEntry{MXFrameWindow::WidgetTypeName, &s_frameWindow, nullptr},
    FactoryEntry{MXEditbox::WidgetTypeName, &s_editbox, &s_editboxRenderer},
    FactoryEntry{MXCheckbox::WidgetTypeName, &s_checkbox, nullptr},
    FactoryEntry{MXTaskbarButton::WidgetTypeName, &s_taskbarButton, nullptr},
    FactoryEntry{MXProgressBar::WidgetTypeName, &s_progressBar, nullptr},
    FactoryEntry{MXSliderThumb::WidgetTypeName, &s_sliderThumb, nullptr},
    FactoryEntry{MXSlider::WidgetTypeName, &s_slider, nullptr},
    FactoryEntry{MXVertScrollbarThumb::WidgetTypeName, &s_vertScrollbarThumb, nullptr},
    FactoryEntry{MXVertScrollbar::WidgetTypeName, &s_vertScrollbar, &s_scrollbarRenderer},
    FactoryEntry{MXHorzScrollbarThumb::WidgetTypeName, &s_horzScrollbarThumb, nullptr},
    FactoryEntry{MXHorzScrollbar::WidgetTypeName, &s_horzScrollbar, &s_scrollbarRenderer},
    FactoryEntry{MXListbox::WidgetTypeName, &s_listbox, &s_listboxRenderer},
    FactoryEntry{MXComboDropList::WidgetTypeName, &s_comboDropList, &s_listboxRenderer},
    FactoryEntry{MXCombobox::WidgetTypeName, &s_combobox, nullptr},
    FactoryEntry{MXWidgetDropDownList::WidgetTypeName, &s_widgetDropDownList, nullptr},
    FactoryEntry{MXWidgetDropDownListbox::WidgetTypeName, &s_widgetDropDownListbox, nullptr},
    FactoryEntry{MXMultiLineEditBox::WidgetTypeName, &s_multiLineEditBox,
                 &s_multiLineEditBoxRenderer},
    FactoryEntry{MXListHeaderSegment::WidgetTypeName, &s_listHeaderSegment, nullptr},
    FactoryEntry{MXListHeader::WidgetTypeName, &s_listHeader, &s_listHeaderRenderer},
    FactoryEntry{MXMultiColumnList::WidgetTypeName, &s_multiColumnList, &s_multiColumnListRenderer},
    FactoryEntry{MXTabControl::WidgetTypeName, &s_tabControl, &s_tabControlRenderer},
    FactoryEntry{MXTabButton::WidgetTypeName, &s_tabButton, nullptr},
    FactoryEntry{MXTabPane::WidgetTypeName, &s_tabPane, nullptr},
    FactoryEntry{MXSpinner::WidgetTypeName, &s_spinner, nullptr},
    FactoryEntry{MXScrollablePane::WidgetTypeName, &s_scrollablePane, &s_scrollablePaneRenderer},
    FactoryEntry{MXTooltip::WidgetTypeName, &s_tooltip, &s_tooltipRenderer},
    FactoryEntry{MXTextItem::WidgetTypeName, &s_textItem, nullptr},
    FactoryEntry{MXTextItemEx::WidgetTypeName, &s_textItemEx, nullptr},
    FactoryEntry{MXMenubarItem::WidgetTypeName, &s_menubarItem, &s_menuItemRenderer},
    FactoryEntry{MXPopupMenuItem::WidgetTypeName, &s_popupMenuItem, &s_menuItemRenderer},
    FactoryEntry{MXMenubar::WidgetTypeName, &s_menubar, &s_itemListRenderer},
    FactoryEntry{MXPopupMenu::WidgetTypeName, &s_popupMenu, &s_itemListRenderer},
    FactoryEntry{MXTaskbar::WidgetTypeName, &s_taskbar, nullptr},
    FactoryEntry{MXClock::WidgetTypeName, &s_clock, nullptr},
    FactoryEntry{MXTreeView::WidgetTypeName, &s_treeView, nullptr},
    FactoryEntry{MXToggleButton::WidgetTypeName, &s_toggleButton, nullptr},
    FactoryEntry{MXRadioButton::WidgetTypeName, &s_radioButton, nullptr},
    FactoryEntry{MXDiagram::WidgetTypeName, &s_diagram, nullptr},
    FactoryEntry{MXSmartButtonNodeItem::WidgetTypeName, &s_smartButtonNodeItem, nullptr},
    FactoryEntry{MXMenuButton::WidgetTypeName, &s_menuButton, nullptr},
    FactoryEntry{MXAnimatedStaticImage::WidgetTypeName, &s_animatedStaticImage, nullptr},
    // The stock skins' types the module's own did not cover.
    FactoryEntry{MXLabel::WidgetTypeName, &s_label, nullptr},
    FactoryEntry{MXStaticFrame::WidgetTypeName, &s_static, nullptr},
    FactoryEntry{MXGroupBox::WidgetTypeName, &s_groupBox, nullptr},
    FactoryEntry{MXTabContentPane::WidgetTypeName, &s_tabContentPane, nullptr},
    FactoryEntry{MXTabButtonPane::WidgetTypeName, &s_tabButtonPane, nullptr},
    FactoryEntry{MXImageButton::WidgetTypeName, &s_imageButton, nullptr},
    FactoryEntry{MXIconButton::WidgetTypeName, &s_iconButton, nullptr},
    FactoryEntry{MXSystemButton::WidgetTypeName, &s_systemButton, nullptr},
    FactoryEntry{MXComboEditbox::WidgetTypeName, &s_comboEditbox, &s_editboxRenderer},
    FactoryEntry{MXLargeVertScrollbarThumb::WidgetTypeName, &s_largeVertScrollbarThumb, nullptr},
    FactoryEntry{MXLargeVertScrollbar::WidgetTypeName, &s_largeVertScrollbar, &s_scrollbarRenderer},
    FactoryEntry{MXAlternateProgressBar::WidgetTypeName, &s_alternateProgressBar, nullptr},
    FactoryEntry{MXVUMeter::WidgetTypeName, &s_vuMeter, nullptr},
    FactoryEntry{MXMenuItem::WidgetTypeName, &s_menuItem, &s_menuItemRenderer},
    FactoryEntry{MXListboxItem::WidgetTypeName, &s_listboxItem, &s_menuItemRenderer},
    FactoryEntry{MXItemListbox::WidgetTypeName, &s_itemListbox, &s_itemListRenderer},
    FactoryEntry{MXTree::WidgetTypeName, &s_tree, nullptr},
};
} // namespace

const FactoryEntry* factoryTableBegin()
{
    return k_table.data();
}

const FactoryEntry* factoryTableEnd()
{
    return k_table.data() + k_table.size();
}

std::size_t factoryTableSize()
{
    return k_table.size();
}

const FactoryEntry* findModuleEntry(const char* typeName)
{
    for (const FactoryEntry& entry : k_table)
        if (std::strcmp(entry.typeName, typeName) == 0)
            return &entry;
    return nullptr;
}

WindowFactory* findModuleFactory(const char* typeName)
{
    const FactoryEntry* entry = findModuleEntry(typeName);
    return entry ? entry->factory : nullptr;
}

void addToCegui(const FactoryEntry& entry)
{
    attachKeyboardNavigation();
    attachGlyphTables();
    WindowFactoryManager::getSingleton().addFactory(entry.factory);
    WindowRendererManager& renderers = WindowRendererManager::getSingleton();
    if (entry.renderer && !renderers.isFactoryPresent(entry.renderer->getName()))
        renderers.addFactory(entry.renderer);
}

void removeFromCegui(const FactoryEntry& entry)
{
    WindowFactoryManager& windows = WindowFactoryManager::getSingleton();
    windows.removeFactory(entry.typeName);
    // With the last of the module's types gone, the module may be unloaded.
    if (std::none_of(std::begin(k_table), std::end(k_table),
                     [&windows](const FactoryEntry& e)
                     { return windows.isFactoryPresent(e.typeName); }))
    {
        detachKeyboardNavigation();
        forgetGlyphTables();
    }
    if (!entry.renderer)
        return;
    for (const FactoryEntry& other : k_table)
        if (other.renderer == entry.renderer && windows.isFactoryPresent(other.typeName) &&
            windows.getFactory(other.typeName) == other.factory)
            return;
    WindowRendererManager& renderers = WindowRendererManager::getSingleton();
    if (renderers.isFactoryPresent(entry.renderer->getName()) &&
        renderers.getFactory(entry.renderer->getName()) == entry.renderer)
        renderers.removeFactory(entry.renderer->getName());
}

} // namespace MoxieLook
} // namespace CEGUI
