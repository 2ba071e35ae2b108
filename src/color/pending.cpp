// Placeholders until the colour commands land.
#include "init/commands.h"

namespace tcu {
namespace {
int Pending(Tcl_Interp* interp) {
    Tcl_SetResult(interp, const_cast<char*>("not available yet"), TCL_STATIC);
    return TCL_ERROR;
}
}  // namespace
int ColorSelectorImageCommand(ClientData, Tcl_Interp* i, int, Tcl_Obj* const[]) { return Pending(i); }
int ColorLightnessImageCommand(ClientData, Tcl_Interp* i, int, Tcl_Obj* const[]) { return Pending(i); }
int ColorCommand(ClientData, Tcl_Interp* i, int, Tcl_Obj* const[]) { return Pending(i); }
}  // namespace tcu
