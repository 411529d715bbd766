// The layout viewer: any layout file in MoxieLook, for a user to see their screens in the
// new skin before switching. What the layout names beyond the skin (CEGUI's Generic widgets,
// the stock imagesets' images, fonts) comes from CEGUI's sample data where it is installed.
#pragma once

#include <string>

namespace CEGUI
{
class Window;
}

namespace gallery
{
//! Loads the layout at `path` with what it names, and puts it on a root window of its own.
CEGUI::Window& showLayout(const std::string& path);

} // namespace gallery
