// A chart: named measurements (series of (x, y) points) drawn as columns of one base and
// one sloped cap image per sample interval, optionally stacked, with axis labels, grid
// lines, a legend column at the left and scroll bars when the unit size makes the graph
// larger than its area.
//
// Values are looked up in logarithmic time, the ranges are kept until the data changes,
// and a draw evaluates only the intervals that meet the graph area: what is seen is
// exactly what evaluating every interval from scratch would give.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "widgets/DiagramColumns.h"

#include <CEGUI/Window.h>
#include <exception>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace CEGUI
{
class Scrollbar;

namespace MoxieLook
{
class Diagram;
class StaticLayout;

//! One series of a diagram.
class Measurement
{
public:
    Measurement(const String& name, const String& legend, const Colour& colour, unsigned index,
                Diagram* owner);
    virtual ~Measurement() = default;
    Measurement(const Measurement&) = delete;
    Measurement& operator=(const Measurement&) = delete;

    //! Makes the legend entry.
    virtual void initialise();
    //! Draws one sample interval: values `valueArea` (left, right x; top the y maximum,
    //! bottom the y minimum) over pixels `pixelArea` (window-local).
    virtual void draw(const Rectf& valueArea, const Rectf& pixelArea, bool superImposed) = 0;
    //! Draws pixel columns that each stand for the several intervals in them: each area runs
    //! from the zero line to the farthest value reached (given upside down below the line),
    //! clipped to `graph`.
    virtual void drawColumns(const std::vector<Rectf>& areas, const Rectf& graph) = 0;
    virtual Window* createLegendItem() = 0;

    const String& getName() const { return d_name; }
    const String& getLegend() const { return d_legend; }
    const Colour& getColour() const { return d_colour; }
    unsigned getIndex() const { return d_index; }
    const std::map<float, float>& getValues() const { return d_values; }
    float getXMin() const { return d_xMin; }
    float getXMax() const { return d_xMax; }
    Diagram* getOwner() const { return d_owner; }
    Window* getLegendItem() const { return d_legendItem; }

    //! The value at x: stored, interpolated between the keys around it (rounded up to the
    //! hundredth), or 0 outside them.
    float getValue(float x) const;
    //! getValue for each of the ascending xs, in one pass.
    void getValues(const std::vector<float>& ascending, std::vector<float>& out) const;
    //! The value plus the stacked value of the measurement added before it.
    float getStackedValue(float x) const;
    float getYMin(bool stacked) const;
    float getYMax(bool stacked) const;

    void setValue(float x, float y);
    void clear();

private:
    float valueBefore(std::map<float, float>::const_iterator next, float x) const;

    String d_name;
    String d_legend;
    Colour d_colour;
    unsigned d_index;
    std::map<float, float> d_values;
    float d_xMin = 0.0f;
    float d_xMax = 0.0f;
    Diagram* d_owner;
    Window* d_legendItem = nullptr;
};

//! What a diagram holds, apart from its windows. Copies share the measurement objects.
struct DiagramModel
{
    Sizef unitPixelSize{-1.0f, -1.0f};
    std::vector<std::shared_ptr<Measurement>> measurements;
    bool superImposed = true;
    float step = 1.0f;
    float xMin = 0.0f;
    float xMax = 0.0f;
    float xLabelHeight = 0.0f;
    float yLabelWidth = 0.0f;
    std::map<float, String> xLabels;
    std::map<float, String> yLabels;
    std::vector<float> xMarks;
    std::vector<float> yMarks;

    Measurement* find(const String& name) const;
};

class Diagram : public RedrawnWhenUncovered<Window>
{
public:
    class UnknownMeasurement : public std::exception
    {
    public:
        explicit UnknownMeasurement(std::string message) : d_message(std::move(message)) {}
        const char* what() const noexcept override { return d_message.c_str(); }

    private:
        std::string d_message;
    };

    static constexpr float LegendWidth = 100.0f;
    static constexpr float ScrollsThickness = 15.0f;

    Diagram(const String& type, const String& name);

    void initialiseComponents() override;

    //! CEGUI's AlreadyExistsException for a name already present.
    void addMeasurement(const String& name, const String& legend, const Colour& colour);
    //! Widens the x range first, then throws UnknownMeasurement for an unknown name.
    void setValue(const String& name, float x, float y);
    float getValue(const String& name, float x) const;
    //! Re-derives the x range from the other measurements (swap, then fold).
    void clearValues(const String& name);

    void setXLabel(const String& text, float x);
    void setYLabel(const String& text, float y);
    void clearXLabels();
    void clearYLabels();
    void setXMark(float x);
    void setYMark(float y);
    void clearXMarks();
    void clearYMarks();
    const std::map<float, String>& getXLabels() const { return d_model.xLabels; }
    const std::map<float, String>& getYLabels() const { return d_model.yLabels; }
    const std::vector<float>& getXMarks() const { return d_model.xMarks; }
    const std::vector<float>& getYMarks() const { return d_model.yMarks; }

    //! The stored x range widened by the x labels.
    float getXMin() const;
    float getXMax() const;
    float getYMin() const { return getYMin(d_model.superImposed); }
    float getYMax() const { return getYMax(d_model.superImposed); }
    float getYMin(bool superImposed) const;
    float getYMax(bool superImposed) const;

    void setSuperImposed(bool superImposed);
    bool isSuperImposed() const { return d_model.superImposed; }
    void setUnitPixelSize(const Sizef& size);
    const Sizef& getUnitPixelSize() const { return d_model.unitPixelSize; }
    //! The x distance between two drawn samples; InvalidRequestException unless positive.
    void setStep(float step);
    float getStep() const { return d_model.step; }

    Sizef getUnitSize() const;
    Rectf getGraphRect() const;
    Vector2f GetPixelFromValue(const Vector2f& value) const;

    unsigned getMeasurementCount() const
    {
        return static_cast<unsigned>(d_model.measurements.size());
    }
    //! InvalidRequestException past the last one.
    const Measurement* getMeasurement(unsigned index) const;
    void getMeasurements(std::vector<String>& out) const;
    const DiagramModel& getModel() const { return d_model; }
    StaticLayout* getLegendLayout() const { return d_legendLayout; }
    Scrollbar* getHorzScrollbar() const { return d_horzScrollbar; }
    Scrollbar* getVertScrollbar() const { return d_vertScrollbar; }

    //! Where intervals are narrower than a pixel, draw each pixel column once (the same
    //! pixels as drawing every interval, at the cost of the graph's width); on by default.
    void setColumnMerging(bool merging);
    bool isColumnMerging() const { return d_columnMerging; }

    //! Intervals drawn at the last population (those that meet the graph area).
    std::size_t getDrawnIntervalCount() const { return d_drawnIntervals; }
    //! The measurement's value at x as the drawing reads it, memoised for the interval
    //! ends of the current population.
    float drawnValue(const Measurement& measurement, float x, bool stacked) const;

    //! The data changed: ranges are computed again when next needed.
    void dataChanged();

protected:
    virtual Measurement* createMeasurement(const String& name, const String& legend,
                                           const Colour& colour, unsigned index) = 0;
    virtual StaticLayout* createLegendLayout() = 0;
    virtual Scrollbar* createVerticalScrollbar() = 0;
    virtual Scrollbar* createHorizontalScrollbar() = 0;
    virtual void UpdateLegendLayout();
    virtual void drawMark(const Rectf& area) = 0;
    //! What lies under the graph, labels and marks; nothing by default.
    virtual void drawBackground() {}

    void populateGeometryBuffer() override;

    DiagramModel d_model;
    NinePieceFrame d_frame;

private:
    bool isHorzScrollNeeded() const;
    bool isVertScrollNeeded() const;
    void updateScrollbars();
    bool OnGraphScrolled(const EventArgs& args);
    Measurement& measurementNamed(const String& name, const char* message) const;
    void widenX(float x);
    void computeRanges() const;
    void drawLabels(const Rectf& graph);
    void drawMeasurements(const Rectf& graph, const Sizef& unit, float yMax, float yMin);
    void drawMergedColumns(const Rectf& graph, const Sizef& unit, float yMax, float yMin,
                           float xEnd, double firstLeft, float vScroll);
    const std::vector<SampledSeries>& samples(float xEnd) const;
    void drawFrame();

    Scrollbar* d_horzScrollbar = nullptr;
    Scrollbar* d_vertScrollbar = nullptr;
    StaticLayout* d_legendLayout = nullptr;

    // Kept until the data changes.
    mutable bool d_rangesValid = false;
    mutable float d_yRange[2][2] = {}; //!< [stacked][min, max]
    // While drawing: every measurement's value (and stacked sum) at each x asked for.
    struct ValuesAt
    {
        std::vector<float> plain;
        std::vector<float> stacked;
    };
    mutable std::unordered_map<float, ValuesAt> d_valuesAt;
    mutable bool d_memoActive = false;
    // Each measurement's values at the interval ends, for merged columns; kept until the
    // data or what they were taken for changes.
    struct SamplesTaken
    {
        bool valid = false;
        float xMin = 0.0f, step = 0.0f, xEnd = 0.0f;
        bool stacked = false;
        std::vector<SampledSeries> series;
    };
    mutable SamplesTaken d_samples;
    bool d_columnMerging = true;
    std::size_t d_drawnIntervals = 0;
};

} // namespace MoxieLook
} // namespace CEGUI
