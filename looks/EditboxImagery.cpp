#include "looks/EditboxImagery.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"

#include <CEGUI/Image.h>
#include <CEGUI/Window.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour EditboxImagery::TextColour(0x0026313D);
const Colour EditboxImagery::SelectedTextColour(0x00102A58);
const Colour EditboxImagery::ReadOnlyTextColour(0x00465566);
const Colour EditboxImagery::DisabledTextColour(0x009AA3AD);

namespace
{
std::array<const char*, NinePieceFrame::PieceCount> pieces(const String& prefix,
                                                           std::array<String, 8>& names)
{
    const char* suffixes[] = {"TopLeft", "TopRight", "BottomLeft", "BottomRight",
                              "Left",    "Top",      "Right",      "Bottom"};
    std::array<const char*, NinePieceFrame::PieceCount> result{};
    for (int i = 0; i < 8; ++i)
    {
        names[i] = prefix + suffixes[i];
        result[i] = names[i].c_str();
    }
    return result;
}
} // namespace

EditboxImagery::EditboxImagery()
    : d_fill(&lookImage(FillImageName)), d_readOnlyFill(&lookImage(ReadOnlyFillImageName)),
      d_disabledFill(&lookImage(DisabledFillImageName)), d_caret(&lookImage(CaretImageName)),
      d_selection(&lookImage(SelectionImageName)),
      d_inactive(&lookImage(InactiveSelectionImageName))
{
    std::array<String, 8> names;
    d_frame.setImages(pieces(FramePrefix, names));
    d_focusFrame.setImages(pieces(FocusFramePrefix, names));
}

Rectf EditboxImagery::drawBox(const Window& window, GeometryBuffer& buffer, bool focused,
                              bool readOnly, bool disabled) const
{
    const Rectf area(Vector2f(0, 0), window.getPixelSize());
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), window.getEffectiveAlpha());
    const Rectf inner = d_frame.innerRect(area);
    if (disabled)
        drawImage(buffer, *d_disabledFill, inner, nullptr, white);
    else if (readOnly)
        drawImage(buffer, *d_readOnlyFill, inner, nullptr,
                  colours.readOnlyBackground
                      ? faded(ColourRect(*colours.readOnlyBackground), window.getEffectiveAlpha())
                      : white);
    else
        drawImage(buffer, *d_fill, inner, nullptr, white);
    NinePieceFrame& frame = focused && !disabled ? d_focusFrame : d_frame;
    frame.setSize(area.getSize());
    frame.setColours(white);
    frame.draw(buffer, area.d_min, nullptr);
    return inner;
}

namespace
{
// A host's colour keeps its own alpha under the window's; the look's own carry none.
ColourRect shown(const std::optional<ColourRect>& host, const Colour& own, float alpha)
{
    return host ? faded(*host, alpha) : ColourRect(withAlpha(own, alpha));
}
} // namespace

ColourRect EditboxImagery::textColour(bool readOnly, bool disabled, float alpha) const
{
    if (disabled)
        return ColourRect(withAlpha(DisabledTextColour, alpha));
    return shown(colours.normalText, readOnly ? ReadOnlyTextColour : TextColour, alpha);
}

ColourRect EditboxImagery::selectedTextColour(float alpha) const
{
    return shown(colours.selectedText, SelectedTextColour, alpha);
}

ColourRect EditboxImagery::selectionTint(bool focused, float alpha) const
{
    return shown(focused ? colours.activeSelection : colours.inactiveSelection, Colour(0x00FFFFFF),
                 alpha);
}

float scrolledTextOffset(float lastOffset, float areaWidth, float textExtent, float caretWidth,
                         float extentToCaret, HorzTextFormat alignment)
{
    // A text that fits is placed by the alignment: nothing is scrolled away then.
    const float room = areaWidth - textExtent - caretWidth;
    if (room >= 0)
        return alignment == HorzTextFormat::Right     ? room
               : alignment == HorzTextFormat::Centred ? std::floor(room * 0.5f)
                                                      : 0.0f;
    float offset = lastOffset;
    if (offset + extentToCaret < 0)
        offset = -extentToCaret;
    else if (offset + extentToCaret + caretWidth > areaWidth)
        offset = areaWidth - extentToCaret - caretWidth;
    // Once the text's end is in view, no blank room opens after it (a text made shorter).
    offset = std::max(offset, areaWidth - textExtent - caretWidth);
    return std::min(offset, 0.0f);
}

} // namespace MoxieLook
} // namespace CEGUI
