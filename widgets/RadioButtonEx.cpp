#include "widgets/RadioButtonEx.h"

#include "widgets/ToggleButton.h"

#include <CEGUI/PropertyHelper.h>

namespace CEGUI
{
namespace MoxieLook
{
const String RadioButtonEx::EventNamespace("RadioButtonEx");
const String RadioButtonEx::EventSelectStateChanged("SelectStateChanged");

namespace
{
RadioButtonExProperties::ManualUnselectionProperty s_manualUnselectionProperty;
RadioButtonExProperties::GroupIDProperty s_groupIDProperty;
} // namespace

RadioButtonEx::RadioButtonEx(const String& type, const String& name) : ButtonEx(type, name)
{
    d_clickSound = "clank";
    addEvent(EventSelectStateChanged);
    addRadioButtonProperties();
    const String propertyOrigin("MoxieLook/RadioButtonEx");
    CEGUI_DEFINE_PROPERTY(RadioButtonEx, bool, "Selected",
                          "Property to get/set whether the button is selected. Value is either "
                          "\"True\" or \"False\".",
                          &RadioButtonEx::setSelected, &RadioButtonEx::isSelected, false);
}

void RadioButtonEx::addRadioButtonProperties()
{
    addProperty(&s_manualUnselectionProperty);
    addProperty(&s_groupIDProperty);
}

void RadioButtonEx::initialiseComponents()
{
    ButtonEx::initialiseComponents();
    d_selected = false;
    d_manualUnselection = false;
    d_groupID = DefaultGroupID;
}

void RadioButtonEx::setSelected(bool selected)
{
    if (selected == d_selected)
        return;
    d_selected = selected;
    if (selected)
        deselectOtherButtonsInGroup();
    WindowEventArgs args(this);
    onSelectStateChanged(args);
    invalidate();
}

void RadioButtonEx::SetPushed(bool pushed)
{
    setPushedState(pushed);
    invalidate();
}

void RadioButtonEx::onSelectStateChanged(WindowEventArgs& e)
{
    fireEvent(EventSelectStateChanged, e, EventNamespace);
}

void RadioButtonEx::onMouseButtonUp(MouseEventArgs& e)
{
    if (releasedInside(*this, e))
        setSelected(!(d_selected && d_manualUnselection));
    ButtonEx::onMouseButtonUp(e);
}

void RadioButtonEx::deselectOtherButtonsInGroup()
{
    Window* parent = getParent();
    if (!parent)
        return;
    // Only siblings of this very window type take part.
    for (std::size_t i = 0; i < parent->getChildCount(); ++i)
    {
        Window* sibling = parent->getChildAtIdx(i);
        if (sibling == this || sibling->getType() != getType())
            continue;
        auto* other = dynamic_cast<RadioButtonEx*>(sibling);
        if (other && other->d_selected && other->d_groupID == d_groupID)
            other->setSelected(false);
    }
}

namespace RadioButtonExProperties
{
ManualUnselectionProperty::ManualUnselectionProperty()
    : Property("ManualUnselection",
               "Property to enable/disable manual unselection.  Value should be \"True\" or "
               "\"False\".",
               "False", true, "MoxieLook/RadioButtonEx")
{
}

String ManualUnselectionProperty::get(const PropertyReceiver* receiver) const
{
    // Reads the standard-imagery flag, not what was written: kept so.
    return static_cast<const RadioButtonEx*>(receiver)->isStandardImageryEnabled() ? "True"
                                                                                   : "False";
}

void ManualUnselectionProperty::set(PropertyReceiver* receiver, const String& value)
{
    static_cast<RadioButtonEx*>(receiver)->setManualUnselectionEnabled(
        PropertyHelper<bool>::fromString(value));
}

GroupIDProperty::GroupIDProperty()
    : Property("GroupID", "Property to set a custom group id. Value is an integer", "1234", true,
               "MoxieLook/RadioButtonEx")
{
}

String GroupIDProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<int>::toString(static_cast<const RadioButtonEx*>(receiver)->getGroupID());
}

void GroupIDProperty::set(PropertyReceiver* receiver, const String& value)
{
    static_cast<RadioButtonEx*>(receiver)->setGroupID(PropertyHelper<int>::fromString(value));
}
} // namespace RadioButtonExProperties

} // namespace MoxieLook
} // namespace CEGUI
