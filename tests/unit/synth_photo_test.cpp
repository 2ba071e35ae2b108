// The photo glue of the pixel synthesis in a real Tcl/Tk interpreter. Needs an
// X display (scripts/test.sh provides one): skipped without DISPLAY.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <tcl.h>
#include <tk.h>

#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include "color/highlight_hue.h"
#include "init/package_state.h"
#include "init/photo_access.h"
#include "synth/state_variants.h"
#include "synth/swatch_image.h"

extern "C" int Tclcoreutils_Init(Tcl_Interp* interp);

using namespace tcu;

namespace {

using Px = std::array<int, 4>;

// One interpreter per process; the library's interpreter API goes through
// stubs, the interpreter itself comes from libtcl, already loaded with libtk.
Tcl_Interp* SharedInterp() {
    static Tcl_Interp* interp = []() -> Tcl_Interp* {
        void* tcl = dlopen("libtcl8.6.so", RTLD_NOW | RTLD_GLOBAL);
        auto find = tcl ? reinterpret_cast<void (*)(const char*)>(dlsym(tcl, "Tcl_FindExecutable"))
                        : nullptr;
        auto create =
            tcl ? reinterpret_cast<Tcl_Interp* (*)()>(dlsym(tcl, "Tcl_CreateInterp")) : nullptr;
        if (find == nullptr || create == nullptr) return nullptr;
        find(nullptr);
        Tcl_Interp* in = create();
        const bool ok = Tcl_InitStubs(in, "8.6", 0) != nullptr && Tcl_Init(in) == TCL_OK &&
                        Tcl_Eval(in, "package require Tk; wm withdraw .") == TCL_OK &&
                        Tclcoreutils_Init(in) == TCL_OK;
        return ok ? in : nullptr;
    }();
    return interp;
}

Tcl_ObjCmdProc* tkImageCommand = nullptr;
int RefuseDisabled(ClientData cd, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    if (objc == 4 && std::string(Tcl_GetString(objv[3])).rfind("disabled_", 0) == 0)
        return TCL_ERROR;
    return tkImageCommand(cd, interp, objc, objv);
}

class SynthPhoto : public ::testing::Test {
protected:
    void SetUp() override {
        if (std::getenv("DISPLAY") == nullptr) GTEST_SKIP() << "no X display";
        interp = SharedInterp();
        ASSERT_NE(nullptr, interp);
        Eval(
            "foreach i [image names] { image delete $i }; namespace eval ::zutk {};"
            "proc ::zutk::settings {args} { return $::glow }; set ::glow #ff0000");
        // A 96 x 16 strip: greys by column, alpha by row (0 on row 0), and a
        // reference-colour accent at (3, 5) of every picture.
        strip.assign(96 * 16 * 4, 0);
        for (int i = 0; i < 96 * 16; ++i)
            Set(strip, i % 96, i / 96, {2 * (i % 96), 2 * (i % 96), 2 * (i % 96), (i / 96) * 17});
        for (int k = 0; k < 6; ++k) Set(strip, k * 16 + 3, 5, {248, 206, 38, 255});
        Eval("image create photo save-16.png");
        photo = FindPhoto(interp, "save-16.png");
        PutRgbaPixels(interp, photo, strip.data(), 96, 16, true);
    }
    std::string Eval(const char* script) {
        EXPECT_EQ(TCL_OK, Tcl_Eval(interp, script)) << script << ": " << Result();
        return Result();
    }
    std::string Result() { return Tcl_GetStringResult(interp); }
    static void Set(std::vector<std::uint8_t>& b, int x, int y, Px p) {
        for (int c = 0; c < 4; ++c) b[(y * 96 + x) * 4 + c] = std::uint8_t(p[c]);
    }
    // Pixel (x, y) of a photo, and its size in w, h.
    Px Pixel(const char* name, int x, int y, int* w = nullptr, int* h = nullptr) {
        Tk_PhotoImageBlock block;
        Tk_PhotoGetImage(FindPhoto(interp, name), &block);
        if (w) *w = block.width;
        if (h) *h = block.height;
        const unsigned char* p = block.pixelPtr + y * block.pitch + x * block.pixelSize;
        return {p[block.offset[0]], p[block.offset[1]], p[block.offset[2]], p[block.offset[3]]};
    }
    Tcl_Interp* interp = nullptr;
    Tk_PhotoHandle photo = nullptr;
    std::vector<std::uint8_t> strip;
};

const char* const kStates[6] = {"active",      "normal",  "disabled",
                                "disabledoff", "pressed", "selected"};
const char* const kList =
    "active active_save-16.png normal normal_save-16.png disabled disabled_save-16.png "
    "disabledoff disabledoff_save-16.png pressed pressed_save-16.png selected selected_save-16.png";

}  // namespace

TEST_F(SynthPhoto, StripSplitsIntoStatePhotosWithGlowOnThree) {
    Tcl_SetResult(interp, const_cast<char*>("stale"), TCL_STATIC);
    ASSERT_EQ(TCL_OK, BuildStateVariants(interp, photo, "save-16.png"));
    EXPECT_EQ(kList, Result());
    for (int k = 0; k < 6; ++k) {
        const std::string name = std::string(kStates[k]) + "_save-16.png";
        int w = 0, h = 0;
        Pixel(name.c_str(), 0, 0, &w, &h);
        ASSERT_EQ(16, w);
        ASSERT_EQ(16, h);
        const bool glow = k == 0 || k == 4 || k == 5;
        for (int i = 0; i < 256; ++i) {
            const int x = i % 16, y = i / 16, s = (y * 96 + k * 16 + x) * 4;
            Px want{strip[s], strip[s + 1], strip[s + 2], strip[s + 3]};
            if (glow && x == 3 && y == 5) want = {248, 37, 38, 255};
            ASSERT_EQ(want, Pixel(name.c_str(), x, y)) << name << " " << x << "," << y;
        }
    }
}

TEST_F(SynthPhoto, LaterCallsKeepVariantsAndReHueAgain) {
    ASSERT_EQ(TCL_OK, BuildStateVariants(interp, photo, "save-16.png"));
    // The strip changes, a fresh accent appears in pressed, the glow turns blue.
    PutRgbaPixels(interp, photo, std::vector<std::uint8_t>(96 * 16 * 4, 90).data(), 96, 16, false);
    const std::uint8_t accent[4] = {248, 206, 38, 255};
    PutRgbaPixels(interp, FindPhoto(interp, "pressed_save-16.png"), accent, 1, 1, false);
    Eval("set ::glow #0000ff; set before [llength [image names]]");
    ASSERT_EQ(TCL_OK, BuildStateVariants(interp, photo, "save-16.png"));
    EXPECT_EQ(kList, Result());
    EXPECT_EQ("1", Eval("expr {[llength [image names]] == $before}"));
    std::uint8_t blue[4] = {248, 206, 38, 255};
    ReplaceHighlightHueInPixels(blue, 1, 1, RgbColor{0, 0, 255, 255});
    EXPECT_EQ((Px{blue[0], blue[1], blue[2], 255}), Pixel("pressed_save-16.png", 0, 0));
    EXPECT_EQ((Px{248, 37, 38, 255}), Pixel("pressed_save-16.png", 3, 5));   // moved before: stays
    EXPECT_EQ((Px{128, 128, 128, 85}), Pixel("pressed_save-16.png", 0, 5));  // not redrawn
    EXPECT_EQ((Px{248, 206, 38, 255}), Pixel("normal_save-16.png", 3, 5));
}

TEST_F(SynthPhoto, FailedCreationAndSettingsStillAnswerTheList) {
    Eval("rename ::zutk::settings {}");
    tkImageCommand = SavedImageCommand.objProc;
    SavedImageCommand.objProc = RefuseDisabled;
    const int code = BuildStateVariants(interp, photo, "save-16.png");
    SavedImageCommand.objProc = tkImageCommand;
    EXPECT_EQ(TCL_OK, code);
    EXPECT_EQ(kList, Result());
    EXPECT_EQ(nullptr, FindPhoto(interp, "disabled_save-16.png"));
    EXPECT_EQ((Px{248, 206, 37, 255}), Pixel("selected_save-16.png", 3, 5));  // reference hue
}

TEST_F(SynthPhoto, SwatchAndInPlaceEditsLeaveTheResultAlone) {
    Tcl_SetResult(interp, const_cast<char*>("kept"), TCL_STATIC);
    EXPECT_EQ(TCL_OK, BuildSwatchImage(interp, "missing", "#12ab34", false, false));
    Eval("image create photo sw -width 16 -height 16; image create photo empty");
    Tcl_SetResult(interp, const_cast<char*>("kept"), TCL_STATIC);
    EXPECT_EQ(TCL_OK, BuildSwatchImage(interp, "sw", "#12ab34", true, false));
    EXPECT_EQ(TCL_OK, BuildSwatchImage(interp, "empty", "#12ab34", true, false));
    InvertPhotoLightness(interp, photo);
    ReplaceHighlightHue(interp, nullptr, RgbColor{});
    ReplaceHighlightHue(interp, FindPhoto(interp, "empty"), RgbColor{255, 0, 0, 255});
    EXPECT_EQ("kept", Result());
    EXPECT_EQ(
        "96 16 0 0",
        Eval("list [image width sw] [image height sw] [image width empty] [image height empty]"));
    EXPECT_EQ((Px{255, 179, 23, 200}), Pixel("sw", 64, 0));
    EXPECT_EQ((Px{129, 205, 146, 127}), Pixel("sw", 61, 13));
    // Edited in Tk's own block and put back: Tcl sees it too.
    EXPECT_EQ((Px{191, 191, 191, 85}), Pixel("save-16.png", 32, 5));
    EXPECT_EQ("191 191 191", Eval("save-16.png get 32 5"));
    PutRgbaPixels(interp, photo, strip.data(), 96, 16, false);
    ReplaceHighlightHue(interp, photo, RgbColor{255, 0, 0, 255});
    EXPECT_EQ("248 37 38", Eval("save-16.png get 3 5"));
}
