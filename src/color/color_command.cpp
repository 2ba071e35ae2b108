#include "color/color_command.h"

#include <cstdio>
#include <vector>

#include "color/arrow_image.h"
#include "color/palette.h"
#include "color/photo_target.h"
#include "init/commands.h"
#include "init/photo_access.h"

namespace tcu {
namespace {

// Order matters: it fixes the indexes and the list in Tcl's lookup message.
const char* const kSubcommands[] = {"rgbimage", "lightnessimage", "hsl2rgb", "rgb2hsl",
                                    "int2rgb",  "rightarrow",     "leftarrow", nullptr};
enum Subcommand { RgbImage, LightnessImage, Hsl2Rgb, Rgb2Hsl, Int2Rgb, RightArrow, LeftArrow };

const char* const kImageOptions[] = {"-size", "-color", nullptr};
enum ImageOption { SizeOption, ColorOption };

constexpr int kDefaultArrowSize = 9;
const char* const kDefaultArrowColor = "#4d4d4d";

void SetInvalidColorResult(Tcl_Interp* interp, Tcl_Obj* text) {
    Tcl_ResetResult(interp);
    Tcl_AppendResult(interp, "invalid color ", Tcl_GetString(text),
                     "# must be hex format e.g: #123456", nullptr);
}

bool ParseColorWord(Tcl_Obj* word, RgbColor& out) {
    int length = 0;
    const char* text = Tcl_GetStringFromObj(word, &length);
    return ParseHexColor(std::string_view(text, static_cast<std::size_t>(length)), out);
}

int Rgb2HslSubcommand(Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (objc != 3) {
        Tcl_WrongNumArgs(interp, 1, objv, "color");
        return TCL_ERROR;
    }
    RgbColor colour;
    if (!ParseColorWord(objv[2], colour)) {
        SetInvalidColorResult(interp, objv[2]);
        return TCL_ERROR;
    }
    const std::string text = HslTextOfColor(colour);
    Tcl_SetObjResult(interp, Tcl_NewStringObj(text.data(), static_cast<int>(text.size())));
    return TCL_OK;
}

int Int2RgbSubcommand(Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (objc != 3) {
        Tcl_WrongNumArgs(interp, 1, objv, "colorindex");
        return TCL_ERROR;
    }
    int index = 0;
    if (Tcl_GetIntFromObj(interp, objv[2], &index) != TCL_OK) return TCL_ERROR;
    if (!PaletteIndexValid(index)) {
        Tcl_SetResult(interp, const_cast<char*>("invalid color index # must be between 1 to 64"),
                      TCL_STATIC);
        return TCL_ERROR;
    }
    Tcl_SetResult(interp, const_cast<char*>(PaletteColor(index)), TCL_STATIC);
    return TCL_OK;
}

// rightarrow and rgbimage: the marker, drawn into a photo made afresh.
int ArrowImage(Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    static PhotoArgumentVector words;
    if (objc < 3) {
        Tcl_WrongNumArgs(interp, 1, objv, "rightarrow imagename ?option value?");
        return TCL_ERROR;
    }
    const char* name = Tcl_GetString(objv[2]);
    int size = kDefaultArrowSize;
    Tcl_Obj* colourWord = nullptr;
    // Pairs only: a lone last word is left alone, whatever it says.
    for (int i = 3; i + 1 < objc; i += 2) {
        int option = 0;
        if (Tcl_GetIndexFromObj(interp, objv[i], kImageOptions, "option", 0, &option) != TCL_OK)
            return TCL_ERROR;
        if (option == SizeOption) {
            if (Tcl_GetIntFromObj(interp, objv[i + 1], &size) != TCL_OK) return TCL_ERROR;
        } else {
            colourWord = objv[i + 1];
        }
    }
    // The size is settled before anything is made, so a refused size leaves
    // no photo behind.
    PictureSize picture{0, 0};
    if (!ArrowPictureSize(size, picture)) {
        Tcl_SetObjResult(interp, Tcl_ObjPrintf(size < 0 ? "invalid size %d: must not be negative"
                                                        : "invalid size %d: picture too large",
                                               size));
        return TCL_ERROR;
    }

    words.StartCreation(nullptr);
    words.Append(objv[2]);
    Tk_PhotoHandle photo = CreateNamedPhoto(interp, words, name);
    words.Clear();
    if (photo == nullptr) return TCL_ERROR;

    RgbColor colour;
    const bool parsed = colourWord != nullptr ? ParseColorWord(colourWord, colour)
                                              : ParseHexColor(kDefaultArrowColor, colour);
    if (!parsed) {
        SetInvalidColorResult(interp, colourWord);
        return TCL_ERROR;
    }

    std::vector<std::uint8_t> pixels;
    if (!AllocatePixels(interp, pixels,
                        static_cast<long long>(picture.width) * picture.height))
        return TCL_ERROR;
    DrawArrowPixels(pixels.data(), picture, size, colour);
    PutRgbaPixels(interp, photo, pixels.data(), picture.width, picture.height, true);
    Tcl_SetObjResult(interp, objv[2]);
    return TCL_OK;
}

}  // namespace

std::string HslTextOfColor(RgbColor colour) {
    constexpr float kByteScale = 0.003921569f;
    const HslColor hsl = RgbToHsl(RgbFloat{colour.red * kByteScale, colour.green * kByteScale,
                                           colour.blue * kByteScale});
    char text[3 * 64];
    std::snprintf(text, sizeof text, "%f %f %f", static_cast<double>(hsl.hue),
                  static_cast<double>(hsl.saturation), static_cast<double>(hsl.lightness));
    return text;
}

int ColorCommand(ClientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    Tcl_ResetResult(interp);
    if (objc < 2) {
        Tcl_WrongNumArgs(interp, 1, objv, "subcommand");
        return TCL_ERROR;
    }
    int subcommand = 0;
    if (Tcl_GetIndexFromObj(interp, objv[1], kSubcommands, "subcommand", 0, &subcommand) !=
        TCL_OK)
        return TCL_ERROR;
    switch (subcommand) {
        case Rgb2Hsl: return Rgb2HslSubcommand(interp, objc, objv);
        case Int2Rgb: return Int2RgbSubcommand(interp, objc, objv);
        case RgbImage:
        case RightArrow: return ArrowImage(interp, objc, objv);
        default: return TCL_OK;  // accepted names that do nothing
    }
}

}  // namespace tcu
