// The closed box of a drop-down selector: the selected item beside a drop button; a click
// opens the list under it, picking an item selects it ("SelectedWidgetChanged") and closes
// the list. The selected index is kept in 8 signed bits, as the selector always has: only
// indices 0 to 127 select reliably, and one whose low byte is 0xFF never shows.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "widgets/WidgetDropDownList.h"

#include <CEGUI/Window.h>
#include <cstdint>

namespace CEGUI
{
namespace MoxieLook
{
class ButtonEx;

class WidgetDropDownListbox : public RedrawnWhenUncovered<Window>
{
public:
    static const String EventSelectionChanged; //!< "SelectedWidgetChanged"
    //! Pixels kept at the right of the content for the drop button.
    static constexpr float DropButtonRoom = 25.0f;

    WidgetDropDownListbox(const String& type, const String& name);

    void initialiseComponents() override;

    void AddItem(const String& first, const String& text, const String& tooltip,
                 const String& imagesetName, const String& imageName);
    void Clear();
    unsigned GetItemCount() const;
    void SetVisibilityLimits(unsigned maxRows, unsigned minRows);

    //! Keeps the low 8 bits of `index`; fires nothing.
    void SetSelectedItem(unsigned index);
    //! std::out_of_range while nothing is selected.
    const WidgetDropDownList::Item& GetSelectedItem() const;
    std::int8_t GetSelectedIndex() const { return d_selected; }

    ButtonEx* getButton() const { return d_button; }
    WidgetDropDownList* getDropList() const { return d_list; }

    void ShowDropList();
    void HideDropList();
    //! What a click on an item of the open list does, bar closing it: selects the item, takes
    //! its tooltip, fires "SelectedWidgetChanged". For keys.
    void ChooseItem(unsigned index);
    //! Where the content (the selected item) is drawn, window-local.
    Rectf contentArea() const;

protected:
    virtual ButtonEx* CreateDropDownButton() = 0;
    virtual WidgetDropDownList* CreateDropDownList() = 0;
    virtual void InitialiseFrame() = 0;
    virtual const Image* fillImage() const = 0;

    void populateGeometryBuffer() override;
    void onSized(ElementEventArgs& e) override;
    //! An open list follows the box wherever it goes, above or below as the display allows.
    void notifyScreenAreaChanged(bool recursive = true) override;

    NinePieceFrame d_frame;

private:
    bool OnClick(const EventArgs& args);
    bool OnDeactivated(const EventArgs& args);
    bool OnListClicked(const EventArgs& args);
    bool OnListSized(const EventArgs& args);
    void placeParts();
    void placeList();

    ButtonEx* d_button = nullptr;
    WidgetDropDownList* d_list = nullptr;
    std::int8_t d_selected = -1;
};

} // namespace MoxieLook
} // namespace CEGUI
