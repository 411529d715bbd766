#include "support/Gui.h"

#include "module/Soundification.h"
#include "support/RecordingRenderer.h"

#include <CEGUI/DefaultLogger.h>
#include <CEGUI/DefaultResourceProvider.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/SchemeManager.h>
#include <CEGUI/System.h>
#include <CEGUI/Window.h>
#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/MenuItem.h>
#include <CEGUI/widgets/PopupMenu.h>
#include <CEGUI/widgets/TabControl.h>
#include <chrono>
#include <cstdlib>

namespace moxietest
{
namespace
{
RecordingRenderer* s_renderer = nullptr;
CEGUI::Window* s_sheet = nullptr;
} // namespace

std::vector<std::string>& sounds()
{
    static std::vector<std::string> heard;
    return heard;
}

void hearSounds()
{
    CEGUI::MoxieLook::MXSoundification::GetInstance().RegisterHook([](const std::string& name)
                                                                   { sounds().push_back(name); });
}

std::string dataFile(const std::string& name)
{
    return std::string(MOXIE_DATA_DIR) + "/" + name;
}

void startGui()
{
    // The module is found the way a host's DynamicModule finds it.
    setenv("CEGUI_MODULE_DIR", MOXIE_MODULE_DIR, 0);

    auto* logger = new CEGUI::DefaultLogger();
    logger->setLogFilename("CEGUI-tests.log", false);
    logger->setLoggingLevel(CEGUI::Informative);

    // The Null renderer starts at 0 x 0; the pointer's constraint area is taken from that
    // when the system is created, so the size must be right before then.
    const CEGUI::Sizef display(800, 600);
    s_renderer = new RecordingRenderer();
    s_renderer->setDisplaySize(display);
    CEGUI::System::create(*s_renderer);
    CEGUI::System::getSingleton().notifyDisplaySizeChanged(display);

    auto* resources = static_cast<CEGUI::DefaultResourceProvider*>(
        CEGUI::System::getSingleton().getResourceProvider());
    resources->setResourceGroupDirectory("moxielook", MOXIE_DATA_DIR);
    resources->setDefaultResourceGroup("moxielook");

    CEGUI::SchemeManager::getSingleton().createFromFile("MoxieLook.scheme");
    // Named, as an application names it: unset, CEGUI takes whichever font sorts first, and
    // a test that loads another would change every later test's text.
    context().setDefaultFont("MoxieLook-10");
    // Injected presses come faster than any hand: never let two fold into a double-click.
    context().setMouseButtonMultiClickTimeout(1e-9); // 0 would mean "no limit"
    hearSounds();
    freshSheet();
}

void stopGui()
{
    CEGUI::MoxieLook::MXSoundification::Destroy();
    CEGUI::System::destroy();
    delete s_renderer;
    s_renderer = nullptr;
    s_sheet = nullptr;
    delete CEGUI::Logger::getSingletonPtr();
}

CEGUI::GUIContext& context()
{
    return CEGUI::System::getSingleton().getDefaultGUIContext();
}

CEGUI::Window& freshSheet()
{
    CEGUI::WindowManager& windows = CEGUI::WindowManager::getSingleton();
    if (s_sheet)
        windows.destroyWindow(s_sheet);
    windows.cleanDeadPool();
    s_sheet = windows.createWindow("DefaultWindow", "sheet");
    s_sheet->setArea(
        CEGUI::URect(CEGUI::UDim(0, 0), CEGUI::UDim(0, 0), CEGUI::UDim(1, 0), CEGUI::UDim(1, 0)));
    context().setRootWindow(s_sheet);
    // Park the pointer off every window so that no test starts hovering.
    context().injectMousePosition(799, 599);
    return *s_sheet;
}

CEGUI::MenuItem& menuItem(CEGUI::Window& menu, const CEGUI::String& text, const CEGUI::String& type)
{
    auto& item =
        static_cast<CEGUI::MenuItem&>(*CEGUI::WindowManager::getSingleton().createWindow(type));
    item.setText(text);
    menu.addChild(&item);
    return item;
}

CEGUI::PopupMenu& popupOf(CEGUI::MenuItem& owner)
{
    auto& popup = static_cast<CEGUI::PopupMenu&>(
        *CEGUI::WindowManager::getSingleton().createWindow("MoxieLook/PopupMenu"));
    owner.addChild(&popup);
    return popup;
}

void addTabs(CEGUI::TabControl& tabs, std::initializer_list<const char*> titles)
{
    for (const char* title : titles)
    {
        CEGUI::Window* page =
            CEGUI::WindowManager::getSingleton().createWindow("DefaultWindow", title);
        page->setText(title);
        tabs.addTab(page);
    }
}

CEGUI::Window& child(CEGUI::Window& parent, const CEGUI::String& type, float x, float y,
                     float width, float height)
{
    CEGUI::Window* window = CEGUI::WindowManager::getSingleton().createWindow(type);
    window->setPosition(CEGUI::UVector2(CEGUI::UDim(0, x), CEGUI::UDim(0, y)));
    window->setSize(CEGUI::USize(CEGUI::UDim(0, width), CEGUI::UDim(0, height)));
    parent.addChild(window);
    return *window;
}

CEGUI::Window& place(const CEGUI::String& type, float x, float y, float width, float height)
{
    return child(*s_sheet, type, x, y, width, height);
}

void pointerTo(float x, float y)
{
    context().injectMousePosition(x, y);
}

void leftDown()
{
    // CEGUI times clicks in microseconds: two presses in the same microsecond would count as
    // a double click however small the timeout.
    static auto last = std::chrono::steady_clock::now() - std::chrono::seconds(1);
    while (std::chrono::steady_clock::now() - last < std::chrono::microseconds(5))
    {
    }
    context().injectMouseButtonDown(CEGUI::LeftButton);
    last = std::chrono::steady_clock::now();
}

void leftUp()
{
    context().injectMouseButtonUp(CEGUI::LeftButton);
}

void click(float x, float y)
{
    pointerTo(x, y);
    leftDown();
    leftUp();
}

void clickOn(const CEGUI::Window& window)
{
    const CEGUI::Vector2f at = centreOf(window);
    click(at.d_x, at.d_y);
}

void hover(const CEGUI::Window& window)
{
    const CEGUI::Vector2f at = centreOf(window);
    pointerTo(at.d_x, at.d_y);
}

void drag(const CEGUI::Vector2f& from, const CEGUI::Vector2f& to)
{
    pointerTo(from.d_x, from.d_y);
    leftDown();
    pointerTo(to.d_x, to.d_y);
    leftUp();
}

void doubleClick(float x, float y)
{
    CEGUI::GUIContext& gui = context();
    const float timeout = gui.getMouseButtonMultiClickTimeout();
    click(x, y); // a first press of its own, never joined to an earlier one
    gui.setMouseButtonMultiClickTimeout(10);
    pointerTo(x, y);
    gui.injectMouseButtonDown(CEGUI::LeftButton);
    gui.injectMouseButtonUp(CEGUI::LeftButton);
    gui.setMouseButtonMultiClickTimeout(timeout);
}

void wheel(float x, float y, float notches)
{
    pointerTo(x, y);
    context().injectMouseWheelChange(notches);
}

CEGUI::Vector2f centreOf(const CEGUI::Window& window)
{
    const CEGUI::Rectf& rect = window.getUnclippedOuterRect().get();
    return CEGUI::Vector2f((rect.left() + rect.right()) * 0.5f,
                           (rect.top() + rect.bottom()) * 0.5f);
}

void press(CEGUI::Key::Scan key, bool shift, bool control)
{
    CEGUI::GUIContext& gui = context();
    if (shift)
        gui.injectKeyDown(CEGUI::Key::LeftShift);
    if (control)
        gui.injectKeyDown(CEGUI::Key::LeftControl);
    gui.injectKeyDown(key);
    gui.injectKeyUp(key);
    if (control)
        gui.injectKeyUp(CEGUI::Key::LeftControl);
    if (shift)
        gui.injectKeyUp(CEGUI::Key::LeftShift);
}

void type(const std::string& text)
{
    for (char c : text)
        context().injectChar(static_cast<CEGUI::utf32>(static_cast<unsigned char>(c)));
}

} // namespace moxietest
