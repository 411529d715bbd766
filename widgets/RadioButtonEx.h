// An extended button selected exclusively among its siblings of the same window type
// that share its group id (1234 unless set).
#pragma once

#include "widgets/ButtonEx.h"

namespace CEGUI
{
namespace MoxieLook
{
class RadioButtonEx : public ButtonEx
{
public:
    static const String EventNamespace;          //!< "RadioButtonEx"
    static const String EventSelectStateChanged; //!< "SelectStateChanged"
    static const int DefaultGroupID = 1234;

    RadioButtonEx(const String& type, const String& name);

    void initialiseComponents() override;

    bool isSelected() const { return d_selected; }
    //! Selecting deselects the other buttons of the group first.
    void setSelected(bool selected);
    int getGroupID() const { return d_groupID; }
    void setGroupID(int id) { d_groupID = id; }
    //! While off, clicking a selected button leaves it selected.
    bool isManualUnselectionEnabled() const { return d_manualUnselection; }
    void setManualUnselectionEnabled(bool enabled) { d_manualUnselection = enabled; }
    //! Shows the button pressed or not, firing nothing.
    void SetPushed(bool pushed);

protected:
    virtual void onSelectStateChanged(WindowEventArgs& e);
    void onMouseButtonUp(MouseEventArgs& e) override;

private:
    void deselectOtherButtonsInGroup();
    void addRadioButtonProperties();

    bool d_selected = false;
    bool d_manualUnselection = false;
    int d_groupID = DefaultGroupID;
};

namespace RadioButtonExProperties
{
//! Writes the manual-unselection flag; reads back the standard-imagery flag.
class ManualUnselectionProperty : public Property
{
public:
    ManualUnselectionProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new ManualUnselectionProperty(*this); }
};

class GroupIDProperty : public Property
{
public:
    GroupIDProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new GroupIDProperty(*this); }
};
} // namespace RadioButtonExProperties

} // namespace MoxieLook
} // namespace CEGUI
