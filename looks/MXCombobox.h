// "MoxieLook/Combobox": an edit area ("MoxieLook/Editbox") with a drop button at its right
// (a "MoxieLook/Button" drawn by the "ComboboxListButton..." pictures) and, under them, its
// "MoxieLook/ComboDropList". As in CEGUI's own skins the window's height takes in the open
// list (CEGUI never hits the combo box itself, only its parts, so a closed list's room
// does not catch the pointer). Beyond CEGUI's own handling, keys choose items: up and down
// in the edit area step through them; in the open list they move the selection, Return
// chooses and Escape closes. A choice by keys is accepted as a click's is, with CEGUI's
// "ListSelectionAccepted".
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/Combobox.h>

namespace CEGUI
{
namespace MoxieLook
{
class MXCombobox : public RedrawnWhenUncovered<Combobox>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Combobox";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char EditboxType[] = "MoxieLook/Editbox";
    static constexpr char DropListType[] = "MoxieLook/ComboDropList";
    static constexpr char ButtonType[] = "MoxieLook/Button";
    static constexpr char ButtonNormalImageName[] = "ComboboxListButtonNormal";
    static constexpr char ButtonHoverImageName[] = "ComboboxListButtonHover";
    static constexpr char ButtonPushedImageName[] = "ComboboxListButtonPushed";
    //! Room above and below the text in the edit area.
    static constexpr float EditPadding = 5.0f;

    MXCombobox(const String& type, const String& name);

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;
    //! Height of the edit area, window-local from the top: the font's line and room.
    float editHeight() const;

protected:
    void onFontChanged(WindowEventArgs& e) override;

private:
    bool editKeyDown(const EventArgs& args);
    bool listKeyDown(const EventArgs& args);
    //! Selects the item `step` places from the selected one (the first or last when none).
    void stepSelection(int step);
    void acceptListSelection();
};

using MXComboboxFactory = LookFactory<MXCombobox>;

} // namespace MoxieLook
} // namespace CEGUI
