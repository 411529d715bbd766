#include "looks/MXSmartButtonNodeItem.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "widgets/ButtonEx.h"
#include "widgets/TextItem.h"

#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXSmartButtonNodeItem::CounterColour(0xFFFF0000);

MXSmartButtonNodeItem::MXSmartButtonNodeItem(const String& type, const String& name)
    : SmartButtonNodeItem(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

ButtonEx* MXSmartButtonNodeItem::CreateButton()
{
    return createAutoPart<ButtonEx>(ButtonType, getName() + "__autoButton", "a node's button");
}

TextItem* MXSmartButtonNodeItem::CreateTextItem()
{
    TextItem* counter =
        createAutoPart<TextItem>(TextItemType, getName() + "__autoTextItem", "a node's counter");
    counter->setTextColour(CounterColour);
    counter->setEnabled(false); // never takes input
    return counter;
}

void MXSmartButtonNodeItem::NbChildrenChanged(unsigned count)
{
    if (GetTextItem())
        GetTextItem()->setText(count == 0 ? String() : PropertyHelper<uint>::toString(count));
}

float MXSmartButtonNodeItem::openedWidth() const
{
    return GetOpenedImage() ? GetOpenedImage()->getRenderedSize().d_width : 0.0f;
}

void MXSmartButtonNodeItem::SetSelected(bool selected)
{
    const bool before = IsSelected();
    SmartButtonNodeItem::SetSelected(selected);
    if (before == IsSelected() || !isEffectiveVisible() || !GetOpenedImage())
        return;
    // The opened image sits beside the button: the node makes room for it.
    const float width = getPixelSize().d_width + (IsSelected() ? openedWidth() : -openedWidth());
    setWidth(cegui_absdim(width));
    invalidate();
}

Sizef MXSmartButtonNodeItem::GetSizeToFit(bool selected) const
{
    const Sizef& stored = GetAbsoluteSize(selected);
    if (stored.d_width == 0 && stored.d_height == 0)
        return getPixelSize();
    if (selected && GetOpenedImage())
        return Sizef(stored.d_width + openedWidth(), stored.d_height);
    return stored;
}

Sizef MXSmartButtonNodeItem::GetAbsoluteButtonSize() const
{
    const Sizef size = getPixelSize();
    if (IsSelected() && GetOpenedImage())
        return Sizef(std::max(0.0f, size.d_width - openedWidth()), size.d_height);
    return size;
}

Rectf MXSmartButtonNodeItem::openedImageRect() const
{
    const Image* image = GetOpenedImage();
    if (!image || !IsSelected())
        return Rectf(0, 0, 0, 0);
    const Sizef own = getPixelSize();
    const Sizef imageSize = image->getRenderedSize();
    const Sizef selectedFit = GetSizeToFit(true);
    const Sizef normalFit = GetSizeToFit(false);
    float x = own.d_width - imageSize.d_width;
    // It slides in as the node grows to its selected size.
    if (own != selectedFit && selectedFit.d_width != normalFit.d_width)
        x -= (selectedFit.d_width - own.d_width) / (selectedFit.d_width - normalFit.d_width) *
             imageSize.d_width;
    const float y = (own.d_height - imageSize.d_height) * 0.5f;
    return Rectf(Vector2f(x, y), imageSize);
}

void MXSmartButtonNodeItem::populateGeometryBuffer()
{
    SmartButtonNodeItem::populateGeometryBuffer();
    if (!hasVisibleArea(*this))
        return;
    const Rectf at = openedImageRect();
    if (at.getWidth() > 0)
        drawImage(getGeometryBuffer(), *GetOpenedImage(), at, nullptr,
                  withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha()));
}

} // namespace MoxieLook
} // namespace CEGUI
