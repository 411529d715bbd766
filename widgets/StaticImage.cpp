#include "widgets/StaticImage.h"

#include "draw/Imagery.h"

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
const char* const HorzNames[] = {"LeftAligned", "RightAligned", "HorzStretched", "HorzCentred",
                                 "HorzTiled"};
const char* const VertNames[] = {"TopAligned", "BottomAligned", "VertStretched", "VertCentred",
                                 "VertTiled"};
} // namespace

StaticImage::StaticImage(const String& type, const String& name) : Static(type, name)
{
    d_image.setHorzFormatting(FormattedImage::HorzStretched);
    d_image.setVertFormatting(FormattedImage::VertStretched);

    const String propertyOrigin("MoxieLook/StaticImage");
    CEGUI_DEFINE_PROPERTY(StaticImage, Image*, "Image",
                          "Property to get/set the image shown. Value is an image name such as "
                          "\"MoxieLook/IconStar\".",
                          &StaticImage::setImage, &StaticImage::getImage, nullptr);
    CEGUI_DEFINE_PROPERTY(
        StaticImage, ColourRect, "ImageColours",
        "Property to get/set the colours the image is drawn in." MOXIE_COLOURS_VALUE_HELP,
        &StaticImage::setImageColours, &StaticImage::getImageColours,
        ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(StaticImage, String, "HorzFormatting",
                          "Property to get/set the horizontal formatting of the image. Value is "
                          "one of LeftAligned, RightAligned, HorzStretched, HorzCentred, "
                          "HorzTiled, or CEGUI 0.8's CentreAligned, Stretched, Tiled.",
                          &StaticImage::setHorzFormattingName, &StaticImage::getHorzFormattingName,
                          "HorzStretched");
    CEGUI_DEFINE_PROPERTY(StaticImage, String, "VertFormatting",
                          "Property to get/set the vertical formatting of the image. Value is "
                          "one of TopAligned, BottomAligned, VertStretched, VertCentred, "
                          "VertTiled, or CEGUI 0.8's CentreAligned, Stretched, Tiled.",
                          &StaticImage::setVertFormattingName, &StaticImage::getVertFormattingName,
                          "VertStretched");
}

void StaticImage::setImage(const Image* image)
{
    d_image.setImage(image);
    invalidate();
}

void StaticImage::setImageColours(const ColourRect& colours)
{
    d_image.setColours(colours);
    invalidate();
}

void StaticImage::setFormatting(FormattedImage::HorzFormatting horz,
                                FormattedImage::VertFormatting vert)
{
    // A name given for an axis is read back until that axis changes.
    if (horz != d_image.getHorzFormatting())
        d_horzName.clear();
    if (vert != d_image.getVertFormatting())
        d_vertName.clear();
    d_image.setHorzFormatting(horz);
    d_image.setVertFormatting(vert);
    invalidate();
}

FormattedImage::HorzFormatting StaticImage::horzFormattingFromName(const String& name)
{
    for (int i = 0; i < 5; ++i)
        if (name == HorzNames[i])
            return static_cast<FormattedImage::HorzFormatting>(i);
    // CEGUI 0.8's names, as layouts written for its skins hold them.
    if (name == "CentreAligned")
        return FormattedImage::HorzCentred;
    if (name == "Tiled")
        return FormattedImage::HorzTiled;
    return FormattedImage::HorzStretched;
}

FormattedImage::VertFormatting StaticImage::vertFormattingFromName(const String& name)
{
    for (int i = 0; i < 5; ++i)
        if (name == VertNames[i])
            return static_cast<FormattedImage::VertFormatting>(i);
    if (name == "CentreAligned")
        return FormattedImage::VertCentred;
    if (name == "Tiled")
        return FormattedImage::VertTiled;
    return FormattedImage::VertStretched;
}

void StaticImage::setHorzFormattingName(const String& name)
{
    setFormatting(horzFormattingFromName(name), getVertFormatting());
    d_horzName = name;
}

String StaticImage::getHorzFormattingName() const
{
    return d_horzName.empty() ? String(HorzNames[getHorzFormatting()]) : d_horzName;
}

void StaticImage::setVertFormattingName(const String& name)
{
    setFormatting(getHorzFormatting(), vertFormattingFromName(name));
    d_vertName = name;
}

String StaticImage::getVertFormattingName() const
{
    return d_vertName.empty() ? String(VertNames[getVertFormatting()]) : d_vertName;
}

void StaticImage::drawContent(GeometryBuffer& buffer, const Rectf& inner)
{
    // The image's own colours are the host's; only the window's alpha fades them.
    FormattedImage image = d_image;
    image.setSize(inner.getSize());
    image.setColours(faded(d_image.getColours(), getEffectiveAlpha()));
    const Rectf seen = seenForDrawing();
    image.draw(buffer, inner.d_min, nullptr, &seen);
}

} // namespace MoxieLook
} // namespace CEGUI
