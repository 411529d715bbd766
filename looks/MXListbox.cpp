#include "looks/MXListbox.h"

#include "draw/Imagery.h"

#include <CEGUI/GUIContext.h>
#include <CEGUI/widgets/Scrollbar.h>

namespace CEGUI
{
namespace MoxieLook
{
template <typename Base>
ListLookOf<Base>::ListLookOf(const String& type, const String& name, const char* framePrefix,
                             const char* fill)
    : RedrawnWhenUncovered<Base>(type, name), d_drawing(framePrefix, fill)
{
    this->setMouseCursor(&lookImage(MouseCursorImageName));
    this->setWindowRenderer(MXListboxRenderer::TypeName);
}

template <typename Base>
void ListLookOf<Base>::initialiseComponents()
{
    d_drawing.makeParts(*this);
    RedrawnWhenUncovered<Base>::initialiseComponents();
    // New scroll sizes mean new item sizes.
    for (Scrollbar* bar : {this->getVertScrollbar(), this->getHorzScrollbar()})
        bar->subscribeEvent(Scrollbar::EventScrollConfigChanged,
                            [this]
                            {
                                d_drawing.sizesChanged();
                                this->invalidate();
                            });
    // CEGUI shows and hides the bars after the layout: each one's length depends on the other.
    for (Scrollbar* bar : {this->getVertScrollbar(), this->getHorzScrollbar()})
        for (const String* event : {&Window::EventShown, &Window::EventHidden})
            bar->subscribeEvent(*event, [this] { d_drawing.layOutParts(*this); });
    // Scrolling moves the items under a still pointer.
    this->getVertScrollbar()->subscribeEvent(Scrollbar::EventScrollPositionChanged,
                                             [this] { hoverUnderPointer(); });
}

template <typename Base>
void ListLookOf<Base>::hoverUnderPointer()
{
    const GUIContext& context = this->getGUIContext();
    ListboxItem* item = context.getWindowContainingMouse() == this
                            ? d_drawing.itemAt(*this, context.getMouseCursor().getPosition())
                            : nullptr;
    if (d_drawing.setHovered(item))
        this->invalidate();
}

template <typename Base>
void ListLookOf<Base>::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    RedrawnWhenUncovered<Base>::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    d_drawing.layOutParts(*this);
}

template <typename Base>
void ListLookOf<Base>::onListContentsChanged(WindowEventArgs& e)
{
    d_drawing.contentsChanged(*this);
    RedrawnWhenUncovered<Base>::onListContentsChanged(e);
}

template <typename Base>
void ListLookOf<Base>::onSortModeChanged(WindowEventArgs& e)
{
    d_drawing.sizesChanged();
    RedrawnWhenUncovered<Base>::onSortModeChanged(e);
}

template <typename Base>
void ListLookOf<Base>::onFontChanged(WindowEventArgs& e)
{
    d_drawing.sizesChanged();
    RedrawnWhenUncovered<Base>::onFontChanged(e);
}

template <typename Base>
void ListLookOf<Base>::onMouseMove(MouseEventArgs& e)
{
    RedrawnWhenUncovered<Base>::onMouseMove(e);
    if (d_drawing.setHovered(d_drawing.itemAt(*this, e.position)))
        this->invalidate();
}

template <typename Base>
void ListLookOf<Base>::onMouseLeaves(MouseEventArgs& e)
{
    RedrawnWhenUncovered<Base>::onMouseLeaves(e);
    if (d_drawing.setHovered(nullptr))
        this->invalidate();
}

template class ListLookOf<Listbox>;
template class ListLookOf<ComboDropList>;

MXListbox::MXListbox(const String& type, const String& name)
    : ListLookOf<Listbox>(type, name, FramePrefix, FillImageName)
{
}

MXComboDropList::MXComboDropList(const String& type, const String& name)
    : ListLookOf<ComboDropList>(type, name, FramePrefix, FillImageName)
{
}

} // namespace MoxieLook
} // namespace CEGUI
