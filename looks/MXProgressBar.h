// "MoxieLook/ProgressBar": a rounded track ("ProgressBarLeft", "...Middle", "...Right")
// filled from the left by the lit bar ("ProgressBarLitLeft", "...Middle", "...Right") as
// far as the progress goes, cut there so that the fill keeps its rounded start. The window
// text, if any, is centred over both.
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "draw/ThreePieceBar.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/ProgressBar.h>

namespace CEGUI
{
namespace MoxieLook
{
class MXProgressBar : public RedrawnWhenUncovered<ProgressBar>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ProgressBar";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char TrackLeftImageName[] = "ProgressBarLeft";
    static constexpr char TrackMiddleImageName[] = "ProgressBarMiddle";
    static constexpr char TrackRightImageName[] = "ProgressBarRight";
    static constexpr char LitLeftImageName[] = "ProgressBarLitLeft";
    static constexpr char LitMiddleImageName[] = "ProgressBarLitMiddle";
    static constexpr char LitRightImageName[] = "ProgressBarLitRight";
    static const Colour TextColour;

    MXProgressBar(const String& type, const String& name);

    //! Where the fill ends, window-local: progress x width (0 for a progress that is no
    //! number).
    float litWidth() const;

protected:
    void populateGeometryBuffer() override;
    void onProgressChanged(WindowEventArgs& e) override;

private:
    ThreePieceBar d_track;
    ThreePieceBar d_lit;
};

using MXProgressBarFactory = LookFactory<MXProgressBar>;

} // namespace MoxieLook
} // namespace CEGUI
