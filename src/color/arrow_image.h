// The colour picker's marker: a wedge pointing left, cut from an equilateral
// triangle whose base lies just right of the picture.
#pragma once

#include <cstdint>

#include "color/color_values.h"

namespace tcu {

struct PictureSize {
    int width;
    int height;
};

// Picture size for a marker of the given size (the triangle's side): the
// triangle's height wide, the side high, both floored, in single precision.
// False for a negative size or one whose RGBA buffer would reach 2^31 bytes.
bool ArrowPictureSize(int size, PictureSize& out);

// Draws the marker into a tight RGBA buffer of ArrowPictureSize(size):
// transparent white outside, colour (opaque) on and inside the triangle.
void DrawArrowPixels(std::uint8_t* rgba, PictureSize picture, int size, RgbColor colour);

}  // namespace tcu
