// Test-only Tcl commands that read and write exact photo bytes, alpha
// included, which Tk 8.6's own Tcl surface cannot show or set.
//
//   photoprobe::get photo            -> {width height {r g b a r g b a ...}}
//   photoprobe::put photo w h bytes  -> sets the photo to w x h RGBA bytes
#include <tcl.h>
#include <tk.h>

#include <vector>

namespace {

Tk_PhotoHandle Photo(Tcl_Interp* interp, Tcl_Obj* name) {
    Tk_PhotoHandle p = Tk_FindPhoto(interp, Tcl_GetString(name));
    if (p == nullptr) Tcl_AppendResult(interp, "no photo ", Tcl_GetString(name), nullptr);
    return p;
}

int Get(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (objc != 2) { Tcl_WrongNumArgs(interp, 1, objv, "photo"); return TCL_ERROR; }
    Tk_PhotoHandle p = Photo(interp, objv[1]);
    if (!p) return TCL_ERROR;
    Tk_PhotoImageBlock b;
    Tk_PhotoGetImage(p, &b);
    Tcl_Obj* bytes = Tcl_NewListObj(0, nullptr);
    for (int y = 0; y < b.height; ++y)
        for (int x = 0; x < b.width; ++x)
            for (int c = 0; c < 4; ++c) {
                const unsigned char* px = b.pixelPtr + y * b.pitch + x * b.pixelSize;
                const int v = (c == 3 && b.pixelSize < 4) ? 255 : px[b.offset[c]];
                Tcl_ListObjAppendElement(nullptr, bytes, Tcl_NewIntObj(v));
            }
    Tcl_Obj* r[3] = {Tcl_NewIntObj(b.width), Tcl_NewIntObj(b.height), bytes};
    Tcl_SetObjResult(interp, Tcl_NewListObj(3, r));
    return TCL_OK;
}

int Put(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (objc != 5) { Tcl_WrongNumArgs(interp, 1, objv, "photo width height bytes"); return TCL_ERROR; }
    Tk_PhotoHandle p = Photo(interp, objv[1]);
    int w, h, n, v;
    Tcl_Obj** e;
    if (!p || Tcl_GetIntFromObj(interp, objv[2], &w) || Tcl_GetIntFromObj(interp, objv[3], &h) ||
        Tcl_ListObjGetElements(interp, objv[4], &n, &e))
        return TCL_ERROR;
    if (w < 0 || h < 0 || n != w * h * 4) {
        Tcl_SetResult(interp, const_cast<char*>("byte count does not match the size"), TCL_STATIC);
        return TCL_ERROR;
    }
    std::vector<unsigned char> buf(n);
    for (int i = 0; i < n; ++i) {
        if (Tcl_GetIntFromObj(interp, e[i], &v)) return TCL_ERROR;
        buf[i] = static_cast<unsigned char>(v);
    }
    if (Tk_PhotoSetSize(interp, p, w, h) != TCL_OK) return TCL_ERROR;
    if (n == 0) return TCL_OK;
    Tk_PhotoImageBlock b{buf.data(), w, h, 4 * w, 4, {0, 1, 2, 3}};
    return Tk_PhotoPutBlock(interp, p, &b, 0, 0, w, h, TK_PHOTO_COMPOSITE_SET);
}

}  // namespace

extern "C" __attribute__((visibility("default"))) int Photoprobe_Init(Tcl_Interp* interp) {
    if (Tcl_InitStubs(interp, "8.5", 0) == nullptr) return TCL_ERROR;
    Tcl_CreateObjCommand(interp, "photoprobe::get", Get, nullptr, nullptr);
    Tcl_CreateObjCommand(interp, "photoprobe::put", Put, nullptr, nullptr);
    return TCL_OK;
}
