// Loads MoxieLook.scheme from the installed data, makes, draws and destroys a button.
#include <CEGUI/CEGUI.h>
#include <CEGUI/RendererModules/Null/Renderer.h>
#include <cstdlib>
#include <iostream>
#include <looks/MXButton.h>

int main()
{
    using namespace CEGUI;
    setenv("CEGUI_MODULE_DIR", MOXIE_MODULE_DIR, 1);
    NullRenderer& renderer = NullRenderer::create();
    renderer.setDisplaySize(Sizef(640, 480));
    System::create(renderer);
    auto* resources =
        static_cast<DefaultResourceProvider*>(System::getSingleton().getResourceProvider());
    resources->setResourceGroupDirectory("moxielook", MOXIE_DATA_DIR);
    resources->setDefaultResourceGroup("moxielook");
    SchemeManager::getSingleton().createFromFile("MoxieLook.scheme");

    Window* root = WindowManager::getSingleton().createWindow("DefaultWindow", "root");
    System::getSingleton().getDefaultGUIContext().setRootWindow(root);
    Window* button =
        WindowManager::getSingleton().createWindow(MoxieLook::MXButton::WidgetTypeName);
    button->setArea(UVector2(cegui_absdim(10), cegui_absdim(10)),
                    USize(cegui_absdim(120), cegui_absdim(30)));
    button->setText("Installed");
    root->addChild(button);
    System::getSingleton().renderAllGUIContexts();

    const unsigned vertices = button->getGeometryBuffer().getVertexCount();
    const bool isLook = dynamic_cast<MoxieLook::MXButton*>(button) != nullptr;
    WindowManager::getSingleton().destroyWindow(button);
    System::destroy();
    NullRenderer::destroy(renderer);

    std::cout << "host: " << vertices << " vertices\n";
    return (isLook && vertices > 0) ? 0 : 1;
}
