#include "looks/MXScrollablePane.h"

#include "draw/Imagery.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"

#include <CEGUI/widgets/Scrollbar.h>

namespace CEGUI
{
namespace MoxieLook
{
const char* MXScrollablePane::VertScrollbarType = "MoxieLook/VerticalScrollbar";
const char* MXScrollablePane::HorzScrollbarType = "MoxieLook/HorizontalScrollbar";

MXScrollablePane::MXScrollablePane(const String& type, const String& name)
    : RedrawnWhenUncovered<ScrollablePane>(type, name),
      d_background(&lookImage(BackgroundImageName))
{
    d_frame.setImages({TopLeftFrameImageName, TopRightFrameImageName, BottomLeftFrameImageName,
                       BottomRightFrameImageName, LeftFrameImageName, TopFrameImageName,
                       RightFrameImageName, BottomFrameImageName});
    setMouseCursor(&lookImage(MouseCursorImageName));
    setWindowRenderer(MXScrollablePaneRenderer::TypeName);

    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXScrollablePane, bool, "FrameEnabled",
                          "Property to get/set whether the pane draws its frame. Value is "
                          "either \"True\" or \"False\".",
                          &MXScrollablePane::setFrameEnabled, &MXScrollablePane::isFrameEnabled,
                          true);
    CEGUI_DEFINE_PROPERTY(MXScrollablePane, bool, "BackgroundEnabled",
                          "Property to get/set whether the pane fills its background. Value is "
                          "either \"True\" or \"False\".",
                          &MXScrollablePane::setBackgroundEnabled,
                          &MXScrollablePane::isBackgroundEnabled, true);
}

void MXScrollablePane::setFrameEnabled(bool enabled)
{
    d_frameEnabled = enabled;
    performChildWindowLayout();
    invalidate();
}

void MXScrollablePane::setBackgroundEnabled(bool enabled)
{
    d_backgroundEnabled = enabled;
    invalidate();
}

void MXScrollablePane::initialiseComponents()
{
    // CEGUI's ScrollablePane finds its bars by these names.
    for (const auto& [name, type] :
         {std::pair<const String&, const char*>{VertScrollbarName, VertScrollbarType},
          {HorzScrollbarName, HorzScrollbarType}})
    {
        if (isChild(name))
            continue;
        Scrollbar* bar = createAutoPart<Scrollbar>(type, name, "a scrollable pane's scroll bar");
        // Bars sit inside the frame but outside the scrolled content's clipping.
        bar->setNonClient(true);
        addChild(bar);
    }
    ScrollablePane::initialiseComponents();
}

EdgeInsets MXScrollablePane::frameInsets() const
{
    if (!d_frameEnabled)
        return {};
    return {d_frame.pieceWidth(NinePieceFrame::Left), d_frame.pieceHeight(NinePieceFrame::Top),
            d_frame.pieceWidth(NinePieceFrame::Right), d_frame.pieceHeight(NinePieceFrame::Bottom)};
}

Rectf MXScrollablePane::viewableArea() const
{
    Rectf area = frameInsets().inside(Rectf(Vector2f(0, 0), getPixelSize()));
    const Window* vert = partOrNull(*this, VertScrollbarName);
    const Window* horz = partOrNull(*this, HorzScrollbarName);
    if (vert && vert->isVisible())
        area.d_max.d_x -= ScrollbarThickness;
    if (horz && horz->isVisible())
        area.d_max.d_y -= ScrollbarThickness;
    area.d_max.d_x = std::max(area.d_max.d_x, area.d_min.d_x);
    area.d_max.d_y = std::max(area.d_max.d_y, area.d_min.d_y);
    return area;
}

void MXScrollablePane::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    // CEGUI's pane configures its bars from a layout, and the layout notifies the content,
    // which configures the bars: with sizes that never compare equal (NaN) that would not
    // end. One layout at a time.
    if (d_layingOut)
        return;
    d_layingOut = true;
    struct Done
    {
        bool& flag;
        ~Done() { flag = false; }
    } done{d_layingOut};
    ScrollablePane::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    Window* vert = partOrNull(*this, VertScrollbarName);
    Window* horz = partOrNull(*this, HorzScrollbarName);
    if (!vert || !horz)
        return; // still being built

    const Rectf inner = frameInsets().inside(Rectf(Vector2f(0, 0), getPixelSize()));
    const float t = ScrollbarThickness;
    const float vertLength = inner.getHeight() - (horz->isVisible() ? t : 0);
    const float horzLength = inner.getWidth() - (vert->isVisible() ? t : 0);
    vert->setArea(UVector2(cegui_absdim(inner.right() - t), cegui_absdim(inner.top())),
                  USize(cegui_absdim(t), cegui_absdim(std::max(vertLength, 0.0f))));
    horz->setArea(UVector2(cegui_absdim(inner.left()), cegui_absdim(inner.bottom() - t)),
                  USize(cegui_absdim(std::max(horzLength, 0.0f)), cegui_absdim(t)));
}

void MXScrollablePane::populateGeometryBuffer()
{
    if (!hasVisibleArea(*this))
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const Rectf area(Vector2f(0, 0), getPixelSize());
    const ColourRect white = withAlpha(ColourRect(Colour(0xFFFFFFFF)), getEffectiveAlpha());
    if (d_backgroundEnabled)
        drawImage(buffer, *d_background, frameInsets().inside(area), nullptr, white);
    if (d_frameEnabled)
    {
        d_frame.setSize(area.getSize());
        d_frame.setColours(white);
        d_frame.draw(buffer, area.d_min, nullptr);
    }
}

Rectf MXScrollablePaneRenderer::getUnclippedInnerRect() const
{
    if (!look())
        return d_window->getUnclippedOuterRect().get();
    Rectf area = look()->viewableArea();
    area.offset(d_window->getUnclippedOuterRect().get().d_min);
    return area;
}

} // namespace MoxieLook
} // namespace CEGUI
