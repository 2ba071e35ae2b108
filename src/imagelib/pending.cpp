// Placeholder until the image library command lands.
#include "init/commands.h"

namespace tcu {
int ImageLibraryCommand(ClientData, Tcl_Interp* interp, int, Tcl_Obj* const[]) {
    Tcl_SetResult(interp, const_cast<char*>("not available yet"), TCL_STATIC);
    return TCL_ERROR;
}
}  // namespace tcu
