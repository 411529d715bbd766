#include "widgets/TextItemEx.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

#include <CEGUI/Image.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const String TextItemEx::EventNamespace("TextItemEx");
const String TextItemEx::EventSelectStateChanged("SelectStateChanged");

TextItemEx::TextItemEx(const String& type, const String& name) : TextItem(type, name)
{
    const String propertyOrigin("MoxieLook/TextItemEx");
    CEGUI_DEFINE_PROPERTY(TextItemEx, Image*, "Icon",
                          "Property to get/set the icon before the text. Value is an image name "
                          "such as \"MoxieLook/IconFolder\".",
                          &TextItemEx::setIcon, &TextItemEx::getIcon, nullptr);
    CEGUI_DEFINE_PROPERTY(TextItemEx, bool, "Selectable",
                          "Property to get/set whether a click toggles the selection. Value is "
                          "either \"True\" or \"False\".",
                          &TextItemEx::setSelectable, &TextItemEx::isSelectable, true);
    CEGUI_DEFINE_PROPERTY(TextItemEx, bool, "Selected",
                          "Property to get/set whether the item is selected. Value is either "
                          "\"True\" or \"False\".",
                          &TextItemEx::setSelected, &TextItemEx::isSelected, false);
    CEGUI_DEFINE_PROPERTY(TextItemEx, Colour, "SelectedTextColour",
                          "Property to get/set the text colour while selected. Value is "
                          "\"aarrggbb\".",
                          &TextItemEx::setSelectedTextColour, &TextItemEx::getSelectedTextColour,
                          Colour(0xFF000000));
}

void TextItemEx::setIcon(const Image* icon)
{
    d_icon = icon;
    if (isAutoSized())
        sizeToFit();
    invalidate();
}

void TextItemEx::setSelected(bool selected)
{
    if (d_selected == selected)
        return;
    d_selected = selected;
    invalidate();
    WindowEventArgs args(this);
    fireEvent(EventSelectStateChanged, args, EventNamespace);
}

void TextItemEx::setSelectedTextColour(const Colour& colour)
{
    d_selectedTextColour = colour;
    invalidate();
}

float TextItemEx::iconRoom() const
{
    return d_icon ? d_icon->getRenderedSize().d_width + IconGap : 0.0f;
}

Sizef TextItemEx::getContentSize() const
{
    Sizef size = TextItem::getContentSize();
    size.d_width += iconRoom();
    if (d_icon)
        size.d_height = std::max(size.d_height, d_icon->getRenderedSize().d_height);
    return size;
}

Rectf TextItemEx::textArea() const
{
    Rectf area = TextItem::textArea();
    area.d_min.d_x += iconRoom();
    return area;
}

void TextItemEx::drawBackdrop(GeometryBuffer& buffer)
{
    const float alpha = getEffectiveAlpha();
    const ColourRect white = withAlpha(ColourRect(Colour(0xFFFFFFFF)), alpha);
    const Rectf all(Vector2f(0, 0), getPixelSize());
    const Image* brush = d_selected ? d_selectionBrush : d_hovering ? d_hoverBrush : nullptr;
    if (brush)
        drawImage(buffer, *brush, all, nullptr, white);
    if (d_icon)
    {
        const Sizef size = d_icon->getRenderedSize();
        const Vector2f at(TextPadding, std::trunc((all.getHeight() - size.d_height) * 0.5f + 0.5f));
        drawImage(buffer, *d_icon, Rectf(at, size), nullptr, white);
    }
}

Colour TextItemEx::currentTextColour() const
{
    return d_selected ? d_selectedTextColour : getTextColour();
}

void TextItemEx::onMouseEntersArea(MouseEventArgs& e)
{
    TextItem::onMouseEntersArea(e);
    d_hovering = true;
    invalidate();
}

void TextItemEx::onMouseLeavesArea(MouseEventArgs& e)
{
    TextItem::onMouseLeavesArea(e);
    d_hovering = false;
    invalidate();
}

void TextItemEx::onMouseClicked(MouseEventArgs& e)
{
    TextItem::onMouseClicked(e);
    if (e.button == LeftButton && d_selectable)
    {
        setSelected(!d_selected);
        ++e.handled;
    }
}

} // namespace MoxieLook
} // namespace CEGUI
