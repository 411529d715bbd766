// The art of the "MoxieLook" imageset.
#pragma once

#include "Atlas.h"

namespace atlasgen
{
void paintAll(Atlas& atlas);
}
