#include "color/arrow_image.h"

#include <cmath>
#include <cstddef>

#include "init/photo_access.h"

namespace tcu {
namespace {

// Height of the equilateral triangle with side s, in single precision.
float TriangleHeight(float s) {
    return std::sqrt((s * 0.75f) * s);
}

}  // namespace

bool ArrowPictureSize(int size, PictureSize& out) {
    if (size < 0) return false;
    const float s = static_cast<float>(size);
    // Both values are below 2^32, so they fit a long long before the check.
    const long long width = static_cast<long long>(std::floor(TriangleHeight(s)));
    const long long height = static_cast<long long>(std::floor(s));
    if (CheckedPixelCount(width, height) < 0) return false;
    out.width = static_cast<int>(width);
    out.height = static_cast<int>(height);
    return true;
}

void DrawArrowPixels(std::uint8_t* rgba, PictureSize picture, int size, RgbColor colour) {
    const std::size_t count =
        static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    for (std::size_t k = 0; k < count; ++k) {
        rgba[4 * k] = 255;
        rgba[4 * k + 1] = 255;
        rgba[4 * k + 2] = 255;
        rgba[4 * k + 3] = 0;
    }

    // Barycentric coordinates of the pixel corner (i, j) against the corner
    // (S, 0) and the edges to (S, H) and (0, H/2). Every product is kept in
    // the written order: the edge pixels depend on the last bit.
    const float s = static_cast<float>(size);
    const float h = TriangleHeight(s);
    const float g = h * 0.5f;
    const float d00 = h * h;
    const float d01 = g * h;
    const float d11 = s * s + g * g;
    const float inv = 1.0f / (d11 * d00 - d01 * d01);
    for (int j = 0; j < picture.height; ++j) {
        const float fj = static_cast<float>(j);
        const float e02 = fj * h;
        std::uint8_t* row = rgba + static_cast<std::size_t>(j) * picture.width * 4;
        for (int i = 0; i < picture.width; ++i) {
            const float e12 = fj * g + (static_cast<float>(i) - s) * -s;
            const float u = (e02 * d11 - e12 * d01) * inv;
            const float v = (e12 * d00 - e02 * d01) * inv;
            if (u >= 0.0f && v >= 0.0f && u + v <= 1.0f) {
                std::uint8_t* px = row + 4 * i;
                px[0] = colour.red;
                px[1] = colour.green;
                px[2] = colour.blue;
                px[3] = 255;
            }
        }
    }
}

}  // namespace tcu
