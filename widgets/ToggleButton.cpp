#include "widgets/ToggleButton.h"

#include <CEGUI/GUIContext.h>

namespace CEGUI
{
namespace MoxieLook
{
const String ToggleButton::EventSelectedStateChanged("ToggleSelChnged");

bool releasedInside(ButtonBase& button, MouseEventArgs& e)
{
    if (e.button != LeftButton || !button.isPushed())
        return false;
    ++e.handled;
    // The cursor's own position: e.position may have been unprojected.
    const Window* sheet = button.getGUIContext().getRootWindow();
    return sheet && sheet->getTargetChildAtPosition(
                        button.getGUIContext().getMouseCursor().getPosition()) == &button;
}

ToggleButton::ToggleButton(const String& type, const String& name) : PushButtonEx(type, name)
{
    addToggleButtonEvents();
    const String propertyOrigin("MoxieLook/ToggleButton");
    CEGUI_DEFINE_PROPERTY(ToggleButton, bool, "Selected",
                          "Property to get/set whether the button is selected. Value is either "
                          "\"True\" or \"False\".",
                          &ToggleButton::setSelected, &ToggleButton::isSelected, false);
}

void ToggleButton::addToggleButtonEvents()
{
    addEvent(EventSelectedStateChanged);
}

void ToggleButton::setSelected(bool selected)
{
    if (selected == d_selected)
        return;
    d_selected = selected;
    invalidate();
    WindowEventArgs args(this);
    fireEvent(EventSelectedStateChanged, args, "");
}

void ToggleButton::SetPushed(bool pushed)
{
    setPushedState(pushed);
    invalidate();
}

void ToggleButton::onMouseButtonUp(MouseEventArgs& e)
{
    if (releasedInside(*this, e))
        setSelected(!d_selected);
    PushButtonEx::onMouseButtonUp(e);
}

} // namespace MoxieLook
} // namespace CEGUI
