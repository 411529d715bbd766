#include "widgets/WidgetDropDownList.h"

#include "draw/Imagery.h"
#include "widgets/WheelForwarding.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Font.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/widgets/Scrollbar.h>

namespace CEGUI
{
namespace MoxieLook
{
WidgetDropDownList::WidgetDropDownList(const String& type, const String& name)
    : RedrawnWhenUncovered<Window>(type, name)
{
    setInheritsTooltipText(false);
}

void WidgetDropDownList::initialiseComponents()
{
    RedrawnWhenUncovered<Window>::initialiseComponents();
    InitialiseFrame();
    d_scrollbar = CreateVertScrollbar();
    d_scrollbar->setNonClient(true);
    addChild(d_scrollbar);
    d_scrollbar->subscribeEvent(Scrollbar::EventScrollPositionChanged,
                                Event::Subscriber(&WidgetDropDownList::OnScrollBarMoved, this));
    giveWheelTo(*d_scrollbar, *this, [this](MouseEventArgs& e) { onMouseWheel(e); });
    LayoutContent();
}

void WidgetDropDownList::AddItem(const String& first, const String& text, const String& tooltip,
                                 const String& imagesetName, const String& imageName)
{
    Item item;
    item.first = first;
    item.text = text;
    item.tooltip = tooltip;
    if (!imageName.empty())
        item.image = &ImageManager::getSingleton().get(imagesetName + "/" + imageName);
    item.index = GetItemCount();
    item.height = d_itemHeight;
    d_items.push_back(item);
    LayoutContent();
}

void WidgetDropDownList::Clear()
{
    d_items.clear();
    d_hovered = -1;
    LayoutContent();
}

unsigned WidgetDropDownList::GetVisibleRowCount() const
{
    const unsigned count = GetItemCount();
    if (count > d_maxRows)
        return d_maxRows;
    if (count < d_minRows)
        return d_minRows;
    return count;
}

void WidgetDropDownList::SetItemHeight(float height)
{
    d_itemHeight = height;
    for (Item& item : d_items)
        item.height = height;
    LayoutContent();
}

void WidgetDropDownList::SetVisibilityLimits(unsigned maxRows, unsigned minRows)
{
    d_maxRows = maxRows;
    d_minRows = minRows;
    if (d_scrollbar)
        d_scrollbar->setVisible(maxRows < GetItemCount());
    LayoutContent();
}

float WidgetDropDownList::framedHeight(unsigned rows) const
{
    return d_frame.pieceHeight(NinePieceFrame::Bottom) + d_frame.pieceHeight(NinePieceFrame::Top) +
           static_cast<float>(rows) * d_itemHeight;
}

void WidgetDropDownList::LayoutContent()
{
    if (!d_scrollbar)
        return;
    const unsigned rows = GetVisibleRowCount();
    const unsigned count = GetItemCount();
    d_scrollbar->setVisible(rows < count);
    if (d_scrollbar->isVisible())
    {
        d_scrollbar->setDocumentSize(static_cast<float>(count) * d_itemHeight);
        d_scrollbar->setPageSize(static_cast<float>(rows) * d_itemHeight);
        d_scrollbar->setStepSize(d_itemHeight);
    }
    else
        d_scrollbar->setScrollPosition(0);
    setSize(USize(cegui_absdim(getPixelSize().d_width), cegui_absdim(framedHeight(rows))));
    invalidate();
}

bool WidgetDropDownList::OnScrollBarMoved(const EventArgs&)
{
    LayoutContent();
    return true;
}

Rectf WidgetDropDownList::localInnerRect() const
{
    Rectf inner = d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize()));
    if (d_scrollbar && d_scrollbar->isVisible())
        inner.d_max.d_x -= d_scrollbar->getPixelSize().d_width;
    return inner;
}

Rectf WidgetDropDownList::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    Rectf inner = localInnerRect();
    inner.offset((skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                        : getUnclippedOuterRect().get())
                     .d_min);
    return inner;
}

const WidgetDropDownList::Item* WidgetDropDownList::GetItemAtPosition(const Vector2f& point) const
{
    if (d_scrollbar && d_scrollbar->isVisible() && d_scrollbar->isHit(point))
        return nullptr;
    const Vector2f local = CoordConverter::screenToWindow(*this, point);
    for (const Item& item : d_items)
        if (item.area.isPointInRect(local))
            return &item;
    return nullptr;
}

String WidgetDropDownList::tooltipFor(const Item& item, bool fallBackToText) const
{
    if (!item.tooltip.empty() || !fallBackToText)
        return item.tooltip;
    const Font* font = getFont();
    if (font && font->getTextExtent(item.text) > item.area.getWidth())
        return item.text;
    return "";
}

void WidgetDropDownList::onMouseWheel(MouseEventArgs& e)
{
    d_scrollbar->setScrollPosition(d_scrollbar->getScrollPosition() - e.wheelChange);
    ++e.handled;
}

void WidgetDropDownList::onMouseMove(MouseEventArgs& e)
{
    RedrawnWhenUncovered<Window>::onMouseMove(e);
    const Item* item = GetItemAtPosition(e.position);
    setTooltipText(item ? tooltipFor(*item) : String());
    const int hovered = item ? static_cast<int>(item - d_items.data()) : -1;
    if (hovered != d_hovered)
    {
        d_hovered = hovered;
        invalidate();
    }
}

void WidgetDropDownList::onMouseLeaves(MouseEventArgs& e)
{
    RedrawnWhenUncovered<Window>::onMouseLeaves(e);
    if (d_hovered != -1)
    {
        d_hovered = -1;
        invalidate();
    }
}

void WidgetDropDownList::drawSelf(const RenderingContext& ctx)
{
    // Reset at every draw: a host's item height lasts until then (kept so).
    if (const Font* font = getFont())
        if (d_itemHeight != font->getLineSpacing())
            SetItemHeight(font->getLineSpacing());
    const float height = framedHeight(GetVisibleRowCount());
    if (getPixelSize().d_height != height)
        setSize(USize(cegui_absdim(getPixelSize().d_width), cegui_absdim(height)));
    RedrawnWhenUncovered<Window>::drawSelf(ctx);
}

void WidgetDropDownList::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    d_frame.setSize(getPixelSize());
    d_frame.setColours(withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha()));
    d_frame.draw(getGeometryBuffer(), Vector2f(0, 0), nullptr);

    const Rectf inner = localInnerRect();
    float top = inner.top() - (d_scrollbar ? d_scrollbar->getScrollPosition() : 0.0f);
    for (Item& item : d_items)
    {
        const Rectf row(inner.left(), top, inner.right(), top + item.height);
        item.area = row.getIntersection(inner);
        if (item.area.getHeight() > 0)
            DrawItem(*this, getGeometryBuffer(), item, row, item.area, false,
                     static_cast<int>(item.index) == d_hovered);
        top += item.height;
    }
}

} // namespace MoxieLook
} // namespace CEGUI
