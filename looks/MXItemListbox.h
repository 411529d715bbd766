// "MoxieLook/ItemListbox": CEGUI's list of item windows in the list box's frame
// ("StaticFrameList..." around "StaticFrameFill"), with the module's scroll bars inside it;
// "MoxieLook/ListboxItem": an item window drawing its text, the hover brush under the pointer
// and the selection brush when selected ("ListboxHoverBrush", "ListboxSelectionBrush").
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"
#include "looks/MXMenus.h"

#include <CEGUI/widgets/ItemEntry.h>
#include <CEGUI/widgets/ItemListbox.h>
#include <array>
#include <optional>

namespace CEGUI
{
namespace MoxieLook
{
class MXItemListbox : public RedrawnWhenUncovered<ItemListbox>, public ItemListLook
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ItemListbox";
    static constexpr char VertScrollbarType[] = "MoxieLook/VerticalScrollbar";
    static constexpr char HorzScrollbarType[] = "MoxieLook/HorizontalScrollbar";
    static constexpr float ScrollbarThickness = 16.0f;

    MXItemListbox(const String& type, const String& name);
    ~MXItemListbox() override;

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;
    //! Window-local: inside the frame, clear of the bars shown.
    Rectf itemRenderArea() const override;
    void drawList() override;

protected:
    //! Items lie in the render area: the content pane is placed from it.
    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;

private:
    void layOutBars();

    //! The bars' shown and hidden events, let go with the look.
    std::array<Event::ScopedConnection, 4> d_barWatches;
    NinePieceFrame d_frame;
    const Image* d_fill; //!< fetched once
};

class MXListboxItem : public RedrawnWhenUncovered<ItemEntry>, public MenuItemLook
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ListboxItem";
    static constexpr float HorzPadding = 4.0f;
    static constexpr float VertPadding = 2.0f;
    static const Colour TextColour;
    static const Colour SelectedTextColour;
    static const Colour DisabledTextColour;

    MXListboxItem(const String& type, const String& name);

    Sizef itemPixelSize() const override;
    void drawItem() override;

    //! The stock skins' "TextColour", "SelectedTextColour", "SelectionColour" (tints the
    //! brush) and "SelectionBrush"; until set, the look's own.
    void setTextColour(const ColourRect& colours);
    ColourRect getTextColour() const;
    void setSelectedTextColour(const ColourRect& colours);
    ColourRect getSelectedTextColour() const;
    void setSelectionColour(const ColourRect& colours);
    ColourRect getSelectionColour() const;
    void setSelectionBrush(const Image* image);
    const Image* getSelectionBrush() const;

protected:
    void onMouseEnters(MouseEventArgs& e) override;
    void onMouseLeaves(MouseEventArgs& e) override;
    void onTextChanged(WindowEventArgs& e) override;
    void onFontChanged(WindowEventArgs& e) override;

private:
    void sizeChanged();
    bool d_hovered = false;
    std::optional<ColourRect> d_textColour;
    std::optional<ColourRect> d_selectedTextColour;
    std::optional<ColourRect> d_selectionColour;
    const Image* d_selectionBrush = nullptr;
    const Image* d_ownSelectionBrush; //!< fetched once, as the hover brush
    const Image* d_hoverBrush;
};

using MXItemListboxFactory = LookFactory<MXItemListbox>;
using MXListboxItemFactory = LookFactory<MXListboxItem>;

} // namespace MoxieLook
} // namespace CEGUI
