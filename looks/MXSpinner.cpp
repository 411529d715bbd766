#include "looks/MXSpinner.h"

#include "draw/Imagery.h"
#include "looks/AutoParts.h"
#include "widgets/PushButtonEx.h"

#include <CEGUI/widgets/Editbox.h>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// A small button drawn by its three state pictures.
PushButton* arrowButton(const String& name, const char* normal, const char* hover,
                        const char* pushed)
{
    PushButton* button =
        createAutoPart<PushButton>(MXSpinner::ButtonType, name, "a spinner's button");
    if (auto* framed = dynamic_cast<PushButtonEx*>(button))
    {
        FormattedImage picture;
        picture.setHorzFormatting(FormattedImage::HorzStretched);
        picture.setVertFormatting(FormattedImage::VertStretched);
        framed->setStandardImageryEnabled(false);
        framed->setCustomImageryAutoSized(true);
        picture.setImage(&lookImage(normal));
        framed->setNormalImage(&picture);
        framed->setDisabledImage(&picture);
        picture.setImage(&lookImage(hover));
        framed->setHoverImage(&picture);
        picture.setImage(&lookImage(pushed));
        framed->setPushedImage(&picture);
    }
    return button;
}
} // namespace

MXSpinner::MXSpinner(const String& type, const String& name)
    : RedrawnWhenUncovered<Spinner>(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXSpinner::initialiseComponents()
{
    if (!isChild(EditboxName))
        addChild(createAutoPart<Editbox>(EditboxType, EditboxName, "a spinner's edit box"));
    if (!isChild(IncreaseButtonName))
        addChild(arrowButton(IncreaseButtonName, UpNormalImageName, UpHoverImageName,
                             UpPushedImageName));
    if (!isChild(DecreaseButtonName))
        addChild(arrowButton(DecreaseButtonName, DownNormalImageName, DownHoverImageName,
                             DownPushedImageName));
    RedrawnWhenUncovered<Spinner>::initialiseComponents();
}

void MXSpinner::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    RedrawnWhenUncovered<Spinner>::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    Window* box = partOrNull(*this, EditboxName);
    Window* up = partOrNull(*this, IncreaseButtonName);
    Window* down = partOrNull(*this, DecreaseButtonName);
    if (!box || !up || !down)
        return;
    const Sizef own = getPixelSize();
    const float half = std::floor(own.d_height / 2);
    box->setArea(
        UVector2(cegui_absdim(0), cegui_absdim(0)),
        USize(cegui_absdim(std::max(0.0f, own.d_width - ButtonWidth)), cegui_absdim(own.d_height)));
    up->setArea(UVector2(cegui_absdim(own.d_width - ButtonWidth), cegui_absdim(0)),
                USize(cegui_absdim(ButtonWidth), cegui_absdim(half)));
    down->setArea(UVector2(cegui_absdim(own.d_width - ButtonWidth), cegui_absdim(half)),
                  USize(cegui_absdim(ButtonWidth), cegui_absdim(own.d_height - half)));
}

} // namespace MoxieLook
} // namespace CEGUI
