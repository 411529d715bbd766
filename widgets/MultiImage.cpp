#include "widgets/MultiImage.h"

#include "draw/QuadBatch.h"

#include <CEGUI/Image.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/Window.h>
#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
const char* const AlignmentNames[] = {"TopLeft", "Top",        "TopRight", "Left",        "Centre",
                                      "Right",   "BottomLeft", "Bottom",   "BottomRight", "None"};
} // namespace

MultiImage::ImageAlignment MultiImage::alignmentFromName(const String& name)
{
    if (name == "Center")
        return Centre;
    for (int i = 0; i < 10; ++i)
        if (name == AlignmentNames[i])
            return static_cast<ImageAlignment>(i);
    return None;
}

String MultiImage::nameOf(ImageAlignment alignment)
{
    return AlignmentNames[std::clamp(static_cast<int>(alignment), 0, 9)];
}

Rectf MultiImage::toLocal(const Window& window, Rectf rect)
{
    const Vector2f origin = window.getUnclippedOuterRect().get().d_min;
    rect.offset(Vector2f(-origin.d_x, -origin.d_y));
    return rect;
}

Rectf MultiImage::placement(const Rectf& inner, const Sizef& size, int offsetX, int offsetY,
                            float scale, ImageAlignment alignment)
{
    const Sizef scaled(size.d_width * scale, size.d_height * scale);
    Vector2f at = inner.d_min;
    if (alignment != None)
    {
        const int column = alignment % 3;
        const int row = alignment / 3;
        at.d_x += column * (inner.getWidth() - scaled.d_width) * 0.5f;
        at.d_y += row * (inner.getHeight() - scaled.d_height) * 0.5f;
    }
    at.d_x += static_cast<float>(offsetX);
    at.d_y += static_cast<float>(offsetY);
    return Rectf(at, scaled);
}

const Image& MultiImage::imageNamed(const String& imageset, const String& image)
{
    return ImageManager::getSingleton().get(imageset + "/" + image);
}

void MultiImage::AddImage(const Image* image, int offsetX, int offsetY, float scale,
                          ImageAlignment alignment, const ColourRect& colours)
{
    if (!image)
        return;
    Entry entry{image, offsetX, offsetY, scale, alignment, colours, true, Rectf()};
    entry.placed = placement(GetLocalUnclippedInnerRect(), image->getRenderedSize(), offsetX,
                             offsetY, scale, alignment);
    d_entries.push_back(entry);
    changed();
}

void MultiImage::AddImage(const String& imageset, const String& image, int offsetX, int offsetY,
                          float scale, ImageAlignment alignment, const ColourRect& colours)
{
    AddImage(&imageNamed(imageset, image), offsetX, offsetY, scale, alignment, colours);
}

void MultiImage::RemoveImage(const Image* image)
{
    d_entries.erase(std::remove_if(d_entries.begin(), d_entries.end(),
                                   [image](const Entry& e) { return e.image == image; }),
                    d_entries.end());
    changed();
}

void MultiImage::RemoveImage(const String& imageset, const String& image)
{
    RemoveImage(&imageNamed(imageset, image));
}

bool MultiImage::HasImage(const Image* image) const
{
    return std::any_of(d_entries.begin(), d_entries.end(),
                       [image](const Entry& e) { return e.image == image; });
}

bool MultiImage::HasImage(const String& imageset, const String& image) const
{
    return HasImage(&imageNamed(imageset, image));
}

const Image* MultiImage::GetImage(std::size_t index) const
{
    return index < d_entries.size() ? d_entries[index].image : nullptr;
}

Rectf MultiImage::GetImageRect(std::size_t index) const
{
    return index < d_entries.size() ? d_entries[index].placed : Rectf();
}

void MultiImage::ClearImages()
{
    d_entries.clear();
    changed();
}

void MultiImage::SetVisibilityImage(const String& imageset, const String& image, bool visible)
{
    const Image* wanted = &imageNamed(imageset, image);
    for (Entry& entry : d_entries)
        if (entry.image == wanted)
            entry.visible = visible;
    changed();
}

void MultiImage::MyOnSizedInternal()
{
    const Rectf inner = GetLocalUnclippedInnerRect();
    for (Entry& entry : d_entries)
        entry.placed = placement(inner, entry.image->getRenderedSize(), entry.offsetX,
                                 entry.offsetY, entry.scale, entry.alignment);
    MyRequestRedraw();
}

void MultiImage::changed()
{
    MyRequestRedraw();
}

void MultiImage::drawImages(GeometryBuffer& buffer, float alpha) const
{
    for (const Entry& entry : d_entries)
        if (entry.visible)
        {
            // All corners 00000000 (what the smart node item gives its icons) means the
            // image's own colours.
            const Colour none(0x00000000);
            const ColourRect& given = entry.colours;
            const bool untinted = given.d_top_left == none && given.d_top_right == none &&
                                  given.d_bottom_left == none && given.d_bottom_right == none;
            ColourRect colours = untinted ? ColourRect(Colour(0xFFFFFFFF)) : given;
            colours.modulateAlpha(alpha);
            drawImage(buffer, *entry.image, entry.placed, nullptr, colours);
        }
}

} // namespace MoxieLook
} // namespace CEGUI
