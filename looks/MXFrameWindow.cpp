#include "looks/MXFrameWindow.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "looks/MXCloseButton.h"
#include "looks/MXTitlebar.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/widgets/Titlebar.h>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXFrameWindow::ClientTopLeftColour(0x00FFFFFF);
const Colour MXFrameWindow::ClientTopRightColour(0x00FFFFFF);
const Colour MXFrameWindow::ClientBottomLeftColour(0x00FFFFFF);
const Colour MXFrameWindow::ClientBottomRightColour(0x00FFFFFF);
const Colour MXFrameWindow::ActiveColour(0x00FFFFFF);
const Colour MXFrameWindow::InactiveColour(0x00808080);
const char* MXFrameWindow::TitlebarType = "MoxieLook/Titlebar";
const char* MXFrameWindow::ButtonType = "MoxieLook/CloseButton";
const char* MXFrameWindow::ContentPaneType = "DefaultWindow";

MXFrameWindow::MXFrameWindow(const String& type, const String& name)
    : FrameWindowEx(type, name), d_clientBrush(&lookImage(ClientBrushImageName))
{
    d_frame.setImages({TopLeftFrameImageName, TopRightFrameImageName, BottomLeftFrameImageName,
                       BottomRightFrameImageName, LeftFrameImageName, TopFrameImageName,
                       RightFrameImageName, BottomFrameImageName});
    setMouseCursor(&lookImage(NormalCursorImageName));
    setNSSizingCursorImage(&lookImage(NorthSouthCursorImageName));
    setEWSizingCursorImage(&lookImage(EastWestCursorImageName));
    setNWSESizingCursorImage(&lookImage(NWestSEastCursorImageName));
    setNESWSizingCursorImage(&lookImage(NEastSWestCursorImageName));
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXFrameWindow, String, "TitlebarFont",
                          "Property to get/set the title bar's font. Value is a font name; "
                          "empty for the window's own.",
                          &MXFrameWindow::setTitlebarFont, &MXFrameWindow::getTitlebarFont, "");
    CEGUI_DEFINE_PROPERTY(MXFrameWindow, ColourRect, "CaptionColour",
                          "Property to get/set the title bar's caption colour. Value is "
                          "\"aarrggbb\".",
                          &MXFrameWindow::setCaptionColour, &MXFrameWindow::getCaptionColour,
                          ColourRect(opaque(MXTitlebar::ActiveTextColour)));
    CEGUI_DEFINE_PROPERTY(MXFrameWindow, ColourRect, "ClientAreaColour",
                          "Property to get/set the tint of the client area's background. Value "
                          "is \"aarrggbb\".",
                          &MXFrameWindow::setClientAreaColour, &MXFrameWindow::getClientAreaColour,
                          ColourRect(opaque(ClientTopLeftColour)));
}

void MXFrameWindow::setCaptionColour(const ColourRect& colours)
{
    if (auto* bar = dynamic_cast<MXTitlebar*>(titlebarPart()))
        bar->setCaptionColour(colours);
}

ColourRect MXFrameWindow::getCaptionColour() const
{
    if (auto* bar = dynamic_cast<MXTitlebar*>(titlebarPart()))
        return bar->getCaptionColour();
    return ColourRect(opaque(MXTitlebar::ActiveTextColour));
}

void MXFrameWindow::setClientAreaColour(const ColourRect& colours)
{
    d_clientAreaColour = colours;
    invalidate();
}

ColourRect MXFrameWindow::getClientAreaColour() const
{
    return d_clientAreaColour.value_or(ColourRect(opaque(ClientTopLeftColour)));
}

void MXFrameWindow::setTitlebarFont(const String& name)
{
    Titlebar* titlebar = titlebarPart();
    if (!titlebar)
        return;
    try
    {
        titlebar->setFont(name);
    }
    catch (const UnknownObjectException&)
    {
        throw UnknownObjectException("\"TitlebarFont\": no font named '" + name + "' is loaded.");
    }
}

String MXFrameWindow::getTitlebarFont() const
{
    const Titlebar* titlebar = titlebarPart();
    if (!titlebar)
        return "";
    const Font* font = titlebar->getFont(false);
    return font ? font->getName() : String();
}

void MXFrameWindow::initialiseComponents()
{
    FrameWindowEx::initialiseComponents();
    // The title bar and its buttons share the always-on-top group, where a click would raise
    // the bar over the buttons for good: the bar keeps its place below them.
    getTitlebar()->setZOrderingEnabled(false);
    // The title bar came after the minimise and roll-up buttons; they sit on it.
    for (Window* button :
         {static_cast<Window*>(d_minimizeButton), static_cast<Window*>(d_titleizeButton)})
        if (button)
            button->moveInFront(getTitlebar());
}

Titlebar* MXFrameWindow::createTitlebar(const String& name) const
{
    return createAutoPart<Titlebar>(TitlebarType, name, "a frame window's title bar");
}

PushButton* MXFrameWindow::createTitleButton(const String& name, const char* normal,
                                             const char* hover, const char* pushed) const
{
    auto* button = createAutoPart<PushButton>(ButtonType, name, "a frame window's button");
    // CEGUI's title bar stays on top of its siblings; the buttons sit on it.
    button->setAlwaysOnTop(true);
    if (auto* look = dynamic_cast<MXCloseButton*>(button))
        look->setStateImages(normal, hover, pushed);
    return button;
}

PushButton* MXFrameWindow::createCloseButton(const String& name) const
{
    return createTitleButton(name, CloseButtonNormalImageName, CloseButtonHoverImageName,
                             CloseButtonPushedImageName);
}

PushButton* MXFrameWindow::createMinimizeButton(const String& name) const
{
    return createTitleButton(name, MinimizeButtonNormalImageName, MinimizeButtonHoverImageName,
                             MinimizeButtonPushedImageName);
}

PushButton* MXFrameWindow::createTitleizeButton(const String& name) const
{
    return createTitleButton(name, TitleizeButtonNormalImageName, TitleizeButtonHoverImageName,
                             TitleizeButtonPushedImageName);
}

Window* MXFrameWindow::createContentPane(const String& name) const
{
    return createAutoPart<Window>(ContentPaneType, name, "a frame window's content pane");
}

void MXFrameWindow::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    FrameWindowEx::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    Window* titlebar = titlebarPart();
    if (!titlebar)
        return; // still being built
    const float width = getPixelSize().d_width;
    const auto* bar = dynamic_cast<const MXTitlebar*>(titlebar);
    const float height = bar ? bar->barHeight() : titlebar->getPixelSize().d_height;
    titlebar->setArea(UVector2(cegui_absdim(TitlebarXOffset), cegui_absdim(TitlebarYOffset)),
                      USize(cegui_absdim(width - TitlebarXOffset), cegui_absdim(height)));

    // Close at the right end, then minimise, then roll-up, each as large as its picture.
    float right = width - ButtonRightMargin;
    for (Window* button :
         {static_cast<Window*>(closeButtonPart()), static_cast<Window*>(d_minimizeButton),
          static_cast<Window*>(d_titleizeButton)})
    {
        if (!button)
            continue;
        const auto* look = dynamic_cast<const MXCloseButton*>(button);
        const Sizef size = look ? look->getStateImage(ButtonDrawState::Normal)->getRenderedSize()
                                : Sizef(height - 6, height - 6);
        right -= size.d_width;
        button->setArea(
            UVector2(cegui_absdim(right),
                     cegui_absdim(TitlebarYOffset + std::floor((height - size.d_height) * 0.5f))),
            USize(cegui_absdim(size.d_width), cegui_absdim(size.d_height)));
        right -= ButtonGap;
    }
}

Rectf MXFrameWindow::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    Rectf rect = skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                       : getUnclippedOuterRect().get();
    if (!isFrameEnabled())
        return rect;
    const Titlebar* titlebar = titlebarPart();
    const float title = titlebar && titlebar->isVisible()
                            ? titlebar->getPixelSize().d_height
                            : d_frame.pieceHeight(NinePieceFrame::Top);
    rect.d_min.d_x += d_frame.pieceWidth(NinePieceFrame::Left);
    rect.d_min.d_y += title;
    rect.d_max.d_x -= d_frame.pieceWidth(NinePieceFrame::Right);
    rect.d_max.d_y -= d_frame.pieceHeight(NinePieceFrame::Bottom);
    return rect;
}

Rectf MXFrameWindow::getOuterRectClipper_impl() const
{
    if (d_clipWidened)
        return Rectf(Vector2f(0, 0), getRootContainerSize());
    return FrameWindowEx::getOuterRectClipper_impl();
}

void MXFrameWindow::followAnimationClipping()
{
    if (d_clipWidened == isAnimating())
        return;
    d_clipWidened = isAnimating();
    notifyScreenAreaChanged(false);
}

void MXFrameWindow::onAnimationStarted()
{
    followAnimationClipping();
}

void MXFrameWindow::updateSelf(float elapsed)
{
    FrameWindowEx::updateSelf(elapsed);
    // A redraw asked for while drawing is lost: each frame of the animation asks here, and
    // once more after the last, to draw the window it has come back to.
    if (isAnimating() || d_clipWidened)
        invalidate();
    followAnimationClipping();
}

void MXFrameWindow::onActivated(ActivationEventArgs& e)
{
    FrameWindowEx::onActivated(e);
    invalidate();
    if (Titlebar* titlebar = titlebarPart())
        titlebar->invalidate();
}

void MXFrameWindow::onDeactivated(ActivationEventArgs& e)
{
    FrameWindowEx::onDeactivated(e);
    invalidate();
    if (Titlebar* titlebar = titlebarPart())
        titlebar->invalidate();
}

Rectf MXFrameWindow::animationFrame(const Rectf& window, const Rectf& taskbar, unsigned step,
                                    bool restoring)
{
    const float own = static_cast<float>(restoring ? AnimationSteps - step : step);
    const float bar = static_cast<float>(AnimationSteps) - own;
    auto mix = [&](float w, float t) { return (w * own + t * bar) * StepWeight; };
    return Rectf(mix(window.left(), taskbar.left()), mix(window.top(), taskbar.top()),
                 mix(window.right(), taskbar.right()), mix(window.bottom(), taskbar.bottom()));
}

void MXFrameWindow::drawFrameAt(const Rectf& screenRect)
{
    const Vector2f origin = getUnclippedOuterRect().get().getPosition();
    Rectf local = screenRect;
    local.offset(Vector2f(-origin.d_x, -origin.d_y));
    d_frame.setSize(local.getSize());
    d_frame.setColours(
        withAlpha(ColourRect(isActive() ? ActiveColour : InactiveColour), getEffectiveAlpha()));
    d_frame.draw(getGeometryBuffer(), local.getPosition(), &local);
}

void MXFrameWindow::populateGeometryBuffer()
{
    if (isAnimating())
    {
        drawFrameAt(animationFrame(getUnclippedOuterRect().get(), getRectangleOnTaskbar(),
                                   getAnimationStepsLeft(), !isMinimized()));
        stepAnimation();
        return;
    }
    if (isMinimized() || isRolledup() || !hasVisibleArea(*this))
        return; // rolled up, only the title bar shows

    const Rectf outer = getUnclippedOuterRect().get();
    Rectf inner = getUnclippedInnerRect().get();
    inner.offset(Vector2f(-outer.left(), -outer.top()));
    drawImage(getGeometryBuffer(), *d_clientBrush, inner, nullptr,
              d_clientAreaColour
                  ? faded(ColourRect(*d_clientAreaColour), getEffectiveAlpha())
                  : withAlpha(ColourRect(ClientTopLeftColour, ClientTopRightColour,
                                         ClientBottomLeftColour, ClientBottomRightColour),
                              getEffectiveAlpha()));
    if (isFrameEnabled())
        drawFrameAt(outer);
}

} // namespace MoxieLook
} // namespace CEGUI
