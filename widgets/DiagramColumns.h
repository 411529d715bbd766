// A chart narrower than its data: where many sample intervals share one pixel column, the
// column is drawn once, from the zero line to the farthest value the intervals reach in it.
// The samples are taken once per data change; a column's range is found in blocks, so a
// redraw costs what is on screen, not the number of values behind it.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class Measurement;

//! One series' values at the interval ends, with the lowest and highest of each block.
class SampledSeries
{
public:
    void assign(std::vector<float> samples);
    std::size_t size() const { return d_samples.size(); }
    float operator[](std::size_t index) const { return d_samples[index]; }
    //! The lowest and highest of the samples `first` to `last`, both included.
    std::pair<float, float> range(std::size_t first, std::size_t last) const;

private:
    static constexpr std::size_t Block = 64;
    std::vector<float> d_samples;
    std::vector<float> d_blockLow;
    std::vector<float> d_blockHigh;
};

//! Where the series is drawn across: sample k at pixel `origin` + k x `width`.
struct SamplePlacement
{
    double origin = 0.0;
    double width = 1.0;
};

//! What the intervals draw in one pixel column: pixels `left` to `right` (the column, cut
//! to where the series starts and ends) and the lowest and highest value the line through
//! the samples takes there.
struct ColumnSpan
{
    float left = 0.0f;
    float right = 0.0f;
    float low = 0.0f;
    float high = 0.0f;
};

//! The span of column [`column`, `column` + 1); false when the series does not reach it.
bool columnSpan(const SampledSeries& series, const SamplePlacement& placement, long column,
                ColumnSpan& out);

//! Every measurement's values at x0, x0 + step, ... (the sum, added up as x grows, until it
//! passes `xEnd`), plain or stacked as the chart draws them.
std::vector<SampledSeries> sampleMeasurements(const std::vector<const Measurement*>& measurements,
                                              float x0, float step, float xEnd, bool stacked);

} // namespace MoxieLook
} // namespace CEGUI
