// `zutkc::image cache imageName ?option value ...?` and `zutkc::image path ?dir ...?`.
#include <cstring>
#include <string>

#include "imagelib/image_names.h"
#include "imagelib/name_resolution.h"
#include "imagelib/request_state.h"
#include "init/commands.h"
#include "init/image_hook.h"
#include "init/photo_access.h"
#include "synth/state_variants.h"

namespace tcu {
namespace {

const char* const kSubcommands[] = {"cache", "path", nullptr};
enum Subcommand { kCache, kPath };

// The request state is shared by all calls, so a call made from a script that
// the command evaluates (the theme query, the glow setting, a variable trace)
// would pull it from under the running call.
bool CommandRunning = false;

struct RunningGuard {
    RunningGuard() { CommandRunning = true; }
    ~RunningGuard() { CommandRunning = false; }
};

// The result never refers to the request state, which the next call changes:
// it is the request's own name word when the text is the same (Tcl objects
// are immutable once shared), a fresh copy otherwise.
void SetResultText(Tcl_Interp* interp, const std::string& text, Tcl_Obj* requested) {
    int length = 0;
    const char* word = Tcl_GetStringFromObj(requested, &length);
    if (static_cast<size_t>(length) == text.size() &&
        text.compare(0, text.size(), word, text.size()) == 0) {
        Tcl_SetObjResult(interp, requested);
        return;
    }
    Tcl_SetObjResult(interp, Tcl_NewStringObj(text.data(), static_cast<int>(text.size())));
}

// Error results replace whatever earlier steps left in the interpreter, error
// code included: a map look-up that finds nothing sets one without a message.
int FailWith(Tcl_Interp* interp, const char* fixedMessage) {
    Tcl_ResetResult(interp);
    Tcl_SetResult(interp, const_cast<char*>(fixedMessage), TCL_STATIC);
    return TCL_ERROR;
}

int FailWith(Tcl_Interp* interp, Tcl_Obj* message) {
    Tcl_ResetResult(interp);
    Tcl_SetObjResult(interp, message);
    return TCL_ERROR;
}

int PathCommand(Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (objc > 2) {
        ImageSearchPath.clear();
        for (int i = 2; i < objc; ++i) {
            int length = 0;
            const char* text = Tcl_GetStringFromObj(objv[i], &length);
            ImageSearchPath.emplace_back(text, static_cast<size_t>(length));
        }
    }
    Tcl_Obj* list = Tcl_NewListObj(0, nullptr);
    for (const std::string& dir : ImageSearchPath) {
        Tcl_ListObjAppendElement(nullptr, list,
                                 Tcl_NewStringObj(dir.data(), static_cast<int>(dir.size())));
    }
    Tcl_SetObjResult(interp, list);
    return TCL_OK;
}

bool QueryDarkTheme(Tcl_Interp* interp) {
    // Evaluated as a one-word command: the same lookup as the script text,
    // without parsing it on every call.
    static Tcl_Obj* query = [] {
        Tcl_Obj* word = Tcl_NewStringObj("zutk::common::isdarktheme", -1);
        Tcl_IncrRefCount(word);
        return word;
    }();
    int dark = 0;
    if (Tcl_EvalObjv(interp, 1, &query, 0) == TCL_OK &&
        Tcl_GetBooleanFromObj(nullptr, Tcl_GetObjResult(interp), &dark) != TCL_OK) {
        dark = 0;
    }
    // Whatever the query left (a message, an error state) is not ours.
    Tcl_ResetResult(interp);
    return dark != 0;
}

// Reads the options from the fourth word on; TCL_ERROR with a message for a
// bad state or an option without its value.
int ReadCacheOptions(Tcl_Interp* interp, ImageRequest& request, int objc, Tcl_Obj* const objv[]) {
    for (int i = 3; i < objc; ++i) {
        const char* word = Tcl_GetString(objv[i]);
        const bool isState = std::strcmp(word, "-state") == 0;
        const bool isColour = !isState && std::strcmp(word, "-color") == 0;
        if (!isState && !isColour) {
            request.extraPhotoOptions.push_back(objv[i]);
            continue;
        }
        if (i + 1 >= objc) {
            return FailWith(interp, Tcl_ObjPrintf("missing value for option \"%s\"", word));
        }
        Tcl_Obj* value = objv[++i];
        if (isColour) {
            request.colourGiven = true;
            request.colourText = value;
            continue;
        }
        const char* state = Tcl_GetString(value);
        if (std::strcmp(state, "disabled") == 0) {
            request.disabled = true;
        } else if (std::strcmp(state, "normal") != 0) {
            return FailWith(interp, "bad state # should be normal or disabled");
        }
    }
    return TCL_OK;
}

// Photo creation on a cache miss. On TCL_OK photo is the photo now holding
// the picture; on TCL_ERROR the result says why.
int CreateMissingPhoto(Tcl_Interp* interp, ImageRequest& request, Tk_PhotoHandle& photo) {
    PhotoArgumentVector& words = request.creationWords;
    words.StartCreation(request.imageName.c_str());
    if (request.disabled) DisabledCreationWords(words, request.cacheKey);

    const PictureSource source = ChoosePictureSource(interp, request);
    if (source == PictureSource::SwatchTooLarge) {
        return FailWith(interp, Tcl_ObjPrintf("swatch side too large in \"%s\": at most %d",
                                              request.imageName.c_str(), MaxSwatchSide));
    }
    if (request.disabled && request.imageName != FallbackImageName) {
        request.imageName.append(DisabledSuffix);
        words.Set(3, Tcl_NewStringObj(request.imageName.data(),
                                      static_cast<int>(request.imageName.size())));
    }

    photo = FindPhoto(interp, request.imageName.c_str());
    // A swatch found now was made by this call: nothing of its name existed
    // at the cache lookup.
    bool created = photo != nullptr && source == PictureSource::SwatchCreated;
    if (photo == nullptr && TkAvailable(interp)) {
        for (Tcl_Obj* option : request.extraPhotoOptions) words.Append(option);
        CreatePhoto(interp, words);
        photo = FindPhoto(interp, request.imageName.c_str());
        created = photo != nullptr;
    }
    if (photo == nullptr) return FailWith(interp, "Unable to create image");
    if (created && request.darkTheme) RecolourForDarkTheme(interp, photo, request.imageName);
    return TCL_OK;
}

int CacheCommand(Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (objc < 3) {
        Tcl_WrongNumArgs(interp, 1, objv, "::zutk::image cache <imageName>");
        return TCL_ERROR;
    }
    ImageRequest& request = CurrentRequest();
    int length = 0;
    const char* name = Tcl_GetStringFromObj(objv[2], &length);
    request.imageName.assign(name, static_cast<size_t>(length));
    if (request.imageName.empty()) return TCL_OK;

    request.darkTheme = QueryDarkTheme(interp);
    ResolveImageName(interp, request);
    if (ReadCacheOptions(interp, request, objc, objv) != TCL_OK) return TCL_ERROR;

    request.cacheKey.assign(request.imageName);
    if (request.disabled) request.cacheKey.append(DisabledSuffix);

    Tk_PhotoHandle photo = FindPhoto(interp, request.cacheKey.c_str());
    if (photo != nullptr) {
        request.imageName.assign(request.cacheKey);
    } else if (CreateMissingPhoto(interp, request, photo) != TCL_OK) {
        return TCL_ERROR;
    }

    int width = 0, height = 0;
    Tk_PhotoGetSize(photo, &width, &height);
    if (width > 0 && static_cast<long long>(width) == 6LL * height) {
        return BuildStateVariants(interp, photo, request.imageName.c_str());
    }
    SetResultText(interp, request.imageName, objv[2]);
    return TCL_OK;
}

}  // namespace

int ImageLibraryCommand(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (CommandRunning) {
        return FailWith(interp, "zutkc::image may not be called from a script it runs");
    }
    RunningGuard guard;
    ImageRequest& request = CurrentRequest();
    request.StartCall();
    Tcl_ResetResult(interp);

    if (objc < 2) {
        Tcl_WrongNumArgs(interp, 1, objv, "subcommand ?arg ...?");
        return TCL_ERROR;
    }
    int index = 0;
    if (Tcl_GetIndexFromObj(interp, objv[1], kSubcommands, "subcommand", 0, &index) != TCL_OK) {
        return TCL_ERROR;
    }
    return index == kPath ? PathCommand(interp, objc, objv) : CacheCommand(interp, objc, objv);
}

}  // namespace tcu
