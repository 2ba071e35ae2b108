// The hook on Tk's `image` command and the library's one way to make photos.
#pragma once

#include <tcl.h>

namespace tcu {

class PhotoArgumentVector;

// Replaces the object procedure of `image`: Tk creates the image, then a new
// photo is enlarged by DisplayScale when the environment asks for it.
int ImageCommandHook(ClientData clientData, Tcl_Interp* interp, int objc,
                     Tcl_Obj* const objv[]);

// Creates a photo as `image create photo` would, through the hook.
// On TCL_OK the interpreter result holds the new name.
int CreatePhoto(Tcl_Interp* interp, const PhotoArgumentVector& words);

// Enlarges the named photo by factor when `scaleimages` is non-zero and
// DisplayScale is above 1.
int ScaleNewPhoto(Tcl_Interp* interp, const char* imageName, double factor);

}  // namespace tcu
