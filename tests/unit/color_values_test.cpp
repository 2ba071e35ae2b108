#include <cmath>
#include <array>
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

// Compares floats bit for bit.
#define EXPECT_FLOAT_BITS(expected, actual) EXPECT_EQ(Bits(expected), Bits(actual))

}  // namespace

TEST(ParseHexColor, AcceptsHexWithOptionalIndependentQuotes) {
    for (const char* text : {"#1a2B3c", "{#1a2B3c}", "'#1a2B3c'", "\"#1a2B3c\"", "{#1a2B3c'",
                             "#1a2B3c}", "\"#1a2B3c"}) {
        RgbColor c;
        ASSERT_TRUE(ParseHexColor(text, c)) << text;
        EXPECT_EQ(26, c.red);
        EXPECT_EQ(43, c.green);
        EXPECT_EQ(60, c.blue);
        EXPECT_EQ(255, c.alpha);
    }
}

TEST(ParseHexColor, RejectsEverythingElseWithoutWriting) {
    for (const char* text : {"#fff", "white", " #ffffff", "#ffffff ", "#ffffff0", "#ff ff ff",
                             "ffffff", "", "#fffffff", "0xffffff", "#gg0000", "}#ffffff{",
                             "{{#ffffff}", "#ffffff\n"}) {
        RgbColor c;
        c.red = 1;  // anything pre-set must survive
        EXPECT_FALSE(ParseHexColor(text, c)) << text;
        EXPECT_EQ(1, c.red);
        EXPECT_EQ(0, c.alpha);
    }
    // An embedded NUL must not end the text early.
    RgbColor c;
    EXPECT_FALSE(ParseHexColor(std::string_view("#102030\0x", 9), c));
}

TEST(RgbToHsl, PrimariesGreysAndTies) {
    HslColor red = RgbToHsl({1, 0, 0});
    EXPECT_FLOAT_BITS(0.0f, red.hue);
    EXPECT_FLOAT_BITS(1.0f, red.saturation);
    EXPECT_FLOAT_BITS(0.5f, red.lightness);
    EXPECT_FLOAT_BITS(2.0f / 6.0f, RgbToHsl({0, 1, 0}).hue);
    EXPECT_FLOAT_BITS(4.0f / 6.0f, RgbToHsl({0, 0, 1}).hue);
    HslColor grey = RgbToHsl({0.3f, 0.3f, 0.3f});
    EXPECT_FLOAT_BITS(0.0f, grey.hue);
    EXPECT_FLOAT_BITS(0.0f, grey.saturation);
    EXPECT_FLOAT_BITS(0.3f, grey.lightness);
    // Red and green tie for the maximum: the red formula applies (hue 1/6).
    EXPECT_FLOAT_BITS(1.0f / 6.0f, RgbToHsl({1, 1, 0}).hue);
    // Magenta: blue > green adds a full turn before the division.
    EXPECT_FLOAT_BITS(5.0f / 6.0f, RgbToHsl({1, 0, 1}).hue);
}

TEST(RgbToHsl, ReferenceAccentColour) {
    RgbColor c;
    ASSERT_TRUE(ParseHexColor("#f8ce26", c));
    HslColor hsl = RgbToHsl(RgbToFloat(c));
    EXPECT_FLOAT_BITS(0.13333334f, hsl.hue);
    EXPECT_FLOAT_BITS(0.93749994f, hsl.saturation);
    EXPECT_FLOAT_BITS(0.56078434f, hsl.lightness);
}

TEST(HueToChannel, ThresholdsUseTheirOwnConstants) {
    // At t = 0.5 the falling edge applies: (1 * (0.66667 - 0.5)) * 6.
    EXPECT_FLOAT_BITS((0.66667f - 0.5f) * 6.0f, HueToChannel(0, 1, 0.5f));
    EXPECT_NEAR(1.0000201f, HueToChannel(0, 1, 0.5f), 1e-7f);
    EXPECT_FLOAT_BITS(0.25f, HueToChannel(0.25f, 1, 0.6667f));        // threshold is 0.6667
    EXPECT_FLOAT_BITS(1.0f, HueToChannel(0, 1, 0.3f));                // plateau
    EXPECT_FLOAT_BITS(0.75f, HueToChannel(0, 1, 0.125f));            // rising edge
    EXPECT_FLOAT_BITS(0.75f, HueToChannel(0, 1, 1.125f));            // wrapped once
    EXPECT_FLOAT_BITS(0.25f, HueToChannel(0.25f, 1, -0.125f));       // 0.875 is past the fall
    EXPECT_FLOAT_BITS(0.0f, HueToChannel(0, 1, 2.5f));               // wrapped only once: p
    EXPECT_FLOAT_BITS(0.0f, HueToChannel(0, 1, NAN));                // NaN falls through to p
}

TEST(HslToRgb, RedKeepsTheOffsetResidueInBlue) {
    RgbFloat c = HslToRgb({0, 1, 0.5f});
    EXPECT_FLOAT_BITS(1.0f, c.red);
    EXPECT_FLOAT_BITS(0.0f, c.green);
    EXPECT_NEAR(0.0000601f, c.blue, 1e-7f);
    EXPECT_GT(c.blue, 0.0f);
    EXPECT_EQ(255, ChannelToByte(c.red));
    EXPECT_EQ(0, ChannelToByte(c.blue));
    // Zero saturation is a grey of the lightness itself.
    RgbFloat grey = HslToRgb({0.7f, 0, 0.25f});
    EXPECT_FLOAT_BITS(0.25f, grey.red);
    EXPECT_FLOAT_BITS(0.25f, grey.blue);
    // A NaN lightness takes the second q form and ends up as NaN channels -> 0.
    RgbFloat nan = HslToRgb({0.2f, 0.5f, NAN});
    EXPECT_EQ(0, ChannelToByte(nan.red));
}

TEST(ChannelToByte, ClampsAndTruncates) {
    EXPECT_EQ(127, ChannelToByte(0.5f));
    EXPECT_EQ(255, ChannelToByte(1.0f));
    EXPECT_EQ(0, ChannelToByte(-0.1f));
    EXPECT_EQ(255, ChannelToByte(1.7f));
    EXPECT_EQ(0, ChannelToByte(NAN));
    EXPECT_EQ(254, ChannelToByte(0.999f));
}

TEST(ColourRoundTrip, TruncationLosesAtMostOneStep) {
    auto roundTrip = [](const char* text) {
        RgbColor c;
        EXPECT_TRUE(ParseHexColor(text, c));
        RgbFloat back = HslToRgb(RgbToHsl(RgbToFloat(c)));
        return std::array<int, 3>{ChannelToByte(back.red), ChannelToByte(back.green),
                                  ChannelToByte(back.blue)};
    };
    EXPECT_EQ((std::array<int, 3>{248, 206, 37}), roundTrip("#f8ce26"));
    EXPECT_EQ((std::array<int, 3>{0, 2, 3}), roundTrip("#010203"));
    EXPECT_EQ((std::array<int, 3>{255, 0, 0}), roundTrip("#ff0000"));
    EXPECT_EQ((std::array<int, 3>{0, 0, 255}), roundTrip("#0000ff"));
    EXPECT_EQ((std::array<int, 3>{77, 77, 77}), roundTrip("#4d4d4d"));
}

TEST(Palette, EndsAndRange) {
    EXPECT_STREQ("#000000", PaletteColor(1));
    EXPECT_STREQ("#ffffff", PaletteColor(2));
    EXPECT_STREQ("#647d17", PaletteColor(64));
    EXPECT_FALSE(PaletteIndexValid(0));
    EXPECT_FALSE(PaletteIndexValid(65));
    EXPECT_FALSE(PaletteIndexValid(-1));
    EXPECT_TRUE(PaletteIndexValid(1));
    for (int i = 1; i <= 64; ++i) {
        RgbColor c;
        EXPECT_TRUE(ParseHexColor(PaletteColor(i), c)) << i;
    }
}
