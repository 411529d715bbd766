// The CEGUI the benchmarks run on: the Null renderer, MoxieLook and CEGUI's own
// TaharezLook loaded side by side.
#pragma once

namespace CEGUI
{
class Window;
}

namespace moxiebench
{
void startCegui();
void stopCegui();
//! The root window of the default GUI context.
CEGUI::Window& sheet();
} // namespace moxiebench
