// Per-state photos cut from six-frame strips, and lightness inversion.
#pragma once

#include <cstdint>

#include <tcl.h>
#include <tk.h>

namespace tcu {

// Strip order: active, normal, disabled, disabledoff, pressed, selected.
extern const char* const StateNameTable[6];

// Expects width == 6 * height > 0. Result: {state variantName ...}, TCL_OK.
int BuildStateVariants(Tcl_Interp* interp, Tk_PhotoHandle strip, const char* imageName);

// Lightness L -> 1 - L for every pixel whose alpha is not 0, in place.
void InvertPixelLightness(std::uint8_t* rgba, int width, int height);
void InvertPhotoLightness(Tcl_Interp* interp, Tk_PhotoHandle photo);

}  // namespace tcu
