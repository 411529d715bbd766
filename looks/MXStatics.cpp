#include "looks/MXStatics.h"

#include "draw/Imagery.h"
#include "looks/AutoParts.h"
#include "looks/InnerBars.h"
#include "looks/PartLinkProperty.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <algorithm>

namespace CEGUI
{
namespace MoxieLook
{
void StaticFrameImages::applyTo(Static& target)
{
    target.setFrameImages(&lookImage(TopLeftImage), &lookImage(TopRightImage),
                          &lookImage(BottomLeftImage), &lookImage(BottomRightImage),
                          &lookImage(LeftImage), &lookImage(TopImage), &lookImage(RightImage),
                          &lookImage(BottomImage));
    target.setBackgroundImage(&lookImage(BackgroundImage));
    setCursorOf(target);
}

void StaticFrameImages::setCursorOf(Window& target)
{
    target.setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXStaticLayout::initialiseComponents()
{
    StaticLayout::initialiseComponents();
    applyTo(*this);
    setFrameEnabled(true);
    setBackgroundEnabled(false);
}

MXStaticText::MXStaticText(const String& type, const String& name) : StaticText(type, name)
{
    applyTo(*this);
    addScrollProperties();
}

void MXStaticText::initialiseComponents()
{
    StaticText::initialiseComponents();
    // A static from a layout file may bring its bars already.
    const std::pair<const char*, const char*> bars[] = {{VertScrollbarName, VertScrollbarType},
                                                        {HorzScrollbarName, HorzScrollbarType}};
    for (const auto& [name, type] : bars)
        if (!isChild(name))
        {
            auto* bar = createAutoPart<Scrollbar>(type, name, "a static text's scroll bar");
            bar->setNonClient(true);
            bar->hide();
            addChild(bar);
        }
    d_vertScrolled = getVertScrollbar()->subscribeEvent(Scrollbar::EventScrollPositionChanged,
                                                        [this] { invalidate(); });
    d_horzScrolled = getHorzScrollbar()->subscribeEvent(Scrollbar::EventScrollPositionChanged,
                                                        [this] { invalidate(); });
}

Rectf MXStaticText::contentArea() const
{
    return localInnerRect();
}

void MXStaticText::onTextChanged(WindowEventArgs& e)
{
    StaticText::onTextChanged(e);
    configureScrollbars(contentArea());
}

void MXStaticText::onFontChanged(WindowEventArgs& e)
{
    StaticText::onFontChanged(e);
    configureScrollbars(contentArea());
}

void MXStaticText::onSized(ElementEventArgs& e)
{
    StaticText::onSized(e);
    configureScrollbars(contentArea());
}

Scrollbar* MXStaticText::getVertScrollbar() const
{
    return static_cast<Scrollbar*>(partOrNull(*this, VertScrollbarName));
}

Scrollbar* MXStaticText::getHorzScrollbar() const
{
    return static_cast<Scrollbar*>(partOrNull(*this, HorzScrollbarName));
}

void MXStaticText::setVertScrollbarEnabled(bool enabled)
{
    d_vertEnabled = enabled;
    configureScrollbars(contentArea());
    invalidate();
}

void MXStaticText::setHorzScrollbarEnabled(bool enabled)
{
    d_horzEnabled = enabled;
    configureScrollbars(contentArea());
    invalidate();
}

void MXStaticText::addScrollProperties()
{
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXStaticText, bool, "VertScrollbar",
                          "Property to get/set whether a vertical scroll bar shows when the "
                          "text is taller than the static. Value is either \"True\" or "
                          "\"False\".",
                          &MXStaticText::setVertScrollbarEnabled,
                          &MXStaticText::isVertScrollbarEnabled, false);
    CEGUI_DEFINE_PROPERTY(MXStaticText, bool, "HorzScrollbar",
                          "Property to get/set whether a horizontal scroll bar shows when the "
                          "text is wider than the static. Value is either \"True\" or "
                          "\"False\".",
                          &MXStaticText::setHorzScrollbarEnabled,
                          &MXStaticText::isHorzScrollbarEnabled, false);
    // The bars' own values under the names CEGUI's skins link them by.
    auto link = [](const char* name, const char* bar, const char* target)
    {
        return PartLinkProperty(name,
                                String("Property to get/set the scroll bar's ") + target + ".", bar,
                                target, "float", WidgetTypeName, "", "", false);
    };
    static PartLinkProperty links[] = {
        link("VertScrollPosition", VertScrollbarName, "ScrollPosition"),
        link("VertScrollPageSize", VertScrollbarName, "PageSize"),
        link("VertScrollDocumentSize", VertScrollbarName, "DocumentSize"),
        link("HorzScrollPosition", HorzScrollbarName, "ScrollPosition"),
        link("HorzScrollPageSize", HorzScrollbarName, "PageSize"),
        link("HorzScrollDocumentSize", HorzScrollbarName, "DocumentSize")};
    for (PartLinkProperty& bar : links)
        addProperty(&bar);
}

Rectf MXStaticText::configureScrollbars(const Rectf& inner)
{
    Scrollbar* vert = getVertScrollbar();
    Scrollbar* horz = getHorzScrollbar();
    if (!vert || !horz)
        return inner;
    if (!getFont() || (!d_vertEnabled && !d_horzEnabled))
    {
        vert->hide();
        horz->hide();
        return inner;
    }
    const float t = InnerBarThickness;
    // The text's size in the area left beside the bars: a shown bar narrows the other way.
    Sizef text =
        measureText(*this, getRenderedString(), inner.getWidth(), getHorizontalFormatting());
    const bool needVert = d_vertEnabled && text.d_height > inner.getHeight();
    if (needVert)
        text = measureText(*this, getRenderedString(), std::max(0.0f, inner.getWidth() - t),
                           getHorizontalFormatting());
    const bool needHorz = d_horzEnabled && text.d_width > inner.getWidth() - (needVert ? t : 0.0f);
    vert->setVisible(needVert);
    horz->setVisible(needHorz);
    const Rectf area = areaBesideInnerBars(inner, vert, horz);
    vert->setDocumentSize(text.d_height);
    vert->setPageSize(area.getHeight());
    vert->setStepSize(std::max(1.0f, area.getHeight() / 10.0f));
    vert->setScrollPosition(needVert ? vert->getScrollPosition() : 0.0f);
    horz->setDocumentSize(text.d_width);
    horz->setPageSize(area.getWidth());
    horz->setStepSize(std::max(1.0f, area.getWidth() / 10.0f));
    horz->setScrollPosition(needHorz ? horz->getScrollPosition() : 0.0f);
    layOutInnerBars(vert, horz, inner);
    return area;
}

void MXStaticText::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    StaticText::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    invalidate(); // the bars follow the text at the next draw
}

void MXStaticText::drawContent(GeometryBuffer& buffer, const Rectf& inner)
{
    const Rectf area = configureScrollbars(inner);
    if ((!d_vertEnabled && !d_horzEnabled) || !getVertScrollbar() || !getHorzScrollbar())
        return StaticText::drawContent(buffer, inner);
    // Scrolled: the text moves under an area that clips it.
    Rectf moved = area;
    moved.offset(Vector2f(-getHorzScrollbar()->getScrollPosition(),
                          -getVertScrollbar()->getScrollPosition()));
    // Laid out over the whole document, so that right-aligned or centred lines overflow to
    // the right, where the horizontal bar scrolls.
    moved.d_max.d_x =
        std::max(moved.d_max.d_x, moved.left() + getHorzScrollbar()->getDocumentSize());
    moved.d_max.d_y =
        std::max(moved.d_max.d_y, moved.top() + getVertScrollbar()->getDocumentSize());
    if (getFont())
        drawText(*this, buffer, getRenderedString(), moved, getHorizontalFormatting(),
                 getVerticalFormatting(), faded(getTextColours(), getEffectiveAlpha()), &area);
}

void MXStaticText::onMouseWheel(MouseEventArgs& e)
{
    StaticText::onMouseWheel(e);
    Scrollbar* vert = getVertScrollbar();
    Scrollbar* horz = getHorzScrollbar();
    if (vert && vert->isVisible())
        vert->setScrollPosition(vert->getScrollPosition() + vert->getStepSize() * -e.wheelChange);
    else if (horz && horz->isVisible())
        horz->setScrollPosition(horz->getScrollPosition() + horz->getStepSize() * -e.wheelChange);
    ++e.handled;
}

MXStaticImage::MXStaticImage(const String& type, const String& name) : StaticImage(type, name)
{
    applyTo(*this);
    setFrameEnabled(false);
    setBackgroundEnabled(false);
}

MXStaticImageEx::MXStaticImageEx(const String& type, const String& name) : StaticImageEx(type, name)
{
    // Draws exactly as "MoxieLook/StaticImage" until extra images are added.
    applyTo(*this);
    setFrameEnabled(false);
    setBackgroundEnabled(false);
}

MXAnimatedStaticImage::MXAnimatedStaticImage(const String& type, const String& name)
    : AnimatedStaticImage(type, name)
{
    applyTo(*this);
    setFrameEnabled(false);
    setBackgroundEnabled(false);
}

MXTextItem::MXTextItem(const String& type, const String& name) : TextItem(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

MXTextItemEx::MXTextItemEx(const String& type, const String& name) : TextItemEx(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setSelectionBrush(&lookImage(SelectionBrushImageName));
    setHoverBrush(&lookImage(HoverBrushImageName));
}

} // namespace MoxieLook
} // namespace CEGUI
