// Enlarging an RGBA picture with ImageMagick, apart from any Tk photo.
#pragma once

#include <cstdint>
#include <vector>

namespace tcu {

// Scales a tight RGBA buffer (4 bytes a pixel, rows top to bottom) of
// width x height to newWidth x newHeight into out. Returns false, leaving out
// empty, when a size is not positive, the result would reach 2^31 bytes, or
// ImageMagick cannot constitute or scale the picture.
bool ScaleRgbaPixels(const std::uint8_t* pixels, int width, int height, int newWidth,
                     int newHeight, std::vector<std::uint8_t>& out);

}  // namespace tcu
