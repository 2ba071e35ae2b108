#include <gtest/gtest.h>

#include <vector>

#include "init/photo_access.h"
#include "init/pixel_scaling.h"

using tcu::ScaleRgbaPixels;

TEST(ScaleRgbaPixels, DoublesByReplicatingPixelsAndAlpha) {
    const std::vector<std::uint8_t> src = {10, 20, 30,  255, 40,  50,  60,  128,
                                           70, 80, 90, 1, 100, 110, 120, 7};
    std::vector<std::uint8_t> out;
    ASSERT_TRUE(ScaleRgbaPixels(src.data(), 2, 2, 4, 4, out));
    ASSERT_EQ(64u, out.size());
    for (int i = 0; i < 64; ++i) {
        const int x = i / 4 % 4, y = i / 16;
        EXPECT_EQ(src[(y / 2 * 2 + x / 2) * 4 + i % 4], out[i]) << x << "," << y;
    }
}

TEST(ScaleRgbaPixels, RefusesBadAndHugeSizesWithoutAllocating) {
    const std::vector<std::uint8_t> src(4, 255);
    std::vector<std::uint8_t> out(3, 1);
    EXPECT_FALSE(ScaleRgbaPixels(src.data(), 1, 1, 0, 4, out));
    EXPECT_TRUE(out.empty());
    EXPECT_FALSE(ScaleRgbaPixels(src.data(), 1, 1, -2, 4, out));
    EXPECT_FALSE(ScaleRgbaPixels(nullptr, 1, 1, 2, 2, out));
    // 23170 x 23170 x 4 is just under 2^31 bytes; 23171 x 23170 passes it.
    EXPECT_FALSE(ScaleRgbaPixels(src.data(), 1, 1, 23171, 23170, out));
    EXPECT_TRUE(out.empty());
}

TEST(CheckedPixelCount, StaysBelowTwoGigabytes) {
    EXPECT_EQ(0, tcu::CheckedPixelCount(0, 5));
    EXPECT_EQ(-1, tcu::CheckedPixelCount(-1, 5));
    EXPECT_EQ(23170LL * 23170, tcu::CheckedPixelCount(23170, 23170));
    EXPECT_EQ(-1, tcu::CheckedPixelCount(23171, 23170));
    EXPECT_EQ(-1, tcu::CheckedPixelCount(0x20000000LL, 1));  // exactly 2^31 bytes
    EXPECT_EQ(0x1fffffffLL, tcu::CheckedPixelCount(0x1fffffffLL, 1));
    EXPECT_EQ(-1, tcu::CheckedPixelCount(1LL << 40, 1LL << 40));
}

TEST(CopyBlockToRgba, ThreeBytePixelsAreNeverReadAsFour) {
    // Two BGR pixels in a row padded to 7 bytes; the second row is the last
    // thing in the buffer, so a 4-byte read would run past it.
    const unsigned char bytes[13] = {3, 2, 1, 6, 5, 4, 0, 9, 8, 7, 12, 11, 10};
    Tk_PhotoImageBlock block{const_cast<unsigned char*>(bytes), 2, 2, 7, 3, {2, 1, 0, 0}};
    std::vector<std::uint8_t> out;
    ASSERT_TRUE(tcu::CopyBlockToRgba(block, out));
    EXPECT_EQ((std::vector<std::uint8_t>{1, 2, 3, 255, 4, 5, 6, 255, 7, 8, 9, 255, 10, 11, 12, 255}),
              out);
    block.offset[0] = 3;  // outside the pixel
    EXPECT_FALSE(tcu::CopyBlockToRgba(block, out));
    block.offset[0] = 2;
    block.pitch = 5;  // rows overlap
    EXPECT_FALSE(tcu::CopyBlockToRgba(block, out));
}
