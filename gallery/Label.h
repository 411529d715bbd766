// The gallery's own caption window: plain dark text, so that the pictures show only the
// module's art around it.
#pragma once

#include <CEGUI/Window.h>

namespace gallery
{
class Label : public CEGUI::Window
{
public:
    static const CEGUI::String WidgetTypeName;

    Label(const CEGUI::String& type, const CEGUI::String& name);

protected:
    void populateGeometryBuffer() override;
};

} // namespace gallery
