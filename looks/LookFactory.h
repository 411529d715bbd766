// The factory behind every "MoxieLook/..." type: makes one look class, and destroys
// only windows of its own type, silently ignoring any other.
#pragma once

#include <CEGUI/WindowFactory.h>

namespace CEGUI
{
namespace MoxieLook
{
template <typename Look> class LookFactory : public WindowFactory
{
public:
    LookFactory() : WindowFactory(Look::WidgetTypeName) {}

    Window* createWindow(const String& name) override { return new Look(d_type, name); }

    void destroyWindow(Window* window) override
    {
        if (window->getType() == d_type)
            delete window;
    }
};

} // namespace MoxieLook
} // namespace CEGUI
