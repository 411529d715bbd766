// "MoxieLook/Spinner": a "MoxieLook/Editbox" with two small "MoxieLook/Button"s at its
// right, drawn with the "SpinnerUp..." and "SpinnerDown..." images. The edit box brings
// the module's own regular-expression matcher, so the spinner validates what is typed in
// every text input mode on a CEGUI built without one.
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/Spinner.h>

namespace CEGUI
{
namespace MoxieLook
{
class MXSpinner : public RedrawnWhenUncovered<Spinner>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Spinner";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char EditboxType[] = "MoxieLook/Editbox";
    static constexpr char ButtonType[] = "MoxieLook/Button";
    static constexpr char UpNormalImageName[] = "SpinnerUpNormal";
    static constexpr char UpHoverImageName[] = "SpinnerUpHover";
    static constexpr char UpPushedImageName[] = "SpinnerUpPushed";
    static constexpr char DownNormalImageName[] = "SpinnerDownNormal";
    static constexpr char DownHoverImageName[] = "SpinnerDownHover";
    static constexpr char DownPushedImageName[] = "SpinnerDownPushed";
    static constexpr float ButtonWidth = 16.0f;

    MXSpinner(const String& type, const String& name);

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;
};

using MXSpinnerFactory = LookFactory<MXSpinner>;

} // namespace MoxieLook
} // namespace CEGUI
