#include <array>
#include <cmath>
#include <cstring>

#include <gtest/gtest.h>

#include "color/color_values.h"
#include "color/palette.h"

using namespace tcu;

namespace {

std::uint32_t Bits(float f) {
    std::uint32_t u;
    std::memcpy(&u, &f, 4);
    return u;
}

std::array<std::uint32_t, 3> HslBits(HslColor c) {
    return {Bits(c.hue), Bits(c.saturation), Bits(c.lightness)};
}
std::array<int, 3> Bytes(RgbFloat c) {
    return {ChannelToByte(c.red), ChannelToByte(c.green), ChannelToByte(c.blue)};
}

// Compares floats bit for bit.
#define EXPECT_FLOAT_BITS(expected, actual) EXPECT_EQ(Bits(expected), Bits(actual))

}  // namespace

TEST(ParseHexColor, HexWithOptionalIndependentQuotesOnlyAndEveryPaletteEntry) {
    for (const char* text :
         {"#1a2B3c", "{#1a2B3c}", "'#1a2B3c'", "\"#1a2B3c\"", "{#1a2B3c'", "#1a2B3c}", "\"#1a2B3c"}) {
        RgbColor c;
        ASSERT_TRUE(ParseHexColor(text, c)) << text;
        EXPECT_EQ((std::array<int, 4>{26, 43, 60, 255}), (std::array<int, 4>{c.red, c.green, c.blue, c.alpha}));
    }
    for (const char* text : {"#fff", "white", " #ffffff", "#ffffff ", "#ffffff0", "#ff ff ff", "ffffff", "",
                             "0xffffff", "#gg0000", "}#ffffff{", "{{#ffffff}", "#ffffff\n"}) {
        RgbColor c;
        c.red = 1;  // a refusal writes nothing
        EXPECT_FALSE(ParseHexColor(text, c)) << text;
        EXPECT_EQ(1, c.red);
        EXPECT_EQ(0, c.alpha);
    }
    RgbColor c;  // an embedded NUL does not end the text early
    EXPECT_FALSE(ParseHexColor(std::string_view("#102030\0x", 9), c));
    for (int i = 1; i <= 64; ++i) EXPECT_TRUE(ParseHexColor(PaletteColor(i), c)) << "palette " << i;
}

TEST(RgbToHsl, PrimariesGreysTiesAndTheReferenceAccent) {
    EXPECT_EQ(HslBits({0.0f, 1.0f, 0.5f}), HslBits(RgbToHsl({1, 0, 0})));
    EXPECT_EQ(HslBits({0.0f, 0.0f, 0.3f}), HslBits(RgbToHsl({0.3f, 0.3f, 0.3f})));
    EXPECT_FLOAT_BITS(2.0f / 6.0f, RgbToHsl({0, 1, 0}).hue);
    EXPECT_FLOAT_BITS(4.0f / 6.0f, RgbToHsl({0, 0, 1}).hue);
    EXPECT_FLOAT_BITS(1.0f / 6.0f, RgbToHsl({1, 1, 0}).hue);  // red and green tie: red's formula
    EXPECT_FLOAT_BITS(5.0f / 6.0f, RgbToHsl({1, 0, 1}).hue);  // blue > green: a turn added first
    EXPECT_EQ(HslBits({0.13333334f, 0.93749994f, 0.56078434f}),
              HslBits(RgbToHsl(RgbToFloat({248, 206, 38, 255}))));
}

TEST(HueToChannel, ThresholdsUseTheirOwnConstants) {
    // At t = 0.5 the falling edge applies: (1 * (0.66667 - 0.5)) * 6.
    EXPECT_FLOAT_BITS((0.66667f - 0.5f) * 6.0f, HueToChannel(0, 1, 0.5f));
    EXPECT_FLOAT_BITS(0.25f, HueToChannel(0.25f, 1, 0.6667f));   // threshold is 0.6667
    EXPECT_FLOAT_BITS(1.0f, HueToChannel(0, 1, 0.3f));           // plateau
    EXPECT_FLOAT_BITS(0.75f, HueToChannel(0, 1, 0.125f));        // rising edge
    EXPECT_FLOAT_BITS(0.75f, HueToChannel(0, 1, 1.125f));        // wrapped once
    EXPECT_FLOAT_BITS(0.25f, HueToChannel(0.25f, 1, -0.125f));   // 0.875 is past the fall
    EXPECT_FLOAT_BITS(0.0f, HueToChannel(0, 1, 2.5f));           // wrapped only once: p
    EXPECT_FLOAT_BITS(0.0f, HueToChannel(0, 1, NAN));            // NaN falls through to p
}

TEST(HslToRgb, OffsetResidueGreysNaNTruncatingBytesAndRoundTrips) {
    const RgbFloat red = HslToRgb({0, 1, 0.5f});
    EXPECT_FLOAT_BITS(1.0f, red.red);
    EXPECT_FLOAT_BITS(0.0f, red.green);
    EXPECT_NEAR(0.0000601f, red.blue, 1e-7f);  // above 0, a byte of 0
    const RgbFloat grey = HslToRgb({0.7f, 0, 0.25f});
    EXPECT_FLOAT_BITS(0.25f, grey.red);
    EXPECT_FLOAT_BITS(0.25f, grey.blue);
    EXPECT_EQ(0, ChannelToByte(HslToRgb({0.2f, 0.5f, NAN}).red));
    for (auto [c, byte] : {std::pair{0.5f, 127}, {1.0f, 255}, {-0.1f, 0}, {1.7f, 255}, {NAN, 0}, {0.999f, 254}})
        EXPECT_EQ(byte, ChannelToByte(c)) << c;
    // Round trips lose at most one step.
    for (auto [in, out] : {std::pair<RgbColor, std::array<int, 3>>{{248, 206, 38, 255}, {248, 206, 37}},
                           {{1, 2, 3, 255}, {0, 2, 3}}, {{255, 0, 0, 255}, {255, 0, 0}},
                           {{0, 0, 255, 255}, {0, 0, 255}}, {{77, 77, 77, 255}, {77, 77, 77}}})
        EXPECT_EQ(out, Bytes(HslToRgb(RgbToHsl(RgbToFloat(in)))));
}
