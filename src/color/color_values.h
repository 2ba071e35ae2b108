// Colour values: the one colour-text parser and the single-precision
// RGB <-> HSL maths that every pixel of the library is computed with.
#pragma once

#include <cstdint>
#include <string_view>

namespace tcu {

// One photo pixel: red, green, blue, alpha bytes in this order.
struct RgbColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 0;
};
static_assert(sizeof(RgbColor) == 4, "RgbColor must match a photo pixel");

struct RgbFloat {
    float red;
    float green;
    float blue;
};

// Hue is a fraction of a full turn.
struct HslColor {
    float hue;
    float saturation;
    float lightness;
};

// Accepts exactly #rrggbb, optionally opened by { ' " and closed by ' " }.
// On success fills out (alpha 255) and returns true; otherwise leaves out alone.
bool ParseHexColor(std::string_view text, RgbColor& out);

HslColor RgbToHsl(RgbFloat rgb);
float HueToChannel(float p, float q, float t);
RgbFloat HslToRgb(HslColor hsl);
std::uint8_t ChannelToByte(float c);

// Byte -> channel by single-precision division by 255.
inline RgbFloat RgbToFloat(RgbColor c) {
    return RgbFloat{c.red / 255.0f, c.green / 255.0f, c.blue / 255.0f};
}

}  // namespace tcu
