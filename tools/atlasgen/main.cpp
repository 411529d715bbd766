// atlasgen OUTPUT_DIR: paints the "MoxieLook" art and writes MoxieLook.png and
// MoxieLook.imageset into OUTPUT_DIR.
#include "Art.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::cerr << "usage: atlasgen OUTPUT_DIR\n";
        return 2;
    }
    try
    {
        const std::string dir = argv[1];
        atlasgen::Atlas atlas;
        atlasgen::paintAll(atlas);
        atlas.write(dir + "/MoxieLook.png", dir + "/MoxieLook.imageset", "MoxieLook",
                    "MoxieLook.png");
        std::cout << "atlasgen: " << atlas.size() << " images\n";
    }
    catch (const std::exception& e)
    {
        std::cerr << "atlasgen: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
