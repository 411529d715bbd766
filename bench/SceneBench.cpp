// A mixed scene of one window of every type both skins have, built the same way for
// MoxieLook and for CEGUI's own TaharezLook: the whole scene redrawn, each type redrawn,
// and each type made and destroyed. The spinner is measured for MoxieLook alone (Debian's
// CEGUI, built without a regex library, cannot make TaharezLook's).
#include "BenchCegui.h"

#include <CEGUI/CEGUI.h>
#include <benchmark/benchmark.h>
#include <functional>
#include <string>
#include <vector>

using namespace CEGUI;

namespace
{
struct Kind
{
    const char* name; //!< the type's name after the skin's "/"
    float width, height;
    std::function<void(Window&)> fill;
};

void textItems(Window& list, int count)
{
    for (int i = 0; i < count; ++i)
    {
        auto* item = new ListboxTextItem("Item " + PropertyHelper<int>::toString(i));
        if (auto* listbox = dynamic_cast<Listbox*>(&list))
            listbox->addItem(item);
        else if (auto* combo = dynamic_cast<Combobox*>(&list))
            combo->addItem(item);
        else
            delete item;
    }
}

Window& child(Window& parent, const String& type, const String& text)
{
    Window* window = WindowManager::getSingleton().createWindow(type);
    window->setText(text);
    parent.addChild(window);
    return *window;
}

String skinOf(const Window& window)
{
    const String& type = window.getType();
    return type.substr(0, type.find('/'));
}

const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> all = {
        {"Button", 100, 30, [](Window& w) { w.setText("OK"); }},
        {"Checkbox", 140, 24, [](Window& w) { w.setText("Show hints"); }},
        {"RadioButton", 140, 24, [](Window& w) { w.setText("Fast"); }},
        {"HorizontalScrollbar", 200, 18,
         [](Window& w)
         {
             auto& bar = static_cast<Scrollbar&>(w);
             bar.setDocumentSize(100);
             bar.setPageSize(20);
             bar.setScrollPosition(30);
         }},
        {"VerticalScrollbar", 18, 200,
         [](Window& w)
         {
             auto& bar = static_cast<Scrollbar&>(w);
             bar.setDocumentSize(100);
             bar.setPageSize(20);
             bar.setScrollPosition(30);
         }},
        {"Slider", 200, 30, [](Window& w) { static_cast<Slider&>(w).setCurrentValue(0.4f); }},
        {"ProgressBar", 200, 24, [](Window& w) { static_cast<ProgressBar&>(w).setProgress(0.6f); }},
        {"Editbox", 200, 30, [](Window& w) { w.setText("Some text to edit"); }},
        {"MultiLineEditbox", 240, 120,
         [](Window& w)
         {
             w.setText("A longer text that wraps over several lines of the box, with more "
                       "words than fit on one line, and a second paragraph.\nSecond line.");
         }},
        {"Listbox", 200, 160, [](Window& w) { textItems(w, 20); }},
        {"Combobox", 200, 160, [](Window& w) { textItems(w, 20); }},
        {"MultiColumnList", 300, 160,
         [](Window& w)
         {
             auto& list = static_cast<MultiColumnList&>(w);
             list.addColumn("Name", 0, cegui_absdim(120));
             list.addColumn("Size", 1, cegui_absdim(80));
             list.addColumn("Kind", 2, cegui_absdim(80));
             for (uint row = 0; row < 20; ++row)
             {
                 list.addRow(new ListboxTextItem("file" + PropertyHelper<uint>::toString(row)), 0);
                 list.setItem(new ListboxTextItem("12 KB"), 1, row);
                 list.setItem(new ListboxTextItem("Text"), 2, row);
             }
         }},
        {"TabControl", 300, 160,
         [](Window& w)
         {
             for (const char* title : {"General", "Display", "Sound"})
             {
                 Window* page = WindowManager::getSingleton().createWindow("DefaultWindow", title);
                 page->setText(title);
                 static_cast<TabControl&>(w).addTab(page);
             }
         }},
        {"FrameWindow", 300, 200, [](Window& w) { w.setText("Window title"); }},
        {"Tooltip", 200, 40,
         [](Window& w)
         {
             w.setText("A tooltip of a few words");
             w.show();
         }},
        {"Menubar", 300, 26,
         [](Window& w)
         {
             for (const char* text : {"File", "Edit", "View"})
                 child(w,
                       skinOf(w) == "MoxieLook" ? "MoxieLook/MenubarItem" : "TaharezLook/MenuItem",
                       text);
         }},
        {"PopupMenu", 160, 100,
         [](Window& w)
         {
             for (const char* text : {"Cut", "Copy", "Paste", "Delete"})
                 child(w,
                       skinOf(w) == "MoxieLook" ? "MoxieLook/PopupMenuItem"
                                                : "TaharezLook/MenuItem",
                       text);
             static_cast<PopupMenu&>(w).openPopupMenu(false);
         }},
        {"StaticText", 200, 30, [](Window& w) { w.setText("A label of text"); }},
        {"StaticImage", 100, 100,
         [](Window& w)
         {
             w.setProperty("Image", skinOf(w) == "MoxieLook" ? "MoxieLook/IconStar"
                                                             : "TaharezLook/MouseArrow");
         }},
    };
    return all;
}

Window& make(const Kind& kind, const char* skin, Window& parent, float x, float y)
{
    Window* window = WindowManager::getSingleton().createWindow(String(skin) + "/" + kind.name);
    window->setArea(UVector2(cegui_absdim(x), cegui_absdim(y)),
                    USize(cegui_absdim(kind.width), cegui_absdim(kind.height)));
    parent.addChild(window);
    kind.fill(*window);
    return *window;
}

std::size_t vertices(Window& window)
{
    std::size_t count = window.getGeometryBuffer().getVertexCount();
    for (std::size_t i = 0; i < window.getChildCount(); ++i)
        count += vertices(*window.getChildAtIdx(i));
    return count;
}

void redraw(Window& window)
{
    window.invalidate(true);
    window.render();
}

void destroy(Window& window)
{
    WindowManager::getSingleton().destroyWindow(&window);
    WindowManager::getSingleton().cleanDeadPool();
}

void sceneRedraw(benchmark::State& state, const char* skin)
{
    Window& scene = *WindowManager::getSingleton().createWindow("DefaultWindow");
    scene.setArea(URect(cegui_absdim(0), cegui_absdim(0), cegui_reldim(1), cegui_reldim(1)));
    moxiebench::sheet().addChild(&scene);
    float x = 0, y = 0, rowHeight = 0;
    for (const Kind& kind : kinds())
    {
        if (x + kind.width > 1280)
            x = 0, y += rowHeight + 4, rowHeight = 0;
        make(kind, skin, scene, x, y);
        x += kind.width + 4;
        rowHeight = std::max(rowHeight, kind.height);
    }
    redraw(scene);
    for (auto _ : state)
        redraw(scene);
    state.counters["vertices"] = static_cast<double>(vertices(scene));
    destroy(scene);
}

void typeRedraw(benchmark::State& state, const Kind& kind, const char* skin)
{
    Window& window = make(kind, skin, moxiebench::sheet(), 10, 10);
    redraw(window);
    for (auto _ : state)
        redraw(window);
    state.counters["vertices"] = static_cast<double>(vertices(window));
    destroy(window);
}

void typeCreate(benchmark::State& state, const Kind& kind, const char* skin)
{
    for (auto _ : state)
        destroy(make(kind, skin, moxiebench::sheet(), 10, 10));
}

const bool registered = []
{
    for (const char* skin : {"MoxieLook", "TaharezLook"})
        benchmark::RegisterBenchmark((std::string("scene/") + skin).c_str(), sceneRedraw, skin)
            ->Unit(benchmark::kMicrosecond)
            ->Repetitions(5)
            ->ReportAggregatesOnly(true);
    for (const Kind& kind : kinds())
        for (const char* skin : {"MoxieLook", "TaharezLook"})
        {
            benchmark::RegisterBenchmark((std::string("draw/") + kind.name + "/" + skin).c_str(),
                                         [&kind, skin](benchmark::State& state)
                                         { typeRedraw(state, kind, skin); })
                ->Unit(benchmark::kMicrosecond);
            benchmark::RegisterBenchmark((std::string("create/") + kind.name + "/" + skin).c_str(),
                                         [&kind, skin](benchmark::State& state)
                                         { typeCreate(state, kind, skin); })
                ->Unit(benchmark::kMicrosecond);
        }
    static const Kind spinner{"Spinner", 120, 30, [](Window& w) { w.setText("42"); }};
    benchmark::RegisterBenchmark("draw/Spinner/MoxieLook", [](benchmark::State& state)
                                 { typeRedraw(state, spinner, "MoxieLook"); })
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("create/Spinner/MoxieLook", [](benchmark::State& state)
                                 { typeCreate(state, spinner, "MoxieLook"); })
        ->Unit(benchmark::kMicrosecond);
    return true;
}();
} // namespace
