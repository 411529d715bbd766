// Geometry of N "MoxieLook/Button" windows against N "TaharezLook/Button" windows (CEGUI's
// own XML-driven sample skin), both rebuilt from scratch on every iteration.
#include "BenchCegui.h"

#include <CEGUI/CEGUI.h>
#include <benchmark/benchmark.h>
#include <vector>

using namespace CEGUI;

namespace
{
void populateButtons(benchmark::State& state, const char* type)
{
    Window* sheet = &moxiebench::sheet();
    std::vector<Window*> buttons;
    for (int64_t i = 0; i < state.range(0); ++i)
    {
        Window* button = WindowManager::getSingleton().createWindow(type);
        // 25 columns of 50 x 24: a thousand buttons still all on the 1280 x 1024 display,
        // where a look draws in full.
        button->setArea(UVector2(cegui_absdim((i % 25) * 51.0f), cegui_absdim((i / 25) * 25.0f)),
                        USize(cegui_absdim(50), cegui_absdim(24)));
        button->setText("OK");
        sheet->addChild(button);
        buttons.push_back(button);
    }

    for (auto _ : state)
        for (Window* button : buttons)
        {
            button->invalidate();
            button->render();
        }

    std::size_t vertices = 0;
    for (Window* button : buttons)
        vertices += button->getGeometryBuffer().getVertexCount();
    state.counters["vertices_per_button"] = static_cast<double>(vertices) / buttons.size();
    state.counters["buttons_per_second"] = benchmark::Counter(
        static_cast<double>(buttons.size() * state.iterations()), benchmark::Counter::kIsRate);

    for (Window* button : buttons)
        WindowManager::getSingleton().destroyWindow(button);
    WindowManager::getSingleton().cleanDeadPool();
}
} // namespace

BENCHMARK_CAPTURE(populateButtons, MoxieLook, "MoxieLook/Button")->Arg(100)->Arg(1000);
BENCHMARK_CAPTURE(populateButtons, TaharezLook, "TaharezLook/Button")->Arg(100)->Arg(1000);
