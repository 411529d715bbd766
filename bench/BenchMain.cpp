#include "BenchCegui.h"

#include <CEGUI/CEGUI.h>
#include <CEGUI/RendererModules/Null/Renderer.h>
#include <benchmark/benchmark.h>
#include <cstdlib>

using namespace CEGUI;

namespace moxiebench
{
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
} // namespace moxiebench

int main(int argc, char** argv)
{
    moxiebench::startCegui();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    moxiebench::stopCegui();
    return 0;
}
