// A text item that can be picked: an optional icon before the text, a highlight under the
// pointer, and a selected state with its own brush and text colour. Clicking a selectable
// item toggles it and fires "SelectStateChanged".
#pragma once

#include "widgets/TextItem.h"

namespace CEGUI
{
namespace MoxieLook
{
class TextItemEx : public TextItem
{
public:
    static const String EventNamespace;
    static const String EventSelectStateChanged;
    //! Gap between the icon and the text, in pixels.
    static constexpr float IconGap = 4.0f;

    TextItemEx(const String& type, const String& name);

    const Image* getIcon() const { return d_icon; }
    void setIcon(const Image* icon);

    bool isSelectable() const { return d_selectable; }
    void setSelectable(bool selectable) { d_selectable = selectable; }
    bool isSelected() const { return d_selected; }
    void setSelected(bool selected);

    const Colour& getSelectedTextColour() const { return d_selectedTextColour; }
    void setSelectedTextColour(const Colour& colour);
    //! The brushes are the look's: drawn stretched under the text.
    void setSelectionBrush(const Image* brush) { d_selectionBrush = brush; }
    void setHoverBrush(const Image* brush) { d_hoverBrush = brush; }
    bool isHovering() const { return d_hovering; }

    Sizef getContentSize() const override;

protected:
    Rectf textArea() const override;
    void drawBackdrop(GeometryBuffer& buffer) override;
    Colour currentTextColour() const override;

    void onMouseEntersArea(MouseEventArgs& e) override;
    void onMouseLeavesArea(MouseEventArgs& e) override;
    void onMouseClicked(MouseEventArgs& e) override;

private:
    float iconRoom() const;

    const Image* d_icon = nullptr;
    const Image* d_selectionBrush = nullptr;
    const Image* d_hoverBrush = nullptr;
    Colour d_selectedTextColour{0xFF000000};
    bool d_selectable = true;
    bool d_selected = false;
    bool d_hovering = false;
};

} // namespace MoxieLook
} // namespace CEGUI
