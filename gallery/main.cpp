// moxie-gallery: every MoxieLook window type on screen, in its states.
//
//   moxie-gallery                 a window to try every widget by hand
//   moxie-gallery --screenshot D  writes D/gallery.png and one D/<Type>.png per type
//   moxie-gallery --layout FILE [--scheme NAME.scheme ...] [--screenshot OUT.png]
//                                 any layout file in MoxieLook (through an alias scheme
//                                 for layouts written for a stock skin), in a window or
//                                 as a picture
//
// Without a display it runs itself again under xvfb-run and takes the screenshots.
#include "GalleryPage.h"
#include "KeyboardTour.h"
#include "Label.h"
#include "LayoutViewer.h"
#include "Png.h"
#include "ShownHovered.h"
#include "module/KeyboardNavigation.h"
#include "module/Soundification.h"

#include <CEGUI/CEGUI.h>
#include <CEGUI/RendererModules/OpenGL/GLRenderer.h>
#include <GLFW/glfw3.h>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

using namespace CEGUI;

namespace
{
constexpr int WindowWidth = 1300;
constexpr int WindowHeight = 820;
constexpr std::uint8_t Backdrop[3] = {0xD3, 0xD8, 0xDE}; // neutral grey-blue

struct Options
{
    std::string screenshotDir; //!< or, with a layout, the picture's file
    std::string dataDir = MOXIE_DATA_DIR;
    std::string layout;
    std::vector<std::string> schemes; //!< none given: MoxieLook.scheme
};

Options parse(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i)
    {
        const std::string arg = argv[i];
        if (arg == "--screenshot" && i + 1 < argc)
            options.screenshotDir = argv[++i];
        else if (arg == "--data" && i + 1 < argc)
            options.dataDir = argv[++i];
        else if (arg == "--layout" && i + 1 < argc)
            options.layout = argv[++i];
        else if (arg == "--scheme" && i + 1 < argc)
            options.schemes.push_back(argv[++i]); // several for a layout of several skins
        else
        {
            std::cerr << "usage: moxie-gallery [--screenshot DIR] [--data DIR]\n"
                         "       moxie-gallery --layout FILE [--scheme NAME.scheme] "
                         "[--screenshot OUT.png] [--data DIR]\n";
            std::exit(2);
        }
    }
    return options;
}

// No display: run again under a virtual one, headless.
void rerunUnderXvfb(int argc, char** argv, const Options& options)
{
    std::vector<std::string> args = {"xvfb-run", "-a", "-s", "-screen 0 1400x900x24", argv[0]};
    for (int i = 1; i < argc; ++i)
        args.push_back(argv[i]);
    if (options.screenshotDir.empty())
    {
        args.push_back("--screenshot");
        args.push_back(options.layout.empty() ? "gallery-shots" : "layout.png");
    }
    std::vector<char*> raw;
    for (std::string& arg : args)
        raw.push_back(arg.data());
    raw.push_back(nullptr);
    std::cerr << "moxie-gallery: no display; rendering headless under xvfb-run\n";
    execvp("xvfb-run", raw.data());
    std::cerr << "moxie-gallery: no display and no xvfb-run\n";
    std::exit(1);
}

GUIContext& gui()
{
    return System::getSingleton().getDefaultGUIContext();
}

//! Input to CEGUI; the wheel nobody takes scrolls the page, if there is one.
void forwardInput(GLFWwindow* window, gallery::GalleryPage* page)
{
    glfwSetWindowUserPointer(window, page);
    glfwSetCursorPosCallback(
        window, [](GLFWwindow*, double x, double y)
        { gui().injectMousePosition(static_cast<float>(x), static_cast<float>(y)); });
    glfwSetMouseButtonCallback(window,
                               [](GLFWwindow*, int button, int action, int)
                               {
                                   const MouseButton which =
                                       button == GLFW_MOUSE_BUTTON_LEFT    ? LeftButton
                                       : button == GLFW_MOUSE_BUTTON_RIGHT ? RightButton
                                                                           : MiddleButton;
                                   if (action == GLFW_PRESS)
                                       gui().injectMouseButtonDown(which);
                                   else
                                       gui().injectMouseButtonUp(which);
                               });
    glfwSetScrollCallback(window,
                          [](GLFWwindow* w, double, double dy)
                          {
                              // The wheel goes to the widget under the pointer; the page scrolls
                              // when none takes it.
                              auto* scrolled =
                                  static_cast<gallery::GalleryPage*>(glfwGetWindowUserPointer(w));
                              if (!gui().injectMouseWheelChange(static_cast<float>(dy)) && scrolled)
                                  scrolled->scrollBy(-40 * dy);
                          });
    glfwSetCharCallback(window,
                        [](GLFWwindow*, unsigned int codepoint) { gui().injectChar(codepoint); });
    glfwSetKeyCallback(window,
                       [](GLFWwindow*, int key, int, int action, int)
                       {
                           static const std::pair<int, Key::Scan> keys[] = {
                               {GLFW_KEY_BACKSPACE, Key::Backspace},
                               {GLFW_KEY_DELETE, Key::Delete},
                               {GLFW_KEY_ENTER, Key::Return},
                               {GLFW_KEY_TAB, Key::Tab},
                               {GLFW_KEY_LEFT, Key::ArrowLeft},
                               {GLFW_KEY_RIGHT, Key::ArrowRight},
                               {GLFW_KEY_UP, Key::ArrowUp},
                               {GLFW_KEY_DOWN, Key::ArrowDown},
                               {GLFW_KEY_HOME, Key::Home},
                               {GLFW_KEY_END, Key::End},
                               {GLFW_KEY_ESCAPE, Key::Escape},
                               {GLFW_KEY_LEFT_SHIFT, Key::LeftShift},
                               {GLFW_KEY_RIGHT_SHIFT, Key::RightShift},
                               {GLFW_KEY_LEFT_CONTROL, Key::LeftControl}};
                           for (const auto& [glfwKey, scan] : keys)
                               if (glfwKey == key)
                               {
                                   if (action == GLFW_RELEASE)
                                       gui().injectKeyUp(scan);
                                   else
                                       gui().injectKeyDown(scan);
                               }
                       });
}

void renderFrame(float elapsed)
{
    System::getSingleton().injectTimePulse(elapsed);
    gui().injectTimePulse(elapsed);
    glClearColor(Backdrop[0] / 255.0f, Backdrop[1] / 255.0f, Backdrop[2] / 255.0f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    System::getSingleton().renderAllGUIContexts();
}

// The interactive loop: input, time and drawing until the window is closed.
void runUntilClosed(GLFWwindow* window)
{
    double last = glfwGetTime();
    while (!glfwWindowShouldClose(window))
    {
        glfwPollEvents();
        const double now = glfwGetTime();
        renderFrame(static_cast<float>(now - last));
        last = now;
        glfwSwapBuffers(window);
    }
}

gallery::Picture readBack(const Rectf& area)
{
    gallery::Picture picture;
    const int left = static_cast<int>(area.left());
    const int top = static_cast<int>(area.top());
    picture.width = static_cast<int>(area.getWidth());
    picture.height = std::min(static_cast<int>(area.getHeight()), WindowHeight - top);
    picture.rgba.resize(static_cast<std::size_t>(picture.width) * picture.height * 4);
    std::vector<std::uint8_t> rows(picture.rgba.size());
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadBuffer(GL_BACK);
    glReadPixels(left, WindowHeight - top - picture.height, picture.width, picture.height, GL_RGBA,
                 GL_UNSIGNED_BYTE, rows.data());
    // OpenGL's rows run bottom-up.
    const std::size_t stride = static_cast<std::size_t>(picture.width) * 4;
    for (int y = 0; y < picture.height; ++y)
        std::memcpy(picture.rgba.data() + y * stride,
                    rows.data() + (picture.height - 1 - y) * stride, stride);
    return picture;
}

std::string fileNameFor(const String& type)
{
    std::string name = type.c_str();
    return name.substr(name.find('/') + 1) + ".png";
}

// Frames of a card's animation, as "<Type>-frameNN.png"; they join no gallery picture.
void photographAnimation(const gallery::GalleryPage::CardInfo& card, const Rectf& area,
                         const std::string& dir)
{
    card.animate();
    const std::string base = fileNameFor(card.type);
    const std::string stem = base.substr(0, base.size() - 4);
    int drawn = 0;
    for (int wanted : card.animationFrames)
    {
        gallery::Picture picture;
        while (drawn < wanted)
        {
            renderFrame(1.0f / 60);
            ++drawn;
            picture = readBack(area);
        }
        char suffix[16];
        std::snprintf(suffix, sizeof suffix, "-frame%02d.png", wanted);
        gallery::writePng(dir + "/" + stem + suffix, picture);
    }
}

// A few cards with the keyboard's focus ring on their first widget: "FocusRing-<Type>.png".
std::size_t photographFocusRings(gallery::GalleryPage& page, const std::string& dir)
{
    std::size_t written = 0;
    for (const gallery::GalleryPage::CardInfo& card : page.cards())
    {
        const String& type = card.type;
        if (type != "MoxieLook/Button" && type != "MoxieLook/Checkbox" &&
            type != "MoxieLook/Editbox" && type != "MoxieLook/Listbox" &&
            type != "MoxieLook/TreeView" && type != "MoxieLook/Slider")
            continue;
        const Rectf area = page.bringIntoView(card);
        std::vector<Window*> pending{card.card};
        Window* first = nullptr;
        while (!pending.empty() && !first)
        {
            Window* w = pending.front();
            pending.erase(pending.begin());
            if (w != card.card && MoxieLook::isFocusable(*w) && w->getType() == type)
                first = w;
            for (std::size_t i = 0; i < w->getChildCount(); ++i)
                pending.push_back(w->getChildAtIdx(i));
        }
        if (!first || !MoxieLook::focusWidget(*first))
            continue;
        gui().injectMousePosition(WindowWidth - 2, WindowHeight - 2);
        for (int frame = 0; frame < 3; ++frame)
            renderFrame(1.0f / 60);
        gallery::writePng(dir + "/FocusRing-" + fileNameFor(type), readBack(area));
        ++written;
    }
    return written;
}

int takeScreenshots(GLFWwindow* window, gallery::GalleryPage& page, const std::string& dir)
{
    std::filesystem::create_directories(dir);
    std::vector<gallery::Picture> shots;
    for (const gallery::GalleryPage::CardInfo& card : page.cards())
    {
        const Rectf area = page.bringIntoView(card);
        if (card.whenShown)
            card.whenShown();
        Window* target = card.hoverTarget;
        const Vector2f rest = target ? target->getUnclippedOuterRect().get().getPosition() +
                                           Vector2f(target->getPixelSize().d_width / 2,
                                                    target->getPixelSize().d_height / 2)
                                     : Vector2f(WindowWidth - 2, WindowHeight - 2);
        gui().injectMousePosition(rest.d_x, rest.d_y);
        for (int frame = 0; frame < 3; ++frame)
            renderFrame(1.0f / 60);
        shots.push_back(readBack(area));
        // A card that captured the pointer (an open drop list) lets it go for the next.
        if (Window* capturing = gui().getInputCaptureWindow())
            capturing->releaseInput();
        gallery::writePng(dir + "/" + fileNameFor(card.type), shots.back());
        glfwSwapBuffers(window);
        if (card.animate)
            photographAnimation(card, area, dir);
    }

    // The whole gallery: the cards in two columns, as on screen.
    gallery::Picture whole;
    whole.width = 2 * (shots.empty() ? 0 : shots.front().width) + 48;
    int heights[2] = {16, 16};
    for (const gallery::Picture& shot : shots)
        heights[heights[1] < heights[0] ? 1 : 0] += shot.height + 16;
    whole.height = std::max(heights[0], heights[1]);
    whole.rgba.resize(static_cast<std::size_t>(whole.width) * whole.height * 4);
    for (std::size_t i = 0; i < whole.rgba.size(); i += 4)
        whole.rgba[i] = Backdrop[0], whole.rgba[i + 1] = Backdrop[1],
        whole.rgba[i + 2] = Backdrop[2], whole.rgba[i + 3] = 0xFF;
    int bottoms[2] = {16, 16};
    for (const gallery::Picture& shot : shots)
    {
        const int column = bottoms[1] < bottoms[0] ? 1 : 0;
        const int x0 = 16 + column * (shot.width + 16);
        for (int y = 0; y < shot.height; ++y)
            std::memcpy(whole.pixel(x0, bottoms[column] + y),
                        shot.rgba.data() + static_cast<std::size_t>(y) * shot.width * 4,
                        static_cast<std::size_t>(shot.width) * 4);
        bottoms[column] += shot.height + 16;
    }
    gallery::writePng(dir + "/gallery.png", whole);
    const std::size_t rings = photographFocusRings(page, dir);
    std::cout << "moxie-gallery: wrote " << shots.size() + 1 + rings << " pictures to " << dir
              << "\n";

    // Then the whole page by keys alone.
    const gallery::TourResult tour = gallery::tourByKeys();
    std::cout << "moxie-gallery: keys reached " << tour.reached << " of " << tour.focusable
              << " widgets and were taken " << tour.operated << " times, in " << tour.rounds
              << " rounds for " << tour.frames << " frame windows\n";
    return 0;
}
// The layout on screen until the window closes, or, with --screenshot, one picture of it.
int viewLayout(GLFWwindow* window, const Options& options)
{
    try
    {
        gallery::showLayout(options.layout);
    }
    catch (const CEGUI::Exception& error)
    {
        std::cerr << "moxie-gallery: " << error.getMessage() << "\n";
        return 1;
    }
    if (!options.screenshotDir.empty())
    {
        for (int frame = 0; frame < 3; ++frame)
            renderFrame(1.0f / 60);
        gallery::writePng(options.screenshotDir, readBack(Rectf(0, 0, WindowWidth, WindowHeight)));
        std::cout << "moxie-gallery: wrote " << options.screenshotDir << "\n";
        return 0;
    }
    forwardInput(window, nullptr);
    runUntilClosed(window);
    return 0;
}
} // namespace

int main(int argc, char** argv)
{
    const Options options = parse(argc, argv);
    const char* display = std::getenv("DISPLAY");
    if (!display || !*display)
        rerunUnderXvfb(argc, argv, options);

    if (!glfwInit())
    {
        std::cerr << "moxie-gallery: cannot start GLFW\n";
        return 1;
    }
    glfwWindowHint(GLFW_RESIZABLE, GLFW_FALSE);
    GLFWwindow* window =
        glfwCreateWindow(WindowWidth, WindowHeight, "MoxieLook gallery", nullptr, nullptr);
    if (!window)
    {
        std::cerr << "moxie-gallery: cannot open an OpenGL window\n";
        glfwTerminate();
        return 1;
    }
    glfwMakeContextCurrent(window);
    glfwSwapInterval(1);
    // GLFW sets the locale from the environment; CEGUI's parsers want "C".
    std::setlocale(LC_ALL, "C");

    setenv("CEGUI_MODULE_DIR", MOXIE_MODULE_DIR, 0);
    new DefaultLogger();
    Logger::getSingleton().setLogFilename("CEGUI-gallery.log", false);
    OpenGLRenderer& renderer = OpenGLRenderer::create(Sizef(WindowWidth, WindowHeight));
    System::create(renderer);
    auto* resources =
        static_cast<DefaultResourceProvider*>(System::getSingleton().getResourceProvider());
    resources->setResourceGroupDirectory("moxielook", options.dataDir.c_str());
    resources->setDefaultResourceGroup("moxielook");
    WindowFactoryManager::addFactory<TplWindowFactory<gallery::Label>>();
    if (options.layout.empty() || options.schemes.empty())
        SchemeManager::getSingleton().createFromFile("MoxieLook.scheme");
    else
        for (const std::string& scheme : options.schemes)
            SchemeManager::getSingleton().createFromFile(scheme);
    gallery::registerShownHoveredTypes();
    // A host maps the module's sound names to sounds; the gallery just says them.
    MoxieLook::MXSoundification::GetInstance().RegisterHook(
        [](const std::string& name) { std::cout << "sound: " << name << std::endl; });
    gui().setDefaultFont("MoxieLook-10");
    gui().setDefaultTooltipType("MoxieLook/Tooltip");
    gui().getMouseCursor().setDefaultImage("MoxieLook/MouseArrow");

    int status = 0;
    if (!options.layout.empty())
        status = viewLayout(window, options);
    else
    {
        gallery::GalleryPage page(Sizef(WindowWidth, WindowHeight));
        if (!options.screenshotDir.empty())
            status = takeScreenshots(window, page, options.screenshotDir);
        else
        {
            forwardInput(window, &page);
            for (const gallery::GalleryPage::CardInfo& card : page.cards())
                if (card.whenShown)
                    card.whenShown();
            runUntilClosed(window);
        }
    }

    System::destroy();
    MoxieLook::MXSoundification::Destroy();
    OpenGLRenderer::destroy(renderer);
    delete Logger::getSingletonPtr();
    glfwDestroyWindow(window);
    glfwTerminate();
    return status;
}
