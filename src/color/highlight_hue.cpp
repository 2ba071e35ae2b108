#include "color/highlight_hue.h"

#include <cmath>
#include <cstddef>

#include "synth/photo_block.h"

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

    // Every pixel is independent, so rows are walked in memory order. Icons
    // repeat colours in runs: the last conversion is remembered.
    bool haveLast = false;
    std::uint8_t lastIn[3] = {0, 0, 0}, lastOut[3] = {0, 0, 0};
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    for (std::uint8_t* px = rgba; px != rgba + count * 4; px += 4) {
        if (px[3] == 0) continue;
        const std::uint8_t r = px[0], g = px[1], b = px[2];
        // A grey has hue 0, far outside the tolerance around the reference.
        if (r == g && g == b) continue;
        if (!haveLast || r != lastIn[0] || g != lastIn[1] || b != lastIn[2]) {
            lastIn[0] = r;
            lastIn[1] = g;
            lastIn[2] = b;
            const HslColor hsl = HslOfBytes(r, g, b);
            if (std::fabs(referenceHue - hsl.hue) > kHueTolerance) {
                lastOut[0] = r;
                lastOut[1] = g;
                lastOut[2] = b;
            } else {
                const RgbFloat out = HslToRgb(HslColor{targetHue, hsl.saturation, hsl.lightness});
                lastOut[0] = ChannelToByte(out.red);
                lastOut[1] = ChannelToByte(out.green);
                lastOut[2] = ChannelToByte(out.blue);
            }
            haveLast = true;
        }
        // Alpha / 255 * 255, truncated, is the alpha itself for 1..255.
        px[0] = lastOut[0];
        px[1] = lastOut[1];
        px[2] = lastOut[2];
    }
}

void ReplaceHighlightHue(Tcl_Interp* interp, Tk_PhotoHandle photo, RgbColor target) {
    EditPhotoPixels(interp, photo, [target](std::uint8_t* rgba, int w, int h) {
        ReplaceHighlightHueInPixels(rgba, w, h, target);
    });
}

}  // namespace tcu
