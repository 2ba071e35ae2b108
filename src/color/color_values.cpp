#include "color/color_values.h"

#include <cfloat>
#include <cmath>
#include <istream>
#include <regex>
#include <string>

#include <boost/lexical_cast.hpp>

// The colour maths is specified operation by operation in single precision;
// wider intermediates would change the truncated bytes.
static_assert(FLT_EVAL_METHOD == 0, "float arithmetic must not use excess precision");

namespace tcu {
namespace {

// Reads an unsigned number in hexadecimal through lexical_cast.
template <typename T>
struct HexTo {
    T value{};
    operator T() const { return value; }
    friend std::istream& operator>>(std::istream& in, HexTo& out) {
        in >> std::hex >> out.value;
        return in;
    }
};

const std::regex& ColorPattern() {
    static const std::regex pattern(
        R"(^([{'"]?)#([0-9a-fA-F]{2})([0-9a-fA-F]{2})([0-9a-fA-F]{2})(['"}]?)$)",
        std::regex::ECMAScript);
    return pattern;
}

std::uint8_t HexPair(const std::csub_match& group) {
    return static_cast<std::uint8_t>(
        static_cast<unsigned int>(boost::lexical_cast<HexTo<unsigned int>>(group.str())));
}

}  // namespace

bool ParseHexColor(std::string_view text, RgbColor& out) {
    // Every accepted text is 7 to 9 bytes; refuse anything else before the regex.
    if (text.size() < 7 || text.size() > 9) return false;
    std::cmatch m;
    if (!std::regex_match(text.data(), text.data() + text.size(), m, ColorPattern())) return false;
    out.red = HexPair(m[2]);
    out.green = HexPair(m[3]);
    out.blue = HexPair(m[4]);
    out.alpha = 255;
    return true;
}

HslColor RgbToHsl(RgbFloat c) {
    float max = c.red;
    if (c.green > c.red) max = c.green;
    if (c.blue > max) max = c.blue;
    float min = c.red;
    if (c.red > c.green) min = c.green;
    if (min > c.blue) min = c.blue;

    const float l = (min + max) * 0.5f;
    if (max == min) return HslColor{0.0f, 0.0f, l};

    const float d = max - min;
    const float s = l < 0.5f ? d / (min + max) : d / ((2.0f - max) - min);
    float h;
    if (c.red == max) {
        h = (c.green - c.blue) / d + (c.blue > c.green ? 6.0f : 0.0f);
    } else if (c.green == max) {
        h = (c.blue - c.red) / d + 2.0f;
    } else {
        h = (c.red - c.green) / d + 4.0f;
    }
    h = h / 6.0f;
    return HslColor{h, s, l};
}

float HueToChannel(float p, float q, float t) {
    if (t < 0.0f) {
        t = t + 1.0f;
    } else if (t > 1.0f) {
        t = t + -1.0f;
    }
    if (t < 0.16667f) return ((q - p) * t) * 6.0f + p;
    if (t < 0.5f) return q;
    if (t < 0.6667f) return ((q - p) * (0.66667f - t)) * 6.0f + p;
    return p;
}

RgbFloat HslToRgb(HslColor c) {
    const float h = c.hue, s = c.saturation, l = c.lightness;
    if (s == 0.0f) return RgbFloat{l, l, l};
    const float q = l <= 0.5f ? (s + 1.0f) * l : (l + s) - l * s;
    const float p = (l + l) - q;
    return RgbFloat{HueToChannel(p, q, h + 0.33334f), HueToChannel(p, q, h),
                    HueToChannel(p, q, h - 0.33334f)};
}

std::uint8_t ChannelToByte(float c) {
    // NaN fails every comparison: it passes through the clamp and maps to 0.
    float v = c < 0.0f ? 0.0f : (c > 1.0f ? 1.0f : c);
    v = v * 255.0f;
    if (std::isnan(v)) return 0;
    return static_cast<std::uint8_t>(v);
}

}  // namespace tcu
