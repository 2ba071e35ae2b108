#include "color/highlight_hue.h"

#include <cmath>
#include <cstddef>

#include "color/recolour_pixels.h"
#include "init/photo_access.h"

namespace tcu {

const char* HighlightReferenceColor = "#f8ce26";

namespace {

constexpr float kHueTolerance = 0.015f;

// Hue of an RgbColor whose channels are divided by 255.
HslColor HslOfBytes(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
    return RgbToHsl(RgbToFloat(RgbColor{r, g, b, 255}));
}

HslColor ReferenceHsl() {
    // The reference text is constant, so its colour is parsed once per process.
    static const HslColor reference = [] {
        RgbColor c;
        ParseHexColor(HighlightReferenceColor, c);
        return RgbToHsl(RgbToFloat(c));
    }();
    return reference;
}

}  // namespace

void ReplaceHighlightHueInPixels(std::uint8_t* rgba, int width, int height, RgbColor target) {
    if (rgba == nullptr || width <= 0 || height <= 0) return;
    const float referenceHue = ReferenceHsl().hue;
    const float targetHue = target.alpha != 0 ? RgbToHsl(RgbToFloat(target)).hue : referenceHue;

    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    // Alpha / 255 * 255, truncated, is the alpha itself for 1..255: it stays.
    RecolourVisiblePixels(rgba, count, [&](std::uint8_t r, std::uint8_t g, std::uint8_t b,
                                           std::uint8_t out[3]) {
        out[0] = r;
        out[1] = g;
        out[2] = b;
        // A grey has hue 0, far outside the tolerance around the reference.
        if (r == g && g == b) return;
        const HslColor hsl = HslOfBytes(r, g, b);
        if (std::fabs(referenceHue - hsl.hue) > kHueTolerance) return;
        const RgbFloat rgb = HslToRgb(HslColor{targetHue, hsl.saturation, hsl.lightness});
        out[0] = ChannelToByte(rgb.red);
        out[1] = ChannelToByte(rgb.green);
        out[2] = ChannelToByte(rgb.blue);
    });
}

void ReplaceHighlightHue(Tcl_Interp* interp, Tk_PhotoHandle photo, RgbColor target) {
    EditPhotoPixels(interp, photo, [target](std::uint8_t* rgba, int w, int h) {
        ReplaceHighlightHueInPixels(rgba, w, h, target);
    });
}

}  // namespace tcu
