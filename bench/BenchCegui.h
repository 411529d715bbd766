// The CEGUI the benchmarks run on: the Null renderer, MoxieLook and CEGUI's own
// TaharezLook loaded side by side.
#pragma once

namespace benchmark
{
class State;
}

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
//! A target the report checks: the counter `what` (or "time_us", the mean time of one
//! iteration in microseconds) at most `limit`.
void target(benchmark::State& state, const char* what, double limit);
} // namespace moxiebench
