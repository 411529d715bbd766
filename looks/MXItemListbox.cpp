#include "looks/MXItemListbox.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/InnerBars.h"
#include "looks/ListDrawing.h"
#include "looks/MXListbox.h"

#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Scrollbar.h>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
std::array<const char*, NinePieceFrame::PieceCount> listFramePieces()
{
    return {"StaticFrameListTopLeft",     "StaticFrameListTopRight", "StaticFrameListBottomLeft",
            "StaticFrameListBottomRight", "StaticFrameListLeft",     "StaticFrameListTop",
            "StaticFrameListRight",       "StaticFrameListBottom"};
}
} // namespace

MXItemListbox::MXItemListbox(const String& type, const String& name)
    : RedrawnWhenUncovered<ItemListbox>(type, name), d_fill(&lookImage(MXListbox::FillImageName))
{
    setMouseCursor(&lookImage(MXListbox::MouseCursorImageName));
    setWindowRenderer(MXItemListRenderer::TypeName);
    d_frame.setImages(listFramePieces());
}

MXItemListbox::~MXItemListbox()
{
    // CEGUI's list destroys its content pane again after its children went, pane included,
    // and logs an error for every list; a pane already gone is not asked for again.
    if (d_pane && d_pane != this && !WindowManager::getSingleton().isAlive(d_pane))
        d_pane = nullptr;
}

void MXItemListbox::initialiseComponents()
{
    // A list from a layout file may bring its bars already.
    const std::pair<const String*, const char*> bars[] = {{&VertScrollbarName, VertScrollbarType},
                                                          {&HorzScrollbarName, HorzScrollbarType}};
    for (const auto& [name, type] : bars)
        if (!isChild(*name))
        {
            Scrollbar* bar = createAutoPart<Scrollbar>(type, *name, "an item list's scroll bar");
            bar->setNonClient(true);
            addChild(bar);
        }
    RedrawnWhenUncovered<ItemListbox>::initialiseComponents();
    // CEGUI shows and hides the bars after the layout: each one's length depends on the other.
    std::size_t watched = 0;
    for (Scrollbar* bar : {getVertScrollbar(), getHorzScrollbar()})
        for (const String* event : {&Window::EventShown, &Window::EventHidden})
            d_barWatches[watched++] = bar->subscribeEvent(*event, [this] { layOutBars(); });
    layOutBars();
}

void MXItemListbox::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    RedrawnWhenUncovered<ItemListbox>::performChildWindowLayout(nonclientSizedHint,
                                                                clientSizedHint);
    layOutBars();
}

void MXItemListbox::layOutBars()
{
    Window* vert = partOrNull(*this, VertScrollbarName);
    Window* horz = partOrNull(*this, HorzScrollbarName);
    if (!vert || !horz)
        return;
    layOutInnerBars(vert, horz, d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize())),
                    ScrollbarThickness);
}

Rectf MXItemListbox::itemRenderArea() const
{
    return areaBesideInnerBars(d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize())),
                               partOrNull(*this, VertScrollbarName),
                               partOrNull(*this, HorzScrollbarName), ScrollbarThickness);
}

Rectf MXItemListbox::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    Rectf area = itemRenderArea();
    area.offset((skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                       : getUnclippedOuterRect().get())
                    .d_min);
    return area;
}

void MXItemListbox::drawList()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const Rectf area(Vector2f(0, 0), getPixelSize());
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha());
    drawImage(buffer, *d_fill, d_frame.innerRect(area), nullptr, white);
    d_frame.setSize(area.getSize());
    d_frame.setColours(white);
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
}

const Colour MXListboxItem::TextColour(0x0026313D);
// As the list box shows its selected items: ink on the light brush.
const Colour MXListboxItem::SelectedTextColour(0x0026313D);
const Colour MXListboxItem::DisabledTextColour(0x00888888);

MXListboxItem::MXListboxItem(const String& type, const String& name)
    : RedrawnWhenUncovered<ItemEntry>(type, name),
      d_ownSelectionBrush(&lookImage(ListDrawing::SelectionBrushImageName)),
      d_hoverBrush(&lookImage(ListDrawing::HoverBrushImageName))
{
    setMouseCursor(&lookImage(MXListbox::MouseCursorImageName));
    setWindowRenderer(MXMenuItemRenderer::TypeName);
    setSelectable(true);
    // What an item does not take (the wheel) goes on to its list, as CEGUI's skins have it.
    setMouseInputPropagationEnabled(true);
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXListboxItem, ColourRect, "TextColour",
                          "Property to get/set the text colours." MOXIE_COLOURS_VALUE_HELP,
                          &MXListboxItem::setTextColour, &MXListboxItem::getTextColour,
                          ColourRect(opaque(TextColour)));
    CEGUI_DEFINE_PROPERTY(
        MXListboxItem, ColourRect, "SelectedTextColour",
        "Property to get/set the selected text's colours." MOXIE_COLOURS_VALUE_HELP,
        &MXListboxItem::setSelectedTextColour, &MXListboxItem::getSelectedTextColour,
        ColourRect(opaque(SelectedTextColour)));
    CEGUI_DEFINE_PROPERTY(
        MXListboxItem, ColourRect, "SelectionColour",
        "Property to get/set the tint of the selection brush." MOXIE_COLOURS_VALUE_HELP,
        &MXListboxItem::setSelectionColour, &MXListboxItem::getSelectionColour,
        ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(MXListboxItem, Image*, "SelectionBrush",
                          "Property to get/set the image under a selected item. Value is an "
                          "image name such as \"MoxieLook/ListboxSelectionBrush\".",
                          &MXListboxItem::setSelectionBrush, &MXListboxItem::getSelectionBrush,
                          nullptr);
}

void MXListboxItem::setTextColour(const ColourRect& colours)
{
    d_textColour = colours;
    invalidate();
}

ColourRect MXListboxItem::getTextColour() const
{
    return d_textColour.value_or(ColourRect(opaque(TextColour)));
}

void MXListboxItem::setSelectedTextColour(const ColourRect& colours)
{
    d_selectedTextColour = colours;
    invalidate();
}

ColourRect MXListboxItem::getSelectedTextColour() const
{
    return d_selectedTextColour.value_or(ColourRect(opaque(SelectedTextColour)));
}

void MXListboxItem::setSelectionColour(const ColourRect& colours)
{
    d_selectionColour = colours;
    invalidate();
}

ColourRect MXListboxItem::getSelectionColour() const
{
    return d_selectionColour.value_or(ColourRect(Colour(0xFFFFFFFF)));
}

void MXListboxItem::setSelectionBrush(const Image* image)
{
    d_selectionBrush = image;
    invalidate();
}

const Image* MXListboxItem::getSelectionBrush() const
{
    return d_selectionBrush ? d_selectionBrush : d_ownSelectionBrush;
}

Sizef MXListboxItem::itemPixelSize() const
{
    const Font* font = getFont();
    if (!font)
        return Sizef(2 * HorzPadding, 2 * VertPadding);
    return Sizef(std::ceil(font->getTextExtent(getTextVisual())) + 2 * HorzPadding,
                 std::ceil(font->getLineSpacing()) + 2 * VertPadding);
}

void MXListboxItem::drawItem()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    // The brushes span the list's width, however narrow the text.
    const Rectf area(Vector2f(0, 0), getPixelSize());
    const bool selected = isSelectable() && isSelected();
    if (selected)
        drawImage(buffer, *getSelectionBrush(), area, nullptr, faded(getSelectionColour(), alpha));
    else if (d_hovered)
        drawImage(buffer, *d_hoverBrush, area, nullptr,
                  withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha));
    const Font* font = getFont();
    if (!font)
        return;
    const ColourRect colours = isEffectiveDisabled()
                                   ? ColourRect(withAlpha(DisabledTextColour, alpha))
                               : selected ? faded(getSelectedTextColour(), alpha)
                                          : faded(getTextColour(), alpha);
    const float top = std::floor((area.getHeight() - font->getLineSpacing()) * 0.5f);
    drawGlyphs(buffer, *font, getTextVisual(), Vector2f(HorzPadding, top), nullptr, colours);
}

void MXListboxItem::onMouseEnters(MouseEventArgs& e)
{
    RedrawnWhenUncovered<ItemEntry>::onMouseEnters(e);
    d_hovered = true;
    invalidate();
}

void MXListboxItem::onMouseLeaves(MouseEventArgs& e)
{
    RedrawnWhenUncovered<ItemEntry>::onMouseLeaves(e);
    d_hovered = false;
    invalidate();
}

void MXListboxItem::onTextChanged(WindowEventArgs& e)
{
    RedrawnWhenUncovered<ItemEntry>::onTextChanged(e);
    sizeChanged();
}

void MXListboxItem::onFontChanged(WindowEventArgs& e)
{
    RedrawnWhenUncovered<ItemEntry>::onFontChanged(e);
    sizeChanged();
}

void MXListboxItem::sizeChanged()
{
    invalidate();
    if (ItemListBase* list = getOwnerList())
        list->handleUpdatedItemData();
}

} // namespace MoxieLook
} // namespace CEGUI
