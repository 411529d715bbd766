// Cards of the text input widgets and the progress bar.
#include "Samples.h"

#include <CEGUI/widgets/ProgressBar.h>

namespace gallery
{
using namespace CEGUI;

std::vector<Sample> inputSamples()
{
    return {
        {"MoxieLook/ProgressBar", 60,
         [](Card& card)
         {
             const float values[] = {0.0f, 0.6f, 1.0f};
             const char* captions[] = {"0", "0.6", "1"};
             for (int i = 0; i < 3; ++i)
                 static_cast<ProgressBar&>(
                     card.add("MoxieLook/ProgressBar", captions[i], 10 + i * 200.0f, 10, 180, 18))
                     .setProgress(values[i]);
         }},
    };
}

} // namespace gallery
