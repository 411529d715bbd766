#include "looks/MXTitlebar.h"

#include "draw/Imagery.h"
#include "draw/TextDrawing.h"
#include "looks/MXFrameWindow.h"

#include <CEGUI/PropertyHelper.h>
#include <CEGUI/widgets/FrameWindow.h>

namespace CEGUI
{
namespace MoxieLook
{
const Colour MXTitlebar::ActiveTextColour(0x00FFFFFF);
const Colour MXTitlebar::InactiveTextColour(0x00F2F5F9);

MXTitlebar::MXTitlebar(const String& type, const String& name)
    : RedrawnWhenUncovered<Titlebar>(type, name),
      d_bar(ThreePieceBar::named(LeftImageName, MiddleImageName, RightImageName)),
      d_activeBar(
          ThreePieceBar::named(ActiveLeftImageName, ActiveMiddleImageName, ActiveRightImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXTitlebar, ColourRect, "CaptionColour",
                          "Property to get/set the caption's colours." MOXIE_COLOURS_VALUE_HELP,
                          &MXTitlebar::setCaptionColour, &MXTitlebar::getCaptionColour,
                          ColourRect(opaque(ActiveTextColour)));
}

void MXTitlebar::setCaptionColour(const ColourRect& colours)
{
    d_captionColour = colours;
    invalidate();
}

ColourRect MXTitlebar::getCaptionColour() const
{
    return d_captionColour.value_or(ColourRect(opaque(ActiveTextColour)));
}

float MXTitlebar::barHeight() const
{
    return d_bar.middle->getRenderedSize().d_height;
}

bool MXTitlebar::showsActive() const
{
    const Window* window = getParent();
    return window && window->isActive();
}

bool MXTitlebar::onFrameWindow() const
{
    return dynamic_cast<const FrameWindow*>(getParent()) != nullptr;
}

void MXTitlebar::onMouseMove(MouseEventArgs& e)
{
    onFrameWindow() ? Titlebar::onMouseMove(e) : Window::onMouseMove(e);
}

void MXTitlebar::onMouseButtonDown(MouseEventArgs& e)
{
    onFrameWindow() ? Titlebar::onMouseButtonDown(e) : Window::onMouseButtonDown(e);
}

void MXTitlebar::onMouseButtonUp(MouseEventArgs& e)
{
    onFrameWindow() ? Titlebar::onMouseButtonUp(e) : Window::onMouseButtonUp(e);
}

void MXTitlebar::onMouseDoubleClicked(MouseEventArgs& e)
{
    onFrameWindow() ? Titlebar::onMouseDoubleClicked(e) : Window::onMouseDoubleClicked(e);
}

void MXTitlebar::onCaptureLost(WindowEventArgs& e)
{
    onFrameWindow() ? Titlebar::onCaptureLost(e) : Window::onCaptureLost(e);
}

void MXTitlebar::onFontChanged(WindowEventArgs& e)
{
    onFrameWindow() ? Titlebar::onFontChanged(e) : Window::onFontChanged(e);
}

void MXTitlebar::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const float alpha = getEffectiveAlpha();
    const Rectf area(Vector2f(0, 0), getPixelSize());
    const bool active = showsActive();
    (active ? d_activeBar : d_bar)
        .draw(buffer, area, withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha));

    if (!getFont() || getText().empty())
        return;
    const Rectf text(area.left() + MXFrameWindow::TitlebarTextPadding, area.top(),
                     area.right() - ButtonRoom, area.bottom());
    drawText(*this, buffer, getRenderedString(), text, HorzTextFormat::Left,
             VertTextFormat::Centred,
             d_captionColour
                 ? faded(*d_captionColour, alpha)
                 : ColourRect(withAlpha(active ? ActiveTextColour : InactiveTextColour, alpha)),
             &text);
}

} // namespace MoxieLook
} // namespace CEGUI
