// A look shown as if the pointer rested on it, for pictures that need two hovered
// windows at once (a hovered and a selected-and-hovered button). Its type is the
// gallery's own; drawing is the look's, with ButtonBase's hover flag held on.
#pragma once

#include "looks/LookFactory.h"

namespace gallery
{
template <typename Look, const char* Name>
class ShownHovered : public Look
{
public:
    static constexpr const char* WidgetTypeName = Name;

    ShownHovered(const CEGUI::String& type, const CEGUI::String& name) : Look(type, name)
    {
        this->d_hovering = true;
    }

protected:
    void onMouseLeaves(CEGUI::MouseEventArgs& e) override
    {
        Look::onMouseLeaves(e);
        this->d_hovering = true;
    }
};

//! Adds the gallery's hovered types to CEGUI ("Gallery/Hovered..." names).
void registerShownHoveredTypes();

} // namespace gallery
