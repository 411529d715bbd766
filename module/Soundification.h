// The module plays no sound itself: widgets name a sound and this process-wide object
// hands the name to the host's function, when the window making it can be seen.
// Names in use: "clic" (button released), "clank" (radio button), "cloc" (drop on a
// target), "meup" (drop elsewhere), "floup" (frame window shown), "woop" (hidden,
// minimised).
#pragma once

#include <string>

namespace CEGUI
{
class Window;

namespace MoxieLook
{
class MXSoundification
{
public:
    using Hook = void (*)(const std::string& soundName);

    //! The one instance, made at the first call.
    static MXSoundification& GetInstance();
    //! Deletes the instance; the next GetInstance makes a new one, without a hook.
    static void Destroy();

    void RegisterHook(Hook hook) { d_hook = hook; }
    //! Calls the hook when `window` is visible through all its parents; without a hook
    //! (or with a null one) nothing happens.
    void PlaySound(Window* window, const std::string& soundName);

    MXSoundification& operator=(const MXSoundification& other) = default;

private:
    MXSoundification() = default;
    MXSoundification(const MXSoundification&) = default;

    Hook d_hook = nullptr;

    static MXSoundification* mpinstance;
};

} // namespace MoxieLook
} // namespace CEGUI
