#include "synth/photo_block.h"

#include <cstddef>

namespace tcu {

bool IsTightRgbaBlock(const Tk_PhotoImageBlock& block) {
    return block.pixelSize == 4 && block.offset[0] == 0 && block.offset[1] == 1 &&
           block.offset[2] == 2 && block.offset[3] == 3 &&
           static_cast<long long>(block.pitch) == 4LL * block.width;
}

bool CopyBlockToRgba(const Tk_PhotoImageBlock& block, std::vector<std::uint8_t>& out) {
    out.clear();
    if (block.pixelPtr == nullptr || (block.pixelSize != 3 && block.pixelSize != 4)) return false;
    if (CheckedPixelCount(block.width, block.height) < 0) return false;
    const bool hasAlpha = block.pixelSize == 4;
    for (int i = 0; i < (hasAlpha ? 4 : 3); ++i) {
        if (block.offset[i] < 0 || block.offset[i] >= block.pixelSize) return false;
    }
    if (static_cast<long long>(block.pitch) < 1LL * block.width * block.pixelSize) return false;

    const std::size_t w = static_cast<std::size_t>(block.width);
    const std::size_t h = static_cast<std::size_t>(block.height);
    out.resize(w * h * 4);
    std::uint8_t* dst = out.data();
    for (std::size_t y = 0; y < h; ++y) {
        const unsigned char* row = block.pixelPtr + y * static_cast<std::size_t>(block.pitch);
        for (std::size_t x = 0; x < w; ++x, dst += 4) {
            const unsigned char* px = row + x * static_cast<std::size_t>(block.pixelSize);
            dst[0] = px[block.offset[0]];
            dst[1] = px[block.offset[1]];
            dst[2] = px[block.offset[2]];
            dst[3] = hasAlpha ? px[block.offset[3]] : 255;
        }
    }
    return true;
}

}  // namespace tcu
