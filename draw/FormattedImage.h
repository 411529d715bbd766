// One image placed in an area: aligned, centred, stretched or tiled on each axis.
#pragma once

#include <CEGUI/ColourRect.h>
#include <CEGUI/Rect.h>

namespace CEGUI
{
class GeometryBuffer;
class Image;

namespace MoxieLook
{
class FormattedImage
{
public:
    //! Numbered as hosts and property texts know them.
    enum HorzFormatting
    {
        LeftAligned = 0,
        RightAligned = 1,
        HorzStretched = 2,
        HorzCentred = 3,
        HorzTiled = 4
    };
    enum VertFormatting
    {
        TopAligned = 0,
        BottomAligned = 1,
        VertStretched = 2,
        VertCentred = 3,
        VertTiled = 4
    };

    void setImage(const Image* image) { d_image = image; }
    const Image* getImage() const { return d_image; }

    void setHorzFormatting(HorzFormatting formatting) { d_horzFormatting = formatting; }
    HorzFormatting getHorzFormatting() const { return d_horzFormatting; }
    void setVertFormatting(VertFormatting formatting) { d_vertFormatting = formatting; }
    VertFormatting getVertFormatting() const { return d_vertFormatting; }

    //! The area the image is formatted into, from the draw position.
    void setSize(const Sizef& size) { d_size = size; }
    const Sizef& getSize() const { return d_size; }

    void setColours(const ColourRect& colours) { d_colours = colours; }
    const ColourRect& getColours() const { return d_colours; }

    //! Only copies within `seen` (window-local), when given, are drawn: a huge tiled area
    //! costs what can be seen.
    void draw(GeometryBuffer& buffer, const Vector2f& position, const Rectf* clip,
              const Rectf* seen = nullptr) const;

private:
    const Image* d_image = nullptr;
    HorzFormatting d_horzFormatting = LeftAligned;
    VertFormatting d_vertFormatting = TopAligned;
    Sizef d_size{0.0f, 0.0f};
    ColourRect d_colours{Colour(1.0f, 1.0f, 1.0f, 1.0f)};
};

} // namespace MoxieLook
} // namespace CEGUI
