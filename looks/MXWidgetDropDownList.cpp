#include "looks/MXWidgetDropDownList.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "widgets/ButtonEx.h"

#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour DropDownImages::TextColour(0x0026313D);
const Colour DropDownImages::SelectedTextColour(0x00102A58);

void DropDownImages::frameImages(NinePieceFrame& frame)
{
    frame.setImages({TopLeftImage, TopRightImage, BottomLeftImage, BottomRightImage, LeftImage,
                     TopImage, RightImage, BottomImage});
}

// --- the list ---------------------------------------------------------------------------

MXWidgetDropDownList::MXWidgetDropDownList(const String& type, const String& name)
    : WidgetDropDownList(type, name), d_selectionBrush(&lookImage(SelectionBrushImageName)),
      d_hoverBrush(&lookImage(HoverBrushImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXWidgetDropDownList::InitialiseFrame()
{
    frameImages(d_frame);
}

Scrollbar* MXWidgetDropDownList::CreateVertScrollbar()
{
    return createAutoPart<Scrollbar>(ScrollbarType, getName() + "_vertscrollbar",
                                     "a drop-down list's scroll bar");
}

void MXWidgetDropDownList::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    WidgetDropDownList::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    if (Scrollbar* bar = GetScrollbar())
    {
        // Inside the frame, along its right edge.
        const Rectf inner = d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize()));
        bar->setArea(UVector2(cegui_absdim(inner.right() - 16), cegui_absdim(inner.top())),
                     USize(cegui_absdim(16), cegui_absdim(inner.getHeight())));
    }
}

void MXWidgetDropDownList::populateGeometryBuffer()
{
    if (hasVisibleArea(*this))
        drawImage(getGeometryBuffer(), lookImage(FillImageName),
                  d_frame.innerRect(Rectf(Vector2f(0, 0), getPixelSize())), nullptr,
                  withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha()));
    WidgetDropDownList::populateGeometryBuffer();
}

void MXWidgetDropDownList::DrawItem(const Window& window, GeometryBuffer& buffer, const Item& item,
                                    const Rectf& row, const Rectf& clip, bool selected,
                                    bool hovered) const
{
    const float alpha = window.getEffectiveAlpha();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha);
    if (selected || hovered)
        drawImage(buffer, *(selected ? d_selectionBrush : d_hoverBrush), row, &clip, white);

    float x = row.left() + ImagePadding;
    if (item.image)
    {
        // Fitted to the row's height, keeping its shape.
        const Sizef size = item.image->getRenderedSize();
        const float side = std::max(0.0f, row.getHeight() - 2.0f);
        const float scale = size.d_height > 0 ? std::min(1.0f, side / size.d_height) : 1.0f;
        const Sizef drawn(std::floor(size.d_width * scale), std::floor(size.d_height * scale));
        const float top = row.top() + std::floor((row.getHeight() - drawn.d_height) * 0.5f);
        drawImage(buffer, *item.image, Rectf(Vector2f(x, top), drawn), &clip, white);
        x += drawn.d_width + ImagePadding;
    }
    if (const Font* font = window.getFont())
    {
        const float top = row.top() + std::floor((row.getHeight() - font->getLineSpacing()) * 0.5f);
        drawGlyphs(buffer, *font, item.text, Vector2f(x, top), &clip,
                   ColourRect(withAlpha(selected ? SelectedTextColour : TextColour, alpha)));
    }
}

// --- the box ----------------------------------------------------------------------------

MXWidgetDropDownListbox::MXWidgetDropDownListbox(const String& type, const String& name)
    : WidgetDropDownListbox(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXWidgetDropDownListbox::InitialiseFrame()
{
    frameImages(d_frame);
}

const Image* MXWidgetDropDownListbox::fillImage() const
{
    return &lookImage(FillImageName);
}

ButtonEx* MXWidgetDropDownListbox::CreateDropDownButton()
{
    auto* button = createAutoPart<ButtonEx>(ButtonType, getName() + "droplistButton",
                                            "a drop-down box's button");
    // The arrow pictures of the combo box, one per state, in place of the framed imagery.
    FormattedImage picture;
    picture.setHorzFormatting(FormattedImage::HorzStretched);
    picture.setVertFormatting(FormattedImage::VertStretched);
    button->setStandardImageryEnabled(false);
    button->setCustomImageryAutoSized(true);
    picture.setImage(&lookImage(ButtonNormalImageName));
    button->setNormalImage(&picture);
    button->setDisabledImage(&picture);
    picture.setImage(&lookImage(ButtonHoverImageName));
    button->setHoverImage(&picture);
    picture.setImage(&lookImage(ButtonPushedImageName));
    button->setPushedImage(&picture);
    return button;
}

WidgetDropDownList* MXWidgetDropDownListbox::CreateDropDownList()
{
    return createAutoPart<WidgetDropDownList>(ListType, getName() + "_dropdownList",
                                              "a drop-down box's list");
}

} // namespace MoxieLook
} // namespace CEGUI
