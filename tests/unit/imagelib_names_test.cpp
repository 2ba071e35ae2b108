#include <random>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "color/palette.h"
#include "imagelib/image_names.h"

using namespace tcu;

namespace {

// Random names: most follow the pattern's slots with a wrong choice here and
// there, the rest are free mixtures of the same pieces.
std::vector<std::string> NameCorpus() {
    const std::vector<std::vector<std::string>> slots = {
        {"", "", "{", "'", "\"", "}", "x"},
        {"color", "color", "color", "Color", "colo", "entity", "browser", "folder"},
        {"", "#12ab34", "#12AB3f", "#12ab3", "#", "12", "0", "65", "007", "#12ab34x"},
        {"", "", "Strip", "Stri", "strip"},
        {"-", "-", "-", "", "_"},
        {"16", "9", "1", "", "x"},
        {".", ".", "x", "\n", "\r", "7", "png"},
        {"png", "png", "png", "pn", ""},
        {"", "", "}", ".bak", "\n", " x", "png"}};
    std::mt19937 random(20240611);
    std::vector<std::string> names;
    for (int i = 0; i < 40000; ++i) {
        std::string name;
        const bool free = i % 4 == 0;
        for (size_t s = 0; s < slots.size(); ++s) {
            const auto& slot = slots[free ? random() % slots.size() : s];
            name += slot[random() % slot.size()];
        }
        names.push_back(name);
    }
    return names;
}

std::string Group(const std::smatch& m, int i) { return m[i].matched ? m[i].str() : "<none>"; }

}  // namespace

TEST(SwatchName, AgreesWithTheStandardRegexOnEveryGroupAndOnExemptNames) {
    const std::regex pattern(SwatchNamePattern, std::regex::ECMAScript);
    const std::regex exempt(DarkExemptPattern, std::regex::ECMAScript);
    int matches = 0;
    for (const std::string& name : NameCorpus()) {
        EXPECT_EQ(std::regex_match(name, exempt), IsDarkExempt(name)) << name;
        std::smatch m;
        const bool expected = std::regex_search(name, m, pattern);
        SwatchNameMatch ours;
        ASSERT_EQ(expected, FindSwatchName(name, ours)) << name;
        if (!expected) continue;
        ++matches;
        EXPECT_EQ(Group(m, 1), ours.hasColour ? std::string(ours.colour) : "<none>") << name;
        EXPECT_EQ(Group(m, 2), ours.hasIndex ? std::string(ours.index) : "<none>") << name;
        EXPECT_EQ(Group(m, 3), ours.strip ? "Strip" : "<none>") << name;
        EXPECT_EQ(Group(m, 4), std::string(ours.side)) << name;
    }
    EXPECT_GT(matches, 300);  // the corpus must reach the matching branches
}

TEST(SwatchName, DocumentedFormsAndNamesTooLongForStdRegex) {
    SwatchNameMatch m;
    ASSERT_TRUE(FindSwatchName("color#12ab34Strip-24.png", m));
    EXPECT_EQ("#12ab34", m.colour);
    EXPECT_TRUE(m.strip);
    EXPECT_EQ("24", m.side);
    // std::regex would overflow its stack on these.
    const std::string digits(300000, '7');
    ASSERT_TRUE(FindSwatchName("color" + digits + "-16.png", m));
    EXPECT_EQ(digits.size(), m.index.size());
    EXPECT_TRUE(IsDarkExempt("folder" + digits));
    EXPECT_FALSE(IsDarkExempt("folder" + digits + "\n"));
}

// Numbers that would overflow atoi.
TEST(SwatchPlan, OversizedNumbersSaturateAndScaledSidesAreChecked) {
    auto plan = [](const std::string& name) {
        SwatchNameMatch m;
        const bool found = FindSwatchName(name, m);
        return PlanSwatch(found, m, false, "");
    };
    EXPECT_EQ(PaletteColor(64), plan("color064-16.png").colour);
    EXPECT_EQ("", plan("color18446744073709551617-16.png").colour);  // 2^64 + 1
    EXPECT_EQ(MaxSwatchSide, plan("color1-1024.png").side);
    EXPECT_EQ(MaxSwatchSide + 1, plan("color1-1025.png").side);
    EXPECT_EQ(MaxSwatchSide + 1, plan("color1-18446744073709551617.png").side);
    // Scaled sides truncate; a strip that could not be buffered is refused.
    EXPECT_EQ(48, ScaledSwatchSide(24, 2.0));
    EXPECT_EQ(0, ScaledSwatchSide(0, 3.0));
    EXPECT_EQ(4096, ScaledSwatchSide(1024, 4.0));
    EXPECT_EQ(9459, ScaledSwatchSide(9459, 1.0));  // 6 * 9459^2 * 4 < 2^31
    EXPECT_EQ(-1, ScaledSwatchSide(9460, 1.0));
    EXPECT_EQ(-1, ScaledSwatchSide(1024, 1e300));
}

TEST(GreyTest, OnlyVisiblePixelsCountAndTheLayoutIsHonoured) {
    const int rgba[4] = {0, 1, 2, 3}, argb[4] = {1, 2, 3, 0};
    // Grey pixels and a transparent red one: grey; barely coloured and visible: not.
    std::vector<std::uint8_t> px = {7, 7, 7, 255, 200, 0, 0, 0, 0, 0, 0, 1};
    EXPECT_TRUE(AllVisiblePixelsGrey(px.data(), 3, 1, 12, 4, rgba));
    px[10] = 1;
    EXPECT_FALSE(AllVisiblePixelsGrey(px.data(), 3, 1, 12, 4, rgba));
    EXPECT_TRUE(AllVisiblePixelsGrey(nullptr, 0, 0, 0, 4, rgba));
    // A padded pitch: the padding (red) is never read as a pixel.
    const std::vector<std::uint8_t> padded = {9, 9, 9, 255, 99, 0, 0, 255, 5, 5, 5, 255, 99, 0, 0, 255};
    EXPECT_TRUE(AllVisiblePixelsGrey(padded.data(), 1, 2, 8, 4, rgba));
    // Alpha first: alpha 0 in slot 0 hides the green.
    std::vector<std::uint8_t> hidden = {0, 255, 0, 0};
    EXPECT_TRUE(AllVisiblePixelsGrey(hidden.data(), 1, 1, 4, 4, argb));
    hidden[0] = 255;
    EXPECT_FALSE(AllVisiblePixelsGrey(hidden.data(), 1, 1, 4, 4, argb));
}
