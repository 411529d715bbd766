#include "looks/MXTabControl.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"

#include <CEGUI/CoordConverter.h>
#include <CEGUI/Font.h>
#include <CEGUI/PropertyHelper.h>
#include <CEGUI/widgets/TabButton.h>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const char* MXTabControl::TabButtonType = "MoxieLook/TabButton";
const char* MXTabControl::TabContentPaneType = "MoxieLook/TabPane";

MXTabControl::MXTabControl(const String& type, const String& name)
    : RedrawnWhenUncovered<TabControl>(type, name), d_filler(&lookImage(FillerImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    setWindowRenderer(MXTabControlRenderer::TypeName);
    setTabTextPadding(cegui_absdim(TabTextPadding));
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXTabControl, String, "TabButtonType",
                          "Property to get/set the type of the tab buttons made from now on. "
                          "Value is a window type name.",
                          &MXTabControl::setTabButtonType, &MXTabControl::getTabButtonType,
                          TabButtonType);
}

void MXTabControl::initialiseComponents()
{
    if (!isChild(TabButtonPaneName))
        addChild(createAutoPart<Window>(ButtonPaneType, TabButtonPaneName,
                                        "a tab control's button row"));
    if (!isChild(ContentPaneName))
        addChild(createTabContentPane(ContentPaneName));
    TabControl::initialiseComponents();
}

TabButton* MXTabControl::createTabButton(const String& name) const
{
    return createAutoPart<TabButton>(getTabButtonType(), name, "a tab button");
}

Window* MXTabControl::createTabContentPane(const String& name) const
{
    return createAutoPart<Window>(TabContentPaneType, name, "a tab control's content pane");
}

float MXTabControl::buttonRowHeight() const
{
    const UDim height = getTabHeight();
    const Font* font = getFont();
    const float automatic = 8 + (font ? font->getFontHeight() : 0.0f);
    if (height.d_scale == 0 && height.d_offset == -1)
        return automatic;
    // Worked out here: CEGUI's own conversion turns a NaN into an int.
    const float pixels = height.d_scale * getPixelSize().d_height + height.d_offset;
    return std::isfinite(pixels) ? std::round(pixels) : automatic;
}

void MXTabControl::placePanes()
{
    const Sizef size = getPixelSize();
    const float row = std::min(buttonRowHeight(), size.d_height);
    const bool onTop = getTabPanePosition() == Top;
    getTabButtonPane()->setArea(
        UVector2(cegui_absdim(0), cegui_absdim(onTop ? 0 : size.d_height - row)),
        USize(cegui_absdim(size.d_width), cegui_absdim(row)));
    getTabPane()->setArea(UVector2(cegui_absdim(0), cegui_absdim(onTop ? row : 0)),
                          USize(cegui_absdim(size.d_width), cegui_absdim(size.d_height - row)));
}

void MXTabControl::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    if (!isChild(TabButtonPaneName) || !isChild(ContentPaneName))
    {
        // still being built
        Window::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
        return;
    }
    placePanes();
    TabControl::performChildWindowLayout(nonclientSizedHint, clientSizedHint);

    const Window* pane = getTabButtonPane();
    const Vector2f panePosition = pixelsOf(pane->getPosition(), getPixelSize());
    const Sizef paneSize = pane->getPixelSize();
    d_fillerSize = Sizef(paneSize.d_width, d_filler->getRenderedSize().d_height);
    d_fillerPosition =
        Vector3f(panePosition.d_x, panePosition.d_y + paneSize.d_height - d_fillerSize.d_height, 0);
    if (!d_tabButtonVector.empty())
    {
        const TabButton* last = d_tabButtonVector.back();
        const float x = last->getPixelSize().d_width + panePosition.d_x +
                        pixelsOf(last->getXPosition(), paneSize.d_width);
        d_fillerPosition.d_x = x;
        d_fillerSize.d_width -= x;
    }
    invalidate();
}

void MXTabControl::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    const ColourRect white = withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha());
    drawImage(getGeometryBuffer(), *d_filler,
              Rectf(Vector2f(d_fillerPosition.d_x, d_fillerPosition.d_y), d_fillerSize), nullptr,
              white);
}

TabButton* MXTabControlRenderer::createTabButton(const String& name) const
{
    if (!look())
        throw InvalidRequestException("The window renderer '" + getName() +
                                      "' has no tab control to make buttons for.");
    return look()->createTabButton(name);
}

} // namespace MoxieLook
} // namespace CEGUI
