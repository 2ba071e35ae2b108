// Object procedures of the commands that package initialisation registers.
#pragma once

#include <tcl.h>

namespace tcu {

int ImageLibraryCommand(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]);
int ColorSelectorImageCommand(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]);
int ColorLightnessImageCommand(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]);
int ColorCommand(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]);

}  // namespace tcu
