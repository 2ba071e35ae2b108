// The loop shared by the in-place recolourings of a tight RGBA buffer.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tcu {

// Calls recolour(r, g, b, out) for every pixel whose alpha is not 0 and writes
// out[0..2] back; alpha stays. Icons repeat colours in runs, so the last
// conversion is reused for an equal neighbour.
template <typename Recolour>
void RecolourVisiblePixels(std::uint8_t* rgba, std::size_t count, Recolour recolour) {
    bool haveLast = false;
    std::uint8_t lastIn[3] = {0, 0, 0}, lastOut[3] = {0, 0, 0};
    for (std::uint8_t* px = rgba; px != rgba + count * 4; px += 4) {
        if (px[3] == 0) continue;
        if (!haveLast || px[0] != lastIn[0] || px[1] != lastIn[1] || px[2] != lastIn[2]) {
            lastIn[0] = px[0];
            lastIn[1] = px[1];
            lastIn[2] = px[2];
            recolour(px[0], px[1], px[2], lastOut);
            haveLast = true;
        }
        px[0] = lastOut[0];
        px[1] = lastOut[1];
        px[2] = lastOut[2];
    }
}

}  // namespace tcu
