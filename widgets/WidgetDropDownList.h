// The list of a drop-down selector: items with a display text, a tooltip text and an
// optional image, shown in between a minimum and a maximum number of rows inside a frame,
// the rest scrolled with a vertical scroll bar.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/Window.h>
#include <vector>

namespace CEGUI
{
class Scrollbar;

namespace MoxieLook
{
class WidgetDropDownList : public RedrawnWhenUncovered<Window>
{
public:
    struct Item
    {
        String first;   //!< kept with the item, not drawn
        String text;    //!< shown
        String tooltip; //!< the tooltip while the pointer is over the item
        const Image* image = nullptr;
        unsigned index = 0;
        float height = 0;
        Rectf area{0, 0, 0, 0}; //!< where it was last drawn, window-local
    };

    WidgetDropDownList(const String& type, const String& name);

    void initialiseComponents() override;

    //! The image is looked up ("imageset/name") only when `imageName` is not empty.
    void AddItem(const String& first, const String& text, const String& tooltip,
                 const String& imagesetName, const String& imageName);
    void Clear();
    unsigned GetItemCount() const { return static_cast<unsigned>(d_items.size()); }
    //! std::out_of_range outside the list.
    const Item& GetItem(unsigned index) const { return d_items.at(index); }
    //! The item drawn under the screen point, or null (also on the scroll bar).
    const Item* GetItemAtPosition(const Vector2f& point) const;
    void SetItemHeight(float height);
    float GetItemHeight() const { return d_itemHeight; }
    void SetVisibilityLimits(unsigned maxRows, unsigned minRows);
    unsigned GetMaxVisibleRows() const { return d_maxRows; }
    unsigned GetMinVisibleRows() const { return d_minRows; }
    //! The rows shown for the items: their number, within the limits.
    unsigned GetVisibleRowCount() const;
    void LayoutContent();
    Scrollbar* GetScrollbar() const { return d_scrollbar; }

    //! The tooltip an item gives: its tooltip text, or its display text when that is wider
    //! than its row, or nothing.
    String tooltipFor(const Item& item, bool fallBackToText = true) const;

    //! How an item draws itself into its row (local to `window`, whose geometry, font and
    //! alpha it takes), clipped.
    virtual void DrawItem(const Window& window, GeometryBuffer& buffer, const Item& item,
                          const Rectf& row, const Rectf& clip, bool selected,
                          bool hovered) const = 0;

protected:
    virtual Scrollbar* CreateVertScrollbar() = 0;
    virtual void InitialiseFrame() = 0;

    //! The item height follows the font and the size follows the rows at every draw.
    void drawSelf(const RenderingContext& ctx) override;
    void populateGeometryBuffer() override;
    void onMouseWheel(MouseEventArgs& e) override;
    void onMouseMove(MouseEventArgs& e) override;
    void onMouseLeaves(MouseEventArgs& e) override;
    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;

    NinePieceFrame d_frame;

private:
    bool OnScrollBarMoved(const EventArgs& args);
    float framedHeight(unsigned rows) const;
    Rectf localInnerRect() const;

    Scrollbar* d_scrollbar = nullptr;
    std::vector<Item> d_items;
    float d_itemHeight = 18.0f;
    unsigned d_minRows = 0;
    unsigned d_maxRows = 5;
    int d_hovered = -1;
};

} // namespace MoxieLook
} // namespace CEGUI
