// Which of its four pictures a button-like window shows.
#pragma once

namespace CEGUI
{
class ButtonBase;

namespace MoxieLook
{
enum class ButtonDrawState
{
    Normal,
    Hover,
    Pushed,
    Disabled
};

//! Disabled first; a pressed button shows pushed while the pointer is over it and hover
//! once the pointer has slipped off (as CEGUI's own skins show "PushedOff").
ButtonDrawState drawStateOf(const ButtonBase& button);

} // namespace MoxieLook
} // namespace CEGUI
