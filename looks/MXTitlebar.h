// "MoxieLook/Titlebar": the frame window's title bar, a three-piece bar ("TitlebarLeft",
// "...Middle", "...Right"; the "TitlebarFocus..." set while its window is active) with the
// title in white from the left. Dragging moves the window, a double click rolls it up
// (CEGUI's title bar behaviour).
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "draw/ThreePieceBar.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/Titlebar.h>
#include <optional>

namespace CEGUI
{
namespace MoxieLook
{
class MXTitlebar : public RedrawnWhenUncovered<Titlebar>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Titlebar";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseMoveCursor";
    static constexpr char LeftImageName[] = "TitlebarLeft";
    static constexpr char MiddleImageName[] = "TitlebarMiddle";
    static constexpr char RightImageName[] = "TitlebarRight";
    static constexpr char ActiveLeftImageName[] = "TitlebarFocusLeft";
    static constexpr char ActiveMiddleImageName[] = "TitlebarFocusMiddle";
    static constexpr char ActiveRightImageName[] = "TitlebarFocusRight";
    static const Colour ActiveTextColour;
    static const Colour InactiveTextColour;

    //! The stock skins' "CaptionColour": the text's colour in both states, once set.
    void setCaptionColour(const ColourRect& colours);
    ColourRect getCaptionColour() const;
    //! Room kept free of text at the right, for the window's buttons.
    static constexpr float ButtonRoom = 60.0f;

    MXTitlebar(const String& type, const String& name);

    //! The bar's natural height.
    float barHeight() const;
    //! Whether it shows its window as active.
    bool showsActive() const;

protected:
    void populateGeometryBuffer() override;
    // CEGUI's title bar takes its parent for a frame window without asking; one placed
    // anywhere else stays still instead.
    void onMouseMove(MouseEventArgs& e) override;
    void onMouseButtonDown(MouseEventArgs& e) override;
    void onMouseButtonUp(MouseEventArgs& e) override;
    void onMouseDoubleClicked(MouseEventArgs& e) override;
    void onCaptureLost(WindowEventArgs& e) override;
    void onFontChanged(WindowEventArgs& e) override;

private:
    std::optional<ColourRect> d_captionColour;
    bool onFrameWindow() const;

    ThreePieceBar d_bar;
    ThreePieceBar d_activeBar;
};

using MXTitlebarFactory = LookFactory<MXTitlebar>;

} // namespace MoxieLook
} // namespace CEGUI
