// A push button that flips a selected state each time it is released over itself.
#pragma once

#include "widgets/PushButtonEx.h"

namespace CEGUI
{
namespace MoxieLook
{
class ToggleButton : public PushButtonEx
{
public:
    //! Fired (global namespace) when the selected state changes; the spelling is the event's.
    static const String EventSelectedStateChanged;

    ToggleButton(const String& type, const String& name);

    bool isSelected() const { return d_selected; }
    void setSelected(bool selected);
    //! Shows the button pressed or not, firing nothing.
    void SetPushed(bool pushed);

protected:
    void onMouseButtonUp(MouseEventArgs& e) override;

private:
    void addToggleButtonEvents();

    bool d_selected = false;
};

//! The release-inside rule of selectable buttons: a left release on a pushed button that
//! is still the window under the pointer. Marks the event handled when the left button
//! comes up on a pushed button, hit or not.
bool releasedInside(ButtonBase& button, MouseEventArgs& e);

} // namespace MoxieLook
} // namespace CEGUI
