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
    for (int j : {0, 1, 13, 14, 15}) EXPECT_EQ(std::string(13, '.'), big[j]) << j;
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
        EXPECT_EQ(std::pair(w, h), std::pair(p.width, p.height));
    }
    p = {5, 5};
    for (int size : {-1, INT_MIN, 30000, INT_MAX}) EXPECT_FALSE(ArrowPictureSize(size, p)) << size;
    EXPECT_EQ(5, p.width);
}

TEST(SelectorField, ListedBytesAndEveryPixelAsHslToRgb) {
    const std::vector<std::uint8_t> expected = {
        255, 0, 0, 255, 254, 255, 0, 255, 0, 255, 0, 255, 0, 255, 254, 255, 0, 0, 255, 255,
        255, 0, 255, 255, 255, 0, 0, 255, 191, 63, 63, 255, 191, 191, 63, 255, 63, 191, 63, 255,
        63, 191, 191, 255, 63, 63, 191, 255, 191, 63, 191, 255, 191, 63, 63, 255};
    const std::vector<std::uint8_t> listed = Field(7, 3);
    EXPECT_EQ(expected, std::vector<std::uint8_t>(listed.begin(), listed.begin() + 56));
    for (size_t k = 56; k < listed.size(); ++k) EXPECT_EQ(k % 4 == 3 ? 255 : 127, listed[k]) << k;
    // Every pixel of any size is HslToRgb's, the NaN steps of one-pixel sides included.
    for (auto [w, h] : {std::pair{240, 240}, {1, 4}, {3, 1}, {1, 1}, {2, 2}, {101, 37}}) {
        const std::vector<std::uint8_t> px = Field(w, h);
        const float stepX = 1.0f / static_cast<float>(w - 1), stepY = 1.0f / static_cast<float>(h - 1);
        for (int i = 0; i < w * h; ++i) {
            const RgbFloat c = HslToRgb({i % w * stepX, (h - 1 - i / w) * stepY, 0.5f});
            ASSERT_EQ((std::vector<std::uint8_t>{ChannelToByte(c.red), ChannelToByte(c.green),
                                                 ChannelToByte(c.blue), 255}),
                      std::vector<std::uint8_t>(&px[4 * i], &px[4 * i + 4]))
                << w << "x" << h << " at " << i % w << "," << i / w;
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
    // Every column alike; a one-row bar is black.
    const std::vector<std::uint8_t> blue = bar({0x31, 0x6f, 0xff, 255}, 3, 11);
    for (size_t k = 0; k < blue.size(); ++k) ASSERT_EQ(blue[k % 4 + k / 12 * 12], blue[k]) << k;
    EXPECT_EQ(std::vector<std::uint8_t>({0, 0, 0, 255, 0, 0, 0, 255}), bar({9, 9, 9, 255}, 2, 1));
}

TEST(SelectorSize, EmptySideMeans240AndOversizeIsRefused) {
    for (PictureSize p : {PictureSize{300, 0}, {0, 5}, {-3, 9}}) {
        EXPECT_EQ(SelectorSizing::Default, ChooseSelectorSize(p));
        EXPECT_EQ(std::pair(240, 240), std::pair(p.width, p.height));
    }
    for (auto [w, h, want] : {std::tuple{1, 1, SelectorSizing::Keep}, {23170, 23170, SelectorSizing::Keep},
                              {23171, 23171, SelectorSizing::TooLarge}, {INT_MAX, 2, SelectorSizing::TooLarge}}) {
        PictureSize p{w, h};
        EXPECT_EQ(want, ChooseSelectorSize(p)) << w << "x" << h;
    }
}
