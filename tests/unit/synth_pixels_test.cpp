#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "color/highlight_hue.h"
#include "synth/state_variants.h"
#include "synth/swatch_image.h"

using namespace tcu;

namespace {

using Px = std::array<int, 4>;
using Buf = std::vector<std::uint8_t>;
const Px kClear{255, 255, 255, 0}, kHigh{255, 179, 23, 200}, kLine{0, 0, 0, 255},
    kFaint{0, 0, 0, 127}, kFill{18, 171, 52, 255};
const RgbColor kRed{255, 0, 0, 255};

Px At(const Buf& b, int stride, int x, int y) {
    const std::size_t i = (static_cast<std::size_t>(y) * stride + x) * 4;
    return {b[i], b[i + 1], b[i + 2], b[i + 3]};
}

Buf Swatch(const char* text, int side, bool strip, bool disabled, int& w) {
    RgbColor c;
    ParseHexColor(text, c);
    int h = 0;
    return ComposeSwatchPixels(c, side, side, strip, disabled, w, h);
}

// Margin everywhere, a one-pixel line ring inside it, the fill inside that.
void ExpectFrame(const Buf& b, int stride, int x0, int s, Px margin, Px line, Px fill) {
    for (int i = 0; i < s * s; ++i) {
        const int x = i % s, y = i / s;
        const bool in1 = x >= 1 && x <= s - 2 && y >= 1 && y <= s - 2;
        const bool in2 = x >= 2 && x <= s - 3 && y >= 2 && y <= s - 3;
        ASSERT_EQ(in2 ? fill : in1 ? line : margin, At(b, stride, x0 + x, y)) << s << ":" << i;
    }
}

Px Inverted(Px p) {
    Buf b(p.begin(), p.end());
    InvertPixelLightness(b.data(), 1, 1);
    return At(b, 1, 0, 0);
}
Px Rehued(Px p, RgbColor target = kRed) {
    Buf b(p.begin(), p.end());
    ReplaceHighlightHueInPixels(b.data(), 1, 1, target);
    return At(b, 1, 0, 0);
}

}  // namespace

TEST(SwatchPixels, FramesOfEverySideStripsOfSixStatesAndRefusedSizes) {
    int w = 0;
    ExpectFrame(Swatch("#12ab34", 16, false, true, w), 16, 0, 16, kClear, kFaint, {18, 171, 52, 127});
    // 1, 2: margin only; 3: black centre; 4: black 2 x 2; 5: ring round (2, 2).
    for (int s : {1, 2, 3, 4, 5, 16})
        ExpectFrame(Swatch("#12ab34", s, false, false, w), s, 0, s, kClear, kLine, kFill);
    EXPECT_TRUE(Swatch("#12ab34", 0, false, false, w).empty());
    EXPECT_EQ(0, w);
    const Px light{129, 205, 146, 255}, faint{129, 205, 146, 127};
    for (bool disabled : {false, true}) {  // a strip ignores disabled
        const Buf b = Swatch("#12ab34", 16, true, disabled, w);
        ASSERT_EQ(96, w);
        const Px looks[6][3] = {{kHigh, kLine, light},   {kClear, kLine, kFill},
                                {kClear, kFaint, faint}, {kClear, kFaint, faint},
                                {kHigh, kLine, light},   {kClear, kLine, light}};
        for (int k = 0; k < 6; ++k) ExpectFrame(b, 96, 16 * k, 16, looks[k][0], looks[k][1], looks[k][2]);
    }
    int h = 0;
    // An unparsed colour is black: its light form is grey 120.
    EXPECT_EQ((Px{120, 120, 120, 255}), At(Swatch("#12ab3", 8, true, false, w), 48, 4, 4));
    EXPECT_EQ((Px{0, 0, 0, 255}), At(Swatch("#12ab3", 8, true, false, w), 48, 12, 4));
    EXPECT_EQ((Px{247, 247, 247, 255}), At(Swatch("#ffffff", 8, true, false, w), 48, 4, 4));
    // A 10000-side strip would take 2.4 GB: refused, though the square would fit.
    EXPECT_TRUE(ComposeSwatchPixels(kRed, 10000, 10000, true, false, w, h).empty());
    EXPECT_EQ(-1, w);
    EXPECT_TRUE(ComposeSwatchPixels(kRed, -3, 4, false, false, w, h).empty());
    EXPECT_EQ(-1, h);
}

TEST(HighlightHue, ReferenceAccentTakesTargetHueOnly) {
    EXPECT_EQ((Px{248, 37, 38, 255}), Rehued({248, 206, 38, 255}));
    EXPECT_EQ((Px{248, 37, 38, 7}), Rehued({248, 206, 38, 7}));
    // No colour (alpha 0, whatever the channels): the reference hue itself.
    EXPECT_EQ((Px{248, 206, 37, 255}), Rehued({248, 206, 38, 255}, RgbColor{255, 0, 0, 0}));
    for (Px keep : {Px{248, 206, 38, 0}, Px{0, 0, 0, 255}, Px{128, 128, 128, 255}, kFill})
        EXPECT_EQ(keep, Rehued(keep));
    // No byte triple lies exactly 0.015 from the reference hue; the nearest:
    // 0.0149999857 inside, 0.0150000006 (next float above 0.015) outside.
    EXPECT_NE((Px{100, 89, 0, 255}), Rehued({100, 89, 0, 255}));
    EXPECT_EQ((Px{100, 71, 0, 255}), Rehued({100, 71, 0, 255}));
}

TEST(InvertLightness, SinglePrecisionGreysAndColours) {
    for (auto g : {Px{0, 255}, {64, 191}, {65, 189}, {127, 127}, {128, 126}, {254, 0}, {255, 0}})
        EXPECT_EQ((Px{g[1], g[1], g[1], 9}), Inverted({g[0], g[0], g[0], 9}));
    EXPECT_EQ((Px{255, 127, 127, 255}), Inverted({128, 0, 0, 255}));
    EXPECT_EQ((Px{165, 195, 224, 1}), Inverted({30, 60, 90, 1}));
    for (Px keep : {Px{255, 0, 0, 255}, Px{0, 0, 255, 255}, Px{12, 34, 56, 0}})
        EXPECT_EQ(keep, Inverted(keep));
}

TEST(Recolouring, WholeBuffersMatchSinglePixels) {
    // Runs and repeats of colours must not leak one pixel's answer into another.
    const std::vector<Px> in = {{30, 60, 90, 255}, {30, 60, 90, 255}, {248, 206, 38, 255},
                                {30, 60, 90, 0},   {64, 64, 64, 255}, {248, 206, 38, 255},
                                {100, 71, 0, 255}, {248, 206, 38, 0}};
    Buf a;
    for (const Px& p : in) a.insert(a.end(), p.begin(), p.end());
    Buf b = a;
    InvertPixelLightness(a.data(), 4, 2);
    ReplaceHighlightHueInPixels(b.data(), 2, 4, kRed);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(Inverted(in[i]), At(a, 8, i, 0)) << i;
        EXPECT_EQ(Rehued(in[i]), At(b, 8, i, 0)) << i;
    }
}
