#include "color/selector_pixels.h"

#include <cmath>
#include <cstddef>
#include <cstring>
#include <vector>

#include "init/photo_access.h"

namespace tcu {
namespace {

constexpr int kDefaultSide = 240;

// One colour channel of a column of the field. HueToChannel picks its formula
// from t alone, so the choice and the factor are fixed per column and only
// p and q change from row to row.
struct ChannelPlan {
    enum Kind : std::uint8_t { Ramp, TakeQ, TakeP } kind;
    float factor;  // t on the rising edge, 0.66667 - t on the falling edge
};

// Mirrors HueToChannel step for step; the field's unit test holds the two
// together over whole pictures.
ChannelPlan PlanChannel(float t) {
    if (t < 0.0f) {
        t = t + 1.0f;
    } else if (t > 1.0f) {
        t = t + -1.0f;
    }
    if (t < 0.16667f) return {ChannelPlan::Ramp, t};
    if (t < 0.5f) return {ChannelPlan::TakeQ, 0.0f};
    if (t < 0.6667f) return {ChannelPlan::Ramp, 0.66667f - t};
    return {ChannelPlan::TakeP, 0.0f};
}

inline float RunChannel(const ChannelPlan& plan, float p, float q) {
    switch (plan.kind) {
        case ChannelPlan::Ramp: return ((q - p) * plan.factor) * 6.0f + p;
        case ChannelPlan::TakeQ: return q;
        default: return p;
    }
}

void FillRow(std::uint8_t* row, int width, const std::uint8_t pixel[4]) {
    std::uint32_t packed;
    std::memcpy(&packed, pixel, 4);
    for (int x = 0; x < width; ++x) std::memcpy(row + 4 * x, &packed, 4);
}

}  // namespace

SelectorSizing ChooseSelectorSize(PictureSize& size) {
    if (size.width < 1 || size.height < 1) {
        size = {kDefaultSide, kDefaultSide};
        return SelectorSizing::Default;
    }
    return CheckedPixelCount(size.width, size.height) < 0 ? SelectorSizing::TooLarge
                                                          : SelectorSizing::Keep;
}

void DrawSelectorField(std::uint8_t* rgba, int width, int height) {
    if (width <= 0 || height <= 0) return;
    const float stepX = 1.0f / static_cast<float>(width - 1);
    const float stepY = 1.0f / static_cast<float>(height - 1);

    // Per column: the three channels' plans for hue + 0.33334, hue, hue - 0.33334.
    std::vector<ChannelPlan> plans(static_cast<std::size_t>(width) * 3);
    for (int x = 0; x < width; ++x) {
        const float hue = static_cast<float>(x) * stepX;
        plans[3 * x] = PlanChannel(hue + 0.33334f);
        plans[3 * x + 1] = PlanChannel(hue);
        plans[3 * x + 2] = PlanChannel(hue - 0.33334f);
    }

    std::uint8_t* px = rgba;
    for (int y = height - 1; y >= 0; --y, px += static_cast<std::size_t>(width) * 4) {
        const float s = static_cast<float>(y) * stepY;
        if (s == 0.0f) {
            // HslToRgb's grey: lightness 0.5 in every channel, whatever the hue.
            const std::uint8_t grey = ChannelToByte(0.5f);
            const std::uint8_t pixel[4] = {grey, grey, grey, 255};
            FillRow(px, width, pixel);
            continue;
        }
        // HslToRgb at lightness 0.5: q = (s + 1) * l, p = (l + l) - q.
        const float q = (s + 1.0f) * 0.5f;
        const float p = 1.0f - q;
        const ChannelPlan* plan = plans.data();
        std::uint8_t* out = px;
        for (int x = 0; x < width; ++x, plan += 3, out += 4) {
            out[0] = ChannelToByte(RunChannel(plan[0], p, q));
            out[1] = ChannelToByte(RunChannel(plan[1], p, q));
            out[2] = ChannelToByte(RunChannel(plan[2], p, q));
            out[3] = 255;
        }
    }
}

void DrawLightnessBar(std::uint8_t* rgba, int width, int height, HslColor colour) {
    if (width <= 0 || height <= 0) return;
    const float stepY = 1.0f / static_cast<float>(height - 1);
    std::uint8_t* px = rgba;
    for (int y = height - 1; y >= 0; --y, px += static_cast<std::size_t>(width) * 4) {
        const float l = static_cast<float>(y) * stepY;
        const RgbFloat c = HslToRgb(HslColor{colour.hue, colour.saturation, l});
        const std::uint8_t pixel[4] = {ChannelToByte(c.red), ChannelToByte(c.green),
                                       ChannelToByte(c.blue), 255};
        FillRow(px, width, pixel);
    }
}

}  // namespace tcu
