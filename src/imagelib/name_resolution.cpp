#include "imagelib/name_resolution.h"

#include <cstdlib>
#include <string>

#include "imagelib/image_names.h"
#include "init/image_hook.h"
#include "init/package_state.h"
#include "init/photo_access.h"
#include "platform/sys_file.h"
#include "synth/state_variants.h"
#include "synth/swatch_image.h"

namespace tcu {
namespace {

// First directory of the search path holding name, as directory + "/" + name.
bool FindOnSearchPath(const std::string& name, std::string& found) {
    for (const std::string& dir : ImageSearchPath) {
        found.assign(dir).append("/").append(name);
        if (SysFile::Exists(found)) return true;
    }
    found.clear();
    return false;
}

// The file named by the current image name, if any, becomes the file path and
// the name becomes the path's last component.
void CheckDirectFile(ImageRequest& request) {
    if (!SysFile::Exists(request.imageName)) return;
    request.filePath = request.imageName;
    request.imageName = SysFileInfo::GetFileName(request.filePath);
}

Tcl_Obj* DecimalWord(long value) { return Tcl_NewStringObj(std::to_string(value).c_str(), -1); }

// A photo may only be made where this interpreter's Tk can hold it: the hook
// passes the client data of the interpreter that installed it.
int CreatePhotoHere(Tcl_Interp* interp, const PhotoArgumentVector& words) {
    if (!TkAvailable(interp)) return TCL_ERROR;
    return CreatePhoto(interp, words);
}

PictureSource MakeSwatch(Tcl_Interp* interp, ImageRequest& request, bool found,
                         const SwatchNameMatch& match) {
    const std::string_view option =
        request.colourText == nullptr ? std::string_view() : Tcl_GetString(request.colourText);
    const SwatchPlan plan = PlanSwatch(found, match, request.colourGiven, option);
    if (plan.side > MaxSwatchSide) return PictureSource::SwatchTooLarge;
    const bool scaling = AutomaticScalingOn();
    const long scaledSide = scaling ? ScaledSwatchSide(plan.side, DisplayScale) : plan.side;
    if (scaledSide < 0) return PictureSource::SwatchTooLarge;

    PhotoArgumentVector& words = request.creationWords;
    words.Append("-width");
    words.Append(DecimalWord(plan.side));
    words.Append("-height");
    words.Append(DecimalWord(plan.side));
    CreatePhotoHere(interp, words);
    if (plan.colour.empty()) return PictureSource::SwatchCreated;

    const std::string& photoName = request.disabled ? request.cacheKey : request.imageName;
    Tk_PhotoHandle photo = FindPhoto(interp, photoName.c_str());
    if (photo == nullptr) return PictureSource::SwatchCreated;
    if (scaling) {
        Tk_PhotoSetSize(interp, photo, static_cast<int>(scaledSide), static_cast<int>(scaledSide));
    }
    BuildSwatchImage(interp, photoName.c_str(), plan.colour.c_str(), plan.strip, request.disabled);
    return PictureSource::SwatchCreated;
}

}  // namespace

bool AutomaticScalingOn() {
    const char* wanted = std::getenv("scaleimages");
    return wanted != nullptr && std::atoi(wanted) != 0 && DisplayScale > 1.0;
}

void ResolveImageName(Tcl_Interp* interp, ImageRequest& request) {
    std::string& name = request.imageName;
    if (request.darkTheme) {
        // Kept across calls so that repeated requests do not allocate.
        static std::string dark, candidate;
        if (!DarkVariantName(name, dark)) {
            // No dot, no dark variant.
        } else if (SysFile::Exists(dark)) {
            name = dark;
        } else if (FindOnSearchPath(dark, candidate)) {
            name = candidate;
        }
    }

    // Flags 0: a missing array or element leaves no message behind (only an
    // error code, which the command's own errors replace).
    static Tcl_Obj* const mapName = [] {
        Tcl_Obj* o = Tcl_NewStringObj("::zutk::imagemap::map", -1);
        Tcl_IncrRefCount(o);
        return o;
    }();
    Tcl_Obj* element = Tcl_NewStringObj(name.data(), static_cast<int>(name.size()));
    Tcl_IncrRefCount(element);
    if (Tcl_Obj* mapped = Tcl_ObjGetVar2(interp, mapName, element, 0)) {
        int length = 0;
        const char* text = Tcl_GetStringFromObj(mapped, &length);
        name.assign(text, static_cast<size_t>(length));
    }
    Tcl_DecrRefCount(element);

    // A name without a separator is its own file-name part: whether the file
    // exists only matters for a photo still to be made, so the look-up is
    // left to ChoosePictureSource and a cache hit costs no file system call.
    request.directFileChecked = name.find('/') != std::string::npos;
    if (request.directFileChecked) CheckDirectFile(request);
}

PictureSource ChoosePictureSource(Tcl_Interp* interp, ImageRequest& request) {
    PhotoArgumentVector& words = request.creationWords;
    SwatchNameMatch match;
    const bool found = FindSwatchName(request.imageName, match);
    if (request.colourGiven || found) return MakeSwatch(interp, request, found, match);

    if (!request.directFileChecked) CheckDirectFile(request);
    if (request.imageName == "empty") {
        words.Append("-width");
        words.Append("16");
        words.Append("-height");
        words.Append("16");
        return PictureSource::Words;
    }
    if (!request.filePath.empty()) {
        words.Append("-file");
        words.Append(Tcl_NewStringObj(request.filePath.data(),
                                      static_cast<int>(request.filePath.size())));
        return PictureSource::Words;
    }
    std::string candidate;
    if (FindOnSearchPath(request.imageName, candidate)) {
        words.Append("-file");
        words.Append(Tcl_NewStringObj(candidate.data(), static_cast<int>(candidate.size())));
        return PictureSource::Words;
    }
    request.imageName = FallbackImageName;
    words.Set(3, Tcl_NewStringObj(FallbackImageName, -1));
    return PictureSource::Fallback;
}

void DisabledCreationWords(PhotoArgumentVector& words, const std::string& cacheKey) {
    words.Set(3, Tcl_NewStringObj(cacheKey.data(), static_cast<int>(cacheKey.size())));
    words.Append("-format");
    words.Append("png -alpha 0.5");
}

void RecolourForDarkTheme(Tcl_Interp* interp, Tk_PhotoHandle photo, const std::string& name) {
    if (IsDarkExempt(name)) return;
    Tk_PhotoImageBlock block;
    Tk_PhotoGetImage(photo, &block);
    if (!AllVisiblePixelsGrey(block.pixelPtr, block.width, block.height, block.pitch,
                              block.pixelSize, block.offset)) {
        return;
    }
    InvertPhotoLightness(interp, photo);
}

}  // namespace tcu
