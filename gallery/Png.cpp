#include "Png.h"

#include <cstdio>
#include <memory>
#include <png.h>
#include <stdexcept>

namespace gallery
{
void writePng(const std::string& path, const Picture& picture)
{
    std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(path.c_str(), "wb"), &std::fclose);
    if (!file)
        throw std::runtime_error("cannot open " + path);

    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (!info || setjmp(png_jmpbuf(png)))
    {
        png_destroy_write_struct(&png, &info);
        throw std::runtime_error("cannot write " + path);
    }
    png_init_io(png, file.get());
    png_set_IHDR(png, info, picture.width, picture.height, 8, PNG_COLOR_TYPE_RGB_ALPHA,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    for (int y = 0; y < picture.height; ++y)
        png_write_row(png, picture.rgba.data() + static_cast<std::size_t>(y) * picture.width * 4);
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
}

} // namespace gallery
