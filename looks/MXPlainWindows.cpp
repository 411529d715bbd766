#include "looks/MXPlainWindows.h"

#include "draw/FramedFill.h"
#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/MXStatics.h"
#include "looks/MXTabPane.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/TplWindowProperty.h>
#include <algorithm>
#include <cmath>
#include <utility>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXLabel::DefaultNormalTextColour(0xFF000000);
const Colour MXLabel::DefaultDisabledTextColour(0xFF888888);
const Colour MXGroupBox::DefaultCaptionColour(0xFF000000);

namespace
{
// Draws the window's text into `area`, in `colours` faded with the window.
void drawWindowText(Window& window, const Rectf& area, HorzTextFormat horz, VertTextFormat vert,
                    const ColourRect& colours)
{
    if (!window.getFont() || window.getText().empty())
        return;
    drawText(window, window.getGeometryBuffer(), window.getRenderedString(), area, horz, vert,
             faded(colours, window.getEffectiveAlpha()), nullptr);
}
} // namespace

// --- Label ----------------------------------------------------------------------------------

MXLabel::MXLabel(const String& type, const String& name)
    : RedrawnWhenUncovered<DefaultWindow>(type, name)
{
    // A label sizes as CEGUI's stock labels do, not to its whole parent.
    setMaxSize(USize(cegui_reldim(0), cegui_reldim(0)));
    setSize(USize(cegui_absdim(128), cegui_absdim(32)));
    StaticFrameImages::setCursorOf(*this);
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(
        MXLabel, ColourRect, "NormalTextColour",
        "Property to get/set the text colours while enabled." MOXIE_COLOURS_VALUE_HELP,
        &MXLabel::setNormalTextColour, &MXLabel::getNormalTextColour,
        ColourRect(DefaultNormalTextColour));
    CEGUI_DEFINE_PROPERTY(
        MXLabel, ColourRect, "DisabledTextColour",
        "Property to get/set the text colours while disabled." MOXIE_COLOURS_VALUE_HELP,
        &MXLabel::setDisabledTextColour, &MXLabel::getDisabledTextColour,
        ColourRect(DefaultDisabledTextColour));
    CEGUI_DEFINE_PROPERTY(MXLabel, String, "HorzFormatting",
                          "Property to get/set the horizontal text formatting: \"LeftAligned\", "
                          "\"RightAligned\", \"CentreAligned\", \"Justified\", "
                          "\"WordWrapLeftAligned\", ...",
                          &MXLabel::setHorzFormatting, &MXLabel::getHorzFormatting,
                          "CentreAligned");
    CEGUI_DEFINE_PROPERTY(MXLabel, String, "VertFormatting",
                          "Property to get/set the vertical text formatting: \"TopAligned\", "
                          "\"BottomAligned\", \"CentreAligned\".",
                          &MXLabel::setVertFormatting, &MXLabel::getVertFormatting,
                          "CentreAligned");
}

void MXLabel::setNormalTextColour(const ColourRect& colours)
{
    d_normalText = colours;
    invalidate();
}

void MXLabel::setDisabledTextColour(const ColourRect& colours)
{
    d_disabledText = colours;
    invalidate();
}

void MXLabel::setHorzFormatting(const String& name)
{
    d_horz.set(name);
    invalidate();
}

void MXLabel::setVertFormatting(const String& name)
{
    d_vert.set(name);
    invalidate();
}

void MXLabel::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    drawWindowText(*this, Rectf(Vector2f(0, 0), getPixelSize()), d_horz.value, d_vert.value,
                   isEffectiveDisabled() ? d_disabledText : d_normalText);
}

// --- Static and group box -------------------------------------------------------------------

MXFramedWindow::MXFramedWindow(const String& type, const String& name)
    : RedrawnWhenUncovered<DefaultWindow>(type, name),
      d_background(&lookImage(StaticFrameImages::BackgroundImage))
{
    setMaxSize(USize(cegui_reldim(0), cegui_reldim(0)));
    setSize(USize(cegui_absdim(128), cegui_absdim(64)));
    StaticFrameImages::setCursorOf(*this);
    d_frame.setImages({StaticFrameImages::TopLeftImage, StaticFrameImages::TopRightImage,
                       StaticFrameImages::BottomLeftImage, StaticFrameImages::BottomRightImage,
                       StaticFrameImages::LeftImage, StaticFrameImages::TopImage,
                       StaticFrameImages::RightImage, StaticFrameImages::BottomImage});
    const String propertyOrigin("MoxieLook/Static");
    CEGUI_DEFINE_PROPERTY(MXFramedWindow, bool, "FrameEnabled",
                          "Property to get/set whether the frame is drawn. Value is either "
                          "\"True\" or \"False\".",
                          &MXFramedWindow::setFrameEnabled, &MXFramedWindow::isFrameEnabled, true);
    CEGUI_DEFINE_PROPERTY(MXFramedWindow, bool, "BackgroundEnabled",
                          "Property to get/set whether the background is drawn. Value is either "
                          "\"True\" or \"False\".",
                          &MXFramedWindow::setBackgroundEnabled,
                          &MXFramedWindow::isBackgroundEnabled, true);
    CEGUI_DEFINE_PROPERTY(MXFramedWindow, ColourRect, "FrameColours",
                          "Property to get/set the frame's colours." MOXIE_COLOURS_VALUE_HELP,
                          &MXFramedWindow::setFrameColours, &MXFramedWindow::getFrameColours,
                          ColourRect(Colour(0xFFFFFFFF)));
    CEGUI_DEFINE_PROPERTY(MXFramedWindow, ColourRect, "BackgroundColours",
                          "Property to get/set the background's colours." MOXIE_COLOURS_VALUE_HELP,
                          &MXFramedWindow::setBackgroundColours,
                          &MXFramedWindow::getBackgroundColours, ColourRect(Colour(0xFFFFFFFF)));
}

void MXFramedWindow::setFrameEnabled(bool enabled)
{
    d_frameEnabled = enabled;
    invalidate();
    innerAreaChanged();
}

void MXFramedWindow::setBackgroundEnabled(bool enabled)
{
    d_backgroundEnabled = enabled;
    invalidate();
}

void MXFramedWindow::setFrameColours(const ColourRect& colours)
{
    d_frameColours = colours;
    invalidate();
}

void MXFramedWindow::setBackgroundColours(const ColourRect& colours)
{
    d_backgroundColours = colours;
    invalidate();
}

void MXFramedWindow::innerAreaChanged()
{
    // Children sized against the inner area follow it, as on a resize.
    notifyScreenAreaChanged();
    performChildWindowLayout(false, true);
}

Rectf MXFramedWindow::frameArea() const
{
    return Rectf(Vector2f(0, 0), getPixelSize());
}

Rectf MXFramedWindow::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    const Rectf outer = skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                              : getUnclippedOuterRect().get();
    Rectf inner = d_frameEnabled ? d_frame.innerRect(frameArea()) : frameArea();
    inner.offset(outer.d_min);
    return inner;
}

void MXFramedWindow::onSized(ElementEventArgs& e)
{
    RedrawnWhenUncovered<DefaultWindow>::onSized(e);
    invalidate();
}

void MXFramedWindow::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    const Rectf area = frameArea();
    if (d_backgroundEnabled)
        drawImage(buffer, *d_background, d_frameEnabled ? d_frame.innerRect(area) : area, nullptr,
                  faded(d_backgroundColours, alpha));
    if (d_frameEnabled)
    {
        d_frame.setSize(area.getSize());
        d_frame.setColours(faded(d_frameColours, alpha));
        d_frame.draw(buffer, area.d_min, nullptr);
    }
}

MXStaticFrame::MXStaticFrame(const String& type, const String& name) : MXFramedWindow(type, name)
{
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXStaticFrame, String, "HorzFormatting",
                          "Property to get/set the horizontal text formatting: \"LeftAligned\", "
                          "\"RightAligned\", \"CentreAligned\", \"Justified\", "
                          "\"WordWrapLeftAligned\", ...",
                          &MXStaticFrame::setHorzFormatting, &MXStaticFrame::getHorzFormatting,
                          "LeftAligned");
    CEGUI_DEFINE_PROPERTY(MXStaticFrame, String, "VertFormatting",
                          "Property to get/set the vertical text formatting: \"TopAligned\", "
                          "\"BottomAligned\", \"CentreAligned\".",
                          &MXStaticFrame::setVertFormatting, &MXStaticFrame::getVertFormatting,
                          "CentreAligned");
    CEGUI_DEFINE_PROPERTY(MXStaticFrame, float, "TextPadding",
                          "Property to get/set the pixels between the frame and the text. Value "
                          "is a float.",
                          &MXStaticFrame::setTextPadding, &MXStaticFrame::getTextPadding, 0.0f);
}

void MXStaticFrame::setHorzFormatting(const String& name)
{
    d_horz.set(name);
    invalidate();
}

void MXStaticFrame::setVertFormatting(const String& name)
{
    d_vert.set(name);
    invalidate();
}

void MXStaticFrame::setTextPadding(float pixels)
{
    // Negative or no number: no padding rather than text outside the window.
    d_textPadding = pixels > 0 && std::isfinite(pixels) ? pixels : 0.0f;
    invalidate();
}

Rectf MXStaticFrame::textArea() const
{
    const Rectf area = frameArea();
    Rectf inside = isFrameEnabled() ? d_frame.innerRect(area) : area;
    const float room = std::max(0.0f, std::min(inside.getWidth(), inside.getHeight()) / 2);
    const float pad = std::min(d_textPadding, room);
    inside.d_min += Vector2f(pad, pad);
    inside.d_max -= Vector2f(pad, pad);
    return inside;
}

void MXStaticFrame::populateGeometryBuffer()
{
    MXFramedWindow::populateGeometryBuffer();
    if (hasVisibleArea(*this))
        drawWindowText(*this, textArea(), d_horz.value, d_vert.value,
                       ColourRect(isEffectiveDisabled() ? MXLabel::DefaultDisabledTextColour
                                                        : MXLabel::DefaultNormalTextColour));
}

MXGroupBox::MXGroupBox(const String& type, const String& name) : MXFramedWindow(type, name)
{
    setSize(USize(cegui_absdim(200), cegui_absdim(120)));
    setBackgroundEnabled(false);
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXGroupBox, ColourRect, "NormalTextColour",
                          "Property to get/set the caption's colours." MOXIE_COLOURS_VALUE_HELP,
                          &MXGroupBox::setNormalTextColour, &MXGroupBox::getNormalTextColour,
                          ColourRect(DefaultCaptionColour));
    CEGUI_DEFINE_PROPERTY(
        MXGroupBox, ColourRect, "DisabledTextColour",
        "Property to get/set the caption's colours while disabled." MOXIE_COLOURS_VALUE_HELP,
        &MXGroupBox::setDisabledTextColour, &MXGroupBox::getDisabledTextColour,
        ColourRect(MXLabel::DefaultDisabledTextColour));
    // The stock skins define both names; one backdrop serves them.
    static const String backdropHelp = "Property to get/set the colours of a backdrop behind the "
                                       "caption; none until set." MOXIE_COLOURS_VALUE_HELP;
    static TplWindowProperty<MXGroupBox, ColourRect> backgroundText(
        "BackgroundTextColours", backdropHelp, WidgetTypeName, &MXGroupBox::setCaptionBackdrop,
        &MXGroupBox::getCaptionBackdrop, ColourRect(Colour(0x00000000)));
    static TplWindowProperty<MXGroupBox, ColourRect> textBackground(
        "TextBackground", backdropHelp, WidgetTypeName, &MXGroupBox::setCaptionBackdrop,
        &MXGroupBox::getCaptionBackdrop, ColourRect(Colour(0x00000000)));
    addProperty(&backgroundText);
    addProperty(&textBackground);
}

void MXGroupBox::setDisabledTextColour(const ColourRect& colours)
{
    d_disabledCaptionColour = colours;
    invalidate();
}

void MXGroupBox::setNormalTextColour(const ColourRect& colours)
{
    d_captionColour = colours;
    invalidate();
}

Rectf MXGroupBox::frameArea() const
{
    const Font* font = getFont();
    const float band = font && !getText().empty() ? std::floor(font->getLineSpacing() * 0.5f) : 0;
    return Rectf(0, band, getPixelSize().d_width, getPixelSize().d_height);
}

Rectf MXGroupBox::captionArea() const
{
    const Font* font = getFont();
    if (!font || getText().empty())
        return Rectf(0, 0, 0, 0);
    const float width = font->getTextExtent(getTextVisual()) + 2 * CaptionPadding;
    const float right = std::min(CaptionIndent + width, getPixelSize().d_width - CaptionIndent);
    return Rectf(CaptionIndent, 0, std::max(CaptionIndent, right), font->getLineSpacing());
}

void MXGroupBox::onTextChanged(WindowEventArgs& e)
{
    MXFramedWindow::onTextChanged(e);
    innerAreaChanged(); // the caption band moves it
}

void MXGroupBox::onFontChanged(WindowEventArgs& e)
{
    MXFramedWindow::onFontChanged(e);
    innerAreaChanged();
}

void MXGroupBox::populateGeometryBuffer()
{
    const Rectf caption = captionArea();
    // Without a caption, or without a frame to break, the plain framed window.
    if (caption.getWidth() <= 0 || !isFrameEnabled())
        MXFramedWindow::populateGeometryBuffer();
    if (!hasVisibleArea(*this) || caption.getWidth() <= 0)
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    const Rectf text(caption.left() + CaptionPadding, caption.top(),
                     caption.right() - CaptionPadding, caption.bottom());
    // A host's backdrop behind the caption, over whatever the frame drew there.
    auto backdrop = [&]
    {
        if (d_captionBackdrop)
            drawImage(buffer, *d_background, caption, nullptr, faded(*d_captionBackdrop, alpha));
    };
    if (!isFrameEnabled())
    {
        backdrop();
        return drawWindowText(*this, text, HorzTextFormat::Left, VertTextFormat::Centred,
                              captionColours());
    }
    // The frame's top edge breaks where the caption stands, whatever lies behind the box.
    const Rectf area = frameArea();
    if (isBackgroundEnabled())
        drawImage(buffer, *d_background, d_frame.innerRect(area), nullptr,
                  faded(getBackgroundColours(), alpha));
    d_frame.setSize(area.getSize());
    d_frame.setColours(faded(getFrameColours(), alpha));
    const float edgeBottom = area.top() + d_frame.pieceHeight(NinePieceFrame::Top);
    const Sizef size = getPixelSize();
    for (const Rectf& clip : {Rectf(0, 0, caption.left(), size.d_height),
                              Rectf(caption.right(), 0, size.d_width, size.d_height),
                              Rectf(caption.left(), edgeBottom, caption.right(), size.d_height)})
        d_frame.draw(buffer, area.d_min, &clip);
    backdrop();
    drawWindowText(*this, text, HorzTextFormat::Left, VertTextFormat::Centred, captionColours());
}

void MXGroupBox::setCaptionBackdrop(const ColourRect& colours)
{
    d_captionBackdrop = colours;
    invalidate();
}

ColourRect MXGroupBox::getCaptionBackdrop() const
{
    return d_captionBackdrop.value_or(ColourRect(Colour(0x00000000)));
}

// --- The tab control's panes ----------------------------------------------------------------

namespace
{
template <typename Pane>
void addPaneEdgeProperties(Pane& pane, uint top, uint bottom)
{
    static TplWindowProperty<Pane, uint> enableTop(
        "EnableTop", "Property to get/set whether the top edge is drawn. Value is 0 or 1.",
        Pane::WidgetTypeName, &Pane::setEnableTop, &Pane::getEnableTop, top);
    static TplWindowProperty<Pane, uint> enableBottom(
        "EnableBottom", "Property to get/set whether the bottom edge is drawn. Value is 0 or 1.",
        Pane::WidgetTypeName, &Pane::setEnableBottom, &Pane::getEnableBottom, bottom);
    pane.addProperty(&enableTop);
    pane.addProperty(&enableBottom);
}

// The inner area moved with an edge: the children follow, and the pane is drawn again.
void edgesChanged(Window& pane)
{
    pane.notifyScreenAreaChanged(true);
    // The cached inner rectangle is already fresh: tell the layout it changed.
    pane.performChildWindowLayout(false, true);
    pane.invalidate();
}
} // namespace

MXTabContentPane::MXTabContentPane(const String& type, const String& name)
    : RedrawnWhenUncovered<DefaultWindow>(type, name)
{
    StaticFrameImages::setCursorOf(*this);
    addPaneEdgeProperties(*this, 0, 1);
}

void MXTabContentPane::setEnableTop(uint enabled)
{
    if (std::exchange(d_top, enabled != 0) != (enabled != 0))
        edgesChanged(*this);
}

void MXTabContentPane::setEnableBottom(uint enabled)
{
    if (std::exchange(d_bottom, enabled != 0) != (enabled != 0))
        edgesChanged(*this);
}

Rectf MXTabContentPane::getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const
{
    return d_pieces.edges(d_top, d_bottom)
        .inside(skipAllPixelAlignment ? getUnclippedOuterRect().getFresh(true)
                                      : getUnclippedOuterRect().get());
}

void MXTabContentPane::populateGeometryBuffer()
{
    if (hasVisibleArea(*this))
        d_pieces.draw(getGeometryBuffer(), getPixelSize(), getEffectiveAlpha(), d_top, d_bottom);
}

MXTabButtonPane::MXTabButtonPane(const String& type, const String& name)
    : RedrawnWhenUncovered<DefaultWindow>(type, name), d_line(&lookImage(MXTabPane::LowerImageName))
{
    StaticFrameImages::setCursorOf(*this);
    addPaneEdgeProperties(*this, 0, 1);
}

void MXTabButtonPane::setEnableTop(uint enabled)
{
    if (std::exchange(d_top, enabled != 0) != (enabled != 0))
        invalidate();
}

void MXTabButtonPane::setEnableBottom(uint enabled)
{
    if (std::exchange(d_bottom, enabled != 0) != (enabled != 0))
        invalidate();
}

void MXTabButtonPane::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    const Sizef size = getPixelSize();
    const float height = std::min(BaseLineHeight, size.d_height);
    const ColourRect tint = withAlpha(ColourRect(MXTabPane::MiddleColour), getEffectiveAlpha());
    if (d_top)
        drawImage(getGeometryBuffer(), *d_line, Rectf(0, 0, size.d_width, height), nullptr, tint);
    if (d_bottom)
        drawImage(getGeometryBuffer(), *d_line,
                  Rectf(0, size.d_height - height, size.d_width, size.d_height), nullptr, tint);
}

} // namespace MoxieLook
} // namespace CEGUI
