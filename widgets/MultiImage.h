// Extra images laid over a widget: icons, badges, overlays. Each entry is placed against
// the widget's inner rectangle by an alignment, moved by two pixel offsets and drawn at
// its own size times a scale; entries are placed again whenever the widget is resized.
//
// Alignments and the names property texts use for them (numbered as listed):
//   0 "TopLeft"     1 "Top"     2 "TopRight"
//   3 "Left"        4 "Centre"  5 "Right"
//   6 "BottomLeft"  7 "Bottom"  8 "BottomRight"
//   9 "None": at the offsets from the inner rectangle's top-left.
// Colours tint an image; a colour rectangle of all zeros draws it in its own colours.
// Images are placed against the unclipped inner rectangle, so that a partly clipped
// widget keeps its images where they belong.
// "Center" is read as "Centre"; any other unknown name as "None".
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>
#include <CEGUI/String.h>
#include <vector>

namespace CEGUI
{
class GeometryBuffer;
class Image;
class Window;

namespace MoxieLook
{
class MultiImage
{
public:
    enum ImageAlignment
    {
        TopLeft = 0,
        Top = 1,
        TopRight = 2,
        Left = 3,
        Centre = 4,
        Right = 5,
        BottomLeft = 6,
        Bottom = 7,
        BottomRight = 8,
        None = 9
    };

    static ImageAlignment alignmentFromName(const String& name);
    static String nameOf(ImageAlignment alignment);

    //! Where an image of `size`, scaled, goes in `inner`.
    static Rectf placement(const Rectf& inner, const Sizef& size, int offsetX, int offsetY,
                           float scale, ImageAlignment alignment);

    //! A screen rectangle of `window` measured from the window's unclipped top-left.
    static Rectf toLocal(const Window& window, Rectf rect);

    virtual ~MultiImage() = default;

    //! By image name inside an imageset ("MoxieLook", "IconStar"): CEGUI's
    //! UnknownObjectException when the imageset lacks it.
    virtual void AddImage(const Image* image, int offsetX, int offsetY, float scale,
                          ImageAlignment alignment, const ColourRect& colours);
    virtual void AddImage(const String& imageset, const String& image, int offsetX, int offsetY,
                          float scale, ImageAlignment alignment, const ColourRect& colours);
    //! Removes every entry showing the image.
    virtual void RemoveImage(const Image* image);
    virtual void RemoveImage(const String& imageset, const String& image);
    virtual bool HasImage(const Image* image) const;
    virtual bool HasImage(const String& imageset, const String& image) const;
    //! Null past the end.
    virtual const Image* GetImage(std::size_t index) const;
    virtual void ClearImages();
    virtual void SetVisibilityImage(const String& imageset, const String& image, bool visible);
    std::size_t GetImageCount() const { return d_entries.size(); }
    //! Where entry `index` is drawn, window-local.
    Rectf GetImageRect(std::size_t index) const;

    //! The widget's inner rectangle, window-local, clipped or not.
    virtual Rectf GetLocalUnclippedInnerRect() const = 0;
    virtual Rectf GetLocalInnerRect() const = 0;
    //! The widget's resize handling, ending with MyOnSizedInternal.
    virtual void MyOnSized() = 0;
    virtual void MyRequestRedraw() = 0;
    //! Places every entry again against the current inner rectangle.
    virtual void MyOnSizedInternal();
    virtual Rectf MyGetInnerRect() const = 0;

    //! Draws the visible entries, their colours faded by `alpha`.
    void drawImages(GeometryBuffer& buffer, float alpha) const;

private:
    struct Entry
    {
        const Image* image;
        int offsetX;
        int offsetY;
        float scale;
        ImageAlignment alignment;
        ColourRect colours;
        bool visible;
        Rectf placed;
    };

    static const Image& imageNamed(const String& imageset, const String& image);
    void changed();

    std::vector<Entry> d_entries;
};

} // namespace MoxieLook
} // namespace CEGUI
