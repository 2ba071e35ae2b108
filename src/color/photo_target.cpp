#include "color/photo_target.h"

#include <new>
#include <string>

#include "init/image_hook.h"
#include "init/photo_access.h"

namespace tcu {

Tk_PhotoHandle CreateNamedPhoto(Tcl_Interp* interp, const PhotoArgumentVector& words,
                                const char* name) {
    const int code = CreatePhoto(interp, words);
    Tk_PhotoHandle photo = FindPhoto(interp, name);
    if (photo != nullptr) return photo;
    // Tk's own message says best what went wrong; without Tk there is none.
    if (code != TCL_OK) {
        if (Tcl_GetCharLength(Tcl_GetObjResult(interp)) > 0) return nullptr;
    } else {
        // A name that reads as an option makes Tk choose a name of its own:
        // that photo is not the one asked for, so it does not stay behind.
        if (TkAvailable(interp)) Tk_DeleteImage(interp, Tcl_GetString(Tcl_GetObjResult(interp)));
    }
    Tcl_ResetResult(interp);
    Tcl_AppendResult(interp, "could not create photo \"", name, "\"", nullptr);
    return nullptr;
}

bool AllocatePixels(Tcl_Interp* interp, std::vector<std::uint8_t>& pixels, long long count) {
    try {
        pixels.resize(static_cast<std::size_t>(count) * 4);
        return true;
    } catch (const std::bad_alloc&) {
        Tcl_SetResult(interp, const_cast<char*>("not enough memory for the picture"),
                      TCL_STATIC);
        return false;
    }
}

void SetTooLargeResult(Tcl_Interp* interp, const char* name, long long width, long long height) {
    const std::string size = std::to_string(width) + " x " + std::to_string(height);
    Tcl_ResetResult(interp);
    Tcl_AppendResult(interp, "picture \"", name, "\" is too large: ", size.c_str(), " pixels",
                     nullptr);
}

}  // namespace tcu
