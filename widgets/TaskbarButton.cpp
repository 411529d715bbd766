#include "widgets/TaskbarButton.h"

#include <CEGUI/GUIContext.h>

namespace CEGUI
{
namespace MoxieLook
{
const String TaskbarButton::EventExplicitlyClicked("ExplicitlyClicked");

TaskbarButton::TaskbarButton(const String& type, const String& name)
    : RedrawnWhenUncovered<RadioButton>(type, name)
{
    addEvent(EventExplicitlyClicked);
}

void TaskbarButton::ClickByKey()
{
    setSelected(!isSelected());
    MouseEventArgs args(this);
    args.button = LeftButton;
    args.position = getUnclippedOuterRect().get().getPosition();
    fireEvent(EventExplicitlyClicked, args, RadioButton::EventNamespace);
}

void TaskbarButton::onMouseButtonUp(MouseEventArgs& e)
{
    if (e.button == LeftButton && isPushed())
    {
        const Window* sheet = getGUIContext().getRootWindow();
        if (sheet && sheet->getChildAtPosition(e.position) == this)
            setSelected(!isSelected());
        ++e.handled;
    }
    fireEvent(EventExplicitlyClicked, e, RadioButton::EventNamespace);
    ButtonBase::onMouseButtonUp(e);
}

} // namespace MoxieLook
} // namespace CEGUI
