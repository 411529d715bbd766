// One redraw of a 200 x 300 "MoxieLook/Listbox" after a scroll, with 100 and 10,000 items:
// only the items in view are drawn, so the two should cost about the same.
#include "BenchCegui.h"

#include <CEGUI/CEGUI.h>
#include <benchmark/benchmark.h>

using namespace CEGUI;

namespace
{
void listboxScroll(benchmark::State& state)
{
    auto& list =
        static_cast<Listbox&>(*WindowManager::getSingleton().createWindow("MoxieLook/Listbox"));
    list.setArea(UVector2(cegui_absdim(0), cegui_absdim(0)),
                 USize(cegui_absdim(200), cegui_absdim(300)));
    moxiebench::sheet().addChild(&list);
    for (int64_t i = 0; i < state.range(0); ++i)
        list.addItem(
            new ListboxTextItem("Item " + PropertyHelper<int>::toString(static_cast<int>(i))));
    list.render();
    Scrollbar* bar = list.getVertScrollbar();
    const float half = bar->getDocumentSize() / 2;
    bool flip = false;
    for (auto _ : state)
    {
        bar->setScrollPosition(flip ? half : half / 2);
        list.render();
        flip = !flip;
    }
    state.counters["vertices"] = static_cast<double>(list.getGeometryBuffer().getVertexCount());
    WindowManager::getSingleton().destroyWindow(&list);
    WindowManager::getSingleton().cleanDeadPool();
}
} // namespace

BENCHMARK(listboxScroll)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);
