// CEGUI widgets such as Scrollbar ask a window renderer for their geometry. The module's
// renderers only forward to the look; this factory makes them, and takes itself out of
// CEGUI's manager if the module goes away while it is still registered.
#pragma once

#include <CEGUI/Window.h>
#include <CEGUI/WindowRenderer.h>
#include <CEGUI/WindowRendererManager.h>

namespace CEGUI
{
namespace MoxieLook
{
//! Base of the module's forwarding renderers. CEGUI's defaults for these two consult a
//! Falagard look'n'feel, which the module's looks do not have.
template <typename RendererBase>
class LookRenderer : public RendererBase
{
public:
    using RendererBase::RendererBase;

    Rectf getUnclippedInnerRect() const override
    {
        return this->d_window->getUnclippedOuterRect().get();
    }

    bool handleFontRenderSizeChange(const Font* const font) override
    {
        if (this->d_window->getFont() != font)
            return false;
        this->d_window->invalidate();
        return true;
    }
};

template <typename Renderer>
class LookRendererFactory : public WindowRendererFactory
{
public:
    LookRendererFactory() : WindowRendererFactory(Renderer::TypeName) {}
    LookRendererFactory(const LookRendererFactory&) = delete;
    LookRendererFactory& operator=(const LookRendererFactory&) = delete;

    ~LookRendererFactory() override
    {
        WindowRendererManager* manager = WindowRendererManager::getSingletonPtr();
        if (manager && manager->isFactoryPresent(d_factoryName) &&
            manager->getFactory(d_factoryName) == this)
            manager->removeFactory(d_factoryName);
    }

    WindowRenderer* create() override { return new Renderer(Renderer::TypeName); }
    void destroy(WindowRenderer* renderer) override { delete renderer; }
};

} // namespace MoxieLook
} // namespace CEGUI
