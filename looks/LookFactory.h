// The factory behind every "MoxieLook/..." type: makes one look class, and destroys
// only windows of its own type, silently ignoring any other.
// CEGUI 0.8's WindowManager calls initialiseComponents() only for Falagard-mapped types,
// so the factory calls it: that is where a look makes its parts.
#pragma once

#include <CEGUI/WindowFactory.h>

namespace CEGUI
{
namespace MoxieLook
{
template <typename Look>
class LookFactory : public WindowFactory
{
public:
    LookFactory() : WindowFactory(Look::WidgetTypeName) {}

    Window* createWindow(const String& name) override
    {
        Look* window = new Look(d_type, name);
        try
        {
            window->initialiseComponents();
        }
        catch (...)
        {
            window->destroy(); // parts made so far go with it
            delete window;
            throw;
        }
        return window;
    }

    void destroyWindow(Window* window) override
    {
        if (window->getType() == d_type)
            delete window;
    }
};

} // namespace MoxieLook
} // namespace CEGUI
