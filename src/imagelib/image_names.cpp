#include "imagelib/image_names.h"

#include "color/palette.h"

namespace tcu {

const char* const SwatchNamePattern =
    "^(?:[{'\"]?)color(?:(#[0-9a-fA-F]{6})?|([0-9]+)?)(Strip)?-([0-9]+).png(?:[{'\"]?)";
const char* const DarkExemptPattern = "^(entity|color|browser|folder).*";

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsHexDigit(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// ECMAScript's "." matches everything but the line terminators.
bool IsLineTerminator(char c) { return c == '\n' || c == '\r'; }

size_t DigitRun(std::string_view s, size_t from) {
    size_t n = 0;
    while (from + n < s.size() && IsDigit(s[from + n])) ++n;
    return n;
}

bool HasAt(std::string_view s, size_t at, std::string_view word) {
    return at <= s.size() && s.substr(at, word.size()) == word;
}

// "-([0-9]+).png" from at. The digit run is greedy but gives back digits
// when that lets ".png" match: "-16png" matches with side "1".
bool MatchSideAndExtension(std::string_view s, size_t at, SwatchNameMatch& out) {
    if (!HasAt(s, at, "-")) return false;
    const size_t first = at + 1;
    for (size_t k = DigitRun(s, first); k > 0; --k) {
        const size_t dot = first + k;
        if (dot < s.size() && !IsLineTerminator(s[dot]) && HasAt(s, dot + 1, "png")) {
            out.side = s.substr(first, k);
            return true;
        }
    }
    return false;
}

// "(Strip)?-([0-9]+).png" from at. Without "Strip" the text would have to
// start with "-", so a failed strip match needs no second try.
bool MatchTail(std::string_view s, size_t at, SwatchNameMatch& out) {
    if (HasAt(s, at, "Strip")) {
        out.strip = MatchSideAndExtension(s, at + 5, out);
        return out.strip;
    }
    return MatchSideAndExtension(s, at, out);
}

}  // namespace

bool FindSwatchName(std::string_view name, SwatchNameMatch& out) {
    out = SwatchNameMatch();
    size_t at = 0;
    // An optional opening brace or quote; "color" cannot start on one, so
    // skipping it is the only way the pattern can go on.
    if (!name.empty() && (name[0] == '{' || name[0] == '\'' || name[0] == '"')) at = 1;
    if (!HasAt(name, at, "color")) return false;
    at += 5;

    // First alternative, group 1 taken: "#" and six hex digits.
    if (HasAt(name, at, "#") && at + 7 <= name.size()) {
        bool hex = true;
        for (size_t i = 1; i <= 6; ++i) hex = hex && IsHexDigit(name[at + i]);
        if (hex && MatchTail(name, at + 7, out)) {
            out.hasColour = true;
            out.colour = name.substr(at, 7);
            return true;
        }
        out = SwatchNameMatch();
    }
    // First alternative with group 1 left out.
    if (MatchTail(name, at, out)) return true;
    out = SwatchNameMatch();
    // Second alternative: every digit (fewer would leave a digit where the
    // tail needs "-" or "Strip").
    const size_t digits = DigitRun(name, at);
    if (digits > 0 && MatchTail(name, at + digits, out)) {
        out.hasIndex = true;
        out.index = name.substr(at, digits);
        return true;
    }
    out = SwatchNameMatch();
    return false;
}

bool IsDarkExempt(std::string_view name) {
    size_t rest = 0;
    for (std::string_view word : {"entity", "color", "browser", "folder"}) {
        if (name.substr(0, word.size()) == word) {
            rest = word.size();
            break;
        }
    }
    if (rest == 0) return false;
    for (size_t i = rest; i < name.size(); ++i) {
        if (IsLineTerminator(name[i])) return false;
    }
    return true;
}

bool DarkVariantName(std::string_view name, std::string& out) {
    const size_t dot = name.find('.');
    if (dot == std::string_view::npos) return false;
    out.assign(name.substr(0, dot)).append("@d").append(name.substr(dot));
    return true;
}

unsigned long DecimalValue(std::string_view digits, unsigned long limit) {
    unsigned long value = 0;
    for (char c : digits) {
        if (!IsDigit(c)) break;
        const unsigned long d = static_cast<unsigned long>(c - '0');
        if (value > (limit - d) / 10) return limit;
        value = value * 10 + d;
    }
    return value;
}

SwatchPlan PlanSwatch(bool found, const SwatchNameMatch& match, bool colourGiven,
                      std::string_view colourOption) {
    SwatchPlan plan;
    // Anything above the maximum is refused, so saturating just above it
    // keeps the value meaningful without overflow.
    if (found) plan.side = static_cast<long>(DecimalValue(match.side, MaxSwatchSide + 1ul));
    if (colourGiven) {
        plan.colour.assign(colourOption);
    } else {
        const long index = match.hasIndex ? static_cast<long>(DecimalValue(match.index, 1000)) : 0;
        if (PaletteIndexValid(index)) {
            plan.colour = PaletteColor(static_cast<int>(index));
        } else {
            plan.colour.assign(match.colour);
        }
    }
    plan.strip = found && match.strip;
    return plan;
}

long ScaledSwatchSide(long side, double factor) {
    const double scaled = static_cast<double>(side) * factor;
    // The strip form is six sides wide: its RGBA buffer must stay below 2^31.
    if (!(scaled >= 0.0) || !(scaled < 16384.0)) return -1;
    const long s = static_cast<long>(scaled);
    if (6LL * s * s * 4 >= 0x80000000LL) return -1;
    return s;
}

bool AllVisiblePixelsGrey(const std::uint8_t* pixels, int width, int height, int pitch,
                          int pixelSize, const int offset[4]) {
    if (pixels == nullptr) return true;
    for (int x = 0; x < width; ++x) {
        for (int y = 0; y < height; ++y) {
            const std::uint8_t* px = pixels + static_cast<std::ptrdiff_t>(y) * pitch +
                                     static_cast<std::ptrdiff_t>(x) * pixelSize;
            if (pixelSize >= 4 && px[offset[3]] == 0) continue;
            const std::uint8_t r = px[offset[0]], g = px[offset[1]], b = px[offset[2]];
            if (r != g || g != b) return false;
        }
    }
    return true;
}

}  // namespace tcu
