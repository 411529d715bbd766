// Population of a 600 x 400 diagram with 8 stacked measurements at step 1 and 2 pixels a
// unit (the horizontal bar scrolls; about 300 intervals are in view), at the start and in
// the middle of the range: 10,000 values each against 100.
#include "BenchCegui.h"
#include "widgets/Diagram.h"

#include <CEGUI/CEGUI.h>
#include <benchmark/benchmark.h>
#include <cmath>

using namespace CEGUI;
using CEGUI::MoxieLook::Diagram;

namespace
{
void diagramPopulation(benchmark::State& state)
{
    const int values = static_cast<int>(state.range(0));
    const bool middle = state.range(1) != 0;
    auto& diagram =
        static_cast<Diagram&>(*WindowManager::getSingleton().createWindow("MoxieLook/Diagram"));
    diagram.setArea(UVector2(cegui_absdim(0), cegui_absdim(0)),
                    USize(cegui_absdim(600), cegui_absdim(400)));
    moxiebench::sheet().addChild(&diagram);
    for (int m = 0; m < 8; ++m)
    {
        const String name = "m" + PropertyHelper<int>::toString(m);
        diagram.addMeasurement(name, name, Colour(0xFF3B78D8));
        for (int x = 0; x < values; ++x)
            diagram.setValue(name, static_cast<float>(x),
                             1.0f + std::sin(static_cast<float>(x + m) * 0.05f));
    }
    diagram.setUnitPixelSize(Sizef(2, -1));
    diagram.render(); // ranges and scroll bars settled
    if (middle)
        diagram.getHorzScrollbar()->setScrollPosition(values); // half of 2 x values pixels
    for (auto _ : state)
    {
        diagram.invalidate();
        diagram.render();
    }
    state.counters["intervals"] = static_cast<double>(diagram.getDrawnIntervalCount());
    state.counters["vertices"] = static_cast<double>(diagram.getGeometryBuffer().getVertexCount());
    WindowManager::getSingleton().destroyWindow(&diagram);
    WindowManager::getSingleton().cleanDeadPool();
}
} // namespace

BENCHMARK(diagramPopulation)
    ->ArgNames({"values", "middle"})
    ->Args({100, 0})
    ->Args({100, 1})
    ->Args({10000, 0})
    ->Args({10000, 1})
    ->Unit(benchmark::kMicrosecond);
