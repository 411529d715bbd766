#include "widgets/WidgetDropDownListbox.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "widgets/ButtonEx.h"

#include <CEGUI/Image.h>

namespace CEGUI
{
namespace MoxieLook
{
const String WidgetDropDownListbox::EventSelectionChanged("SelectedWidgetChanged");

WidgetDropDownListbox::WidgetDropDownListbox(const String& type, const String& name)
    : RedrawnWhenUncovered<Window>(type, name)
{
}

void WidgetDropDownListbox::initialiseComponents()
{
    RedrawnWhenUncovered<Window>::initialiseComponents();
    InitialiseFrame();
    addEvent(EventSelectionChanged);
    d_button = CreateDropDownButton();
    d_list = CreateDropDownList();
    addChild(d_button);
    // The list hangs under the box, outside it.
    d_list->setClippedByParent(false);
    d_list->hide();
    addChild(d_list);
    subscribeEvent(EventMouseClick, Event::Subscriber(&WidgetDropDownListbox::OnClick, this));
    d_button->subscribeEvent(EventMouseClick,
                             Event::Subscriber(&WidgetDropDownListbox::OnClick, this));
    subscribeEvent(EventDeactivated,
                   Event::Subscriber(&WidgetDropDownListbox::OnDeactivated, this));
    d_list->subscribeEvent(EventMouseClick,
                           Event::Subscriber(&WidgetDropDownListbox::OnListClicked, this));
    d_list->subscribeEvent(EventSized,
                           Event::Subscriber(&WidgetDropDownListbox::OnListSized, this));
    placeParts();
}

void WidgetDropDownListbox::AddItem(const String& first, const String& text, const String& tooltip,
                                    const String& imagesetName, const String& imageName)
{
    d_list->AddItem(first, text, tooltip, imagesetName, imageName);
}

void WidgetDropDownListbox::Clear()
{
    d_list->Clear();
    invalidate();
}

unsigned WidgetDropDownListbox::GetItemCount() const
{
    return d_list->GetItemCount();
}

void WidgetDropDownListbox::SetVisibilityLimits(unsigned maxRows, unsigned minRows)
{
    d_list->SetVisibilityLimits(maxRows, minRows);
}

void WidgetDropDownListbox::SetSelectedItem(unsigned index)
{
    d_selected = static_cast<std::int8_t>(static_cast<std::uint8_t>(index & 0xFFu));
    if (d_selected >= 0 && static_cast<unsigned>(d_selected) < d_list->GetItemCount())
        setTooltipText(d_list->tooltipFor(d_list->GetItem(static_cast<unsigned>(d_selected))));
    else
        setTooltipText("");
    invalidate();
}

const WidgetDropDownList::Item& WidgetDropDownListbox::GetSelectedItem() const
{
    // -1 sign-extends far past any list.
    return d_list->GetItem(static_cast<unsigned>(static_cast<int>(d_selected)));
}

bool WidgetDropDownListbox::OnListSized(const EventArgs&)
{
    // Rows or the font changed the list's height: above the box it must still end there.
    if (d_list->isVisible())
        placeList();
    return true;
}

void WidgetDropDownListbox::ShowDropList()
{
    placeList();
    d_list->setAlwaysOnTop(true);
    d_list->show();
    d_list->activate();
    invalidate();
}

void WidgetDropDownListbox::HideDropList()
{
    d_list->setAlwaysOnTop(false);
    d_list->hide();
    invalidate();
}

bool WidgetDropDownListbox::OnClick(const EventArgs&)
{
    if (d_list->isVisible())
        HideDropList();
    else
        ShowDropList();
    return true;
}

bool WidgetDropDownListbox::OnDeactivated(const EventArgs&)
{
    HideDropList();
    return true;
}

bool WidgetDropDownListbox::OnListClicked(const EventArgs& args)
{
    const auto& mouse = static_cast<const MouseEventArgs&>(args);
    const WidgetDropDownList::Item* item = d_list->GetItemAtPosition(mouse.position);
    if (!item)
    {
        setTooltipText("");
        return true;
    }
    ChooseItem(item->index);
    HideDropList();
    return true;
}

void WidgetDropDownListbox::ChooseItem(unsigned index)
{
    if (index >= d_list->GetItemCount())
        return;
    d_selected = static_cast<std::int8_t>(static_cast<std::uint8_t>(index & 0xFFu));
    setTooltipText(d_list->GetItem(index).tooltip);
    invalidate();
    WindowEventArgs changed(this);
    fireEvent(EventSelectionChanged, changed, "");
}

Rectf WidgetDropDownListbox::contentArea() const
{
    const Sizef own = getPixelSize();
    return Rectf(d_frame.pieceWidth(NinePieceFrame::Left), d_frame.pieceHeight(NinePieceFrame::Top),
                 own.d_width - d_frame.pieceWidth(NinePieceFrame::Right) - DropButtonRoom,
                 own.d_height - d_frame.pieceHeight(NinePieceFrame::Bottom));
}

void WidgetDropDownListbox::placeParts()
{
    if (!d_button || !d_list)
        return;
    const Sizef own = getPixelSize();
    const Rectf content = contentArea();
    d_button->setArea(UVector2(cegui_absdim(content.right()), cegui_absdim(content.top())),
                      USize(cegui_absdim(DropButtonRoom), cegui_absdim(content.getHeight())));
    d_list->setWidth(cegui_absdim(own.d_width));
    placeList();
}

void WidgetDropDownListbox::placeList()
{
    // Below the box, unless the display ends first and there is room above.
    const float height = d_list->getPixelSize().d_height;
    const Rectf box = getUnclippedOuterRect().get();
    const bool above =
        box.bottom() + height > getRootContainerSize().d_height && box.top() - height >= 0;
    d_list->setPosition(
        UVector2(cegui_absdim(0), cegui_absdim(above ? -height : getPixelSize().d_height)));
}

void WidgetDropDownListbox::notifyScreenAreaChanged(bool recursive)
{
    RedrawnWhenUncovered<Window>::notifyScreenAreaChanged(recursive);
    if (d_list && d_list->isVisible())
        placeList();
}

void WidgetDropDownListbox::onSized(ElementEventArgs& e)
{
    RedrawnWhenUncovered<Window>::onSized(e);
    placeParts();
}

void WidgetDropDownListbox::populateGeometryBuffer()
{
    const Rectf visible = getOuterRectClipper();
    if (!(visible.getWidth() > 0) || !(visible.getHeight() > 0))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha());
    d_frame.setSize(getPixelSize());
    d_frame.setColours(white);
    d_frame.draw(buffer, Vector2f(0, 0), nullptr);
    const Rectf content = contentArea();
    if (const Image* fill = fillImage())
        drawImage(buffer, *fill, content, nullptr, white);
    if (d_selected >= 0 && static_cast<unsigned>(d_selected) < d_list->GetItemCount())
        d_list->DrawItem(*this, buffer, d_list->GetItem(static_cast<unsigned>(d_selected)), content,
                         content, true, false);
}

} // namespace MoxieLook
} // namespace CEGUI
