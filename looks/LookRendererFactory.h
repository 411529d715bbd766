// CEGUI widgets such as Scrollbar ask a window renderer for their geometry. The module's
// renderers only forward to the look; this factory makes them, and takes itself out of
// CEGUI's manager if the module goes away while it is still registered.
#pragma once

#include <CEGUI/Exceptions.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowRenderer.h>
#include <CEGUI/WindowRendererManager.h>

namespace CEGUI
{
namespace MoxieLook
{
//! Base of the module's forwarding renderers. A renderer serves only windows of its own
//! `Look`: set on any other window (through "WindowRenderer"), it refuses with CEGUI's
//! InvalidRequestException and draws and answers nothing. CEGUI's defaults for the two
//! overrides below consult a Falagard look'n'feel, which the module's looks do not have.
template <typename RendererBase, typename Look>
class LookRenderer : public RendererBase
{
public:
    using RendererBase::RendererBase;

    void onAttach() override
    {
        RendererBase::onAttach();
        d_look = dynamic_cast<Look*>(this->d_window);
        if (!d_look)
            throw InvalidRequestException(
                "The window renderer '" + this->getName() + "' serves only its own look; '" +
                this->d_window->getNamePath() + "' is a " + this->d_window->getType() + ".");
    }

    void onDetach() override
    {
        d_look = nullptr;
        RendererBase::onDetach();
    }

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

protected:
    //! The look served, or null on a window it refused.
    Look* look() const { return d_look; }

private:
    Look* d_look = nullptr;
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
