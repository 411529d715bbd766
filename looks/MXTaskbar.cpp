#include "looks/MXTaskbar.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "draw/TextDrawing.h"
#include "widgets/ButtonDrawState.h"
#include "widgets/FrameWindowEx.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Font.h>
#include <CEGUI/ImageManager.h>
#include <CEGUI/Renderer.h>
#include <CEGUI/System.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
MXTaskbar::MXTaskbar(const String& type, const String& name)
    : Taskbar(type, name),
      d_bar(ThreePieceBar::named(LeftFrameImageName, MiddleFrameImageName, RightFrameImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    const Sizef display = System::getSingleton().getRenderer()->getDisplaySize();
    const float height = d_bar.left->getRenderedSize().d_height;
    setArea(UVector2(cegui_absdim(0), cegui_absdim(display.d_height - height)),
            USize(cegui_absdim(display.d_width), cegui_absdim(height)));
    setAlwaysOnTop(true);
}

void MXTaskbar::layoutButtons()
{
    Vector2f next = d_buttonOffset;
    const Vector2f origin = getUnclippedOuterRect().get().getPosition();
    d_entries.sort([](const Entry& a, const Entry& b) { return a.priority < b.priority; });
    for (const Entry& entry : d_entries)
    {
        if (!entry.window->isEffectiveVisible() && !entry.window->isMinimized())
        {
            entry.button->hide();
            continue;
        }
        entry.button->show();
        entry.button->setPosition(UVector2(cegui_absdim(next.d_x), cegui_absdim(next.d_y)));
        Rectf onScreen(next, entry.button->getPixelSize());
        onScreen.offset(origin);
        entry.window->setRectangleOnTaskbar(onScreen);
        next.d_x += entry.button->getPixelSize().d_width;
        entry.button->setSelected(entry.window->isActive());
    }
}

void MXTaskbar::notifyScreenAreaChanged(bool recursive)
{
    Taskbar::notifyScreenAreaChanged(recursive);
    tellButtonRectangles();
}

void MXTaskbar::tellButtonRectangles()
{
    const Vector2f origin = getUnclippedOuterRect().get().getPosition();
    for (const Entry& entry : d_entries)
        if (entry.button->isVisible())
        {
            Rectf onScreen(pixelsOf(entry.button->getPosition(), getPixelSize()),
                           entry.button->getPixelSize());
            onScreen.offset(origin);
            entry.window->setRectangleOnTaskbar(onScreen);
        }
}

void MXTaskbar::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    // Tiles only where the bar can be seen: a bar far wider than the display stays cheap.
    const Rectf visible = seenForDrawing();
    d_bar.draw(getGeometryBuffer(), Rectf(Vector2f(0, 0), getPixelSize()),
               withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha()), &visible, true);
}

const Colour MXTaskbarButton::EnabledTextLabelColour(0x00000000);
const Colour MXTaskbarButton::DisabledTextLabelColour(0x00888888);

MXTaskbarButton::MXTaskbarButton(const String& type, const String& name)
    : TaskbarButton(type, name), d_normal(&lookImage(NormalImageName)),
      d_hover(&lookImage(HighlightImageName)), d_mark(&lookImage(SelectMarkImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXTaskbarButton::setCustomBitmap(const String& imagesetName, const String& imageName)
{
    // All four are found before any is taken, so a missing one leaves the look as it was.
    ImageManager& images = ImageManager::getSingleton();
    const String base = imagesetName + "/" + imageName;
    const Image* normal = &images.get(base);
    const Image* hover = &images.get(base + "Focus");
    const Image* select = &images.get(base + "Select");
    const Image* selectHover = &images.get(base + "SelectFocus");
    d_customBitmap = true;
    d_normal = normal;
    d_hover = hover;
    d_select = select;
    d_selectHover = selectHover;
    setSize(USize(cegui_absdim(normal->getRenderedSize().d_width),
                  cegui_absdim(normal->getRenderedSize().d_height)));
    invalidate();
}

void MXTaskbarButton::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    switch (drawStateOf(*this))
    {
    case ButtonDrawState::Disabled:
        drawDisabled();
        break;
    case ButtonDrawState::Pushed:
        drawPushed();
        break;
    case ButtonDrawState::Hover:
        drawHover();
        break;
    default:
        drawNormal();
    }
}

void MXTaskbarButton::drawNormal()
{
    if (d_customBitmap)
        drawPicture(isSelected() ? d_select : d_normal, nullptr, EnabledTextLabelColour);
    else
        drawPicture(d_normal, isSelected() ? d_mark : nullptr, EnabledTextLabelColour);
}

void MXTaskbarButton::drawDisabled()
{
    if (d_customBitmap)
        drawPicture(isSelected() ? d_select : d_normal, nullptr, DisabledTextLabelColour);
    else
        drawPicture(d_normal, isSelected() ? d_mark : nullptr, DisabledTextLabelColour);
}

void MXTaskbarButton::drawHover()
{
    // A custom hover shows the selection a click would give.
    if (d_customBitmap)
        drawPicture(isSelected() ? d_hover : d_selectHover, nullptr, EnabledTextLabelColour);
    else
        drawPicture(d_hover, isSelected() ? d_mark : nullptr, EnabledTextLabelColour);
}

void MXTaskbarButton::drawPushed()
{
    if (d_customBitmap)
        drawPicture(isSelected() ? d_hover : d_selectHover, nullptr, EnabledTextLabelColour);
    else
        drawPicture(d_normal, isSelected() ? d_mark : nullptr, EnabledTextLabelColour);
}

void MXTaskbarButton::drawPicture(const Image* image, const Image* overlay,
                                  const Colour& textColour)
{
    GeometryBuffer& buffer = getGeometryBuffer();
    const Sizef area = getPixelSize();
    const float alpha = getEffectiveAlpha();
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), alpha);
    const Sizef normal = d_normal->getRenderedSize();
    const float y = std::trunc((area.d_height - normal.d_height) * 0.5f + 0.5f);
    drawImage(buffer, *image, Rectf(Vector2f(0, y), image->getRenderedSize()), nullptr, white);
    if (overlay)
        drawImage(buffer, *overlay, Rectf(Vector2f(0, y), overlay->getRenderedSize()), nullptr,
                  white);
    if (d_customBitmap || !getFont())
        return;
    const float textY = std::trunc((area.d_height - getFont()->getLineSpacing()) * 0.5f + 0.5f);
    drawText(*this, buffer, getRenderedString(),
             Rectf(normal.d_width + LabelPadding, textY, area.d_width, area.d_height),
             HorzTextFormat::Left, VertTextFormat::Top, ColourRect(withAlpha(textColour, alpha)),
             nullptr);
}

} // namespace MoxieLook
} // namespace CEGUI
