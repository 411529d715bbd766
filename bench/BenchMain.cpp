#include "BenchCegui.h"

#include <CEGUI/CEGUI.h>
#include <CEGUI/RendererModules/Null/Renderer.h>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <iomanip>
#include <map>
#include <ostream>
#include <string>
#include <vector>

using namespace CEGUI;

namespace moxiebench
{
constexpr char TargetSuffix[] = "<=";

void startCegui()
{
    setenv("CEGUI_MODULE_DIR", MOXIE_MODULE_DIR, 0);
    new DefaultLogger();
    Logger::getSingleton().setLogFilename("CEGUI-bench.log", false);

    NullRenderer& renderer = NullRenderer::create();
    renderer.setDisplaySize(Sizef(1280, 1024));
    System::create(renderer);
    System::getSingleton().notifyDisplaySizeChanged(Sizef(1280, 1024));
    auto* resources =
        static_cast<DefaultResourceProvider*>(System::getSingleton().getResourceProvider());
    // One folder holds both skins' files (links made by the build).
    resources->setResourceGroupDirectory("bench", MOXIE_BENCH_DATA_DIR);
    resources->setDefaultResourceGroup("bench");
    SchemeManager::getSingleton().createFromFile("MoxieLook.scheme");
    SchemeManager::getSingleton().createFromFile("TaharezLook.scheme");

    Window* root = WindowManager::getSingleton().createWindow("DefaultWindow", "sheet");
    System::getSingleton().getDefaultGUIContext().setRootWindow(root);
}

void stopCegui()
{
    System::destroy();
    delete Logger::getSingletonPtr();
}

Window& sheet()
{
    return *System::getSingleton().getDefaultGUIContext().getRootWindow();
}

void target(benchmark::State& state, const char* what, double limit)
{
    state.counters[std::string(what) + TargetSuffix] = limit;
}
} // namespace moxiebench

namespace
{
// The console report, then MoxieLook's time over TaharezLook's for every pair of runs whose
// names differ only in the skin.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
        {
            // A measure run several times counts by its median, which a moment's stall of the
            // machine does not move.
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median" &&
                !run.error_occurred)
                d_times[run.run_name.function_name] = run.GetAdjustedRealTime();
            if (run.run_type != Run::RT_Iteration || run.error_occurred)
                continue;
            d_times[run.benchmark_name()] = run.GetAdjustedRealTime();
            const double micros =
                run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e6;
            for (const auto& [name, counter] : run.counters)
            {
                const std::string::size_type at = name.rfind(moxiebench::TargetSuffix);
                if (at == std::string::npos || at + 2 != name.size())
                    continue;
                const std::string what = name.substr(0, at);
                const auto figure = run.counters.find(what);
                const double value = what == "time_us"              ? micros
                                     : figure != run.counters.end() ? figure->second.value
                                                                    : -1.0;
                d_targets.push_back({run.benchmark_name() + " " + what, value, counter.value});
            }
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        std::ostream& out = GetOutputStream();
        bool header = false;
        for (const auto& [name, moxie] : d_times)
        {
            const std::string::size_type at = name.find("MoxieLook");
            if (at == std::string::npos)
                continue;
            const auto other = d_times.find(std::string(name).replace(at, 9, "TaharezLook"));
            if (other == d_times.end() || other->second <= 0)
                continue;
            if (!header)
            {
                out << "\n"
                    << std::left << std::setw(44) << "MoxieLook / TaharezLook" << std::right
                    << std::setw(12) << "MoxieLook" << std::setw(12) << "Taharez" << std::setw(8)
                    << "ratio" << std::setw(8) << "target\n";
                header = true;
            }
            std::string label = name;
            label.erase(at, 9);
            // No slower than CEGUI's own skin; the whole scene well below it.
            const double ratio = moxie / other->second;
            const double limit = label.rfind("scene/", 0) == 0 ? 0.35 : 1.0;
            out << std::left << std::setw(44) << label << std::right << std::fixed
                << std::setprecision(2) << std::setw(12) << moxie << std::setw(12) << other->second
                << std::setw(8) << ratio << std::setw(8) << limit
                << (ratio <= limit ? "  met" : "  MISSED") << "\n";
        }
        if (d_targets.empty())
            return;
        out << "\n"
            << std::left << std::setw(60) << "Targets" << std::right << std::setw(14) << "figure"
            << std::setw(14) << "target"
            << "\n";
        for (const Target& t : d_targets)
            out << std::left << std::setw(60) << t.name << std::right << std::fixed
                << std::setprecision(2) << std::setw(14) << t.figure << std::setw(14) << t.limit
                << (t.figure >= 0 && t.figure <= t.limit ? "  met" : "  MISSED") << "\n";
    }

private:
    struct Target
    {
        std::string name;
        double figure;
        double limit;
    };
    std::map<std::string, double> d_times;
    std::vector<Target> d_targets;
};
} // namespace

int main(int argc, char** argv)
{
    moxiebench::startCegui();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    moxiebench::stopCegui();
    return 0;
}
