// Turns recorded geometry back into what a look meant to draw: which image of the
// "MoxieLook" imageset, where, in which colours, in which order. Glyphs of one text
// run fold into a single "text" entry.
#pragma once

#include "support/RecordingRenderer.h"

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace CEGUI
{
class Window;
}

namespace moxietest
{
struct DrawnQuad
{
    std::string image; //!< name inside the imageset, or "text" for a run of glyphs
    CEGUI::Rectf rect; //!< window-local pixels
    CEGUI::ColourRect colours;
    bool mirroredX = false; //!< the image's right edge drawn at the left
    bool mirroredY = false; //!< the image's bottom drawn at the top
};

std::vector<DrawnQuad> decode(const RecordingGeometryBuffer& buffer);

//! Renders the GUI and decodes what `window` put into its geometry buffer.
std::vector<DrawnQuad> drawnBy(CEGUI::Window& window);

//! Just the image names, in drawing order.
std::vector<std::string> imageNames(const std::vector<DrawnQuad>& quads);

//! The first quad of `image`, a copy: the drawing it came from may be a temporary.
std::optional<DrawnQuad> find(const std::vector<DrawnQuad>& quads, const std::string& image);
//! Every quad of `image`, in drawing order.
std::vector<DrawnQuad> allOf(const std::vector<DrawnQuad>& quads, const std::string& image);
//! The rectangle around every quad whose image name starts with `prefix` ("text": the glyphs).
CEGUI::Rectf spanOf(const std::vector<DrawnQuad>& quads, const std::string& prefix);

//! Integer ARGB of a colour, for readable comparisons.
CEGUI::argb_t argb(const CEGUI::Colour& colour);

std::ostream& operator<<(std::ostream& out, const DrawnQuad& quad);

} // namespace moxietest
