// A one-colour property that also reads the four-corner form the stock skins write their
// colours in ("tl:aarrggbb tr:... bl:... br:..."): the top-left corner is the colour. CEGUI's
// one-colour reading would take such a text as black.
#pragma once

#include <CEGUI/PropertyHelper.h>
#include <CEGUI/TplWindowProperty.h>

namespace CEGUI
{
namespace MoxieLook
{
template <typename C>
class CornerColourProperty : public TplWindowProperty<C, Colour>
{
public:
    using TplWindowProperty<C, Colour>::TplWindowProperty;

    void set(PropertyReceiver* receiver, const String& value) override
    {
        if (value.find("tl:") != String::npos)
            this->setNative(receiver, PropertyHelper<ColourRect>::fromString(value).d_top_left);
        else
            TplWindowProperty<C, Colour>::set(receiver, value);
    }
    Property* clone() const override { return new CornerColourProperty(*this); }
};

} // namespace MoxieLook
} // namespace CEGUI

//! CEGUI_DEFINE_PROPERTY for a Colour that also takes four corners.
#define MOXIE_DEFINE_COLOUR_PROPERTY(class_type, name, help, setter, getter, default_value)        \
    {                                                                                              \
        static ::CEGUI::MoxieLook::CornerColourProperty<class_type> sProperty(                     \
            name,                                                                                  \
            help " Value is \"aarrggbb\" (or four corners, of which the top-left is taken).",      \
            propertyOrigin, setter, getter, default_value);                                        \
        this->addProperty(&sProperty);                                                             \
    }
