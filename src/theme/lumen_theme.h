// The "lumen" Ttk theme: registration and layouts.
#pragma once

#include <tcl.h>

namespace tcu {

// Creates theme "lumen" (parent: Ttk's default), registers its elements and
// layouts and provides ttk::theme::lumen 8.5. TCL_ERROR when the theme
// cannot be created (for example when it exists already).
int LumenTheme_Init(Tcl_Interp* interp);

}  // namespace tcu
