// Photo look-ups for the image library's hot path.
#pragma once

#include <tcl.h>
#include <tk.h>

namespace tcu {

// TkAvailable, with the package check remembered per interpreter: once Tk has
// been present in an interpreter it stays loaded there, and the package query
// costs more than the rest of a cache hit. The main window is still checked
// on every call (it is gone after `destroy .`). Leaves the result untouched.
bool TkReady(Tcl_Interp* interp);

// FindPhoto through TkReady: null without Tk or without such a photo.
Tk_PhotoHandle LookUpPhoto(Tcl_Interp* interp, const char* name);

}  // namespace tcu
