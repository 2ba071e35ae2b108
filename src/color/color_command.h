// zutkc::color: HSL numbers of a colour text, palette lookup, marker image.
#pragma once

#include <string>

#include "color/color_values.h"

namespace tcu {

// "h s l" of a colour as `rgb2hsl` answers it: channels times 0.003921569 in
// single precision, each number printed with %f.
std::string HslTextOfColor(RgbColor colour);

}  // namespace tcu
