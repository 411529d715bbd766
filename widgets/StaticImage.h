// A static showing one image inside its frame, formatted on each axis (stretched by
// default).
#pragma once

#include "draw/FormattedImage.h"
#include "widgets/Static.h"

namespace CEGUI
{
namespace MoxieLook
{
class StaticImage : public Static
{
public:
    StaticImage(const String& type, const String& name);

    const Image* getImage() const { return d_image.getImage(); }
    void setImage(const Image* image);
    const ColourRect& getImageColours() const { return d_image.getColours(); }
    void setImageColours(const ColourRect& colours);
    FormattedImage::HorzFormatting getHorzFormatting() const { return d_image.getHorzFormatting(); }
    FormattedImage::VertFormatting getVertFormatting() const { return d_image.getVertFormatting(); }
    void setFormatting(FormattedImage::HorzFormatting horz, FormattedImage::VertFormatting vert);

    //! Names of the formattings: "LeftAligned", "RightAligned", "HorzStretched",
    //! "HorzCentred", "HorzTiled" and "TopAligned", "BottomAligned", "VertStretched",
    //! "VertCentred", "VertTiled". Unknown names read as stretched.
    static FormattedImage::HorzFormatting horzFormattingFromName(const String& name);
    static FormattedImage::VertFormatting vertFormattingFromName(const String& name);

protected:
    void drawContent(GeometryBuffer& buffer, const Rectf& inner) override;

private:
    String d_horzName; //!< as given by name, read back while it holds
    String d_vertName;
    void setHorzFormattingName(const String& name);
    String getHorzFormattingName() const;
    void setVertFormattingName(const String& name);
    String getVertFormattingName() const;

    FormattedImage d_image;
};

} // namespace MoxieLook
} // namespace CEGUI
