#include "synth/state_variants.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "color/color_values.h"
#include "color/highlight_hue.h"
#include "color/recolour_pixels.h"
#include "init/image_hook.h"
#include "init/photo_access.h"

namespace tcu {

const char* const StateNameTable[6] = {"active",      "normal",  "disabled",
                                       "disabledoff", "pressed", "selected"};

namespace {

// Strip pictures whose accents take the glow colour: active, pressed, selected.
constexpr std::array<int, 3> kGlowStates = {0, 4, 5};

// Grey g inverted; greys are what the dark theme inverts, so they are looked
// up rather than converted. Built with the same maths as any other pixel.
const std::array<std::uint8_t, 256>& InvertedGreys() {
    static const std::array<std::uint8_t, 256> table = [] {
        std::array<std::uint8_t, 256> t{};
        for (int g = 0; g < 256; ++g) {
            const std::uint8_t b = static_cast<std::uint8_t>(g);
            const HslColor hsl = RgbToHsl(RgbToFloat(RgbColor{b, b, b, 255}));
            t[g] = ChannelToByte(
                HslToRgb(HslColor{hsl.hue, hsl.saturation, 1.0f - hsl.lightness}).red);
        }
        return t;
    }();
    return table;
}

// Picture k is put straight out of the strip copy, whose rows are 6 * side wide.
void PutVariant(Tcl_Interp* interp, Tk_PhotoHandle photo, const std::uint8_t* strip, int side,
                int k) {
    PutRgbaPixels(interp, photo, strip + static_cast<std::size_t>(k) * side * 4, side, side, true,
                  6 * side);
}

}  // namespace

int BuildStateVariants(Tcl_Interp* interp, Tk_PhotoHandle strip, const char* imageName) {
    static PhotoArgumentVector words;
    static std::string variantName;

    Tcl_Obj* answer = Tcl_NewObj();
    Tcl_IncrRefCount(answer);
    Tcl_ResetResult(interp);

    int width = 0, height = 0;
    if (strip != nullptr) Tk_PhotoGetSize(strip, &width, &height);
    // The strip's pixels are copied once, before any variant exists: making
    // photos must not be able to move the block under us.
    std::vector<std::uint8_t> pixels;
    bool havePixels = false;
    if (strip != nullptr && height > 0 && width == 6LL * height) {
        Tk_PhotoImageBlock block;
        Tk_PhotoGetImage(strip, &block);
        havePixels =
            block.width == width && block.height == height && CopyBlockToRgba(block, pixels);
    }
    if (!havePixels || imageName == nullptr) {
        // Not a six-frame strip: nothing to cut.
        Tcl_SetObjResult(interp, answer);
        Tcl_DecrRefCount(answer);
        return TCL_OK;
    }

    for (int k = 0; k < 6; ++k) {
        variantName.assign(StateNameTable[k]).append("_").append(imageName);
        if (FindPhoto(interp, variantName.c_str()) == nullptr) {
            words.StartCreation(variantName.c_str());
            if (CreatePhoto(interp, words) == TCL_OK) {
                Tk_PhotoHandle made = FindPhoto(interp, variantName.c_str());
                if (made != nullptr) PutVariant(interp, made, pixels.data(), height, k);
            }
        }
        Tcl_ListObjAppendElement(nullptr, answer, Tcl_NewStringObj(StateNameTable[k], -1));
        Tcl_ListObjAppendElement(
            nullptr, answer,
            Tcl_NewStringObj(variantName.data(), static_cast<int>(variantName.size())));
    }

    // Whatever the setting script answers, only a colour text moves the hue.
    Tcl_Eval(interp, "zutk::settings color SystemGlow");
    RgbColor glow;
    int length = 0;
    const char* text = Tcl_GetStringFromObj(Tcl_GetObjResult(interp), &length);
    ParseHexColor(std::string_view(text, static_cast<std::size_t>(length)), glow);

    for (int k : kGlowStates) {
        variantName.assign(StateNameTable[k]).append("_").append(imageName);
        Tk_PhotoHandle variant = FindPhoto(interp, variantName.c_str());
        if (variant != nullptr) ReplaceHighlightHue(interp, variant, glow);
    }

    Tcl_SetObjResult(interp, answer);
    Tcl_DecrRefCount(answer);
    return TCL_OK;
}

void InvertPixelLightness(std::uint8_t* rgba, int width, int height) {
    if (rgba == nullptr || width <= 0 || height <= 0) return;
    const std::array<std::uint8_t, 256>& greys = InvertedGreys();
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    RecolourVisiblePixels(rgba, count, [&](std::uint8_t r, std::uint8_t g, std::uint8_t b,
                                           std::uint8_t out[3]) {
        if (r == g && g == b) {
            out[0] = out[1] = out[2] = greys[r];
            return;
        }
        const HslColor hsl = RgbToHsl(RgbToFloat(RgbColor{r, g, b, 255}));
        const RgbFloat rgb = HslToRgb(HslColor{hsl.hue, hsl.saturation, 1.0f - hsl.lightness});
        out[0] = ChannelToByte(rgb.red);
        out[1] = ChannelToByte(rgb.green);
        out[2] = ChannelToByte(rgb.blue);
    });
}

void InvertPhotoLightness(Tcl_Interp* interp, Tk_PhotoHandle photo) {
    // Putting the block back may leave a message on failure; the caller's
    // result is not ours to change.
    if (interp == nullptr) {
        EditPhotoPixels(interp, photo, InvertPixelLightness);
        return;
    }
    Tcl_Obj* saved = Tcl_GetObjResult(interp);
    Tcl_IncrRefCount(saved);
    EditPhotoPixels(interp, photo, InvertPixelLightness);
    Tcl_SetObjResult(interp, saved);
    Tcl_DecrRefCount(saved);
}

}  // namespace tcu
