#include "widgets/DiagramColumns.h"

#include "widgets/Diagram.h"

#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
void SampledSeries::assign(std::vector<float> samples)
{
    d_samples = std::move(samples);
    const std::size_t blocks = (d_samples.size() + Block - 1) / Block;
    d_blockLow.assign(blocks, 0.0f);
    d_blockHigh.assign(blocks, 0.0f);
    for (std::size_t b = 0; b < blocks; ++b)
    {
        const auto first = d_samples.begin() + static_cast<std::ptrdiff_t>(b * Block);
        const auto last = d_samples.begin() +
                          static_cast<std::ptrdiff_t>(std::min(d_samples.size(), (b + 1) * Block));
        const auto [low, high] = std::minmax_element(first, last);
        d_blockLow[b] = *low;
        d_blockHigh[b] = *high;
    }
}

std::pair<float, float> SampledSeries::range(std::size_t first, std::size_t last) const
{
    float low = d_samples[first];
    float high = low;
    auto take = [&](float lo, float hi)
    {
        low = std::min(low, lo);
        high = std::max(high, hi);
    };
    std::size_t i = first;
    for (; i <= last && i % Block != 0; ++i)
        take(d_samples[i], d_samples[i]);
    for (; i + Block - 1 <= last; i += Block)
        take(d_blockLow[i / Block], d_blockHigh[i / Block]);
    for (; i <= last; ++i)
        take(d_samples[i], d_samples[i]);
    return {low, high};
}

namespace
{
// The line through the samples at pixel x, inside the series.
float lineAt(const SampledSeries& series, const SamplePlacement& placement, double x)
{
    const double at = (x - placement.origin) / placement.width;
    const double whole = std::floor(at);
    const auto k = static_cast<std::size_t>(std::max(0.0, whole));
    if (k + 1 >= series.size())
        return series[series.size() - 1];
    const auto t = static_cast<float>(at - whole);
    return series[k] + (series[k + 1] - series[k]) * t;
}
} // namespace

bool columnSpan(const SampledSeries& series, const SamplePlacement& placement, long column,
                ColumnSpan& out)
{
    if (series.size() < 2)
        return false;
    const double start = placement.origin;
    const double end = placement.origin + static_cast<double>(series.size() - 1) * placement.width;
    const double left = std::max(static_cast<double>(column), start);
    const double right = std::min(static_cast<double>(column) + 1.0, end);
    if (!(left < right))
        return false;

    // The line's ends in the column, and every sample strictly between them.
    const float atLeft = lineAt(series, placement, left);
    const float atRight = lineAt(series, placement, right);
    out.low = std::min(atLeft, atRight);
    out.high = std::max(atLeft, atRight);
    const double firstInside = std::floor((left - start) / placement.width) + 1.0;
    const double lastInside = std::ceil((right - start) / placement.width) - 1.0;
    if (firstInside <= lastInside)
    {
        const auto [low, high] = series.range(static_cast<std::size_t>(firstInside),
                                              static_cast<std::size_t>(lastInside));
        out.low = std::min(out.low, low);
        out.high = std::max(out.high, high);
    }
    out.left = static_cast<float>(left);
    out.right = static_cast<float>(right);
    return true;
}

std::vector<SampledSeries> sampleMeasurements(const std::vector<const Measurement*>& measurements,
                                              float x0, float step, float xEnd, bool stacked)
{
    // The interval ends as the drawing walks them: each the last plus the step.
    std::vector<float> xs;
    if (xEnd >= x0 + step)
    {
        xs.push_back(x0);
        for (float right = x0 + step; xEnd >= right; right += step)
        {
            if (right == xs.back())
                break; // the x range is too wide for the step's precision
            xs.push_back(right);
        }
    }
    std::vector<SampledSeries> sampled(measurements.size());
    std::vector<float> values, sums;
    for (std::size_t m = 0; m < measurements.size(); ++m)
    {
        measurements[m]->getValues(xs, values);
        if (stacked && m > 0)
            for (std::size_t i = 0; i < values.size(); ++i)
                values[i] += sums[i];
        sums = values;
        sampled[m].assign(values);
    }
    return sampled;
}

} // namespace MoxieLook
} // namespace CEGUI
