// Picture-name rules of the image library, apart from Tcl and Tk: dark
// variant names, colour-swatch names, the names exempt from dark recolouring,
// and the greyscale test that decides whether an icon is recoloured.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tcu {

// The two name patterns, in ECMAScript regular-expression grammar. They are
// kept as texts for reference; the matchers below implement them by hand
// because std::regex recurses once per character and overflows the stack on
// names of some ten thousand characters.
extern const char* const SwatchNamePattern;
extern const char* const DarkExemptPattern;

// Groups of SwatchNamePattern found at the start of a name. Views point into
// the searched name; an absent group is an empty view with its flag false.
struct SwatchNameMatch {
    bool hasColour = false;  // group 1: "#" and six hex digits
    std::string_view colour;
    bool hasIndex = false;  // group 2: palette index digits
    std::string_view index;
    bool strip = false;  // group 3: "Strip"
    std::string_view side;  // group 4: side digits (always present in a match)
};

// Searches SwatchNamePattern in name exactly as regex_search would (the match
// must start at the first character; text may follow it).
bool FindSwatchName(std::string_view name, SwatchNameMatch& out);

// regex_match of DarkExemptPattern: the name begins with entity, color,
// browser or folder and the rest holds no line terminator.
bool IsDarkExempt(std::string_view name);

// Writes the name with "@d" before its first dot into out (reusing its
// storage); false, out untouched, when the name has no dot.
bool DarkVariantName(std::string_view name, std::string& out);

// Value of a run of decimal digits, saturating at limit instead of
// overflowing as atoi would.
unsigned long DecimalValue(std::string_view digits, unsigned long limit);

// Largest swatch side a name may ask for. A larger one is refused rather than
// clamped: a swatch that silently comes out smaller than asked is harder to
// notice than an error.
constexpr int MaxSwatchSide = 1024;

// What the swatch step draws for one request.
struct SwatchPlan {
    long side = 16;         // side asked for (may exceed MaxSwatchSide: refused)
    std::string colour;     // colour text, empty for a blank swatch
    bool strip = false;
};

// Side, colour text and form of a swatch. found tells whether the pattern was
// found (match is then its groups); colourGiven/colourOption come from -color.
SwatchPlan PlanSwatch(bool found, const SwatchNameMatch& match, bool colourGiven,
                      std::string_view colourOption);

// Side of a swatch photo under automatic scaling: side x factor in double,
// truncated; -1 when the strip form of that size would not fit a photo buffer.
long ScaledSwatchSide(long side, double factor);

// True when every pixel with non-zero alpha has equal red, green and blue.
// Pixels are read through a photo-block layout: pixel (x, y) starts at
// pixels + y * pitch + x * pixelSize, channel c at offset[c].
bool AllVisiblePixelsGrey(const std::uint8_t* pixels, int width, int height, int pitch,
                          int pixelSize, const int offset[4]);

}  // namespace tcu
