// Population of a 600 x 400 diagram with 8 stacked measurements at step 1 and 2 pixels a
// unit (the horizontal bar scrolls; about 300 intervals are in view), at the start and in
// the middle of the range: 10,000 values each against 100. Then the same diagram with its
// axes fitted to the data: 10,000 and 1,000,000 values each in some 470 pixel columns.
#include "BenchCegui.h"
#include "widgets/Diagram.h"

#include <CEGUI/CEGUI.h>
#include <benchmark/benchmark.h>
#include <cmath>

using namespace CEGUI;
using CEGUI::MoxieLook::Diagram;

namespace
{
Diagram& makeDiagram(int values)
{
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
    return diagram;
}

void finish(benchmark::State& state, Diagram& diagram)
{
    state.counters["intervals"] = static_cast<double>(diagram.getDrawnIntervalCount());
    state.counters["vertices"] = static_cast<double>(diagram.getGeometryBuffer().getVertexCount());
    WindowManager::getSingleton().destroyWindow(&diagram);
    WindowManager::getSingleton().cleanDeadPool();
}

void diagramPopulation(benchmark::State& state)
{
    const int values = static_cast<int>(state.range(0));
    const bool middle = state.range(1) != 0;
    Diagram& diagram = makeDiagram(values);
    diagram.setUnitPixelSize(Sizef(2, -1));
    diagram.render(); // ranges and scroll bars settled
    if (middle)
        diagram.getHorzScrollbar()->setScrollPosition(values); // half of 2 x values pixels
    for (auto _ : state)
    {
        diagram.invalidate();
        diagram.render();
    }
    finish(state, diagram);
}

// Fitted axes: many intervals to a pixel column. The data is set up once per size.
void diagramFitted(benchmark::State& state)
{
    const int values = static_cast<int>(state.range(0));
    Diagram& diagram = makeDiagram(values);
    diagram.render(); // the samples are taken once per data change
    for (auto _ : state)
    {
        diagram.invalidate();
        diagram.render();
    }
    moxiebench::target(state, "time_us", values > 10000 ? 2000 : 1000);
    const double columns = std::ceil(diagram.getGraphRect().getWidth());
    moxiebench::target(state, "vertices", 2 * 6 * diagram.getMeasurementCount() * columns);
    finish(state, diagram);
}
} // namespace

BENCHMARK(diagramPopulation)
    ->ArgNames({"values", "middle"})
    ->Args({100, 0})
    ->Args({100, 1})
    ->Args({10000, 0})
    ->Args({10000, 1})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(diagramFitted)
    ->ArgName("values")
    ->Arg(10000)
    ->Arg(1000000)
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(200);
