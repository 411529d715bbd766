#include "widgets/FrameWindowEx.h"

#include "module/Soundification.h"

#include <CEGUI/widgets/PushButton.h>
#include <CEGUI/widgets/Titlebar.h>

namespace CEGUI
{
namespace MoxieLook
{
const String FrameWindowEx::EventMinimizeClicked("MinimizeClicked");

FrameWindowEx::FrameWindowEx(const String& type, const String& name)
    : RedrawnWhenUncovered<FrameWindow>(type, name)
{
    addEvent(EventMinimizeClicked);
}

void FrameWindowEx::initialiseComponents()
{
    d_contentPane = createContentPane(ContentPaneName);
    d_contentPane->setNonClient(true);
    addChild(d_contentPane);

    d_minimizeButton = createMinimizeButton(MinimizeButtonName);
    d_titleizeButton = createTitleizeButton(TitleizeButtonName);

    setRollupEnabled(false);
    if (d_minimizeButton)
        d_minimizeButton->hide();
    if (d_titleizeButton)
        d_titleizeButton->setVisible(isRollupEnabled());

    if (d_minimizeButton)
    {
        d_minimizeButton->setNonClient(true);
        addChild(d_minimizeButton);
        d_minimizeButton->subscribeEvent(
            PushButton::EventClicked,
            Event::Subscriber(&FrameWindowEx::minimizeClickHandler, this));
    }
    if (d_titleizeButton)
    {
        d_titleizeButton->setNonClient(true);
        addChild(d_titleizeButton);
        d_titleizeButton->subscribeEvent(
            PushButton::EventClicked,
            Event::Subscriber(&FrameWindowEx::titleizeClickHandler, this));
    }

    // What CEGUI's frame window finds by name.
    if (!isChild(TitlebarName))
    {
        d_titlebarPart = createTitlebar(TitlebarName);
        d_titlebarPart->setNonClient(true);
        addChild(d_titlebarPart);
    }
    if (!isChild(CloseButtonName))
    {
        d_closeButtonPart = createCloseButton(CloseButtonName);
        d_closeButtonPart->setNonClient(true);
        addChild(d_closeButtonPart);
    }
    FrameWindow::initialiseComponents();

    getTitlebar()->subscribeEvent(Window::EventSized,
                                  Event::Subscriber(&FrameWindowEx::titlebarResizeHandler, this));
    subscribeEvent(FrameWindow::EventRollupToggled,
                   Event::Subscriber(&FrameWindowEx::rollingUpContentHandler, this));
    ElementEventArgs args(this);
    onSized(args);
}

Titlebar* FrameWindowEx::titlebarPart() const
{
    if (!d_titlebarPart || !Element::isChild(d_titlebarPart))
        d_titlebarPart = isChild(TitlebarName) ? getTitlebar() : nullptr;
    return d_titlebarPart;
}

PushButton* FrameWindowEx::closeButtonPart() const
{
    if (!d_closeButtonPart || !Element::isChild(d_closeButtonPart))
        d_closeButtonPart = isChild(CloseButtonName) ? getCloseButton() : nullptr;
    return d_closeButtonPart;
}

bool FrameWindowEx::isPart(const Window* window) const
{
    return window &&
           (window == d_contentPane || window == d_titlebarPart || window == d_closeButtonPart ||
            window == d_minimizeButton || window == d_titleizeButton);
}

void FrameWindowEx::addChild_impl(Element* element)
{
    auto* window = dynamic_cast<Window*>(element);
    if (!d_contentPane || isPart(window))
        FrameWindow::addChild_impl(element);
    else
        d_contentPane->addChild(element);
}

void FrameWindowEx::removeChild_impl(Element* element)
{
    if (d_contentPane && element && element->getParentElement() == d_contentPane)
        d_contentPane->removeChild(element);
    else
        FrameWindow::removeChild_impl(element);
}

NamedElement* FrameWindowEx::getChildByNamePath_impl(const String& namePath) const
{
    if (NamedElement* own = FrameWindow::getChildByNamePath_impl(namePath))
        return own;
    return d_contentPane && d_contentPane->isChild(namePath) ? d_contentPane->getChild(namePath)
                                                             : nullptr;
}

void FrameWindowEx::onSized(ElementEventArgs& e)
{
    FrameWindow::onSized(e);
    const Titlebar* titlebar = titlebarPart();
    if (!d_contentPane || !titlebar)
        return;
    const Sizef size = getPixelSize();
    const float border = getSizingBorderThickness();
    const float title = titlebar->getPixelSize().d_height;
    d_contentPane->setArea(UVector2(cegui_absdim(border), cegui_absdim(title)),
                           USize(cegui_absdim(size.d_width - 2 * border),
                                 cegui_absdim(size.d_height - border - title)));
}

void FrameWindowEx::minimize(bool animated)
{
    WindowEventArgs args(this);
    onMinimizeClicked(args);
    if (!animated)
        d_stepsLeft = 1;
}

void FrameWindowEx::restore(bool animated)
{
    d_minimized = false;
    d_stepsLeft = animated ? AnimationSteps : 1;
    onAnimationStarted();
    invalidate();
    activate();
}

void FrameWindowEx::hide()
{
    WindowEventArgs args(this);
    onCloseClicked(args);
}

void FrameWindowEx::setMinimizeButtonEnabled(bool enabled)
{
    if (d_minimizeButton)
        d_minimizeButton->setEnabled(enabled);
}

bool FrameWindowEx::isHit(const Vector2f& position, const bool allowDisabled) const
{
    if (d_minimized)
        return false;
    return FrameWindow::isHit(position, allowDisabled);
}

void FrameWindowEx::onMinimizeClicked(WindowEventArgs& e)
{
    fireEvent(EventMinimizeClicked, e, FrameWindow::EventNamespace);
    d_minimized = true;
    setEnabled(false);
    for (Window* part :
         {d_contentPane, static_cast<Window*>(getTitlebar()),
          static_cast<Window*>(getCloseButton()), static_cast<Window*>(d_minimizeButton),
          static_cast<Window*>(d_titleizeButton)})
        if (part)
        {
            part->setEnabled(false);
            part->hide();
        }
    d_stepsLeft = AnimationSteps;
    onAnimationStarted();
    invalidate();
    MXSoundification::GetInstance().PlaySound(this, d_hideSound);
}

void FrameWindowEx::stepAnimation()
{
    if (d_stepsLeft == 0)
        return;
    --d_stepsLeft;
    if (d_stepsLeft == 0 && !d_minimized)
        finishRestoring();
}

void FrameWindowEx::finishRestoring()
{
    setEnabled(true);
    for (Window* part :
         {static_cast<Window*>(getTitlebar()), static_cast<Window*>(getCloseButton()),
          static_cast<Window*>(d_minimizeButton), static_cast<Window*>(d_titleizeButton)})
        if (part)
        {
            part->setEnabled(true);
            part->show();
        }
    if (d_contentPane && !isRolledup())
    {
        d_contentPane->setEnabled(true);
        d_contentPane->show();
    }
}

void FrameWindowEx::onShown(WindowEventArgs& e)
{
    MXSoundification::GetInstance().PlaySound(this, d_showSound);
    FrameWindow::onShown(e);
}

void FrameWindowEx::onHidden(WindowEventArgs& e)
{
    // The window is already hidden here; it was on screen if its parent is.
    Window* judge = getParent() ? getParent() : this;
    MXSoundification::GetInstance().PlaySound(judge, d_hideSound);
    FrameWindow::onHidden(e);
}

void FrameWindowEx::onCloseClicked(WindowEventArgs& e)
{
    Window::hide();
    FrameWindow::onCloseClicked(e);
}

bool FrameWindowEx::minimizeClickHandler(const EventArgs&)
{
    WindowEventArgs args(this);
    onMinimizeClicked(args);
    return true;
}

bool FrameWindowEx::titleizeClickHandler(const EventArgs&)
{
    toggleRollup();
    return true;
}

bool FrameWindowEx::titlebarResizeHandler(const EventArgs&)
{
    ElementEventArgs args(this);
    onSized(args);
    return true;
}

bool FrameWindowEx::rollingUpContentHandler(const EventArgs&)
{
    if (!d_contentPane)
        return true;
    const bool visible = !d_contentPane->isVisible();
    d_contentPane->setVisible(visible);
    d_contentPane->setEnabled(visible);
    return true;
}

} // namespace MoxieLook
} // namespace CEGUI
