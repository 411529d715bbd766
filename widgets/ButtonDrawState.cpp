#include "widgets/ButtonDrawState.h"

#include <CEGUI/widgets/ButtonBase.h>

namespace CEGUI
{
namespace MoxieLook
{
ButtonDrawState drawStateOf(const ButtonBase& button)
{
    if (button.isEffectiveDisabled())
        return ButtonDrawState::Disabled;
    if (button.isPushed())
        return button.isHovering() ? ButtonDrawState::Pushed : ButtonDrawState::Hover;
    return button.isHovering() ? ButtonDrawState::Hover : ButtonDrawState::Normal;
}

} // namespace MoxieLook
} // namespace CEGUI
