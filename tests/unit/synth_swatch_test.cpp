#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

#include "color/color_values.h"
#include "synth/swatch_image.h"

using namespace tcu;

namespace {

using Pixel = std::array<int, 4>;

const Pixel kMargin{255, 255, 255, 0};
const Pixel kHighlightMargin{255, 179, 23, 200};

Pixel At(const std::vector<std::uint8_t>& px, int stride, int x, int y) {
    const std::size_t i = (static_cast<std::size_t>(y) * stride + x) * 4;
    return {px[i], px[i + 1], px[i + 2], px[i + 3]};
}

RgbColor Parsed(const char* text) {
    RgbColor c;
    ParseHexColor(text, c);
    return c;
}

// Checks one s x s frame whose left column is x0 against margin, line, fill.
void ExpectFrame(const std::vector<std::uint8_t>& px, int stride, int x0, int s, Pixel margin,
                 Pixel line, Pixel fill) {
    for (int y = 0; y < s; ++y) {
        for (int x = 0; x < s; ++x) {
            const bool inLine = x >= 1 && x <= s - 2 && y >= 1 && y <= s - 2;
            const bool inFill = x >= 2 && x <= s - 3 && y >= 2 && y <= s - 3;
            const Pixel want = inFill ? fill : inLine ? line : margin;
            ASSERT_EQ(want, At(px, stride, x0 + x, y)) << "x " << x0 + x << " y " << y;
        }
    }
}

}  // namespace

TEST(SwatchLightColor, MovesHalfwayTowardGrey240RoundingDown) {
    const RgbColor light = SwatchLightColor(Parsed("#12ab34"));
    EXPECT_EQ((Pixel{129, 205, 146, 255}), (Pixel{light.red, light.green, light.blue, 255}));
    const RgbColor white = SwatchLightColor(Parsed("#ffffff"));
    EXPECT_EQ((Pixel{247, 247, 247}), (Pixel{white.red, white.green, white.blue}));
    const RgbColor black = SwatchLightColor(RgbColor{});
    EXPECT_EQ((Pixel{120, 120, 120}), (Pixel{black.red, black.green, black.blue}));
    // The integer halfway point must equal the single-precision formula.
    for (int c = 0; c < 256; ++c) {
        const std::uint8_t b = static_cast<std::uint8_t>(c);
        const float f = static_cast<float>(c) + static_cast<float>(240 - c) * 0.5f;
        EXPECT_EQ(static_cast<int>(f), SwatchLightColor(RgbColor{b, b, b, 255}).red) << c;
    }
}

TEST(ComposeSwatchPixels, PlainSixteenEnabledAndDisabled) {
    int w = 0, h = 0;
    auto px = ComposeSwatchPixels(Parsed("#12ab34"), 16, 16, false, false, w, h);
    ASSERT_EQ(16, w);
    ASSERT_EQ(16, h);
    ASSERT_EQ(16u * 16 * 4, px.size());
    ExpectFrame(px, 16, 0, 16, kMargin, {0, 0, 0, 255}, {18, 171, 52, 255});

    px = ComposeSwatchPixels(Parsed("#12ab34"), 16, 16, false, true, w, h);
    ExpectFrame(px, 16, 0, 16, kMargin, {0, 0, 0, 127}, {18, 171, 52, 127});
}

TEST(ComposeSwatchPixels, PlainNonSquareUsesBothSides) {
    int w = 0, h = 0;
    const auto px = ComposeSwatchPixels(Parsed("#102030"), 7, 5, false, false, w, h);
    ASSERT_EQ(7, w);
    ASSERT_EQ(5, h);
    EXPECT_EQ((Pixel{16, 32, 48, 255}), At(px, 7, 4, 2));
    EXPECT_EQ((Pixel{0, 0, 0, 255}), At(px, 7, 5, 2));
    EXPECT_EQ((Pixel{0, 0, 0, 255}), At(px, 7, 4, 3));
    EXPECT_EQ(kMargin, At(px, 7, 6, 2));
}

TEST(ComposeSwatchPixels, SmallSidesLoseFillThenLine) {
    const Pixel black{0, 0, 0, 255}, fill{18, 171, 52, 255};
    int w = 0, h = 0;
    auto px = ComposeSwatchPixels(Parsed("#12ab34"), 0, 0, false, false, w, h);
    EXPECT_EQ(0, w);
    EXPECT_EQ(0, h);
    EXPECT_TRUE(px.empty());
    for (int s : {1, 2}) {
        px = ComposeSwatchPixels(Parsed("#12ab34"), s, s, false, false, w, h);
        ASSERT_EQ(static_cast<std::size_t>(s * s * 4), px.size());
        for (int i = 0; i < s * s; ++i) EXPECT_EQ(kMargin, At(px, s, i % s, i / s)) << s;
    }
    px = ComposeSwatchPixels(Parsed("#12ab34"), 3, 3, false, false, w, h);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(i == 4 ? black : kMargin, At(px, 3, i % 3, i / 3));
    px = ComposeSwatchPixels(Parsed("#12ab34"), 4, 4, false, false, w, h);
    for (int i = 0; i < 16; ++i) {
        const int x = i % 4, y = i / 4;
        const bool centre = x >= 1 && x <= 2 && y >= 1 && y <= 2;
        EXPECT_EQ(centre ? black : kMargin, At(px, 4, x, y)) << x << "," << y;
    }
    px = ComposeSwatchPixels(Parsed("#12ab34"), 5, 5, false, false, w, h);
    ExpectFrame(px, 5, 0, 5, kMargin, black, fill);
    EXPECT_EQ(fill, At(px, 5, 2, 2));
}

TEST(ComposeSwatchPixels, StripHasSixStateFrames) {
    for (bool disabled : {false, true}) {  // the disabled flag must not matter
        int w = 0, h = 0;
        // The width argument is ignored: a strip is six squares of the height.
        const auto px = ComposeSwatchPixels(Parsed("#12ab34"), 16, 16, true, disabled, w, h);
        ASSERT_EQ(96, w);
        ASSERT_EQ(16, h);
        ASSERT_EQ(96u * 16 * 4, px.size());
        const Pixel line{0, 0, 0, 255}, faintLine{0, 0, 0, 127};
        const Pixel light{129, 205, 146, 255}, faintLight{129, 205, 146, 127};
        ExpectFrame(px, 96, 0, 16, kHighlightMargin, line, light);
        ExpectFrame(px, 96, 16, 16, kMargin, line, {18, 171, 52, 255});
        ExpectFrame(px, 96, 32, 16, kMargin, faintLine, faintLight);
        ExpectFrame(px, 96, 48, 16, kMargin, faintLine, faintLight);
        ExpectFrame(px, 96, 64, 16, kHighlightMargin, line, light);
        ExpectFrame(px, 96, 80, 16, kMargin, line, light);
    }
}

TEST(ComposeSwatchPixels, UnparsedColourIsBlackWithGreyLight) {
    for (const char* text : {"#12ab3", ""}) {
        int w = 0, h = 0;
        const auto px = ComposeSwatchPixels(Parsed(text), 8, 8, true, false, w, h);
        EXPECT_EQ((Pixel{0, 0, 0, 255}), At(px, 48, 8 + 4, 4)) << text;
        EXPECT_EQ((Pixel{120, 120, 120, 255}), At(px, 48, 4, 4)) << text;
        EXPECT_EQ((Pixel{120, 120, 120, 127}), At(px, 48, 16 + 4, 4)) << text;
    }
}

TEST(ComposeSwatchPixels, RefusesSizesThatDoNotFit) {
    int w = 0, h = 0;
    // 6 x 10000 x 10000 pixels would need 2.4 GB: the strip is refused even
    // though a plain square of that side would fit.
    EXPECT_TRUE(ComposeSwatchPixels(RgbColor{}, 10000, 10000, true, false, w, h).empty());
    EXPECT_EQ(-1, w);
    EXPECT_EQ(-1, h);
    EXPECT_TRUE(ComposeSwatchPixels(RgbColor{}, 1 << 30, 1 << 30, true, false, w, h).empty());
    EXPECT_TRUE(ComposeSwatchPixels(RgbColor{}, 70000, 70000, false, false, w, h).empty());
    EXPECT_EQ(-1, w);
    EXPECT_TRUE(ComposeSwatchPixels(RgbColor{}, -3, 4, false, false, w, h).empty());
    EXPECT_EQ(-1, w);
    EXPECT_TRUE(ComposeSwatchPixels(RgbColor{}, 4, -3, true, false, w, h).empty());
    EXPECT_EQ(-1, h);
}
