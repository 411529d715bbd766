#include "widgets/MultiImage.h"

#include "draw/QuadBatch.h"

#include <CEGUI/Image.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/Window.h>
#include <algorithm>
namespace CEGUI
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
namespace MoxieLook
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
namespace
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
const char* const AlignmentNames[] = {"TopLeft", "Top",        "TopRight", "Left",        "Centre",
#include "draw/QuadBatch.h"
                                      "Right",   "BottomLeft", "Bottom",   "BottomRight", "None"};
#include "draw/QuadBatch.h"
} // namespace
#include "draw/QuadBatch.h"
MultiImage::ImageAlignment MultiImage::alignmentFromName(const String& name)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    if (name == "Center")
#include "draw/QuadBatch.h"
        return Centre;
#include "draw/QuadBatch.h"
    for (int i = 0; i < 10; ++i)
#include "draw/QuadBatch.h"
        if (name == AlignmentNames[i])
#include "draw/QuadBatch.h"
            return static_cast<ImageAlignment>(i);
#include "draw/QuadBatch.h"
    return None;
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
String MultiImage::nameOf(ImageAlignment alignment)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    return AlignmentNames[std::clamp(static_cast<int>(alignment), 0, 9)];
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
Rectf MultiImage::toLocal(const Window& window, Rectf rect)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    const Vector2f origin = window.getUnclippedOuterRect().get().d_min;
#include "draw/QuadBatch.h"
    rect.offset(Vector2f(-origin.d_x, -origin.d_y));
#include "draw/QuadBatch.h"
    return rect;
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
Rectf MultiImage::placement(const Rectf& inner, const Sizef& size, int offsetX, int offsetY,
#include "draw/QuadBatch.h"
                            float scale, ImageAlignment alignment)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    const Sizef scaled(size.d_width * scale, size.d_height * scale);
#include "draw/QuadBatch.h"
    Vector2f at = inner.d_min;
#include "draw/QuadBatch.h"
    if (alignment != None)
#include "draw/QuadBatch.h"
    {
#include "draw/QuadBatch.h"
        const int column = alignment % 3;
#include "draw/QuadBatch.h"
        const int row = alignment / 3;
#include "draw/QuadBatch.h"
        at.d_x += column * (inner.getWidth() - scaled.d_width) * 0.5f;
#include "draw/QuadBatch.h"
        at.d_y += row * (inner.getHeight() - scaled.d_height) * 0.5f;
#include "draw/QuadBatch.h"
    }
#include "draw/QuadBatch.h"
    at.d_x += static_cast<float>(offsetX);
#include "draw/QuadBatch.h"
    at.d_y += static_cast<float>(offsetY);
#include "draw/QuadBatch.h"
    return Rectf(at, scaled);
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
const Image& MultiImage::imageNamed(const String& imageset, const String& image)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    return ImageManager::getSingleton().get(imageset + "/" + image);
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::AddImage(const Image* image, int offsetX, int offsetY, float scale,
#include "draw/QuadBatch.h"
                          ImageAlignment alignment, const ColourRect& colours)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    if (!image)
#include "draw/QuadBatch.h"
        return;
#include "draw/QuadBatch.h"
    Entry entry{image, offsetX, offsetY, scale, alignment, colours, true, Rectf()};
#include "draw/QuadBatch.h"
    entry.placed = placement(GetLocalUnclippedInnerRect(), image->getRenderedSize(), offsetX,
#include "draw/QuadBatch.h"
                             offsetY, scale, alignment);
#include "draw/QuadBatch.h"
    d_entries.push_back(entry);
#include "draw/QuadBatch.h"
    changed();
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::AddImage(const String& imageset, const String& image, int offsetX, int offsetY,
#include "draw/QuadBatch.h"
                          float scale, ImageAlignment alignment, const ColourRect& colours)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    AddImage(&imageNamed(imageset, image), offsetX, offsetY, scale, alignment, colours);
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::RemoveImage(const Image* image)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    d_entries.erase(std::remove_if(d_entries.begin(), d_entries.end(),
#include "draw/QuadBatch.h"
                                   [image](const Entry& e) { return e.image == image; }),
#include "draw/QuadBatch.h"
                    d_entries.end());
#include "draw/QuadBatch.h"
    changed();
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::RemoveImage(const String& imageset, const String& image)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    RemoveImage(&imageNamed(imageset, image));
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
bool MultiImage::HasImage(const Image* image) const
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    return std::any_of(d_entries.begin(), d_entries.end(),
#include "draw/QuadBatch.h"
                       [image](const Entry& e) { return e.image == image; });
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
bool MultiImage::HasImage(const String& imageset, const String& image) const
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    return HasImage(&imageNamed(imageset, image));
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
const Image* MultiImage::GetImage(std::size_t index) const
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    return index < d_entries.size() ? d_entries[index].image : nullptr;
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
Rectf MultiImage::GetImageRect(std::size_t index) const
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    return index < d_entries.size() ? d_entries[index].placed : Rectf();
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::ClearImages()
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    d_entries.clear();
#include "draw/QuadBatch.h"
    changed();
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::SetVisibilityImage(const String& imageset, const String& image, bool visible)
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    const Image* wanted = &imageNamed(imageset, image);
#include "draw/QuadBatch.h"
    for (Entry& entry : d_entries)
#include "draw/QuadBatch.h"
        if (entry.image == wanted)
#include "draw/QuadBatch.h"
            entry.visible = visible;
#include "draw/QuadBatch.h"
    changed();
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::MyOnSizedInternal()
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    const Rectf inner = GetLocalUnclippedInnerRect();
#include "draw/QuadBatch.h"
    for (Entry& entry : d_entries)
#include "draw/QuadBatch.h"
        entry.placed = placement(inner, entry.image->getRenderedSize(), entry.offsetX,
#include "draw/QuadBatch.h"
                                 entry.offsetY, entry.scale, entry.alignment);
#include "draw/QuadBatch.h"
    MyRequestRedraw();
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::changed()
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    MyRequestRedraw();
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
void MultiImage::drawImages(GeometryBuffer& buffer, float alpha) const
#include "draw/QuadBatch.h"
{
#include "draw/QuadBatch.h"
    for (const Entry& entry : d_entries)
#include "draw/QuadBatch.h"
        if (entry.visible)
#include "draw/QuadBatch.h"
        {
#include "draw/QuadBatch.h"
            // All corners 00000000 (what the smart node item gives its icons) means the
#include "draw/QuadBatch.h"
            // image's own colours.
#include "draw/QuadBatch.h"
            const Colour none(0x00000000);
#include "draw/QuadBatch.h"
            const ColourRect& given = entry.colours;
#include "draw/QuadBatch.h"
            const bool untinted = given.d_top_left == none && given.d_top_right == none &&
#include "draw/QuadBatch.h"
                                  given.d_bottom_left == none && given.d_bottom_right == none;
#include "draw/QuadBatch.h"
            ColourRect colours = untinted ? ColourRect(Colour(0xFFFFFFFF)) : given;
#include "draw/QuadBatch.h"
            colours.modulateAlpha(alpha);
#include "draw/QuadBatch.h"
            drawImage(buffer, *entry.image, entry.placed, nullptr, colours);
#include "draw/QuadBatch.h"
        }
#include "draw/QuadBatch.h"
}
#include "draw/QuadBatch.h"
} // namespace MoxieLook
#include "draw/QuadBatch.h"
} // namespace CEGUI
