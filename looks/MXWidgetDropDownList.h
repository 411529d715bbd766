// "MoxieLook/WidgetDropDownList" and "MoxieLook/WidgetDropDownListbox": the "StaticFrame..."
// frame around a "StaticFrameFill" field; a row shows its image (fitted to the row's
// height) then its text; the row under the pointer takes "ListboxHoverBrush", the chosen
// item in the box "ListboxSelectionBrush". The drop button is a "MoxieLook/ButtonEx" with
// the "ComboboxListButton..." images; the list scrolls with a "MoxieLook/VerticalScrollbar".
#pragma once

#include "looks/LookFactory.h"
#include "widgets/WidgetDropDownList.h"
#include "widgets/WidgetDropDownListbox.h"

namespace CEGUI
{
namespace MoxieLook
{
//! The images both looks use.
struct DropDownImages
{
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char TopLeftImage[] = "StaticFrameTopLeft";
    static constexpr char TopImage[] = "StaticFrameTop";
    static constexpr char TopRightImage[] = "StaticFrameTopRight";
    static constexpr char LeftImage[] = "StaticFrameLeft";
    static constexpr char RightImage[] = "StaticFrameRight";
    static constexpr char BottomLeftImage[] = "StaticFrameBottomLeft";
    static constexpr char BottomImage[] = "StaticFrameBottom";
    static constexpr char BottomRightImage[] = "StaticFrameBottomRight";
    static constexpr char FillImageName[] = "StaticFrameFill";
    static constexpr char SelectionBrushImageName[] = "ListboxSelectionBrush";
    static constexpr char HoverBrushImageName[] = "ListboxHoverBrush";
    static constexpr char ButtonNormalImageName[] = "ComboboxListButtonNormal";
    static constexpr char ButtonHoverImageName[] = "ComboboxListButtonHover";
    static constexpr char ButtonPushedImageName[] = "ComboboxListButtonPushed";
    static const Colour TextColour;
    static const Colour SelectedTextColour;

    static void frameImages(NinePieceFrame& frame);
};

class MXWidgetDropDownList : public WidgetDropDownList, public DropDownImages
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/WidgetDropDownList";
    static constexpr char ScrollbarType[] = "MoxieLook/VerticalScrollbar";
    static constexpr float ImagePadding = 3.0f; //!< around a row's image and text

    MXWidgetDropDownList(const String& type, const String& name);

    void DrawItem(const Window& window, GeometryBuffer& buffer, const Item& item, const Rectf& row,
                  const Rectf& clip, bool selected, bool hovered) const override;

protected:
    Scrollbar* CreateVertScrollbar() override;
    void InitialiseFrame() override;
    void populateGeometryBuffer() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

private:
    const Image* d_selectionBrush; //!< fetched once: drawn for the rows in view
    const Image* d_hoverBrush;
};

class MXWidgetDropDownListbox : public WidgetDropDownListbox, public DropDownImages
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/WidgetDropDownListbox";
    static constexpr char ButtonType[] = "MoxieLook/ButtonEx";
    static constexpr char ListType[] = "MoxieLook/WidgetDropDownList";

    MXWidgetDropDownListbox(const String& type, const String& name);

protected:
    ButtonEx* CreateDropDownButton() override;
    WidgetDropDownList* CreateDropDownList() override;
    void InitialiseFrame() override;
    const Image* fillImage() const override;
};

using MXWidgetDropDownListFactory = LookFactory<MXWidgetDropDownList>;
using MXWidgetDropDownListboxFactory = LookFactory<MXWidgetDropDownListbox>;

} // namespace MoxieLook
} // namespace CEGUI
