// What the robustness tests range over: the module's types as CEGUI's factory manager
// knows them, and texts a careless or hostile layout might hold.
#pragma once

#include <CEGUI/String.h>
#include <string>
#include <vector>

namespace CEGUI
{
class Window;
}

namespace moxietest
{
//! Every registered "MoxieLook/..." type, asked of CEGUI.
std::vector<CEGUI::String> moduleTypeNames();

//! Texts no property should choke on.
const std::vector<std::string>& hostileTexts();

//! Properties left out of the hostile run because CEGUI itself crashes or hangs on them
//! (listed, with why, in the architecture notes), or because they replace the window's
//! drawing (renderer and look'n'feel names).
bool skippedProperty(const CEGUI::String& name);

//! A window of `type` on the current sheet, sized and placed, with a text, or null when the
//! type cannot stand alone (it refuses creation outside its owner).
CEGUI::Window* makeSample(const CEGUI::String& type, float x, float y, float w, float h);

//! A small child of `type` in `parent`, or null where `parent` takes no such child.
CEGUI::Window* childOf(CEGUI::Window& parent, const CEGUI::String& type);

//! Renders every context once.
void renderFrame();

//! Bytes of heap in use now (the sanitizer's allocator's count in sanitized builds).
double heapInUse();

} // namespace moxietest
