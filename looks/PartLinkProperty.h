// A property of a composite window that stands for a property of one of its parts, as the
// stock skins' linked properties do ("NormalEditTextColour" is the edit area's
// "NormalTextColour"): read and written on the part whenever it is used.
#pragma once

#include <CEGUI/Exceptions.h>
#include <CEGUI/Property.h>
#include <CEGUI/Window.h>

namespace CEGUI
{
namespace MoxieLook
{
class PartLinkProperty : public Property
{
public:
    //! `defaultValue`: what the composite gives the part; empty, the part's own default.
    //! `alsoTarget`: a second property of the part written alike (empty: none).
    //! `writesXML`: false for values the window works out itself.
    PartLinkProperty(const String& name, const String& help, const String& partName,
                     const String& target, const String& dataType, const String& origin,
                     const String& defaultValue = "", const String& alsoTarget = "",
                     bool writesXML = true)
        : Property(name, help, defaultValue, writesXML, dataType, origin), d_partName(partName),
          d_target(target), d_alsoTarget(alsoTarget)
    {
    }

    String get(const PropertyReceiver* receiver) const override
    {
        return part(receiver).getProperty(d_target);
    }
    void set(PropertyReceiver* receiver, const String& value) override
    {
        part(receiver).setProperty(d_target, value);
        if (!d_alsoTarget.empty())
            part(receiver).setProperty(d_alsoTarget, value);
    }
    bool isDefault(const PropertyReceiver* receiver) const override
    {
        return d_default.empty() ? part(receiver).isPropertyDefault(d_target)
                                 : get(receiver) == d_default;
    }
    String getDefault(const PropertyReceiver* receiver) const override
    {
        return d_default.empty() ? part(receiver).getPropertyDefault(d_target) : d_default;
    }
    Property* clone() const override { return new PartLinkProperty(*this); }

private:
    Window& part(const PropertyReceiver* receiver) const
    {
        const auto* window = static_cast<const Window*>(receiver);
        if (!window->isChild(d_partName))
            throw UnknownObjectException("\"" + d_name + "\": " + window->getNamePath() +
                                         " has no part \"" + d_partName + "\" to pass it to.");
        return *window->getChild(d_partName);
    }

    String d_partName;
    String d_target;
    String d_alsoTarget;
};

} // namespace MoxieLook
} // namespace CEGUI
