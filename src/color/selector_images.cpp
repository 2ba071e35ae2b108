// zuttk::colorselectorimage and zuttk::colorlightnessimage: the colour
// selector's hue/saturation field and lightness bar, drawn into photos.
#include <vector>

#include "color/photo_target.h"
#include "color/selector_pixels.h"
#include "init/commands.h"
#include "init/photo_access.h"

namespace tcu {
namespace {

using DrawFunction = void (*)(std::uint8_t* rgba, int width, int height, const HslColor& colour);

// Reads the photo's size (240 x 240 for an empty dimension), draws the whole
// picture and puts it. The name is only for messages.
int DrawIntoPhoto(Tcl_Interp* interp, Tk_PhotoHandle photo, Tcl_Obj* name, DrawFunction draw,
                  const HslColor& colour) {
    PictureSize size{0, 0};
    Tk_PhotoGetSize(photo, &size.width, &size.height);
    const PictureSize asked = size;
    const SelectorSizing sizing = ChooseSelectorSize(size);
    if (sizing == SelectorSizing::TooLarge) {
        SetTooLargeResult(interp, Tcl_GetString(name), asked.width, asked.height);
        return TCL_ERROR;
    }
    if (sizing == SelectorSizing::Default &&
        Tk_PhotoSetSize(interp, photo, size.width, size.height) != TCL_OK)
        return TCL_ERROR;

    std::vector<std::uint8_t> pixels;
    if (!AllocatePixels(interp, pixels, static_cast<long long>(size.width) * size.height))
        return TCL_ERROR;
    draw(pixels.data(), size.width, size.height, colour);
    PutRgbaPixels(interp, photo, pixels.data(), size.width, size.height, true);
    Tcl_SetObjResult(interp, name);
    return TCL_OK;
}

void DrawField(std::uint8_t* rgba, int width, int height, const HslColor&) {
    DrawSelectorField(rgba, width, height);
}

void DrawBar(std::uint8_t* rgba, int width, int height, const HslColor& colour) {
    DrawLightnessBar(rgba, width, height, colour);
}

}  // namespace

int ColorSelectorImageCommand(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    static PhotoArgumentVector words;
    Tcl_ResetResult(interp);
    if (objc < 2) {
        Tcl_WrongNumArgs(interp, 1, objv, "::zutk::colorimage <imageName>");
        return TCL_ERROR;
    }
    const char* name = Tcl_GetString(objv[1]);
    // The field never changes, so an existing photo is answered as it is.
    if (FindPhoto(interp, name) != nullptr) {
        Tcl_SetObjResult(interp, objv[1]);
        return TCL_OK;
    }
    words.StartCreation(nullptr);
    for (int i = 1; i < objc; ++i) words.Append(objv[i]);
    Tk_PhotoHandle photo = CreateNamedPhoto(interp, words, name);
    words.Clear();
    if (photo == nullptr) return TCL_ERROR;
    return DrawIntoPhoto(interp, photo, objv[1], DrawField, HslColor{0.0f, 0.0f, 0.0f});
}

int ColorLightnessImageCommand(ClientData, Tcl_Interp* interp, int objc,
                               Tcl_Obj* const objv[]) {
    static PhotoArgumentVector words;
    Tcl_ResetResult(interp);
    if (objc < 3) {
        Tcl_WrongNumArgs(interp, 1, objv, "::zutk::colorbarimage <imageName> <color>");
        return TCL_ERROR;
    }
    const char* name = Tcl_GetString(objv[1]);
    Tk_PhotoHandle photo = FindPhoto(interp, name);
    if (photo == nullptr) {
        words.StartCreation(nullptr);
        words.Append(objv[1]);
        for (int i = 3; i < objc; ++i) words.Append(objv[i]);
        photo = CreateNamedPhoto(interp, words, name);
        words.Clear();
        if (photo == nullptr) return TCL_ERROR;
    }

    int length = 0;
    const char* text = Tcl_GetStringFromObj(objv[2], &length);
    RgbColor colour;
    if (!ParseHexColor(std::string_view(text, static_cast<std::size_t>(length)), colour)) {
        Tcl_ResetResult(interp);
        Tcl_WrongNumArgs(interp, 1, objv, "::zutk::colorbarimage <imageName> <color>");
        return TCL_ERROR;
    }
    // Only hue and saturation are kept; the bar runs through every lightness.
    return DrawIntoPhoto(interp, photo, objv[1], DrawBar, RgbToHsl(RgbToFloat(colour)));
}

}  // namespace tcu
