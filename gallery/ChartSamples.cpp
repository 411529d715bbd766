// Cards of the diagram.
#include "Samples.h"
#include "widgets/Diagram.h"

#include <cmath>

namespace gallery
{
using namespace CEGUI;

std::vector<Sample> chartSamples()
{
    return {
        {"MoxieLook/Diagram", 410,
         [](Card& card)
         {
             auto& stacked = static_cast<MoxieLook::Diagram&>(
                 card.add("MoxieLook/Diagram", "stacked, crossing zero, labels and marks", 10, 10,
                          360, 180));
             stacked.addMeasurement("base", "Base", Colour(0xFF3B78D8));
             stacked.addMeasurement("swing", "Swing", Colour(0xFFF0A81C));
             const float base[] = {2, 3, 4, 3.5f, 5, 4, 3, 4};
             const float swing[] = {1, 2, -3, -6, -2, 2, 3, 1};
             for (int x = 0; x < 8; ++x)
             {
                 stacked.setValue("base", static_cast<float>(x), base[x]);
                 stacked.setValue("swing", static_cast<float>(x), swing[x]);
             }
             for (int x = 0; x <= 7; x += 2)
                 stacked.setXLabel(PropertyHelper<int>::toString(x), static_cast<float>(x));
             for (int y = -4; y <= 8; y += 4)
                 stacked.setYLabel(PropertyHelper<int>::toString(y), static_cast<float>(y));
             stacked.setYMark(0);
             stacked.setXMark(4);

             auto& wide = static_cast<MoxieLook::Diagram&>(card.add(
                 "MoxieLook/Diagram", "200 values, 12 pixels a unit: scrolls", 390, 10, 220, 180));
             wide.addMeasurement("wave", "Wave", Colour(0xFF2E9B44));
             for (int x = 0; x < 200; ++x)
                 wide.setValue("wave", static_cast<float>(x),
                               3 + 2.5f * std::sin(static_cast<float>(x) * 0.3f));
             wide.setUnitPixelSize(Sizef(12, -1));

             // Far more values than pixels: each pixel column drawn once.
             auto& dense = static_cast<MoxieLook::Diagram&>(
                 card.add("MoxieLook/Diagram", "2 x 50,000 values, fitted: a column a pixel", 10,
                          210, 600, 180));
             dense.addMeasurement("noise", "Noise", Colour(0xFFF0A81C));
             dense.addMeasurement("signal", "Signal", Colour(0xFF3B78D8));
             dense.setSuperImposed(false);
             for (int x = 0; x < 50000; ++x)
             {
                 const float t = static_cast<float>(x);
                 dense.setValue("noise", t, std::sin(t * 0.37f) * std::sin(t * 0.0011f) * 4);
                 dense.setValue("signal", t, 1.5f + std::sin(t * 0.0004f));
             }
         }},
    };
}

} // namespace gallery
