// Writing RGBA pixels to a PNG file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gallery
{
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba; //!< rows top to bottom

    std::uint8_t* pixel(int x, int y)
    {
        return &rgba[(static_cast<std::size_t>(y) * width + x) * 4];
    }
};

//! Throws std::runtime_error when the file cannot be written.
void writePng(const std::string& path, const Picture& picture);

} // namespace gallery
