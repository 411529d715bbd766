// The stock skins' orientation switches ("VerticalScrollbar", "VerticalSlider") on a type
// whose imagery, arrows and thumb serve one orientation: the property reads that
// orientation, accepts it, and refuses the other with the type named.
#pragma once

#include <CEGUI/Exceptions.h>
#include <CEGUI/Property.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/Window.h>

namespace CEGUI
{
namespace MoxieLook
{
template <typename Owner>
class FixedOrientationProperty : public Property
{
public:
    using Reader = bool (Owner::*)() const;

    FixedOrientationProperty(const String& name, const String& origin, Reader isVertical)
        : Property(name,
                   "Property to get whether the window is upright; fixed by its type. Value "
                   "is either \"True\" or \"False\".",
                   "", false, "bool", origin),
          d_isVertical(isVertical)
    {
    }

    String get(const PropertyReceiver* receiver) const override
    {
        return PropertyHelper<bool>::toString(vertical(receiver));
    }

    void set(PropertyReceiver* receiver, const String& value) override
    {
        if (PropertyHelper<bool>::fromString(value) != vertical(receiver))
            throw InvalidRequestException(
                "\"" + d_name + "\": '" + value + "' does not suit " +
                static_cast<const Window*>(receiver)->getType() +
                ": its orientation is its type's; create a type of the other orientation.");
    }

    bool isDefault(const PropertyReceiver*) const override { return true; }
    String getDefault(const PropertyReceiver* receiver) const override { return get(receiver); }
    Property* clone() const override { return new FixedOrientationProperty(*this); }

private:
    bool vertical(const PropertyReceiver* receiver) const
    {
        return (static_cast<const Owner*>(static_cast<const Window*>(receiver))->*d_isVertical)();
    }

    Reader d_isVertical;
};

} // namespace MoxieLook
} // namespace CEGUI
