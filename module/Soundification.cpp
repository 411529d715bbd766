#include "module/Soundification.h"

#include <CEGUI/Window.h>

namespace CEGUI
{
namespace MoxieLook
{
MXSoundification* MXSoundification::mpinstance = nullptr;

MXSoundification& MXSoundification::GetInstance()
{
    if (!mpinstance)
        mpinstance = new MXSoundification;
    return *mpinstance;
}

void MXSoundification::Destroy()
{
    delete mpinstance;
    mpinstance = nullptr;
}

void MXSoundification::PlaySound(Window* window, const std::string& soundName)
{
    // A host that plays no sounds registers no hook: widgets then stay silent.
    if (!window->isEffectiveVisible() || !d_hook)
        return;
    d_hook(soundName);
}

} // namespace MoxieLook
} // namespace CEGUI
