// Re-hueing of accents drawn in the reference colour #f8ce26 toward a target.
#pragma once

#include <cstdint>

#include <tcl.h>
#include <tk.h>

#include "color/color_values.h"

namespace tcu {

extern const char* HighlightReferenceColor;  // "#f8ce26"

// In place on a tight RGBA buffer (element y * width + x). A target with
// alpha 0 means "no colour": the reference hue itself is used.
void ReplaceHighlightHueInPixels(std::uint8_t* rgba, int width, int height, RgbColor target);

// The same on a photo's own block, then put back so that it redisplays.
void ReplaceHighlightHue(Tcl_Interp* interp, Tk_PhotoHandle photo, RgbColor target);

}  // namespace tcu
