// State shared by the image library command and its resolution steps.
//
// Process-wide and unlocked: every interpreter using the library runs on one
// thread, and the command refuses to be re-entered while it runs.
#pragma once

#include <string>
#include <vector>

#include <tcl.h>

#include "init/photo_access.h"

namespace tcu {

// Directories searched for picture files, in order. Changed only by
// `zutkc::image path`.
extern std::vector<std::string> ImageSearchPath;

// The name of the fallback picture answered when nothing else is found.
extern const char* const FallbackImageName;  // "invalidImage-24.png"
// Suffix of the half-transparent disabled variant.
extern const char* const DisabledSuffix;     // "_DISABLED"

// One `cache` request. The strings keep their capacity from call to call so
// that a cache hit does not allocate.
struct ImageRequest {
    std::string imageName;   // the name being resolved; at the end the photo's name
    std::string filePath;    // file found directly for the name, or empty
    bool directFileChecked = false;  // filePath is final (see ResolveImageName)
    // The call's own words that are not options of the command. Borrowed from
    // the call's word list, valid only while the call runs.
    std::vector<Tcl_Obj*> extraPhotoOptions;
    PhotoArgumentVector creationWords;

    // Per-call flags, reset at the start of every call.
    bool disabled = false;
    bool colourGiven = false;
    Tcl_Obj* colourText = nullptr;  // borrowed like extraPhotoOptions
    bool darkTheme = false;
    std::string cacheKey;

    void StartCall();
};

ImageRequest& CurrentRequest();

}  // namespace tcu
