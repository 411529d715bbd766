// "MoxieLook/FrameWindow": a window framed by "WindowFrame..." (tinted 0x808080 while
// inactive) around a "Background" fill, with a "MoxieLook/Titlebar" across the top and
// "MoxieLook/CloseButton"s for close, minimise and roll-up at its right. Minimising draws
// the frame shrinking towards the task-bar button over 40 frames; restoring, growing back.
#pragma once

#include "draw/NinePieceFrame.h"
#include "looks/LookFactory.h"
#include "widgets/FrameWindowEx.h"

#include <optional>

namespace CEGUI
{
namespace MoxieLook
{
class MXFrameWindow : public FrameWindowEx
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/FrameWindow";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char TopLeftFrameImageName[] = "WindowFrameTopLeft";
    static constexpr char TopFrameImageName[] = "WindowFrameTop";
    static constexpr char TopRightFrameImageName[] = "WindowFrameTopRight";
    static constexpr char LeftFrameImageName[] = "WindowFrameLeft";
    static constexpr char RightFrameImageName[] = "WindowFrameRight";
    static constexpr char BottomLeftFrameImageName[] = "WindowFrameBottomLeft";
    static constexpr char BottomFrameImageName[] = "WindowFrameBottom";
    static constexpr char BottomRightFrameImageName[] = "WindowFrameBottomRight";
    static constexpr char ClientBrushImageName[] = "Background";
    static const Colour ClientTopLeftColour;
    static const Colour ClientTopRightColour;
    static const Colour ClientBottomLeftColour;
    static const Colour ClientBottomRightColour;
    static const Colour ActiveColour;
    static const Colour InactiveColour;
    static constexpr char CloseButtonNormalImageName[] = "CloseButtonNormal";
    static constexpr char CloseButtonHoverImageName[] = "CloseButtonHover";
    static constexpr char CloseButtonPushedImageName[] = "CloseButtonPushed";
    static constexpr char MinimizeButtonNormalImageName[] = "MinimizeButtonNormal";
    static constexpr char MinimizeButtonHoverImageName[] = "MinimizeButtonHover";
    static constexpr char MinimizeButtonPushedImageName[] = "MinimizeButtonPushed";
    static constexpr char TitleizeButtonNormalImageName[] = "TitleizeButtonNormal";
    static constexpr char TitleizeButtonHoverImageName[] = "TitleizeButtonHover";
    static constexpr char TitleizeButtonPushedImageName[] = "TitleizeButtonPushed";
    static constexpr char NormalCursorImageName[] = "MouseArrow";
    static constexpr char NorthSouthCursorImageName[] = "MouseNoSoCursor";
    static constexpr char EastWestCursorImageName[] = "MouseEsWeCursor";
    static constexpr char NWestSEastCursorImageName[] = "MouseNwSeCursor";
    static constexpr char NEastSWestCursorImageName[] = "MouseNeSwCursor";
    static constexpr float TitlebarXOffset = 0.0f;
    static constexpr float TitlebarYOffset = 0.0f;
    static constexpr float TitlebarTextPadding = 12.0f;
    //! Types of the parts; a host may point them at its own.
    static const char* TitlebarType;
    static const char* ButtonType;
    static const char* ContentPaneType;
    //! Space between the title bar's buttons and from its right end.
    static constexpr float ButtonGap = 2.0f;
    static constexpr float ButtonRightMargin = 6.0f;

    MXFrameWindow(const String& type, const String& name);

    //! The stock skins' "TitlebarFont": the title bar's own font (empty: the window's).
    void setTitlebarFont(const String& name);
    String getTitlebarFont() const;
    //! The stock skins' "CaptionColour" (the title bar's) and "ClientAreaColour" (tints the
    //! client area's background).
    void setCaptionColour(const ColourRect& colours);
    ColourRect getCaptionColour() const;
    void setClientAreaColour(const ColourRect& colours);
    ColourRect getClientAreaColour() const;

    //! Where frame `step` of the animation lies (screen pixels), as a weighted sum of the
    //! window's rectangle and the task-bar rectangle; `restoring` swaps the weights.
    static Rectf animationFrame(const Rectf& window, const Rectf& taskbar, unsigned step,
                                bool restoring);

    void initialiseComponents() override;
    void populateGeometryBuffer() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

protected:
    Titlebar* createTitlebar(const String& name) const override;
    PushButton* createCloseButton(const String& name) const override;
    PushButton* createMinimizeButton(const String& name) const override;
    PushButton* createTitleizeButton(const String& name) const override;
    Window* createContentPane(const String& name) const override;

    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;
    //! While animating, the whole display: the frame travels outside the window.
    Rectf getOuterRectClipper_impl() const override;
    void updateSelf(float elapsed) override;
    void onAnimationStarted() override;
    void onActivated(ActivationEventArgs& e) override;
    void onDeactivated(ActivationEventArgs& e) override;

private:
    std::optional<ColourRect> d_clientAreaColour;
    PushButton* createTitleButton(const String& name, const char* normal, const char* hover,
                                  const char* pushed) const;
    void followAnimationClipping();
    void drawFrameAt(const Rectf& screenRect);

    NinePieceFrame d_frame;
    const Image* d_clientBrush;
    bool d_clipWidened = false;
};

using MXFrameWindowFactory = LookFactory<MXFrameWindow>;

} // namespace MoxieLook
} // namespace CEGUI
