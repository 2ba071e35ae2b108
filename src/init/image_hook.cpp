#include "init/image_hook.h"

#include <cstdlib>
#include <cstring>
#include <vector>

#include "init/package_state.h"
#include "init/photo_access.h"
#include "init/pixel_scaling.h"

namespace tcu {
int ScaleNewPhoto(Tcl_Interp* interp, const char* imageName, double factor) {
    const char* wanted = std::getenv("scaleimages");
    if (wanted == nullptr || std::atoi(wanted) == 0) return TCL_OK;
    if (!(DisplayScale > 1.0)) return TCL_OK;

    Tk_PhotoHandle photo = FindPhoto(interp, imageName);
    if (photo == nullptr) return TCL_OK;

    Tk_PhotoImageBlock block;
    Tk_PhotoGetImage(photo, &block);
    if (block.pixelSize != 3 && block.pixelSize != 4) {
        Tcl_AppendResult(interp,
                         "I can't make heads or tails from this image, the bitfield is neither "
                         "3 nor 4",
                         nullptr);
        return TCL_ERROR;
    }
    if (block.pixelPtr == nullptr || block.width <= 0 || block.height <= 0) return TCL_ERROR;

    // Computed in double and truncated; anything that does not fit an int, or
    // whose buffer would reach 2^31 bytes, is refused by ScaleRgbaPixels.
    const double wideW = block.width * factor, wideH = block.height * factor;
    if (!(wideW < 2147483647.0) || !(wideH < 2147483647.0)) return TCL_ERROR;
    const int newWidth = static_cast<int>(wideW), newHeight = static_cast<int>(wideH);

    // A tight copy: a 3-byte block is never read as if it had 4 bytes a pixel.
    std::vector<std::uint8_t> source;
    if (!CopyBlockToRgba(block, source)) return TCL_ERROR;
    std::vector<std::uint8_t> scaled;
    if (!ScaleRgbaPixels(source.data(), block.width, block.height, newWidth, newHeight, scaled))
        return TCL_ERROR;
    PutRgbaPixels(interp, photo, scaled.data(), newWidth, newHeight, false);
    return TCL_OK;
}

int ImageCommandHook(ClientData clientData, Tcl_Interp* interp, int objc,
                     Tcl_Obj* const objv[]) {
    if (interp == nullptr || !ImageHookInstalled || SavedImageCommand.objProc == nullptr)
        return TCL_ERROR;
    const int code = SavedImageCommand.objProc(clientData, interp, objc, objv);
    if (code != TCL_OK) return code;
    if (objc > 1 && std::strcmp(Tcl_GetString(objv[1]), "create") == 0) {
        ScaleNewPhoto(interp, Tcl_GetString(Tcl_GetObjResult(interp)), DisplayScale);
    }
    return TCL_OK;
}

int CreatePhoto(Tcl_Interp* interp, const PhotoArgumentVector& words) {
    return ImageCommandHook(SavedImageCommand.objClientData, interp, words.Count(),
                            words.Words());
}

}  // namespace tcu
