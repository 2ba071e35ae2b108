// Process-wide values shared by every interpreter that loads the library.
// All interpreters using the library are assumed to run on one thread.
#pragma once

#include <tcl.h>

namespace tcu {

// Floor of `tk scaling` at the first load that installed the image hook.
extern double DisplayScale;
// Tk's own command record for `image`, as it was before the hook.
extern Tcl_CmdInfo SavedImageCommand;
extern bool ImageHookInstalled;

}  // namespace tcu
