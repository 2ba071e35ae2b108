// The photo glue of the pixel synthesis, in a real Tcl/Tk interpreter. Needs
// an X display: skipped without DISPLAY (tests/tcl/synth.test runs these under
// the Tcl harness's virtual display).
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <tcl.h>
#include <tk.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "color/highlight_hue.h"
#include "init/package_state.h"
#include "init/photo_access.h"
#include "synth/photo_block.h"
#include "synth/state_variants.h"
#include "synth/swatch_image.h"

extern "C" int Tclcoreutils_Init(Tcl_Interp* interp);

using namespace tcu;

namespace {

using Pixel = std::array<int, 4>;

// Made once per process: Tk and the library's hook are process-wide anyway.
Tcl_Interp* SharedInterp() {
    static Tcl_Interp* interp = []() -> Tcl_Interp* {
        // The library talks to Tcl through stubs; the interpreter itself comes
        // from libtcl, which libtk has already brought into the process.
        void* tcl = dlopen("libtcl8.6.so", RTLD_NOW | RTLD_GLOBAL);
        if (tcl == nullptr) return nullptr;
        auto findExecutable =
            reinterpret_cast<void (*)(const char*)>(dlsym(tcl, "Tcl_FindExecutable"));
        auto createInterp = reinterpret_cast<Tcl_Interp* (*)()>(dlsym(tcl, "Tcl_CreateInterp"));
        if (findExecutable == nullptr || createInterp == nullptr) return nullptr;
        findExecutable(nullptr);
        Tcl_Interp* in = createInterp();
        if (Tcl_InitStubs(in, "8.6", 0) == nullptr || Tcl_Init(in) != TCL_OK ||
            Tcl_Eval(in, "package require Tk; wm withdraw .") != TCL_OK ||
            Tclcoreutils_Init(in) != TCL_OK) {
            return nullptr;
        }
        return in;
    }();
    return interp;
}

class SynthPhoto : public ::testing::Test {
protected:
    void SetUp() override {
        if (std::getenv("DISPLAY") == nullptr) GTEST_SKIP() << "no X display";
        interp = SharedInterp();
        ASSERT_NE(nullptr, interp);
        ASSERT_TRUE(ImageHookInstalled);
        Eval(
            "foreach i [image names] { image delete $i }; namespace eval ::zutk {}; "
            "proc ::zutk::settings {args} { return $::glow }; set ::glow #ff0000");
    }

    std::string Eval(const char* script) {
        EXPECT_EQ(TCL_OK, Tcl_Eval(interp, script)) << script << ": " << Result();
        return Result();
    }
    std::string Result() { return Tcl_GetStringResult(interp); }

    Tk_PhotoHandle NewPhoto(const char* name, int w, int h, const std::vector<std::uint8_t>& px) {
        Tcl_Obj* words[3] = {Tcl_NewStringObj("image", -1), Tcl_NewStringObj("create", -1),
                             Tcl_NewStringObj("photo", -1)};
        Tcl_Obj* cmd = Tcl_NewListObj(3, words);
        Tcl_ListObjAppendElement(nullptr, cmd, Tcl_NewStringObj(name, -1));
        Tcl_IncrRefCount(cmd);
        EXPECT_EQ(TCL_OK, Tcl_EvalObjEx(interp, cmd, 0)) << Result();
        Tcl_DecrRefCount(cmd);
        Tk_PhotoHandle photo = FindPhoto(interp, name);
        if (photo != nullptr) PutRgbaPixels(interp, photo, px.data(), w, h, true);
        return photo;
    }

    std::vector<std::uint8_t> Pixels(const char* name, int& w, int& h) {
        std::vector<std::uint8_t> out;
        w = h = -1;
        Tk_PhotoHandle photo = FindPhoto(interp, name);
        if (photo == nullptr) return out;
        Tk_PhotoGetSize(photo, &w, &h);
        Tk_PhotoImageBlock block;
        Tk_PhotoGetImage(photo, &block);
        if (w > 0 && h > 0) CopyBlockToRgba(block, out);
        return out;
    }

    Tcl_Interp* interp = nullptr;
};

Pixel At(const std::vector<std::uint8_t>& px, int w, int x, int y) {
    const std::size_t i = (static_cast<std::size_t>(y) * w + x) * 4;
    return {px[i], px[i + 1], px[i + 2], px[i + 3]};
}

void Set(std::vector<std::uint8_t>& px, int w, int x, int y, Pixel p) {
    for (int c = 0; c < 4; ++c) px[(static_cast<std::size_t>(y) * w + x) * 4 + c] = p[c];
}

// A 96 x 16 strip: distinct greys per column, alpha per row (0 on row 0), and
// one reference-colour accent at (3, 5) of every picture.
std::vector<std::uint8_t> TestStrip() {
    std::vector<std::uint8_t> px(96 * 16 * 4);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 96; ++x) Set(px, 96, x, y, {2 * x, 2 * x, 2 * x, y * 17});
    for (int k = 0; k < 6; ++k) Set(px, 96, k * 16 + 3, 5, {248, 206, 38, 255});
    return px;
}

Pixel RehuedAccent(const char* glow) {
    std::uint8_t px[4] = {248, 206, 38, 255};
    RgbColor target;
    ParseHexColor(glow, target);
    ReplaceHighlightHueInPixels(px, 1, 1, target);
    return {px[0], px[1], px[2], px[3]};
}

const char* const kVariants[6] = {"active_save-16.png",   "normal_save-16.png",
                                  "disabled_save-16.png", "disabledoff_save-16.png",
                                  "pressed_save-16.png",  "selected_save-16.png"};
const char* const kList =
    "active active_save-16.png normal normal_save-16.png disabled disabled_save-16.png "
    "disabledoff disabledoff_save-16.png pressed pressed_save-16.png selected "
    "selected_save-16.png";

Tcl_ObjCmdProc* realImageCommand = nullptr;

// Tk's `image`, refusing to create the disabled variant.
int RefuseDisabled(ClientData cd, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (objc == 4 && std::string(Tcl_GetString(objv[3])).rfind("disabled_", 0) == 0) {
        Tcl_SetResult(interp, const_cast<char*>("refused"), TCL_STATIC);
        return TCL_ERROR;
    }
    return realImageCommand(cd, interp, objc, objv);
}

}  // namespace

TEST_F(SynthPhoto, StripSplitsIntoSixStatePhotosWithGlowOnThree) {
    const std::vector<std::uint8_t> strip = TestStrip();
    Tk_PhotoHandle photo = NewPhoto("save-16.png", 96, 16, strip);
    Tcl_SetResult(interp, const_cast<char*>("stale"), TCL_STATIC);
    ASSERT_EQ(TCL_OK, BuildStateVariants(interp, photo, "save-16.png"));
    EXPECT_EQ(kList, Result());

    const Pixel red = RehuedAccent("#ff0000");
    ASSERT_EQ((Pixel{248, 37, 38, 255}), red);
    for (int k = 0; k < 6; ++k) {
        int w, h;
        const auto px = Pixels(kVariants[k], w, h);
        ASSERT_EQ(16, w) << kVariants[k];
        ASSERT_EQ(16, h);
        const bool glow = k == 0 || k == 4 || k == 5;
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                Pixel want = At(strip, 96, k * 16 + x, y);
                if (glow && x == 3 && y == 5) want = red;
                ASSERT_EQ(want, At(px, 16, x, y)) << kVariants[k] << " " << x << "," << y;
            }
        }
    }
}

TEST_F(SynthPhoto, LaterCallsKeepVariantsButReHueAgain) {
    Tk_PhotoHandle photo = NewPhoto("save-16.png", 96, 16, TestStrip());
    ASSERT_EQ(TCL_OK, BuildStateVariants(interp, photo, "save-16.png"));
    // The strip changes and a fresh accent appears in the pressed variant;
    // the glow setting changes too.
    PutRgbaPixels(interp, photo, std::vector<std::uint8_t>(96 * 16 * 4, 90).data(), 96, 16, false);
    std::vector<std::uint8_t> accent = {248, 206, 38, 255};
    PutRgbaPixels(interp, FindPhoto(interp, "pressed_save-16.png"), accent.data(), 1, 1, false);
    Eval("set ::glow #0000ff; set before [image names]");

    ASSERT_EQ(TCL_OK, BuildStateVariants(interp, photo, "save-16.png"));
    EXPECT_EQ(kList, Result());
    EXPECT_EQ("", Eval("set after [image names]; "
                       "lmap n $after { if {$n in $before} continue; set n }"));
    int w, h;
    auto pressed = Pixels("pressed_save-16.png", w, h);
    EXPECT_EQ(RehuedAccent("#0000ff"), At(pressed, 16, 0, 0));     // new accent: new glow
    EXPECT_EQ(RehuedAccent("#ff0000"), At(pressed, 16, 3, 5));     // already moved: stays
    EXPECT_EQ((Pixel{128, 128, 128, 85}), At(pressed, 16, 0, 5));  // not redrawn from strip
    auto normal = Pixels("normal_save-16.png", w, h);
    EXPECT_EQ((Pixel{248, 206, 38, 255}), At(normal, 16, 3, 5));
}

TEST_F(SynthPhoto, FailuresStillAnswerTheFullList) {
    Tk_PhotoHandle photo = NewPhoto("save-16.png", 96, 16, TestStrip());
    // A settings script that fails: accents snap to the reference hue.
    Eval("rename ::zutk::settings {}");
    realImageCommand = SavedImageCommand.objProc;
    SavedImageCommand.objProc = RefuseDisabled;
    const int code = BuildStateVariants(interp, photo, "save-16.png");
    SavedImageCommand.objProc = realImageCommand;
    ASSERT_EQ(TCL_OK, code);
    EXPECT_EQ(kList, Result());
    EXPECT_EQ(nullptr, FindPhoto(interp, "disabled_save-16.png"));
    EXPECT_NE(nullptr, FindPhoto(interp, "disabledoff_save-16.png"));
    int w, h;
    EXPECT_EQ((Pixel{248, 206, 37, 255}), At(Pixels("selected_save-16.png", w, h), 16, 3, 5));
    Eval("proc ::zutk::settings {args} { return $::glow }");
}

TEST_F(SynthPhoto, NamesWithListCharactersAreQuoted) {
    Tk_PhotoHandle photo = NewPhoto("a {b", 96, 16, TestStrip());
    ASSERT_EQ(TCL_OK, BuildStateVariants(interp, photo, "a {b"));
    // Reparsed from its string form, the answer still has the name intact.
    Tcl_Obj* reparsed = Tcl_NewStringObj(Result().c_str(), -1);
    Tcl_IncrRefCount(reparsed);
    Tcl_Obj** items = nullptr;
    int count = 0;
    ASSERT_EQ(TCL_OK, Tcl_ListObjGetElements(interp, reparsed, &count, &items));
    EXPECT_EQ(12, count);
    EXPECT_STREQ("selected_a {b", Tcl_GetString(items[count - 1]));
    Tcl_DecrRefCount(reparsed);
    EXPECT_NE(nullptr, FindPhoto(interp, "selected_a {b"));
}

TEST_F(SynthPhoto, SwatchPaintsExistingPhotoOnly) {
    Tcl_SetResult(interp, const_cast<char*>("untouched"), TCL_STATIC);
    EXPECT_EQ(TCL_OK, BuildSwatchImage(interp, "nosuchphoto", "#12ab34", false, false));
    EXPECT_EQ("untouched", Result());

    Eval("image create photo sw -width 16 -height 16");
    Tcl_SetResult(interp, const_cast<char*>("untouched"), TCL_STATIC);
    EXPECT_EQ(TCL_OK, BuildSwatchImage(interp, "sw", "#12ab34", true, false));
    EXPECT_EQ("untouched", Result());
    int w, h;
    const auto px = Pixels("sw", w, h);
    ASSERT_EQ(96, w);
    ASSERT_EQ(16, h);
    EXPECT_EQ((Pixel{255, 179, 23, 200}), At(px, 96, 64, 0));
    EXPECT_EQ((Pixel{18, 171, 52, 255}), At(px, 96, 16 + 7, 7));
    EXPECT_EQ((Pixel{129, 205, 146, 127}), At(px, 96, 48 + 13, 13));
    EXPECT_EQ("96 16", Eval("list [image width sw] [image height sw]"));

    Eval("image create photo empty0");
    EXPECT_EQ(TCL_OK, BuildSwatchImage(interp, "empty0", "#12ab34", true, false));
    EXPECT_EQ("0 0", Eval("list [image width empty0] [image height empty0]"));
}

TEST_F(SynthPhoto, InPlaceEditsReachThePhoto) {
    std::vector<std::uint8_t> px = {64, 64, 64, 255, 248, 206, 38, 255,
                                    30, 60, 90, 0,   128, 0,   0,  7};
    Tk_PhotoHandle photo = NewPhoto("pic", 2, 2, px);
    Tcl_SetResult(interp, const_cast<char*>("untouched"), TCL_STATIC);
    InvertPhotoLightness(interp, photo);
    EXPECT_EQ("untouched", Result());
    int w, h;
    auto out = Pixels("pic", w, h);
    EXPECT_EQ((Pixel{191, 191, 191, 255}), At(out, 2, 0, 0));
    EXPECT_EQ((Pixel{30, 60, 90, 0}), At(out, 2, 0, 1));
    EXPECT_EQ((Pixel{255, 127, 127, 7}), At(out, 2, 1, 1));
    // Tcl sees the new pixels too, not only the block.
    EXPECT_EQ("191 191 191", Eval("pic get 0 0"));

    PutRgbaPixels(interp, photo, px.data(), 2, 2, false);
    Tcl_SetResult(interp, const_cast<char*>("untouched"), TCL_STATIC);
    ReplaceHighlightHue(interp, photo, RgbColor{255, 0, 0, 255});
    EXPECT_EQ("untouched", Result());
    out = Pixels("pic", w, h);
    EXPECT_EQ((Pixel{248, 37, 38, 255}), At(out, 2, 1, 0));
    EXPECT_EQ((Pixel{64, 64, 64, 255}), At(out, 2, 0, 0));
    EXPECT_EQ("248 37 38", Eval("pic get 1 0"));

    Eval("image create photo none");
    InvertPhotoLightness(interp, FindPhoto(interp, "none"));
    ReplaceHighlightHue(interp, FindPhoto(interp, "none"), RgbColor{});
    EXPECT_EQ("0 0", Eval("list [image width none] [image height none]"));
}
