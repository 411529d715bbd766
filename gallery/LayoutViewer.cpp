#include "LayoutViewer.h"

#include <CEGUI/CEGUI.h>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace gallery
{
using namespace CEGUI;

namespace
{
const std::filesystem::path Samples = "/usr/share/cegui-0.8.7";

std::string readFile(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw FileIOException("moxie-gallery: cannot read the layout " + path);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

// Every first group of `pattern` in `text`.
std::set<std::string> matches(const std::string& text, const std::regex& pattern)
{
    std::set<std::string> found;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), pattern);
         it != std::sregex_iterator(); ++it)
        found.insert((*it)[1]);
    return found;
}

void loadWhatTheLayoutNames(const std::string& text)
{
    if (!std::filesystem::is_directory(Samples))
        return;
    auto* resources =
        static_cast<DefaultResourceProvider*>(System::getSingleton().getResourceProvider());
    for (const char* folder : {"schemes", "imagesets", "fonts", "looknfeel"})
        resources->setResourceGroupDirectory(String("cegui-") + folder,
                                             (Samples / folder).string() + "/");
    // From here on, what CEGUI loads by default comes from its sample data.
    ImageManager::setImagesetDefaultResourceGroup("cegui-imagesets");
    Font::setDefaultResourceGroup("cegui-fonts");
    WidgetLookManager::setDefaultResourceGroup("cegui-looknfeel");

    if (text.find("\"Generic/") != std::string::npos &&
        !SchemeManager::getSingleton().isDefined("Generic"))
        SchemeManager::getSingleton().createFromFile("Generic.scheme", "cegui-schemes");
    // Image names: "Imageset/Image" in property values and in text markup; an imageset's
    // name is the one its file gives, not always the file's.
    std::set<std::string> imagesets = matches(text, std::regex("value=\"([A-Za-z0-9_-]+)/"));
    imagesets.merge(matches(text, std::regex("image=&apos;([A-Za-z0-9_-]+)/")));
    for (const auto& entry : std::filesystem::directory_iterator(Samples / "imagesets"))
    {
        if (entry.path().extension() != ".imageset")
            continue;
        const std::set<std::string> names =
            matches(readFile(entry.path().string()), std::regex("<Imageset[^>]*name=\"([^\"]+)\""));
        if (names.empty() || !imagesets.count(*names.begin()))
            continue;
        try
        {
            ImageManager::getSingleton().loadImageset(entry.path().filename().string());
        }
        catch (const AlreadyExistsException&)
        {
            // loaded by a scheme already
        }
    }
    std::set<std::string> fonts = matches(text, std::regex("Font\" value=\"([^\"]+)\""));
    fonts.merge(matches(text, std::regex("font=&apos;([^&]+)&apos;")));
    for (const std::string& font : fonts)
        if (std::filesystem::exists(Samples / "fonts" / (font + ".font")))
            FontManager::getSingleton().createFromFile(font + ".font", "cegui-fonts", XREA_RETURN);
}
} // namespace

Window& showLayout(const std::string& path)
{
    const std::string text = readFile(path);
    loadWhatTheLayoutNames(text);
    Window* root = WindowManager::getSingleton().createWindow("DefaultWindow", "layoutRoot");
    System::getSingleton().getDefaultGUIContext().setRootWindow(root);
    root->addChild(WindowManager::getSingleton().loadLayoutFromString(text));
    return *root;
}

} // namespace gallery
