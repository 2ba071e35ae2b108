// Glue shared by the colour commands that draw into photos.
#pragma once

#include <cstdint>
#include <vector>

#include <tcl.h>
#include <tk.h>

namespace tcu {

class PhotoArgumentVector;

// Creates a photo from the creation words and finds it as name. When there is
// no such photo afterwards, returns null with an error result: the message
// creation left, or a message of our own when it left none.
Tk_PhotoHandle CreateNamedPhoto(Tcl_Interp* interp, const PhotoArgumentVector& words,
                                const char* name);

// Sizes pixels to count RGBA pixels. False, with an error result, when the
// memory cannot be had; the count must already have been checked.
bool AllocatePixels(Tcl_Interp* interp, std::vector<std::uint8_t>& pixels, long long count);

// Sets the error result for a photo too large for one RGBA buffer.
void SetTooLargeResult(Tcl_Interp* interp, const char* name, long long width, long long height);

}  // namespace tcu
