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
// strip (6 * height wide, height high). Writes the output size.
std::vector<std::uint8_t> ComposeSwatchPixels(RgbColor colour, int width, int height, bool strip,
                                              bool disabled, int& outWidth, int& outHeight);

// Paints the existing photo photoName; always TCL_OK, result untouched.
int BuildSwatchImage(Tcl_Interp* interp, const char* photoName, const char* colourText,
                     bool strip, bool disabled);

}  // namespace tcu
