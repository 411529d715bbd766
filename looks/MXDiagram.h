// "MoxieLook/Diagram": columns of "DiagramBase" under a sloped "DiagramCorner" cap per
// sample interval in each measurement's colour (mirrored for falling values and below the
// zero line), red 1-pixel grid lines, white labels, on a dark field ("DiagramBackground")
// inside the "ButtonNormal..." frame; the legend at the left in a grid "MoxieLook/
// StaticLayout", "MoxieLook/HorizontalScrollbar" and "MoxieLook/VerticalScrollbar" 15
// pixels thick.
#pragma once

#include "draw/Imagery.h"
#include "looks/LookFactory.h"
#include "widgets/Diagram.h"

namespace CEGUI
{
namespace MoxieLook
{
class MXMeasurement : public Measurement
{
public:
    static constexpr char BaseImageName[] = "DiagramBase";
    static constexpr char CornerImageName[] = "DiagramCorner";

    using Measurement::Measurement;

    void draw(const Rectf& valueArea, const Rectf& pixelArea, bool superImposed) override;
    //! The base image alone: a column narrower than a pixel shows no slope.
    void drawColumns(const std::vector<Rectf>& areas, const Rectf& graph) override;
    Window* createLegendItem() override;

private:
    void drawInterval(const Rectf& valueArea, const Rectf& pixelArea, bool superImposed, int depth);

    const Image* d_base = &lookImage(BaseImageName);
    const Image* d_corner = &lookImage(CornerImageName);
};

class MXDiagram : public Diagram
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Diagram";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char FrameLeftImageName[] = "ButtonNormalLeft";
    static constexpr char FrameRightImageName[] = "ButtonNormalRight";
    static constexpr char FrameTopImageName[] = "ButtonNormalTop";
    static constexpr char FrameBottomImageName[] = "ButtonNormalBottom";
    static constexpr char FrameTopLeftImageName[] = "ButtonNormalTopLeft";
    static constexpr char FrameTopRightImageName[] = "ButtonNormalTopRight";
    static constexpr char FrameBottomLeftImageName[] = "ButtonNormalBottomLeft";
    static constexpr char FrameBottomRightImageName[] = "ButtonNormalBottomRight";
    static constexpr char BackgroundImageName[] = "DiagramBackground";
    static constexpr char MarkImageName[] = "DiagramBase";

    MXDiagram(const String& type, const String& name);

    void initialiseComponents() override;

protected:
    Measurement* createMeasurement(const String& name, const String& legend, const Colour& colour,
                                   unsigned index) override;
    StaticLayout* createLegendLayout() override;
    Scrollbar* createVerticalScrollbar() override;
    Scrollbar* createHorizontalScrollbar() override;
    void UpdateLegendLayout() override;
    void drawMark(const Rectf& area) override;
    void drawBackground() override;
};

using MXDiagramFactory = LookFactory<MXDiagram>;

} // namespace MoxieLook
} // namespace CEGUI
