// Colour-swatch pictures: a framed square, or a strip of six state frames.
#pragma once

#include <cstdint>
#include <vector>

#include <tcl.h>

#include "color/color_values.h"

namespace tcu {

// The swatch colour moved halfway toward grey 240.
RgbColor SwatchLightColor(RgbColor colour);

// Pixels of a swatch for a photo of width x height: plain (width x height) or
// strip (6 * height wide, height high). Writes the output size; a size whose
// buffer would reach 2^31 bytes (or a negative one) is refused with an empty
// buffer and an output size of -1 x -1.
std::vector<std::uint8_t> ComposeSwatchPixels(RgbColor colour, int width, int height, bool strip,
                                              bool disabled, int& outWidth, int& outHeight);

// Paints the existing photo photoName; always TCL_OK, result untouched.
int BuildSwatchImage(Tcl_Interp* interp, const char* photoName, const char* colourText,
                     bool strip, bool disabled);

}  // namespace tcu
