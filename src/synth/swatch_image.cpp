#include "synth/swatch_image.h"

#include <tk.h>

#include <cstddef>
#include <cstring>

#include "init/photo_access.h"

namespace tcu {
namespace {

constexpr RgbColor kTransparentWhite{255, 255, 255, 0};
constexpr RgbColor kSwatchHighlightMargin{255, 179, 23, 200};

struct FrameLook {
    RgbColor margin;
    std::uint8_t lineAlpha;
    RgbColor fill;
};

RgbColor WithAlpha(RgbColor c, std::uint8_t alpha) {
    c.alpha = alpha;
    return c;
}

// Fills columns x0..x1 and rows y0..y1 (inclusive) of a buffer `stride` pixels
// wide; an inverted range is empty.
void FillRect(std::uint8_t* rgba, int stride, int x0, int y0, int x1, int y1, RgbColor c) {
    if (x1 < x0 || y1 < y0) return;
    const std::size_t run = static_cast<std::size_t>(x1 - x0 + 1);
    for (int y = y0; y <= y1; ++y) {
        std::uint8_t* px =
            rgba + (static_cast<std::size_t>(y) * static_cast<std::size_t>(stride) + x0) * 4;
        for (std::size_t i = 0; i < run; ++i, px += 4) std::memcpy(px, &c, 4);
    }
}

// One frame of w x h whose left column is x0: margin, frame line, fill.
void DrawFrame(std::uint8_t* rgba, int stride, int x0, int w, int h, const FrameLook& look) {
    FillRect(rgba, stride, x0, 0, x0 + w - 1, h - 1, look.margin);
    FillRect(rgba, stride, x0 + 1, 1, x0 + w - 2, h - 2, RgbColor{0, 0, 0, look.lineAlpha});
    FillRect(rgba, stride, x0 + 2, 2, x0 + w - 3, h - 3, look.fill);
}

}  // namespace

RgbColor SwatchLightColor(RgbColor colour) {
    // channel + (240 - channel) * 0.5 is exact in single precision, so the
    // truncated value is the integer halfway point rounded down.
    auto half = [](std::uint8_t c) { return static_cast<std::uint8_t>((c + 240) / 2); };
    return RgbColor{half(colour.red), half(colour.green), half(colour.blue), colour.alpha};
}

std::vector<std::uint8_t> ComposeSwatchPixels(RgbColor colour, int width, int height, bool strip,
                                              bool disabled, int& outWidth, int& outHeight) {
    std::vector<std::uint8_t> pixels;
    outWidth = -1;
    outHeight = -1;
    if (strip) {
        const long long count = CheckedPixelCount(6LL * height, height);
        if (count < 0) return pixels;
        outWidth = 6 * height;
        outHeight = height;
        pixels.resize(static_cast<std::size_t>(count) * 4);
        if (count == 0) return pixels;
        const RgbColor light = SwatchLightColor(colour);
        const FrameLook looks[6] = {
            {kSwatchHighlightMargin, 255, WithAlpha(light, 255)},  // active
            {kTransparentWhite, 255, WithAlpha(colour, 255)},      // normal
            {kTransparentWhite, 127, WithAlpha(light, 127)},       // disabled
            {kTransparentWhite, 127, WithAlpha(light, 127)},       // disabledoff
            {kSwatchHighlightMargin, 255, WithAlpha(light, 255)},  // pressed
            {kTransparentWhite, 255, WithAlpha(light, 255)},       // selected
        };
        for (int k = 0; k < 6; ++k) {
            DrawFrame(pixels.data(), outWidth, k * height, height, height, looks[k]);
        }
        return pixels;
    }
    const long long count = CheckedPixelCount(width, height);
    if (count < 0) return pixels;
    outWidth = width;
    outHeight = height;
    pixels.resize(static_cast<std::size_t>(count) * 4);
    if (count == 0) return pixels;
    const std::uint8_t alpha = disabled ? 127 : 255;
    DrawFrame(pixels.data(), width, 0, width, height,
              FrameLook{kTransparentWhite, alpha, WithAlpha(colour, alpha)});
    return pixels;
}

int BuildSwatchImage(Tcl_Interp* interp, const char* photoName, const char* colourText, bool strip,
                     bool disabled) {
    if (photoName == nullptr) return TCL_OK;
    Tk_PhotoHandle photo = FindPhoto(interp, photoName);
    if (photo == nullptr) return TCL_OK;
    int width = 0, height = 0;
    Tk_PhotoGetSize(photo, &width, &height);

    RgbColor colour;  // stays black when the text is not a colour
    if (colourText != nullptr) ParseHexColor(colourText, colour);

    int outWidth = 0, outHeight = 0;
    const std::vector<std::uint8_t> pixels =
        ComposeSwatchPixels(colour, width, height, strip, disabled, outWidth, outHeight);
    // A size whose buffer would not fit is refused: the photo stays as it was.
    if (outWidth < 0 || outHeight < 0) return TCL_OK;

    // Setting the size may leave a message when memory runs out; the caller's
    // result is kept either way.
    Tcl_Obj* saved = Tcl_GetObjResult(interp);
    Tcl_IncrRefCount(saved);
    PutRgbaPixels(interp, photo, pixels.data(), outWidth, outHeight, true);
    Tcl_SetObjResult(interp, saved);
    Tcl_DecrRefCount(saved);
    return TCL_OK;
}

}  // namespace tcu
