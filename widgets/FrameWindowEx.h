// CEGUI's frame window with a content pane that takes every child a host adds, a minimise
// and a roll-up button, and a 40-step animation towards its task-bar button and back.
// Plays "floup" when shown and "woop" when hidden or minimised.
#pragma once

#include "draw/RedrawnWhenUncovered.h"

#include <CEGUI/widgets/FrameWindow.h>
#include <string>

namespace CEGUI
{
class PushButton;
class Titlebar;

namespace MoxieLook
{
class FrameWindowEx : public RedrawnWhenUncovered<FrameWindow>
{
public:
    //! Fired in FrameWindow's event namespace when the window is minimised.
    static const String EventMinimizeClicked;
    static constexpr unsigned AnimationSteps = 40;
    //! Weight of one step: a frame lies (steps x 0.025) of the way along.
    static constexpr float StepWeight = 0.025f;
    static constexpr char ContentPaneName[] = "__auto_contentpane__";
    static constexpr char MinimizeButtonName[] = "__auto_minimizebutton__";
    static constexpr char TitleizeButtonName[] = "__auto_titleizebutton__";

    FrameWindowEx(const String& type, const String& name);

    //! Makes the content pane, the buttons and the title bar through the look's hooks.
    void initialiseComponents() override;

    //! As a click on the minimise button; without animation it lasts one frame.
    void minimize(bool animated);
    void restore(bool animated);
    //! As a click on the close button: hides the window and fires "CloseClicked".
    void hide();

    void setRectangleOnTaskbar(const Rectf& rect) { d_taskbarRect = rect; }
    const Rectf& getRectangleOnTaskbar() const { return d_taskbarRect; }
    void setMinimizeButtonEnabled(bool enabled);

    bool isMinimized() const { return d_minimized; }
    unsigned getAnimationStepsLeft() const { return d_stepsLeft; }

    //! Parts; null when the look made none (or before initialisation).
    Window* getContentPane() const { return d_contentPane; }
    PushButton* getMinimizeButton() const { return d_minimizeButton; }
    PushButton* getTitleizeButton() const { return d_titleizeButton; }

    bool isHit(const Vector2f& position, const bool allowDisabled = false) const override;

protected:
    // The look makes the parts; any of the buttons may be null.
    virtual Titlebar* createTitlebar(const String& name) const = 0;
    virtual PushButton* createCloseButton(const String& name) const = 0;
    virtual PushButton* createMinimizeButton(const String& name) const = 0;
    virtual PushButton* createTitleizeButton(const String& name) const = 0;
    virtual Window* createContentPane(const String& name) const = 0;

    virtual void onMinimizeClicked(WindowEventArgs& e);
    void onSized(ElementEventArgs& e) override;
    void onShown(WindowEventArgs& e) override;
    void onHidden(WindowEventArgs& e) override;
    void onCloseClicked(WindowEventArgs& e) override;
    //! Host and layout children go into the content pane; the parts stay here.
    void addChild_impl(Element* element) override;
    void removeChild_impl(Element* element) override;
    //! Names of children in the content pane resolve as if they were the window's own.
    NamedElement* getChildByNamePath_impl(const String& namePath) const override;

    //! One animation frame is drawn: counts it, and after the last frame of a restore
    //! brings the parts back.
    void stepAnimation();
    //! True while frames of the animation remain to be drawn.
    bool isAnimating() const { return d_stepsLeft > 0; }
    //! Minimising or restoring has just set the frames to draw.
    virtual void onAnimationStarted() {}

    Rectf d_taskbarRect{0, 0, 0, 0};
    const std::string d_showSound{"floup"};
    const std::string d_hideSound{"woop"};
    bool d_minimized = false;
    unsigned d_stepsLeft = 0;
    Window* d_contentPane = nullptr;
    PushButton* d_minimizeButton = nullptr;
    PushButton* d_titleizeButton = nullptr;

    //! The title bar and close button: by address while the ones last found are still
    //! children, by name otherwise (null before they are made). CEGUI's lookup by name is
    //! costly here, where it also searches the content pane.
    Titlebar* titlebarPart() const;
    PushButton* closeButtonPart() const;

private:
    bool isPart(const Window* window) const;
    void finishRestoring();
    bool minimizeClickHandler(const EventArgs& e);
    bool titleizeClickHandler(const EventArgs& e);
    bool titlebarResizeHandler(const EventArgs& e);
    bool rollingUpContentHandler(const EventArgs& e);

    mutable Titlebar* d_titlebarPart = nullptr;
    mutable PushButton* d_closeButtonPart = nullptr;
};

} // namespace MoxieLook
} // namespace CEGUI
