// Where a requested picture comes from, and under which name it is kept.
#pragma once

#include <tcl.h>
#include <tk.h>

#include "imagelib/request_state.h"

namespace tcu {

// Dark variant ("@d" before the first dot, directly or on the search path),
// then the script's name map, then a file found directly (the photo is then
// named after the file's last component). Changes request.imageName and may
// set request.filePath.
void ResolveImageName(Tcl_Interp* interp, ImageRequest& request);

enum class PictureSource {
    Words,          // source words appended (or none for an empty photo)
    SwatchCreated,  // a swatch photo was created here
    Fallback,       // the name switched to the fallback picture
    SwatchTooLarge, // refused: nothing created
};

// On a cache miss: a swatch (created and painted at once), "empty", the file
// found directly, a file on the search path, or the fallback picture.
// request.creationWords already holds image create photo <name> [disabled words].
PictureSource ChoosePictureSource(Tcl_Interp* interp, ImageRequest& request);

// Disabled request: the photo is created under the cache key and read by the
// png handler at half alpha.
void DisabledCreationWords(PhotoArgumentVector& words, const std::string& cacheKey);

// In the dark theme a freshly created icon whose visible pixels are all grey
// gets its lightness inverted, unless its name is exempt.
void RecolourForDarkTheme(Tcl_Interp* interp, Tk_PhotoHandle photo, const std::string& name);

// The same test as the image hook's: `scaleimages` non-zero and a display
// scale above 1.
bool AutomaticScalingOn();

}  // namespace tcu
