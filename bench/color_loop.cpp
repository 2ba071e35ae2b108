// The floor for the colour selector pictures without Tk: the per-pixel
// colour maths of the hue/saturation field and the lightness bar, written as
// the plainest loop over HslToRgb and ChannelToByte into an RGBA buffer.
// Prints one line per picture: name, width, height, best microseconds; then
// the same for the library's own pixel functions, for comparison.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "color/color_values.h"
#include "color/selector_pixels.h"

using namespace tcu;

namespace {

void PlainField(std::uint8_t* px, int w, int h) {
    const float stepX = 1.0f / static_cast<float>(w - 1), stepY = 1.0f / static_cast<float>(h - 1);
    for (int y = h - 1; y >= 0; --y)
        for (int x = 0; x < w; ++x, px += 4) {
            const RgbFloat c = HslToRgb({x * stepX, y * stepY, 0.5f});
            px[0] = ChannelToByte(c.red);
            px[1] = ChannelToByte(c.green);
            px[2] = ChannelToByte(c.blue);
            px[3] = 255;
        }
}

void PlainBar(std::uint8_t* px, int w, int h, HslColor colour) {
    const float stepY = 1.0f / static_cast<float>(h - 1);
    for (int y = h - 1; y >= 0; --y)
        for (int x = 0; x < w; ++x, px += 4) {
            const RgbFloat c = HslToRgb({colour.hue, colour.saturation, y * stepY});
            px[0] = ChannelToByte(c.red);
            px[1] = ChannelToByte(c.green);
            px[2] = ChannelToByte(c.blue);
            px[3] = 255;
        }
}

// Best of several rounds, each the mean of n runs, in microseconds; the
// buffer is allocated in every run as the commands do.
template <typename F>
double BestMicroseconds(F run, int n) {
    double best = 1e300;
    for (int round = 0; round < 7; ++round) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < n; ++i) run();
        const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
        best = std::min(best, took.count() / n);
    }
    return best;
}

}  // namespace

int main() {
    volatile std::uint8_t sink = 0;
    const double field = BestMicroseconds([&] {
        std::vector<std::uint8_t> px(240 * 240 * 4);
        PlainField(px.data(), 240, 240);
        sink = sink + px[4 * 1000];
    }, 200);
    const HslColor blue = RgbToHsl(RgbToFloat(RgbColor{0x31, 0x6f, 0xff, 255}));
    const double bar = BestMicroseconds([&] {
        std::vector<std::uint8_t> px(20 * 240 * 4);
        PlainBar(px.data(), 20, 240, blue);
        sink = sink + px[4 * 1000];
    }, 2000);
    const double ownField = BestMicroseconds([&] {
        std::vector<std::uint8_t> px(240 * 240 * 4);
        DrawSelectorField(px.data(), 240, 240);
        sink = sink + px[4 * 1000];
    }, 200);
    const double ownBar = BestMicroseconds([&] {
        std::vector<std::uint8_t> px(20 * 240 * 4);
        DrawLightnessBar(px.data(), 20, 240, blue);
        sink = sink + px[4 * 1000];
    }, 2000);
    std::printf("field 240 240 %.2f\nbar 20 240 %.2f\n", field, bar);
    std::printf("library-field 240 240 %.2f\nlibrary-bar 20 240 %.2f\n", ownField, ownBar);
    return 0;
}
