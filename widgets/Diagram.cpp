#include "widgets/Diagram.h"

#include "draw/GlyphRun.h"
#include "draw/Imagery.h"
#include "widgets/StaticLayout.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/widgets/Scrollbar.h>
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace CEGUI
{
namespace MoxieLook
{
// --- Measurement ----------------------------------------------------------------------------

Measurement::Measurement(const String& name, const String& legend, const Colour& colour,
                         unsigned index, Diagram* owner)
    : d_name(name), d_legend(legend), d_colour(colour), d_index(index), d_owner(owner)
{
}

void Measurement::initialise()
{
    d_legendItem = createLegendItem();
}

float Measurement::valueBefore(std::map<float, float>::const_iterator next, float x) const
{
    // `next` is the first key not below x: x itself (as the map compares), or the next key.
    if (next != d_values.end() && !(x < next->first))
        return next->second;
    // Outside the keys the value is 0.
    if (next == d_values.end() || next == d_values.begin())
        return 0.0f;
    const auto prev = std::prev(next);
    const float r =
        (next->second - prev->second) * ((x - prev->first) / (next->first - prev->first)) +
        prev->second;
    return static_cast<float>(std::ceil(r * 100.0) * 0.01);
}

float Measurement::getValue(float x) const
{
    return valueBefore(d_values.lower_bound(x), x);
}

void Measurement::getValues(const std::vector<float>& ascending, std::vector<float>& out) const
{
    // One pass along the keys instead of a search per x.
    out.resize(ascending.size());
    auto next = d_values.begin();
    for (std::size_t i = 0; i < ascending.size(); ++i)
    {
        const float x = ascending[i];
        while (next != d_values.end() && next->first < x)
            ++next;
        out[i] = valueBefore(next, x);
    }
}

float Measurement::getStackedValue(float x) const
{
    float value = getValue(x);
    if (d_index > 0 && d_owner && d_index - 1 < d_owner->getModel().measurements.size())
        value += d_owner->getModel().measurements[d_index - 1]->getStackedValue(x);
    return value;
}

float Measurement::getYMin(bool stacked) const
{
    float lowest = 0.0f;
    for (const auto& [x, y] : d_values)
        lowest = std::min(lowest, stacked ? getStackedValue(x) : y);
    return lowest;
}

float Measurement::getYMax(bool stacked) const
{
    float highest = 0.0f;
    for (const auto& [x, y] : d_values)
        highest = std::max(highest, stacked ? getStackedValue(x) : y);
    return highest;
}

void Measurement::setValue(float x, float y)
{
    d_xMax = std::max(d_xMax, x);
    d_xMin = std::min(d_xMin, x);
    d_values[x] = y;
}

void Measurement::clear()
{
    d_xMin = d_xMax = 0.0f;
    d_values.clear();
    if (d_owner)
        d_owner->dataChanged();
}

Measurement* DiagramModel::find(const String& name) const
{
    for (const auto& measurement : measurements)
        if (measurement->getName() == name)
            return measurement.get();
    return nullptr;
}

// --- Diagram: data ------------------------------------------------------------------------

Diagram::Diagram(const String& type, const String& name) : RedrawnWhenUncovered<Window>(type, name)
{
}

Measurement& Diagram::measurementNamed(const String& name, const char* message) const
{
    Measurement* measurement = d_model.find(name);
    if (!measurement)
        throw UnknownMeasurement(message);
    return *measurement;
}

void Diagram::dataChanged()
{
    d_rangesValid = false;
    d_samples.valid = false;
    invalidate();
}

void Diagram::widenX(float x)
{
    if (std::isnan(x))
        throw InvalidRequestException("A diagram's x values must be numbers.");
    d_model.xMax = std::max(d_model.xMax, x);
    d_model.xMin = std::min(d_model.xMin, x);
}

void Diagram::addMeasurement(const String& name, const String& legend, const Colour& colour)
{
    if (d_model.find(name))
        throw AlreadyExistsException("Exception : measurements names must be unique.");
    std::shared_ptr<Measurement> measurement(createMeasurement(
        name, legend, colour, static_cast<unsigned>(d_model.measurements.size())));
    d_model.measurements.push_back(measurement);
    measurement->initialise();
    if (d_legendLayout && measurement->getLegendItem())
        d_legendLayout->addChild(measurement->getLegendItem());
    UpdateLegendLayout();
    dataChanged();
}

void Diagram::setValue(const String& name, float x, float y)
{
    widenX(x); // before the name is checked
    Measurement& measurement =
        measurementNamed(name, "Exception : trying to set a value in an unknown measurement.");
    measurement.setValue(x, y);
    dataChanged();
}

float Diagram::getValue(const String& name, float x) const
{
    return measurementNamed(name, "Exception : trying to get a value from an unknown measurement.")
        .getValue(x);
}

void Diagram::clearValues(const String& name)
{
    std::swap(d_model.xMin, d_model.xMax);
    for (const auto& measurement : d_model.measurements)
    {
        if (measurement->getName() == name)
            measurement->clear();
        else
        {
            d_model.xMin = std::min(d_model.xMin, measurement->getXMin());
            d_model.xMax = std::max(d_model.xMax, measurement->getXMax());
        }
    }
    d_rangesValid = false;
    d_samples.valid = false;
}

void Diagram::setXLabel(const String& text, float x)
{
    widenX(x);
    const Font* font = getFont();
    d_model.xLabelHeight = font ? font->getLineSpacing() + font->getBaseline() : 0.0f;
    d_model.xLabels[x] = text;
    dataChanged();
}

void Diagram::setYLabel(const String& text, float y)
{
    if (std::isnan(y))
        throw InvalidRequestException("A diagram's y labels must stand at numbers.");
    const Font* font = getFont();
    d_model.yLabelWidth = std::max(d_model.yLabelWidth, font ? glyphExtent(*font, text) : 0.0f);
    d_model.yLabels[y] = text;
    dataChanged();
}

void Diagram::clearXLabels()
{
    d_model.xLabels.clear();
    d_model.xLabelHeight = 0.0f;
    dataChanged();
}

void Diagram::clearYLabels()
{
    d_model.yLabels.clear();
    d_model.yLabelWidth = 0.0f;
    dataChanged();
}

void Diagram::setXMark(float x)
{
    widenX(x);
    d_model.xMarks.push_back(x);
    invalidate();
}

void Diagram::setYMark(float y)
{
    d_model.yMarks.push_back(y);
    invalidate();
}

void Diagram::clearXMarks()
{
    d_model.xMarks.clear();
    invalidate();
}

void Diagram::clearYMarks()
{
    d_model.yMarks.clear();
    invalidate();
}

float Diagram::getXMin() const
{
    float lowest = d_model.xMin;
    if (!d_model.xLabels.empty())
        lowest = std::min(lowest, d_model.xLabels.begin()->first);
    return lowest;
}

float Diagram::getXMax() const
{
    float highest = d_model.xMax;
    if (!d_model.xLabels.empty())
        highest = std::max(highest, d_model.xLabels.rbegin()->first);
    return highest;
}

void Diagram::computeRanges() const
{
    for (int stacked = 0; stacked < 2; ++stacked)
    {
        float lowest = 0.0f, highest = 0.0f;
        for (const auto& measurement : d_model.measurements)
        {
            lowest = std::min(lowest, measurement->getYMin(stacked != 0));
            highest = std::max(highest, measurement->getYMax(stacked != 0));
        }
        if (!d_model.yLabels.empty())
        {
            lowest = std::min(lowest, d_model.yLabels.begin()->first);
            highest = std::max(highest, d_model.yLabels.rbegin()->first);
        }
        d_yRange[stacked][0] = lowest;
        d_yRange[stacked][1] = highest;
    }
    d_rangesValid = true;
}

float Diagram::getYMin(bool superImposed) const
{
    if (!d_rangesValid)
        computeRanges();
    return d_yRange[superImposed ? 1 : 0][0];
}

float Diagram::getYMax(bool superImposed) const
{
    if (!d_rangesValid)
        computeRanges();
    return d_yRange[superImposed ? 1 : 0][1];
}

void Diagram::setSuperImposed(bool superImposed)
{
    d_model.superImposed = superImposed;
    invalidate();
}

void Diagram::setUnitPixelSize(const Sizef& size)
{
    d_model.unitPixelSize = size;
    updateScrollbars();
    invalidate();
}

void Diagram::setColumnMerging(bool merging)
{
    d_columnMerging = merging;
    invalidate();
}

void Diagram::setStep(float step)
{
    if (!(step > 0.0f) || !std::isfinite(step))
        throw InvalidRequestException("A diagram's step must be a positive number.");
    d_model.step = step;
    invalidate();
}

const Measurement* Diagram::getMeasurement(unsigned index) const
{
    if (index >= d_model.measurements.size())
        throw InvalidRequestException("The diagram has no measurement " +
                                      PropertyHelper<uint>::toString(index) + ".");
    return d_model.measurements[index].get();
}

void Diagram::getMeasurements(std::vector<String>& out) const
{
    for (const auto& measurement : d_model.measurements)
        out.push_back(measurement->getName());
}

float Diagram::drawnValue(const Measurement& measurement, float x, bool stacked) const
{
    if (!d_memoActive)
        return stacked ? measurement.getStackedValue(x) : measurement.getValue(x);
    // Every measurement meets the same interval ends: their values at an end are looked
    // up once per draw, and summed once for stacking.
    auto [at, added] = d_valuesAt.try_emplace(x);
    ValuesAt& memo = at->second;
    if (added)
    {
        float sum = 0.0f;
        for (const auto& m : d_model.measurements)
        {
            const float value = m->getValue(x);
            sum = memo.stacked.empty() ? value : value + memo.stacked.back();
            memo.plain.push_back(value);
            memo.stacked.push_back(sum);
        }
    }
    const std::size_t index = measurement.getIndex();
    if (index >= memo.plain.size())
        return stacked ? measurement.getStackedValue(x) : measurement.getValue(x);
    return (stacked ? memo.stacked : memo.plain)[index];
}

namespace
{
// The power of two of a float's lowest set bit (a large number for 0).
int lowestBit(float value)
{
    if (value == 0.0f)
        return 1000;
    int exponent = 0;
    const double mantissa = std::frexp(static_cast<double>(value), &exponent);
    auto bits = static_cast<std::uint32_t>(std::fabs(mantissa) * 16777216.0); // 24 bits
    int zeros = 0;
    while ((bits & 1u) == 0 && zeros < 24)
    {
        bits >>= 1;
        ++zeros;
    }
    return exponent - 24 + zeros;
}

// Whether start + step + step + ... stays exact in floats up to `end`: then interval k
// begins at start + k x step, and the walk may jump there.
bool exactSteps(float start, float step, float end)
{
    if (!std::isfinite(start) || !std::isfinite(step) || !std::isfinite(end))
        return false;
    const int grain = std::min(lowestBit(start), lowestBit(step));
    const double largest =
        std::max(std::fabs(static_cast<double>(start)), std::fabs(static_cast<double>(end))) +
        std::fabs(static_cast<double>(step));
    return largest < std::ldexp(1.0, grain + 24);
}
} // namespace

// --- Diagram: geometry and drawing ----------------------------------------------------------

void Diagram::initialiseComponents()
{
    RedrawnWhenUncovered<Window>::initialiseComponents();
    d_legendLayout = createLegendLayout();
    d_legendLayout->setSize(USize(cegui_absdim(LegendWidth), cegui_reldim(1.0f)));
    d_legendLayout->setMaxSize(USize(cegui_absdim(LegendWidth), cegui_absdim(10000)));
    d_legendLayout->setMinSize(USize(cegui_absdim(LegendWidth), cegui_absdim(0)));

    d_horzScrollbar = createHorizontalScrollbar();
    d_horzScrollbar->setMaxSize(USize(cegui_absdim(10000), cegui_absdim(ScrollsThickness)));
    d_horzScrollbar->setMinSize(USize(cegui_absdim(0), cegui_absdim(ScrollsThickness)));
    d_vertScrollbar = createVerticalScrollbar();
    d_vertScrollbar->setMaxSize(USize(cegui_absdim(ScrollsThickness), cegui_absdim(10000)));
    d_vertScrollbar->setMinSize(USize(cegui_absdim(ScrollsThickness), cegui_absdim(0)));

    d_horzScrollbar->subscribeEvent(Scrollbar::EventScrollPositionChanged,
                                    Event::Subscriber(&Diagram::OnGraphScrolled, this));
    d_vertScrollbar->subscribeEvent(Scrollbar::EventScrollPositionChanged,
                                    Event::Subscriber(&Diagram::OnGraphScrolled, this));
    addChild(d_legendLayout);
    addChild(d_vertScrollbar);
    addChild(d_horzScrollbar);
    updateScrollbars();
}

bool Diagram::OnGraphScrolled(const EventArgs&)
{
    invalidate();
    return true;
}

void Diagram::UpdateLegendLayout()
{
    if (d_legendLayout)
        d_legendLayout->DoLayout();
}

Rectf Diagram::getGraphRect() const
{
    const Sizef own = getPixelSize();
    Rectf graph(0, 0, own.d_width, own.d_height);
    graph.d_min.d_y += d_model.xLabelHeight;
    graph.d_min.d_x += d_model.yLabelWidth + LegendWidth;
    if (d_frame.getImage(NinePieceFrame::TopLeft))
    {
        // The right inset is the top edge's width and the top inset the right edge's
        // height: kept so.
        graph.d_min.d_x += d_frame.pieceWidth(NinePieceFrame::Left);
        graph.d_max.d_x -= d_frame.pieceWidth(NinePieceFrame::Top);
        graph.d_min.d_y += d_frame.pieceHeight(NinePieceFrame::Right);
        graph.d_max.d_y -= d_frame.pieceHeight(NinePieceFrame::Bottom);
    }
    if (d_vertScrollbar && d_vertScrollbar->isVisible())
        graph.d_max.d_x -= d_vertScrollbar->getPixelSize().d_width;
    if (d_horzScrollbar && d_horzScrollbar->isVisible())
        graph.d_max.d_y -= d_horzScrollbar->getPixelSize().d_height;
    return graph;
}

Sizef Diagram::getUnitSize() const
{
    Sizef unit = d_model.unitPixelSize;
    const Rectf graph = getGraphRect();
    if (!(unit.d_width > 0))
    {
        const float span = d_model.xMax - d_model.xMin;
        unit.d_width = span != 0 ? graph.getWidth() / span : 0.0f;
    }
    if (!(unit.d_height > 0))
    {
        const float span = getYMax() - getYMin();
        unit.d_height = span != 0 ? graph.getHeight() / span : 0.0f;
    }
    return unit;
}

bool Diagram::isHorzScrollNeeded() const
{
    return (d_model.xMax - d_model.xMin) * getUnitSize().d_width - getGraphRect().getWidth() >=
           1.0f;
}

bool Diagram::isVertScrollNeeded() const
{
    return (getYMax() - getYMin()) * getUnitSize().d_height - getGraphRect().getHeight() >= 1.0f;
}

void Diagram::updateScrollbars()
{
    if (!d_horzScrollbar || !d_vertScrollbar)
        return;
    d_vertScrollbar->setVisible(isVertScrollNeeded());
    d_horzScrollbar->setVisible(isHorzScrollNeeded());
    // The horizontal bar took height: the vertical one may be needed now.
    if (d_horzScrollbar->isVisible() && !d_vertScrollbar->isVisible())
        d_vertScrollbar->setVisible(isVertScrollNeeded());
    for (Scrollbar* bar : {d_horzScrollbar, d_vertScrollbar})
        bar->setScrollPosition(bar->isVisible() ? bar->getScrollPosition() : 0.0f);

    const Rectf graph = getGraphRect();
    const Sizef unit = getUnitSize();
    d_horzScrollbar->setPosition(
        UVector2(cegui_absdim(graph.left()), cegui_absdim(graph.bottom())));
    d_vertScrollbar->setPosition(UVector2(cegui_absdim(graph.right()), cegui_absdim(graph.top())));
    const float vertWidth =
        d_vertScrollbar->isVisible() ? d_vertScrollbar->getPixelSize().d_width : 0.0f;
    d_horzScrollbar->setSize(USize(cegui_absdim(graph.getWidth() + vertWidth),
                                   cegui_absdim(d_horzScrollbar->getPixelSize().d_height)));
    d_vertScrollbar->setSize(USize(cegui_absdim(d_vertScrollbar->getPixelSize().d_width),
                                   cegui_absdim(graph.getHeight())));
    d_horzScrollbar->setDocumentSize((d_model.xMax - d_model.xMin) * unit.d_width);
    d_vertScrollbar->setDocumentSize((getYMax() - getYMin()) * unit.d_height);
    d_horzScrollbar->setPageSize(d_horzScrollbar->getPixelSize().d_width);
    d_vertScrollbar->setPageSize(d_vertScrollbar->getPixelSize().d_height);
}

Vector2f Diagram::GetPixelFromValue(const Vector2f& value) const
{
    const Rectf graph = getGraphRect();
    const Sizef unit = getUnitSize();
    Vector2f p = graph.d_min;
    if (d_horzScrollbar && d_horzScrollbar->isVisible())
        p.d_x -= d_horzScrollbar->getScrollPosition();
    if (d_vertScrollbar && d_vertScrollbar->isVisible())
        p.d_y -= d_vertScrollbar->getScrollPosition();
    p.d_x += value.d_x * unit.d_width;
    p.d_y += (getYMax() - value.d_y) * unit.d_height;
    return p;
}

void Diagram::populateGeometryBuffer()
{
    d_drawnIntervals = 0;
    if (!hasVisibleArea(*this))
        return;
    drawBackground();
    updateScrollbars();
    const Rectf graph = getGraphRect();
    const Sizef unit = getUnitSize();
    drawLabels(graph);
    drawMeasurements(graph, unit, getYMax(), getYMin());
    for (float x : d_model.xMarks)
    {
        const Vector2f p = GetPixelFromValue(Vector2f(x, 0));
        drawMark(Rectf(p.d_x, graph.top(), p.d_x + 1.0f, graph.bottom()));
    }
    for (float y : d_model.yMarks)
    {
        const Vector2f p = GetPixelFromValue(Vector2f(0, y));
        drawMark(Rectf(graph.left(), p.d_y, graph.right(), p.d_y + 1.0f));
    }
    drawFrame();
}

void Diagram::drawLabels(const Rectf& graph)
{
    const Font* font = getFont();
    if (!font)
        return;
    GeometryBuffer& buffer = getGeometryBuffer();
    const ColourRect white(withAlpha(Colour(0x00FFFFFF), getEffectiveAlpha()));
    const float labelTop = graph.top() - d_model.xLabelHeight;
    const Rectf xBand(graph.left() - d_model.yLabelWidth, labelTop, graph.right(), graph.top());
    for (const auto& [x, text] : d_model.xLabels)
    {
        // Centred in a box of twice the legend's width.
        const float centre = GetPixelFromValue(Vector2f(x, 0)).d_x;
        drawGlyphs(buffer, *font, text,
                   Vector2f(centre - glyphExtent(*font, text) * 0.5f, labelTop), &xBand, white);
    }
    const Rectf yColumn(graph.left() - d_model.yLabelWidth, labelTop, graph.left(), graph.bottom());
    for (const auto& [y, text] : d_model.yLabels)
    {
        // Right-aligned in a box 20 pixels high centred on the value.
        const float top = GetPixelFromValue(Vector2f(0, y)).d_y - 10.0f;
        drawGlyphs(buffer, *font, text, Vector2f(graph.left() - glyphExtent(*font, text), top),
                   &yColumn, white);
    }
}

void Diagram::drawMeasurements(const Rectf& graph, const Sizef& unit, float yMax, float yMin)
{
    const float xEnd = getXMax();
    const float hScroll = d_horzScrollbar ? d_horzScrollbar->getScrollPosition() : 0.0f;
    const float vScroll = d_vertScrollbar ? d_vertScrollbar->getScrollPosition() : 0.0f;
    const float step = d_model.step;
    const float width = unit.d_width;
    const float firstLeft = graph.left() - hScroll;
    if (!(width > 0))
        return; // intervals of no width: nothing can be seen
    if (width < 1.0f && d_columnMerging)
    {
        drawMergedColumns(graph, unit, yMax, yMin, xEnd, firstLeft, vScroll);
        return;
    }

    // Intervals wholly left of the graph are clipped away: skip them, by a jump when the
    // walk's sums are exact (then the jump lands where the walk would), else by walking.
    std::size_t skip = 0;
    const double hidden = std::floor((graph.left() - firstLeft) / width) - 1.0;
    if (hidden > 0 && hidden < 1e9)
    {
        const auto k = static_cast<std::size_t>(hidden);
        const float lastX = d_model.xMin + static_cast<float>(k + 1) * step;
        const float lastPixel = firstLeft + static_cast<float>(k + 1) * width;
        if (exactSteps(d_model.xMin, step, lastX) && exactSteps(firstLeft, width, lastPixel))
            skip = k;
    }

    d_memoActive = true;
    d_valuesAt.clear();
    for (const auto& measurement : d_model.measurements)
    {
        Rectf values(d_model.xMin + static_cast<float>(skip) * step, yMax,
                     d_model.xMin + static_cast<float>(skip + 1) * step, yMin);
        Rectf pixels;
        pixels.d_min.d_x = firstLeft + static_cast<float>(skip) * width;
        pixels.d_max.d_x = pixels.d_min.d_x + width;
        pixels.d_max.d_y = graph.bottom() + vScroll;
        pixels.d_min.d_y = pixels.d_max.d_y - (yMax - yMin) * unit.d_height;
        // Once an interval lies past the graph's right edge, so do all after it.
        while (xEnd >= values.right() && pixels.left() < graph.right())
        {
            if (pixels.right() > graph.left())
            {
                measurement->draw(values, pixels, d_model.superImposed);
                ++d_drawnIntervals;
            }
            const float nextRight = values.right() + step;
            if (nextRight == values.right())
                break; // the x range is too wide for the step's precision
            const float pixelWidth = pixels.getWidth();
            values.d_min.d_x += step;
            values.d_max.d_x = nextRight;
            pixels.d_min.d_x += pixelWidth;
            pixels.d_max.d_x += pixelWidth;
        }
    }
    d_memoActive = false;
    d_valuesAt.clear();
}

const std::vector<SampledSeries>& Diagram::samples(float xEnd) const
{
    SamplesTaken& taken = d_samples;
    const bool stacked = d_model.superImposed;
    if (!taken.valid || taken.xMin != d_model.xMin || taken.step != d_model.step ||
        taken.xEnd != xEnd || taken.stacked != stacked ||
        taken.series.size() != d_model.measurements.size())
    {
        std::vector<const Measurement*> measurements;
        for (const auto& measurement : d_model.measurements)
            measurements.push_back(measurement.get());
        taken.series = sampleMeasurements(measurements, d_model.xMin, d_model.step, xEnd, stacked);
        taken.xMin = d_model.xMin;
        taken.step = d_model.step;
        taken.xEnd = xEnd;
        taken.stacked = stacked;
        taken.valid = true;
    }
    return taken.series;
}

void Diagram::drawMergedColumns(const Rectf& graph, const Sizef& unit, float yMax, float yMin,
                                float xEnd, double firstLeft, float vScroll)
{
    const float span = yMax - yMin;
    if (!(span > 0))
        return; // every value is 0: no column has height
    const std::vector<SampledSeries>& series = samples(xEnd);
    if (series.empty() || series.front().size() < 2)
        return;
    const SamplePlacement placement{firstLeft, static_cast<double>(unit.d_width)};
    const double end = firstLeft + static_cast<double>(series.front().size() - 1) * unit.d_width;
    const long first = static_cast<long>(std::floor(std::max<double>(graph.left(), firstLeft)));
    const long last = static_cast<long>(std::ceil(std::min<double>(graph.right(), end)));
    if (first >= last)
        return;

    // Rows as an interval's drawing places them.
    const float bottom = graph.bottom() + vScroll;
    const float height = span * unit.d_height;
    auto row = [&](float y) { return bottom - height * ((y - yMin) / span); };
    const float zero = row(0.0f);
    std::vector<Rectf> areas;
    for (std::size_t m = 0; m < d_model.measurements.size(); ++m)
    {
        areas.clear();
        ColumnSpan column;
        for (long c = first; c < last; ++c)
        {
            if (!columnSpan(series[m], placement, c, column))
                continue;
            if (column.high > 0)
                areas.emplace_back(column.left, row(column.high), column.right, zero);
            if (column.low < 0)
                areas.emplace_back(column.left, row(column.low), column.right, zero);
        }
        d_model.measurements[m]->drawColumns(areas, graph);
    }
    // The intervals those columns stand for.
    const double shownFrom = std::max(0.0, std::floor((graph.left() - firstLeft) / unit.d_width));
    const double shownTo = std::min(static_cast<double>(series.front().size() - 1),
                                    std::ceil((graph.right() - firstLeft) / unit.d_width));
    if (shownTo > shownFrom)
        d_drawnIntervals =
            static_cast<std::size_t>(shownTo - shownFrom) * d_model.measurements.size();
}

void Diagram::drawFrame()
{
    if (!d_frame.getImage(NinePieceFrame::Top))
        return;
    const Sizef own = getPixelSize();
    d_frame.setSize(
        Sizef(own.d_width - (d_frame.pieceWidth(NinePieceFrame::Top) + LegendWidth), own.d_height));
    d_frame.setColours(withAlpha(ColourRect(Colour(0x00FFFFFF)), getEffectiveAlpha()));
    d_frame.draw(getGeometryBuffer(), Vector2f(LegendWidth, 0), nullptr);
}

} // namespace MoxieLook
} // namespace CEGUI
