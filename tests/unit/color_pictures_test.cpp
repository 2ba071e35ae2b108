#include <climits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "color/arrow_image.h"
#include "color/selector_pixels.h"

using namespace tcu;

namespace {

// One text row per picture row: '#' for an opaque pixel, '.' for a clear one.
std::vector<std::string> ArrowMask(int size, const RgbColor& colour = {1, 2, 3, 255}) {
    PictureSize p{-1, -1};
    EXPECT_TRUE(ArrowPictureSize(size, p));
    std::vector<std::uint8_t> px(static_cast<size_t>(p.width) * p.height * 4, 7);
    DrawArrowPixels(px.data(), p, size, colour);
    std::vector<std::string> rows(p.height, std::string(p.width, '?'));
    for (int k = 0; k < p.width * p.height; ++k) {
        const std::uint8_t* c = &px[4 * k];
        const bool on = c[0] == colour.red && c[1] == colour.green && c[2] == colour.blue && c[3] == 255;
        const bool off = c[0] == 255 && c[1] == 255 && c[2] == 255 && c[3] == 0;
        rows[k / p.width][k % p.width] = on ? '#' : (off ? '.' : '?');
    }
    return rows;
}

std::vector<std::uint8_t> Field(int w, int h) {
    std::vector<std::uint8_t> px(static_cast<size_t>(w) * h * 4);
    DrawSelectorField(px.data(), w, h);
    return px;
}

}  // namespace

TEST(ArrowImage, WedgeFollowsTheBarycentricTestToTheEdgePixel) {
    EXPECT_EQ((std::vector<std::string>{".......", ".......", ".....##", "...####", ".######",
                                        "...####", ".....##", ".......", "......."}),
              ArrowMask(9));
    const std::vector<std::string> big = ArrowMask(16);
    ASSERT_EQ(16u, big.size());
    ASSERT_EQ(13u, big[0].size());
    int firstRow = -1, lastRow = -1;
    for (int j = 0; j < 16; ++j)
        if (big[j].find('#') != std::string::npos) (firstRow < 0 ? firstRow : lastRow) = j;
    EXPECT_EQ(2, firstRow);
    EXPECT_EQ(12, lastRow);
    EXPECT_EQ("............#", big[2]);
    EXPECT_EQ(".############", big[7]);
    EXPECT_EQ("............#", big[12]);
    EXPECT_EQ((std::vector<std::string>{"..", ".#", ".."}), ArrowMask(3));
    EXPECT_EQ((std::vector<std::string>{".", "."}), ArrowMask(2));
}

TEST(ArrowImage, SizesFloorTheTriangleAndRefuseWhatCannotBeBuffered) {
    PictureSize p{-1, -1};
    for (auto [size, w, h] : {std::tuple{1, 0, 1}, {0, 0, 0}, {20000, 17320, 20000}}) {
        ASSERT_TRUE(ArrowPictureSize(size, p)) << size;
        EXPECT_EQ(w, p.width);
        EXPECT_EQ(h, p.height);
    }
    p = {5, 5};
    for (int size : {-1, INT_MIN, 30000, INT_MAX}) EXPECT_FALSE(ArrowPictureSize(size, p)) << size;
    EXPECT_EQ(5, p.width);
}

TEST(SelectorField, SevenByThreeHasTheListedBytes) {
    const std::vector<std::uint8_t> expected = {
        255, 0, 0, 255, 254, 255, 0, 255, 0, 255, 0, 255, 0, 255, 254, 255, 0, 0, 255, 255,
        255, 0, 255, 255, 255, 0, 0, 255, 191, 63, 63, 255, 191, 191, 63, 255, 63, 191, 63, 255,
        63, 191, 191, 255, 63, 63, 191, 255, 191, 63, 191, 255, 191, 63, 63, 255};
    std::vector<std::uint8_t> px = Field(7, 3);
    EXPECT_EQ(expected, std::vector<std::uint8_t>(px.begin(), px.begin() + 56));
    for (size_t k = 56; k < px.size(); ++k) EXPECT_EQ(k % 4 == 3 ? 255 : 127, px[k]) << k;
}

TEST(SelectorField, EveryPixelIsHslToRgbIncludingTheNaNOfOnePixelSides) {
    for (auto [w, h] : {std::pair{240, 240}, {1, 4}, {3, 1}, {1, 1}, {2, 2}, {101, 37}}) {
        const std::vector<std::uint8_t> px = Field(w, h);
        const float stepX = 1.0f / static_cast<float>(w - 1), stepY = 1.0f / static_cast<float>(h - 1);
        for (int row = 0; row < h; ++row)
            for (int x = 0; x < w; ++x) {
                const RgbFloat c = HslToRgb({x * stepX, (h - 1 - row) * stepY, 0.5f});
                const std::uint8_t* got = &px[4 * (static_cast<size_t>(row) * w + x)];
                ASSERT_EQ(ChannelToByte(c.red), got[0]) << w << "x" << h << " at " << x << "," << row;
                ASSERT_EQ(ChannelToByte(c.green), got[1]);
                ASSERT_EQ(ChannelToByte(c.blue), got[2]);
                ASSERT_EQ(255, got[3]);
            }
    }
    // One column: greys from black to 127; one row: black.
    EXPECT_EQ((std::vector<std::uint8_t>{0, 0, 0, 255, 42, 42, 42, 255, 84, 84, 84, 255, 127, 127, 127, 255}),
              Field(1, 4));
    EXPECT_EQ(std::vector<std::uint8_t>({0, 0, 0, 255, 0, 0, 0, 255}), Field(2, 1));
}

TEST(LightnessBar, RowsRunFromWhiteThroughTheColourToBlack) {
    auto bar = [](RgbColor c, int w, int h) {
        std::vector<std::uint8_t> px(static_cast<size_t>(w) * h * 4);
        DrawLightnessBar(px.data(), w, h, RgbToHsl(RgbToFloat(c)));
        return px;
    };
    EXPECT_EQ((std::vector<std::uint8_t>{255, 255, 255, 255, 255, 127, 127, 255, 255, 0, 0, 255,
                                         127, 0, 0, 255, 0, 0, 0, 255}),
              bar({255, 0, 0, 255}, 1, 5));
    const std::vector<std::uint8_t> blue = bar({0x31, 0x6f, 0xff, 255}, 3, 11);
    for (int row = 0; row < 11; ++row)
        for (int x = 1; x < 3; ++x)
            for (int c = 0; c < 4; ++c) ASSERT_EQ(blue[(row * 3) * 4 + c], blue[(row * 3 + x) * 4 + c]);
    EXPECT_EQ((std::vector<std::uint8_t>{0, 76, 255, 255}), std::vector<std::uint8_t>(&blue[60], &blue[64]));
    EXPECT_EQ(255, blue[0]);
    EXPECT_EQ(0, blue[120] + blue[121] + blue[122]);
    EXPECT_EQ(std::vector<std::uint8_t>({0, 0, 0, 255, 0, 0, 0, 255}), bar({9, 9, 9, 255}, 2, 1));
}

TEST(SelectorSize, EmptySideMeans240AndOversizeIsRefused) {
    for (auto [w, h, want] : {std::tuple{300, 0, SelectorSizing::Default}, {0, 5, SelectorSizing::Default},
                              {-3, 9, SelectorSizing::Default}, {1, 1, SelectorSizing::Keep},
                              {23170, 23170, SelectorSizing::Keep}, {23171, 23171, SelectorSizing::TooLarge},
                              {INT_MAX, 2, SelectorSizing::TooLarge}}) {
        PictureSize p{w, h};
        EXPECT_EQ(want, ChooseSelectorSize(p)) << w << "x" << h;
        if (want == SelectorSizing::Default) {
            EXPECT_EQ(240, p.width);
            EXPECT_EQ(240, p.height);
        }
    }
}
