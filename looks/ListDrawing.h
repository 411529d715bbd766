// What the list looks (list box, combo box drop list) share: a frame and a fill, the
// module's scroll bars inside the frame, and the items drawn with CEGUI's own ListboxItem
// drawing, only those in view. The items' heights are kept (summed) until the list's
// contents, sorting, font or scroll sizes change, so a draw and a hover search cost a
// binary search, not a walk of every item.
#pragma once

#include "draw/NinePieceFrame.h"

#include <CEGUI/Rect.h>
#include <vector>

namespace CEGUI
{
class Listbox;
class Scrollbar;
class ListboxItem;

namespace MoxieLook
{
class ListDrawing
{
public:
    static constexpr char VertScrollbarType[] = "MoxieLook/VerticalScrollbar";
    static constexpr char HorzScrollbarType[] = "MoxieLook/HorizontalScrollbar";
    static constexpr char SelectionBrushImageName[] = "ListboxSelectionBrush";
    static constexpr char HoverBrushImageName[] = "ListboxHoverBrush";
    static constexpr float ScrollbarThickness = 16.0f;
    static const Colour ItemTextColour;

    //! `framePrefix` names the eight pieces ("StaticFrameList" gives
    //! "StaticFrameListTopLeft", ...); `fill` the image inside them.
    ListDrawing(const char* framePrefix, const char* fill);

    //! Makes the list's scroll bars, unless a layout file brought them.
    void makeParts(Listbox& list) const;
    void layOutParts(Listbox& list) const;
    //! Where the items go, window-local: inside the frame, clear of the visible bars.
    Rectf renderArea(const Listbox& list) const;
    //! The same with the bars already found (null while not made).
    Rectf renderArea(const Listbox& list, const Scrollbar* vert, const Scrollbar* horz) const;
    void draw(Listbox& list);
    //! The item drawn under the screen point, or null.
    ListboxItem* itemAt(const Listbox& list, const Vector2f& screenPoint);
    //! Shows `item` (or none) with the hover brush; true when that changed.
    bool setHovered(ListboxItem* item);
    //! Items changed: sizes are measured again at the next use, and new items take the
    //! look's selection brush and, unless a host chose one, its text colour.
    void contentsChanged(Listbox& list);
    //! Item sizes may have changed (the scroll sizes did): measured again at the next use.
    void sizesChanged() { d_measured = false; }
    //! Sizes the list to show all its items without scroll bars, where there is room.
    void resizeToContent(Listbox& list, bool fitWidth, bool fitHeight);

    const NinePieceFrame& frame() const { return d_frame; }

    //! Draws `item` as CEGUI's own drawing would. A plain one-line text item (no markup) is
    //! drawn straight through its font, which spares CEGUI's measuring of the text at every
    //! draw; anything else draws itself.
    static void drawItem(const ListboxItem& item, GeometryBuffer& buffer, const Rectf& rect,
                         float alpha, const Rectf* clip);

    //! Gives an item the look's brush (unless it has one) and, where CEGUI's white default
    //! text colour is left, the look's ink.
    static void styleItem(ListboxItem& item, const Image* brush);

private:
    void measure(const Listbox& list);

    mutable NinePieceFrame d_frame;
    const Image* d_fill;
    const Image* d_selectionBrush;
    const Image* d_hoverBrush;
    bool d_measured = false;
    std::vector<float> d_tops; //!< item i starts at d_tops[i]; one more entry: the total
    float d_widest = 0;
    ListboxItem* d_hovered = nullptr;
};

} // namespace MoxieLook
} // namespace CEGUI
