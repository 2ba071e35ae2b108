// The library's entry point: binds Tcl stubs, wraps `image`, registers the
// commands and the theme.
#include <cmath>

#include <tcl.h>

#include "init/commands.h"
#include "init/image_hook.h"
#include "init/package_state.h"
#include "theme/lumen_theme.h"

namespace tcu {

double DisplayScale = 1.0;
Tcl_CmdInfo SavedImageCommand = {};
bool ImageHookInstalled = false;

namespace {

void ReadDisplayScale(Tcl_Interp* interp) {
    // Both codes are ignored on purpose: on failure the old value stays.
    Tcl_Eval(interp, "tk scaling");
    Tcl_GetDoubleFromObj(nullptr, Tcl_GetObjResult(interp), &DisplayScale);
    DisplayScale = std::floor(DisplayScale);
    Tcl_ResetResult(interp);
}

void InstallImageHook(Tcl_Interp* interp) {
    if (ImageHookInstalled || interp == nullptr) return;
    if (Tcl_GetCommandInfo(interp, "image", &SavedImageCommand) == 0) return;
    Tcl_CmdInfo hooked = SavedImageCommand;
    hooked.objProc = ImageCommandHook;
    if (Tcl_SetCommandInfo(interp, "image", &hooked) != 0) ImageHookInstalled = true;
}

struct CommandEntry {
    const char* name;
    Tcl_ObjCmdProc* proc;
};

const CommandEntry kCommands[] = {
    {"zutkc::image", ImageLibraryCommand},
    {"zuttk::colorselectorimage", ColorSelectorImageCommand},
    {"zuttk::colorlightnessimage", ColorLightnessImageCommand},
    {"zutkc::color", ColorCommand},
};

}  // namespace
}  // namespace tcu

extern "C" __attribute__((visibility("default"))) int Tclcoreutils_Init(Tcl_Interp* interp) {
    using namespace tcu;
    if (Tcl_InitStubs(interp, "8.5", 0) == nullptr) return TCL_ERROR;
    // One hook per process: later loads leave their interpreter untouched.
    if (ImageHookInstalled) return TCL_OK;

    ReadDisplayScale(interp);
    InstallImageHook(interp);
    Tcl_CreateNamespace(interp, "::zutkc", nullptr, nullptr);
    for (const CommandEntry& c : kCommands) {
        Tcl_CreateObjCommand(interp, c.name, c.proc, nullptr, nullptr);
    }
    LumenTheme_Init(interp);
    // `load` answers empty, whatever the theme registration left behind.
    Tcl_ResetResult(interp);
    return TCL_OK;
}
