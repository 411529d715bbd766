#include "looks/MXDiagram.h"

#include "draw/Imagery.h"
#include "draw/MirroredImage.h"
#include "draw/QuadBatch.h"
#include "looks/AutoParts.h"
#include "widgets/StaticImage.h"
#include "widgets/StaticLayout.h"
#include "widgets/TextItem.h"

#include <CEGUI/WindowManager.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
// --- measurement ----------------------------------------------------------------------------

void MXMeasurement::draw(const Rectf& valueArea, const Rectf& pixelArea, bool superImposed)
{
    drawInterval(valueArea, pixelArea, superImposed, 0);
}

void MXMeasurement::drawInterval(const Rectf& v, const Rectf& p, bool stacked, int depth)
{
    Diagram& owner = *getOwner();
    const float y0 = owner.drawnValue(*this, v.left(), stacked);
    const float y1 = owner.drawnValue(*this, v.right(), stacked);

    // Crossing zero inside the interval: two halves, split where the line meets zero. (The
    // depth guard only stops a split of a split of ... that rounding could keep alive.)
    if (y0 * y1 < 0 && depth < 8)
    {
        const float t = y0 / (y0 - y1);
        const float vSplit = v.left() + t * v.getWidth();
        const float pSplit = p.left() + t * p.getWidth();
        drawInterval(Rectf(v.left(), v.top(), vSplit, v.bottom()),
                     Rectf(p.left(), p.top(), pSplit, p.bottom()), stacked, depth + 1);
        drawInterval(Rectf(vSplit, v.top(), v.right(), v.bottom()),
                     Rectf(pSplit, p.top(), p.right(), p.bottom()), stacked, depth + 1);
        return;
    }

    const float span = v.top() - v.bottom(); // y maximum - y minimum
    const float h = p.getHeight();
    const float q0 = p.bottom() - h * ((y0 - v.bottom()) / span);
    const float q1 = p.bottom() - h * ((y1 - v.bottom()) / span);
    const float qZero = p.bottom() - h * (-v.bottom() / span);
    const float d = std::fabs(y0) > std::fabs(y1) ? y0 : y1;

    Rectf base, cap;
    if (d >= 0)
    {
        base = Rectf(p.left(), std::max(q0, q1), p.right(), qZero);
        cap = Rectf(p.left(), std::min(q0, q1), p.right(), std::max(q0, q1));
    }
    else
    {
        // Below the zero line both are given upside down: the images are mirrored.
        base = Rectf(p.left(), std::min(q0, q1), p.right(), qZero);
        cap = Rectf(p.left(), std::max(q0, q1), p.right(), std::min(q0, q1));
    }
    if ((d >= 0 && y0 >= y1) || (d < 0 && y0 < y1))
        std::swap(cap.d_min.d_x, cap.d_max.d_x);

    // The host's colour keeps its own alpha, faded with the window.
    const ColourRect colours = faded(ColourRect(getColour()), owner.getEffectiveAlpha());
    const Rectf clip = owner.getGraphRect();
    GeometryBuffer& buffer = owner.getGeometryBuffer();
    renderMirrored(buffer, *d_base, base, &clip, colours);
    renderMirrored(buffer, *d_corner, cap, &clip, colours);
}

void MXMeasurement::drawColumns(const std::vector<Rectf>& areas, const Rectf& graph)
{
    Diagram& owner = *getOwner();
    const ColourRect colours = faded(ColourRect(getColour()), owner.getEffectiveAlpha());
    GeometryBuffer& buffer = owner.getGeometryBuffer();
    for (const Rectf& area : areas)
        renderMirrored(buffer, *d_base, area, &graph, colours);
}

Window* MXMeasurement::createLegendItem()
{
    WindowManager& windows = WindowManager::getSingleton();
    const String prefix = "__auto_" + getOwner()->getName() + getName();
    Window* item = windows.createWindow("DefaultWindow", prefix + "_legendItem");

    auto* icon = static_cast<StaticImage*>(createAutoPart<StaticImage>(
        "MoxieLook/StaticImage", prefix + "_legendIcon", "a legend icon"));
    icon->setImage(&lookImage(BaseImageName));
    icon->setImageColours(ColourRect(getColour()));
    icon->setVerticalAlignment(VA_CENTRE);
    icon->setSize(USize(cegui_absdim(24), cegui_absdim(24)));

    auto* text =
        createAutoPart<TextItem>("MoxieLook/TextItem", prefix + "_legendText", "a legend text");
    text->setVerticalAlignment(VA_CENTRE);
    text->setArea(UVector2(cegui_absdim(24), cegui_absdim(0)),
                  USize(cegui_absdim(100), cegui_absdim(24)));
    text->setText(getLegend());

    item->addChild(icon);
    item->addChild(text);
    return item;
}

// --- diagram --------------------------------------------------------------------------------

MXDiagram::MXDiagram(const String& type, const String& name) : Diagram(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
}

void MXDiagram::initialiseComponents()
{
    Diagram::initialiseComponents();
    d_frame.setImages({FrameTopLeftImageName, FrameTopRightImageName, FrameBottomLeftImageName,
                       FrameBottomRightImageName, FrameLeftImageName, FrameTopImageName,
                       FrameRightImageName, FrameBottomImageName});
}

Measurement* MXDiagram::createMeasurement(const String& name, const String& legend,
                                          const Colour& colour, unsigned index)
{
    return new MXMeasurement(name, legend, colour, index, this);
}

StaticLayout* MXDiagram::createLegendLayout()
{
    auto* layout = createAutoPart<StaticLayout>(
        "MoxieLook/StaticLayout", "__auto_LegendLayout_" + getName(), "a diagram's legend");
    layout->SetLayout(StaticLayout::GridLayout);
    layout->setFrameEnabled(false);
    return layout;
}

Scrollbar* MXDiagram::createVerticalScrollbar()
{
    return createAutoPart<Scrollbar>("MoxieLook/VerticalScrollbar",
                                     "__auto_vertScrollBar_" + getName(), "a diagram's scroll bar");
}

Scrollbar* MXDiagram::createHorizontalScrollbar()
{
    return createAutoPart<Scrollbar>("MoxieLook/HorizontalScrollbar",
                                     "__auto_horzScrollBar_" + getName(), "a diagram's scroll bar");
}

void MXDiagram::UpdateLegendLayout()
{
    StaticLayout* layout = getLegendLayout();
    if (!layout)
        return;
    const unsigned count = static_cast<unsigned>(layout->getChildCount());
    layout->SetGridSize(count ? count : 1, 1);
    layout->DoLayout();
}

void MXDiagram::drawMark(const Rectf& area)
{
    drawImage(getGeometryBuffer(), lookImage(MarkImageName), area, nullptr,
              ColourRect(withAlpha(Colour(0x00FF0000), getEffectiveAlpha())));
}

void MXDiagram::drawBackground()
{
    // The dark field under the graph and its labels: inside the frame, right of the legend.
    const Sizef own = getPixelSize();
    const Rectf field(LegendWidth + d_frame.pieceWidth(NinePieceFrame::Left),
                      d_frame.pieceHeight(NinePieceFrame::Top),
                      own.d_width - d_frame.pieceWidth(NinePieceFrame::Top),
                      own.d_height - d_frame.pieceHeight(NinePieceFrame::Bottom));
    drawImage(getGeometryBuffer(), lookImage(BackgroundImageName), field, nullptr,
              withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha()));
}

} // namespace MoxieLook
} // namespace CEGUI
