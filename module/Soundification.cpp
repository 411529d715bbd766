#include "module/Soundification.h"

#include <CEGUI/Exceptions.h>
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
    if (!window->isEffectiveVisible())
        return;
    if (!d_hook)
        throw InvalidRequestException("MXSoundification::PlaySound - no sound hook is registered "
                                      "to play '" +
                                      String(soundName.c_str()) +
                                      "'; call MXSoundification::GetInstance().RegisterHook "
                                      "first.");
    d_hook(soundName);
}

} // namespace MoxieLook
} // namespace CEGUI
