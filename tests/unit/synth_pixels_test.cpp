#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

#include "color/color_values.h"
#include "color/highlight_hue.h"
#include "synth/state_variants.h"

using namespace tcu;

namespace {

using Pixel = std::array<int, 4>;

std::vector<std::uint8_t> Buffer(const std::vector<Pixel>& pixels) {
    std::vector<std::uint8_t> out;
    for (const Pixel& p : pixels)
        for (int c : p) out.push_back(static_cast<std::uint8_t>(c));
    return out;
}

Pixel At(const std::vector<std::uint8_t>& px, std::size_t i) {
    return {px[4 * i], px[4 * i + 1], px[4 * i + 2], px[4 * i + 3]};
}

Pixel Rehued(Pixel p, RgbColor target) {
    auto buf = Buffer({p});
    ReplaceHighlightHueInPixels(buf.data(), 1, 1, target);
    return At(buf, 0);
}

Pixel Inverted(Pixel p) {
    auto buf = Buffer({p});
    InvertPixelLightness(buf.data(), 1, 1);
    return At(buf, 0);
}

const RgbColor kRed{255, 0, 0, 255};

}  // namespace

TEST(ReplaceHighlightHue, ReferenceAccentTakesTargetHue) {
    EXPECT_EQ((Pixel{248, 37, 38, 255}), Rehued({248, 206, 38, 255}, kRed));
    // No target colour: snapped to the reference hue, blue drops one step.
    EXPECT_EQ((Pixel{248, 206, 37, 255}), Rehued({248, 206, 38, 255}, RgbColor{}));
    // A target whose alpha is 0 counts as no colour, whatever its channels.
    EXPECT_EQ((Pixel{248, 206, 37, 255}), Rehued({248, 206, 38, 255}, RgbColor{255, 0, 0, 0}));
    for (int a : {1, 127, 200}) EXPECT_EQ((Pixel{248, 37, 38, a}), Rehued({248, 206, 38, a}, kRed));
}

TEST(ReplaceHighlightHue, LeavesOtherPixelsAlone) {
    // Transparent pixels keep all four bytes, even in the reference colour.
    EXPECT_EQ((Pixel{248, 206, 38, 0}), Rehued({248, 206, 38, 0}, kRed));
    for (int g : {0, 1, 128, 255}) EXPECT_EQ((Pixel{g, g, g, 255}), Rehued({g, g, g, 255}, kRed));
    EXPECT_EQ((Pixel{18, 171, 52, 255}), Rehued({18, 171, 52, 255}, kRed));
}

TEST(ReplaceHighlightHue, ToleranceIsInclusiveAroundReferenceHue) {
    // No byte triple lands exactly on 0.015 from the reference hue; these are
    // the nearest on either side: 0.0149999857 inside, 0.0150000006 (one
    // step above 0.015 in single precision) outside.
    EXPECT_NE((Pixel{100, 89, 0, 255}), Rehued({100, 89, 0, 255}, kRed));
    EXPECT_EQ((Pixel{100, 71, 0, 255}), Rehued({100, 71, 0, 255}, kRed));
    // Below the reference hue, still inside.
    EXPECT_NE((Pixel{169, 120, 0, 255}), Rehued({169, 120, 0, 255}, kRed));
}

TEST(ReplaceHighlightHue, BufferMatchesPixelByPixel) {
    // Mixed runs of accents, greys and others must give each pixel's own answer.
    const std::vector<Pixel> in = {{248, 206, 38, 255}, {248, 206, 38, 255}, {100, 71, 0, 255},
                                   {248, 206, 38, 255}, {64, 64, 64, 255},   {248, 206, 38, 0},
                                   {100, 89, 0, 255},   {100, 71, 0, 255},   {248, 206, 38, 9}};
    auto buf = Buffer(in);
    ReplaceHighlightHueInPixels(buf.data(), 3, 3, kRed);
    for (std::size_t i = 0; i < in.size(); ++i) EXPECT_EQ(Rehued(in[i], kRed), At(buf, i)) << i;
}

TEST(InvertPixelLightness, GreyLevelsFollowSinglePrecision) {
    const std::array<std::array<int, 2>, 7> greys = {
        {{0, 255}, {64, 191}, {65, 189}, {127, 127}, {128, 126}, {254, 0}, {255, 0}}};
    for (const auto& g : greys) {
        EXPECT_EQ((Pixel{g[1], g[1], g[1], 255}), Inverted({g[0], g[0], g[0], 255})) << g[0];
    }
}

TEST(InvertPixelLightness, ColoursKeepHueAndAlpha) {
    EXPECT_EQ((Pixel{255, 127, 127, 255}), Inverted({128, 0, 0, 255}));
    EXPECT_EQ((Pixel{165, 195, 224, 255}), Inverted({30, 60, 90, 255}));
    EXPECT_EQ((Pixel{255, 0, 0, 255}), Inverted({255, 0, 0, 255}));
    EXPECT_EQ((Pixel{0, 0, 255, 255}), Inverted({0, 0, 255, 255}));
    EXPECT_EQ((Pixel{12, 34, 56, 0}), Inverted({12, 34, 56, 0}));
    for (int a = 1; a < 256; ++a) EXPECT_EQ((Pixel{255, 255, 255, a}), Inverted({0, 0, 0, a}));
}

TEST(InvertPixelLightness, BufferMatchesPixelByPixel) {
    const std::vector<Pixel> in = {{30, 60, 90, 255},  {30, 60, 90, 255}, {128, 0, 0, 255},
                                   {30, 60, 90, 255},  {64, 64, 64, 255}, {30, 60, 90, 0},
                                   {128, 128, 128, 5}, {128, 0, 0, 255}};
    auto buf = Buffer(in);
    InvertPixelLightness(buf.data(), 4, 2);
    for (std::size_t i = 0; i < in.size(); ++i) EXPECT_EQ(Inverted(in[i]), At(buf, i)) << i;
    // Empty pictures are accepted and nothing is touched.
    InvertPixelLightness(nullptr, 0, 0);
    ReplaceHighlightHueInPixels(nullptr, 0, 5, kRed);
}

TEST(StateNameTable, StripOrder) {
    const char* expected[6] = {"active",      "normal",  "disabled",
                               "disabledoff", "pressed", "selected"};
    for (int k = 0; k < 6; ++k) EXPECT_STREQ(expected[k], StateNameTable[k]);
}
