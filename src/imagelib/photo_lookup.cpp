#include "imagelib/photo_lookup.h"

#include "init/photo_access.h"

namespace tcu {
namespace {

const char* const kTkSeenKey = "tcu::imagelib::tkSeen";

}  // namespace

bool TkReady(Tcl_Interp* interp) {
    if (interp == nullptr) return false;
    if (Tcl_GetAssocData(interp, kTkSeenKey, nullptr) == nullptr) {
        if (!TkAvailable(interp)) return false;
        // Any non-null value; the entry goes with the interpreter.
        Tcl_SetAssocData(interp, kTkSeenKey, nullptr, interp);
        return true;
    }
    // Tk_MainWindow explains a missing window in the result; keep ours.
    Tcl_Obj* saved = Tcl_GetObjResult(interp);
    Tcl_IncrRefCount(saved);
    const bool ready = Tk_MainWindow(interp) != nullptr;
    if (!ready) Tcl_SetObjResult(interp, saved);
    Tcl_DecrRefCount(saved);
    return ready;
}

Tk_PhotoHandle LookUpPhoto(Tcl_Interp* interp, const char* name) {
    return TkReady(interp) ? Tk_FindPhoto(interp, name) : nullptr;
}

}  // namespace tcu
