// A task-bar button: CEGUI's radio button that toggles on a left release inside it, and
// reports every release, of any mouse button, as "ExplicitlyClicked".
#pragma once

#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/widgets/RadioButton.h>

namespace CEGUI
{
namespace MoxieLook
{
class TaskbarButton : public RedrawnWhenUncovered<RadioButton>
{
public:
    static const String EventExplicitlyClicked;

    TaskbarButton(const String& type, const String& name);

    //! Shows the images `imageName`, + "Focus", + "Select" and + "SelectFocus" of the
    //! imageset `imagesetName` instead of the look's own.
    virtual void setCustomBitmap(const String& imagesetName, const String& imageName) = 0;

    //! What a click does, for a key: the selection toggled, "ExplicitlyClicked" fired.
    void ClickByKey();

protected:
    void onMouseButtonUp(MouseEventArgs& e) override;
};

} // namespace MoxieLook
} // namespace CEGUI
