// A tree view of 1,000 titles of 100 leaves (100,000 lines, all open) in a 400 x 600 view,
// against the same view of 10 titles (1,000 lines): the cost of a hover change (search and
// redraw), a scroll and a plain redraw should follow the lines on screen. Then changes at
// 10,000 titles (1,010,000 nodes): building, opening and closing a title by its navigation
// image, adding and removing a leaf, each with the next frame; the first hover after a
// change; the heap each node takes.
#include "BenchCegui.h"
#include "widgets/TreeView.h"
#include "widgets/TreeViewMultiColumnListEx.h"

#include <CEGUI/CEGUI.h>
#include <benchmark/benchmark.h>
#include <malloc.h>

using namespace CEGUI;
using CEGUI::MoxieLook::TreeView;

namespace
{
TreeView& makeTree(int titles, const char* type = "MoxieLook/TreeView")
{
    auto& tree = static_cast<TreeView&>(*WindowManager::getSingleton().createWindow(type));
    tree.setArea(UVector2(cegui_absdim(0), cegui_absdim(0)),
                 USize(cegui_absdim(400), cegui_absdim(600)));
    moxiebench::sheet().addChild(&tree);
    for (int t = 0; t < titles; ++t)
    {
        TreeView::Node* title =
            tree.GetRootNode()->Add("t", "Title " + PropertyHelper<int>::toString(t), nullptr);
        for (int l = 0; l < 100; ++l)
            title->Add("l", "Leaf " + PropertyHelper<int>::toString(l), nullptr);
    }
    tree.render();
    return tree;
}

void finish(benchmark::State& state, TreeView& tree)
{
    state.counters["vertices"] = static_cast<double>(tree.getGeometryBuffer().getVertexCount());
    state.counters["lines"] = static_cast<double>(tree.GetLaidOutLineCount());
    WindowManager::getSingleton().destroyWindow(&tree);
    WindowManager::getSingleton().cleanDeadPool();
}

// The pointer moves between two lines: the hovered node changes every time.
void treeHoverChange(benchmark::State& state)
{
    TreeView& tree = makeTree(static_cast<int>(state.range(0)));
    GUIContext& gui = System::getSingleton().getDefaultGUIContext();
    bool flip = false;
    for (auto _ : state)
    {
        gui.injectMousePosition(40, flip ? 100 : 140);
        tree.render();
        flip = !flip;
    }
    finish(state, tree);
}

void treeScroll(benchmark::State& state)
{
    TreeView& tree = makeTree(static_cast<int>(state.range(0)));
    ScrollablePane* pane = tree.GetScrollablePane();
    bool flip = false;
    for (auto _ : state)
    {
        pane->setVerticalScrollPosition(flip ? 0.5f : 0.25f);
        tree.render();
        flip = !flip;
    }
    finish(state, tree);
}

void treeRedraw(benchmark::State& state)
{
    TreeView& tree = makeTree(static_cast<int>(state.range(0)));
    for (auto _ : state)
    {
        tree.invalidate();
        tree.render();
    }
    finish(state, tree);
}
// The tree list, three columns: the same lines, each with two cells more.
void treeListRedraw(benchmark::State& state)
{
    auto& tree = static_cast<MoxieLook::TreeViewMultiColumnListEx&>(
        makeTree(static_cast<int>(state.range(0)), "MoxieLook/TreeViewMultiColumnListEx"));
    tree.addColumn("Name", 0, cegui_absdim(200));
    tree.addColumn("Size", 1, cegui_absdim(80));
    tree.addColumn("Kind", 2, cegui_absdim(100));
    for (TreeView::Node* title : {tree.GetRootNode()->GetFirstChild()})
        for (const auto& leaf : title->GetChildren())
        {
            auto* node = static_cast<MoxieLook::TreeViewMultiColumnListEx::NodeIndex*>(leaf.get());
            node->SetColumnText(1, "12 KB");
            node->SetColumnText(2, "Text");
        }
    tree.render();
    for (auto _ : state)
    {
        tree.invalidate();
        tree.render();
    }
    finish(state, tree);
}
} // namespace

namespace
{
constexpr int LargeTitles = 10000; // of 100 leaves: 1,010,000 nodes

std::size_t heapInUse()
{
    return mallinfo2().uordblks;
}

void treeBuild(benchmark::State& state)
{
    for (auto _ : state)
    {
        const std::size_t before = heapInUse();
        TreeView& tree = makeTree(LargeTitles);
        state.counters["bytes_per_node"] =
            static_cast<double>(heapInUse() - before) / (LargeTitles * 101.0);
        state.PauseTiming();
        finish(state, tree);
        state.ResumeTiming();
    }
    moxiebench::target(state, "time_us", 1e6);
}

// Clicks on the first title's navigation image: closes it, opens it again.
void treeToggle(benchmark::State& state)
{
    TreeView& tree = makeTree(LargeTitles);
    GUIContext& gui = System::getSingleton().getDefaultGUIContext();
    const Rectf hit = tree.GetRootNode()->GetChild(0)->GetHitRect();
    // Every press a single click: no two fold into a double-click.
    const double multiClick = gui.getMouseButtonMultiClickTimeout();
    gui.setMouseButtonMultiClickTimeout(1e-9);
    for (auto _ : state)
    {
        gui.injectMousePosition(hit.left() + 2, hit.top() + 2);
        gui.injectMouseButtonDown(LeftButton);
        gui.injectMouseButtonUp(LeftButton);
        tree.render();
    }
    gui.setMouseButtonMultiClickTimeout(multiClick);
    if (!tree.GetRootNode()->GetChild(0)->IsOpened())
        state.SkipWithError("the clicks missed the navigation image");
    moxiebench::target(state, "time_us", 1000);
    finish(state, tree);
}

void treeAddRemove(benchmark::State& state)
{
    TreeView& tree = makeTree(LargeTitles);
    TreeView::Node* title = tree.GetRootNode()->GetChild(1);
    for (auto _ : state)
    {
        TreeView::Node* leaf = title->Add("n", "New leaf", nullptr);
        tree.render();
        title->Remove(leaf);
        tree.render();
    }
    moxiebench::target(state, "time_us", 2 * 1000); // two changes, two frames
    finish(state, tree);
}

// One hover after a change and its frame (not timed).
void treeFirstHoverAfterChange(benchmark::State& state)
{
    TreeView& tree = makeTree(LargeTitles);
    TreeView::Node* title = tree.GetRootNode()->GetChild(1);
    GUIContext& gui = System::getSingleton().getDefaultGUIContext();
    bool flip = false;
    for (auto _ : state)
    {
        state.PauseTiming();
        title->SetText(flip ? "Title 1" : "Title one");
        tree.render();
        state.ResumeTiming();
        gui.injectMousePosition(40, flip ? 100 : 140);
        flip = !flip;
    }
    moxiebench::target(state, "time_us", 100);
    finish(state, tree);
}
} // namespace

BENCHMARK(treeBuild)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(treeToggle)->Unit(benchmark::kMicrosecond)->Iterations(20);
BENCHMARK(treeAddRemove)->Unit(benchmark::kMicrosecond)->Iterations(20);
BENCHMARK(treeFirstHoverAfterChange)->Unit(benchmark::kMicrosecond)->Iterations(50);
BENCHMARK(treeListRedraw)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(treeHoverChange)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(treeScroll)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(treeRedraw)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);
