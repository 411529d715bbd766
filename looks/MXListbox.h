// "MoxieLook/Listbox" and "MoxieLook/ComboDropList": ListDrawing's framed lists, the list
// box sunken ("StaticFrameList..." around "StaticFrameFill"), the drop list raised off what
// lies under it ("PopupMenuFrame..." around "PopupMenuFill"); the item under the pointer
// takes "ListboxHoverBrush", selected items "ListboxSelectionBrush". CEGUI 0.8's lists ask a
// renderer for their item area: both looks bring MXListboxRenderer.
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "looks/ListDrawing.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"

#include <CEGUI/widgets/ComboDropList.h>
#include <CEGUI/widgets/Listbox.h>

namespace CEGUI
{
namespace MoxieLook
{
//! What the list renderer asks of either list look.
class ListLook
{
public:
    virtual ~ListLook() = default;
    virtual Rectf listRenderArea() const = 0;
    virtual void drawList() = 0;
    virtual void resizeListToContent(bool fitWidth, bool fitHeight) = 0;
};

//! The list looks' shared handling of CEGUI's Listbox (or ComboDropList) `Base`.
template <typename Base>
class ListLookOf : public RedrawnWhenUncovered<Base>, public ListLook
{
public:
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";

    ListLookOf(const String& type, const String& name, const char* framePrefix, const char* fill);

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;
    Rectf listRenderArea() const override { return d_drawing.renderArea(*this); }
    void drawList() override { d_drawing.draw(*this); }
    void resizeListToContent(bool fitWidth, bool fitHeight) override
    {
        d_drawing.resizeToContent(*this, fitWidth, fitHeight);
    }
    //! The item under the pointer, shown with the hover brush.
    ListboxItem* hoveredItem(const Vector2f& screenPoint)
    {
        return d_drawing.itemAt(*this, screenPoint);
    }

protected:
    void onListContentsChanged(WindowEventArgs& e) override;
    void onSortModeChanged(WindowEventArgs& e) override;
    void onFontChanged(WindowEventArgs& e) override;
    void onMouseMove(MouseEventArgs& e) override;
    void onMouseLeaves(MouseEventArgs& e) override;
    void hoverUnderPointer();

    ListDrawing d_drawing;
};

class MXListbox : public ListLookOf<Listbox>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Listbox";
    static constexpr char FramePrefix[] = "StaticFrameList";
    static constexpr char FillImageName[] = "StaticFrameFill";

    MXListbox(const String& type, const String& name);
};

class MXComboDropList : public ListLookOf<ComboDropList>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ComboDropList";
    static constexpr char FramePrefix[] = "PopupMenuFrame";
    static constexpr char FillImageName[] = "PopupMenuFill";

    MXComboDropList(const String& type, const String& name);
};

class MXListboxRenderer : public LookRenderer<ListboxWindowRenderer, ListLook>
{
public:
    static constexpr char TypeName[] = "MoxieLook/ListboxRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->drawList();
    }
    Rectf getListRenderArea() const override
    {
        return look() ? look()->listRenderArea() : Rectf(0, 0, 0, 0);
    }
    void resizeListToContent(bool fitWidth, bool fitHeight) const override
    {
        if (look())
            look()->resizeListToContent(fitWidth, fitHeight);
    }
};

using MXListboxFactory = LookFactory<MXListbox>;
using MXComboDropListFactory = LookFactory<MXComboDropList>;
using MXListboxRendererFactory = LookRendererFactory<MXListboxRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
