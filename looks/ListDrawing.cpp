#include "looks/ListDrawing.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/InnerBars.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/System.h>
#include <CEGUI/widgets/Listbox.h>
#include <CEGUI/widgets/ListboxTextItem.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <algorithm>
#include <cmath>
#include <type_traits>
#include <typeinfo>

namespace CEGUI
{
namespace MoxieLook
{
const Colour ListDrawing::ItemTextColour(0xFF26313D);

namespace
{
bool sameColour(const ColourRect& colours, const Colour& colour)
{
    return colours.d_top_left == colour && colours.d_top_right == colour &&
           colours.d_bottom_left == colour && colours.d_bottom_right == colour;
}
} // namespace

ListDrawing::ListDrawing(const char* framePrefix, const char* fill)
    : d_fill(&lookImage(fill)), d_selectionBrush(&lookImage(SelectionBrushImageName)),
      d_hoverBrush(&lookImage(HoverBrushImageName))
{
    const String prefix(framePrefix);
    const String names[8] = {prefix + "TopLeft",     prefix + "TopRight", prefix + "BottomLeft",
                             prefix + "BottomRight", prefix + "Left",     prefix + "Top",
                             prefix + "Right",       prefix + "Bottom"};
    d_frame.setImages({names[0].c_str(), names[1].c_str(), names[2].c_str(), names[3].c_str(),
                       names[4].c_str(), names[5].c_str(), names[6].c_str(), names[7].c_str()});
}

void ListDrawing::makeParts(Listbox& list) const
{
    const std::pair<const String*, const char*> bars[] = {
        {&Listbox::VertScrollbarName, VertScrollbarType},
        {&Listbox::HorzScrollbarName, HorzScrollbarType}};
    for (const auto& [name, type] : bars)
        if (!list.isChild(*name))
        {
            Scrollbar* bar = createAutoPart<Scrollbar>(type, *name, "a list's scroll bar");
            bar->setNonClient(true);
            list.addChild(bar);
        }
}

void ListDrawing::layOutParts(Listbox& list) const
{
    Window* vert = partOrNull(list, Listbox::VertScrollbarName);
    Window* horz = partOrNull(list, Listbox::HorzScrollbarName);
    if (vert && horz)
        layOutInnerBars(vert, horz, d_frame.innerRect(Rectf(Vector2f(0, 0), list.getPixelSize())),
                        ScrollbarThickness);
}

Rectf ListDrawing::renderArea(const Listbox& list) const
{
    return renderArea(list, partOrNull<Scrollbar>(list, Listbox::VertScrollbarName),
                      partOrNull<Scrollbar>(list, Listbox::HorzScrollbarName));
}

Rectf ListDrawing::renderArea(const Listbox& list, const Scrollbar* vert,
                              const Scrollbar* horz) const
{
    return areaBesideInnerBars(d_frame.innerRect(Rectf(Vector2f(0, 0), list.getPixelSize())), vert,
                               horz, ScrollbarThickness);
}

namespace
{
// The common case by its exact type, which is quicker to ask than dynamic_cast; a host's
// own item kinds are asked the long way.
template <typename Item>
auto* asTextItem(Item& item)
{
    using Text = std::conditional_t<std::is_const_v<Item>, const ListboxTextItem, ListboxTextItem>;
    return typeid(item) == typeid(ListboxTextItem) ? static_cast<Text*>(&item)
                                                   : dynamic_cast<Text*>(&item);
}
} // namespace

void ListDrawing::drawItem(const ListboxItem& item, GeometryBuffer& buffer, const Rectf& rect,
                           float alpha, const Rectf* clip)
{
    const auto* text = asTextItem(item);
    const Font* font = text ? text->getFont() : nullptr;
    const String& words = item.getText();
    if (!font || words.find_first_of("[\n") != String::npos)
    {
        item.draw(buffer, rect, alpha, clip);
        return;
    }
    if (item.isSelected() && item.getSelectionBrushImage())
    {
        ColourRect brush = item.getSelectionColours();
        brush.modulateAlpha(alpha);
        drawImage(buffer, *item.getSelectionBrushImage(), rect, clip, brush);
    }
    // Where CEGUI's text item puts its line: the font's leading split above and below.
    const float lead = std::round((font->getLineSpacing() - font->getFontHeight()) / 2);
    ColourRect colours = text->getTextColours();
    colours.modulateAlpha(alpha);
    drawGlyphs(buffer, *font, words, Vector2f(rect.left(), rect.top() + lead), clip, colours);
}

void ListDrawing::styleItem(ListboxItem& item, const Image* brush)
{
    if (!item.getSelectionBrushImage())
        item.setSelectionBrushImage(brush);
    // CEGUI tints the brush dark blue by default; this brush is coloured already.
    if (sameColour(item.getSelectionColours(), ListboxItem::DefaultSelectionColour))
        item.setSelectionColours(Colour(0xFFFFFFFF));
    // CEGUI's default text colour is white, for dark skins; on this light list a host's
    // own choice is kept, the default becomes ink.
    if (auto* text = asTextItem(item))
    {
        if (sameColour(text->getTextColours(), ListboxTextItem::DefaultTextColour))
            text->setTextColours(ItemTextColour);
    }
}

void ListDrawing::contentsChanged(Listbox& list)
{
    d_measured = false;
    d_hovered = nullptr;
    for (std::size_t i = 0; i < list.getItemCount(); ++i)
        styleItem(*list.getListboxItemFromIndex(i), d_selectionBrush);
}

void ListDrawing::measure(const Listbox& list)
{
    const std::size_t count = list.getItemCount();
    d_tops.assign(1, 0.0f);
    d_tops.reserve(count + 1);
    d_widest = 0;
    for (std::size_t i = 0; i < count; ++i)
    {
        const Sizef size = list.getListboxItemFromIndex(i)->getPixelSize();
        d_tops.push_back(d_tops.back() + size.d_height);
        d_widest = std::max(d_widest, size.d_width);
    }
    d_measured = true;
}

ListboxItem* ListDrawing::itemAt(const Listbox& list, const Vector2f& screenPoint)
{
    if (!d_measured)
        measure(list);
    const Rectf area = renderArea(list);
    const Vector2f local = CoordConverter::screenToWindow(list, screenPoint);
    if (!area.isPointInRect(local))
        return nullptr;
    const float y = local.d_y - area.top() + scrollOf(list, Listbox::VertScrollbarName);
    const auto above = std::upper_bound(d_tops.begin(), d_tops.end(), y);
    if (above == d_tops.begin() || above == d_tops.end())
        return nullptr;
    const std::size_t index = static_cast<std::size_t>(above - d_tops.begin()) - 1;
    return index < list.getItemCount() ? list.getListboxItemFromIndex(index) : nullptr;
}

bool ListDrawing::setHovered(ListboxItem* item)
{
    if (item == d_hovered)
        return false;
    d_hovered = item;
    return true;
}

void ListDrawing::draw(Listbox& list)
{
    if (!hasVisibleArea(list))
        return;
    GeometryBuffer& buffer = list.getGeometryBuffer();
    const float alpha = list.getEffectiveAlpha();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha);
    const Rectf outer(Vector2f(0, 0), list.getPixelSize());
    drawImage(buffer, *d_fill, d_frame.innerRect(outer), nullptr, white);
    d_frame.setSize(outer.getSize());
    d_frame.setColours(white);
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);

    if (!d_measured)
        measure(list);
    // The bars found once: for the area they leave and for how far they scroll it.
    const Scrollbar* vert = partOrNull<Scrollbar>(list, Listbox::VertScrollbarName);
    const Scrollbar* horz = partOrNull<Scrollbar>(list, Listbox::HorzScrollbarName);
    const Rectf area = renderArea(list, vert, horz);
    const float left = area.left() - (horz ? horz->getScrollPosition() : 0.0f);
    const float top = area.top() - (vert ? vert->getScrollPosition() : 0.0f);
    const float width = std::max(area.getWidth(), d_widest);
    // A disabled list shows its items faded.
    const float itemAlpha = list.isEffectiveDisabled() ? alpha * 0.5f : alpha;
    // The first item that reaches into the area, then on until one starts below it.
    auto first = std::upper_bound(d_tops.begin(), d_tops.end(), area.top() - top);
    std::size_t index =
        first == d_tops.begin() ? 0 : static_cast<std::size_t>(first - d_tops.begin()) - 1;
    const std::size_t count = std::min(list.getItemCount(), d_tops.size() - 1);
    for (; index < count && top + d_tops[index] < area.bottom(); ++index)
    {
        ListboxItem* item = list.getListboxItemFromIndex(index);
        const Rectf rect(left, top + d_tops[index], left + width, top + d_tops[index + 1]);
        const Rectf clip = rect.getIntersection(area);
        if (clip.getWidth() <= 0 || clip.getHeight() <= 0)
            continue;
        if (item == d_hovered && !item->isSelected())
            drawImage(buffer, *d_hoverBrush, rect, &clip, white);
        drawItem(*item, buffer, rect, itemAlpha, &clip);
    }
}

void ListDrawing::resizeToContent(Listbox& list, bool fitWidth, bool fitHeight)
{
    measure(list);
    const Rectf outer(Vector2f(0, 0), list.getPixelSize());
    const Rectf inner = d_frame.innerRect(outer);
    const Sizef frame(outer.getWidth() - inner.getWidth(), outer.getHeight() - inner.getHeight());
    const Sizef display = System::getSingleton().getRenderer()->getDisplaySize();
    const Vector2f at = list.getUnclippedOuterRect().get().d_min;
    Sizef size = list.getPixelSize();
    if (fitWidth)
        size.d_width = std::min(d_widest + frame.d_width, std::max(0.0f, display.d_width - at.d_x));
    if (fitHeight)
        size.d_height =
            std::min(d_tops.back() + frame.d_height, std::max(0.0f, display.d_height - at.d_y));
    list.setSize(USize(cegui_absdim(size.d_width), cegui_absdim(size.d_height)));
}

} // namespace MoxieLook
} // namespace CEGUI
