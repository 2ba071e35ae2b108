// Cost per picture of the pixel synthesis: swatches, strip splitting, lightness
// inversion and highlight re-hue, first as pure buffer work, then on real Tk
// photos against the same job done in plain Tcl in the same interpreter.
// Needs an X display for the photo part; without DISPLAY it re-runs itself
// under xvfb-run.
#include <dlfcn.h>
#include <tcl.h>
#include <tk.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <utility>
#include <cstdlib>
#include <string>
#include <vector>

#include "color/highlight_hue.h"
#include "init/photo_access.h"
#include "synth/state_variants.h"
#include "synth/swatch_image.h"

extern "C" int Tclcoreutils_Init(Tcl_Interp* interp);

using namespace tcu;

namespace {

// Best of five rounds of n calls, in microseconds per call.
template <typename F>
double Usec(F f, int n) {
    f();
    double best = 1e300;
    for (int round = 0; round < 5; ++round) {
        const auto t0 = std::chrono::steady_clock::now();
        for (int i = 0; i < n; ++i) f();
        const auto t1 = std::chrono::steady_clock::now();
        best = std::min(best, std::chrono::duration<double, std::micro>(t1 - t0).count() / n);
    }
    return best;
}

void Row(const char* label, double ours, const char* theirsLabel, double theirs) {
    if (theirs > 0) {
        std::printf("%-40s %10.2f us  vs %-30s %12.2f us  %8.0fx\n", label, ours, theirsLabel,
                    theirs, theirs / ours);
    } else {
        std::printf("%-40s %10.3f us\n", label, ours);
    }
}

// Icon-like content: a disc on a transparent ground, grey shading, a band of
// the reference accent colour and a coloured patch.
std::vector<std::uint8_t> IconPixels(int w, int h) {
    std::vector<std::uint8_t> px(static_cast<std::size_t>(w) * h * 4);
    const float cx = (w - 1) / 2.0f, cy = (h - 1) / 2.0f, r = std::min(w, h) * 0.45f;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            std::uint8_t* p = &px[(static_cast<std::size_t>(y) * w + x) * 4];
            const float dx = x - cx, dy = y - cy;
            const std::uint8_t v = static_cast<std::uint8_t>(40 + (x * 150) / w);
            if (dx * dx + dy * dy > r * r) {
                const std::uint8_t c[4] = {10, 20, 30, 0};
                std::copy(c, c + 4, p);
            } else if (y % 8 == 3) {
                const std::uint8_t c[4] = {248, 206, 38, 255};
                std::copy(c, c + 4, p);
            } else if (x > cx && y > cy) {
                const std::uint8_t c[4] = {30, 60, v, 200};
                std::copy(c, c + 4, p);
            } else {
                const std::uint8_t c[4] = {v, v, v, 255};
                std::copy(c, c + 4, p);
            }
        }
    }
    return px;
}

// Worst case for the run cache: every pixel a different colour.
std::vector<std::uint8_t> NoisePixels(int w, int h) {
    std::vector<std::uint8_t> px(static_cast<std::size_t>(w) * h * 4);
    std::uint32_t s = 12345;
    for (std::size_t i = 0; i < px.size(); i += 4) {
        s = s * 1664525u + 1013904223u;
        px[i] = static_cast<std::uint8_t>(s >> 24);
        px[i + 1] = static_cast<std::uint8_t>(s >> 16);
        px[i + 2] = static_cast<std::uint8_t>(s >> 8);
        px[i + 3] = 255;
    }
    return px;
}

void BufferBenchmarks() {
    std::puts("-- pure buffer work (no Tk)");
    RgbColor colour;
    ParseHexColor("#12ab34", colour);
    int w = 0, h = 0;
    Row("swatch 16x16 compose",
        Usec([&] { ComposeSwatchPixels(colour, 16, 16, false, false, w, h); }, 20000), "", 0);
    Row("swatch strip 96x16 compose",
        Usec([&] { ComposeSwatchPixels(colour, 16, 16, true, false, w, h); }, 20000), "", 0);
    const RgbColor red{255, 0, 0, 255};
    for (int side : {16, 256}) {
        for (int wide : {1, 6}) {
            if (side == 256 && wide == 6) continue;
            const int pw = side * wide, ph = side;
            const int n = side == 16 ? 20000 : 100;
            for (bool noise : {false, true}) {
                const auto source = noise ? NoisePixels(pw, ph) : IconPixels(pw, ph);
                auto work = source;
                const auto invert = [&] { InvertPixelLightness(work.data(), pw, ph); };
                const auto rehue = [&] { ReplaceHighlightHueInPixels(work.data(), pw, ph, red); };
                const std::pair<const char*, std::function<void()>> jobs[] = {
                    {"invert", invert}, {"re-hue", rehue}};
                for (const auto& [name, job] : jobs) {
                    char label[64];
                    std::snprintf(label, sizeof label, "%s %dx%d %s", name, pw, ph,
                                  noise ? "noise" : "icon");
                    Row(label,
                        Usec(
                            [&] {
                                work = source;
                                job();
                            },
                            n),
                        "", 0);
                }
            }
        }
    }
}

// The same jobs in plain Tcl, as directly as Tk 8.6 allows: pixels read with
// `data` and `transparency get`, written with `put` (colours only: Tk 8.6
// cannot put partial alpha except through a picture format, so the swatch is
// built as PNG bytes with zlib, which gives exactly the same pixels).
const char* kTclReference = R"TCL(
namespace eval ::zutk {}
proc ::zutk::settings {args} { return #ff0000 }

proc rgb2hsl {r g b} {
    set max $r; if {$g > $max} {set max $g}; if {$b > $max} {set max $b}
    set min $r; if {$g < $min} {set min $g}; if {$b < $min} {set min $b}
    set l [expr {($min + $max) * 0.5}]
    if {$max == $min} { return [list 0.0 0.0 $l] }
    set d [expr {$max - $min}]
    set s [expr {$l < 0.5 ? $d / ($min + $max) : $d / ((2.0 - $max) - $min)}]
    if {$r == $max} {
        set h [expr {($g - $b) / $d + ($b > $g ? 6.0 : 0.0)}]
    } elseif {$g == $max} {
        set h [expr {($b - $r) / $d + 2.0}]
    } else {
        set h [expr {($r - $g) / $d + 4.0}]
    }
    list [expr {$h / 6.0}] $s $l
}
proc hue2c {p q t} {
    if {$t < 0} { set t [expr {$t + 1}] } elseif {$t > 1} { set t [expr {$t - 1}] }
    if {$t < 0.16667} { return [expr {($q - $p) * $t * 6 + $p}] }
    if {$t < 0.5} { return $q }
    if {$t < 0.6667} { return [expr {($q - $p) * (0.66667 - $t) * 6 + $p}] }
    return $p
}
proc byte {c} { expr {$c < 0 ? 0 : int(min(1.0, $c) * 255)} }
proc hsl2hex {h s l} {
    if {$s == 0} { set r [set g [set b $l]] } else {
        set q [expr {$l <= 0.5 ? ($s + 1) * $l : ($l + $s) - $l * $s}]
        set p [expr {($l + $l) - $q}]
        set r [hue2c $p $q [expr {$h + 0.33334}]]
        set g [hue2c $p $q $h]
        set b [hue2c $p $q [expr {$h - 0.33334}]]
    }
    format #%02x%02x%02x [byte $r] [byte $g] [byte $b]
}

# Applies cmd {r g b} -> #rrggbb or "" (unchanged) to every visible pixel.
proc map_pixels {photo cmd} {
    set out {}
    set clear {}
    set y 0
    foreach row [$photo data] {
        set orow {}
        set x 0
        foreach c $row {
            if {[$photo transparency get $x $y]} {
                lappend clear $x $y
            } else {
                scan $c #%2x%2x%2x r g b
                set n [{*}$cmd [expr {$r / 255.0}] [expr {$g / 255.0}] [expr {$b / 255.0}]]
                if {$n ne ""} { set c $n }
            }
            lappend orow $c
            incr x
        }
        lappend out $orow
        incr y
    }
    $photo put $out -to 0 0
    foreach {x y} $clear { $photo transparency set $x $y 1 }
}
proc invert_px {r g b} {
    lassign [rgb2hsl $r $g $b] h s l
    hsl2hex $h $s [expr {1.0 - $l}]
}
proc rehue_px {target r g b} {
    lassign [rgb2hsl $r $g $b] h s l
    if {abs(0.13333334 - $h) > 0.015} { return "" }
    hsl2hex $target $s $l
}
proc tcl_invert {photo} { map_pixels $photo invert_px }
proc tcl_rehue {photo} {
    set glow [zutk::settings color SystemGlow]
    scan $glow #%2x%2x%2x r g b
    map_pixels $photo [list rehue_px [lindex [rgb2hsl [expr {$r/255.0}] [expr {$g/255.0}] [expr {$b/255.0}]] 0]]
}

proc png_chunk {type data} {
    binary format Ia4a*I [string length $data] $type $data [zlib crc32 $type$data]
}
proc png_put {photo w h bytes} {
    set raw ""
    set stride [expr {$w * 4}]
    for {set y 0} {$y < $h} {incr y} {
        append raw \x00 [string range $bytes [expr {$y * $stride}] [expr {($y + 1) * $stride - 1}]]
    }
    set png "\x89PNG\r\n\x1a\n"
    append png [png_chunk IHDR [binary format IIccccc $w $h 8 6 0 0 0]]
    append png [png_chunk IDAT [zlib compress $raw]]
    append png [png_chunk IEND ""]
    $photo put $png -format png
}
proc frame_bytes {s margin line fill} {
    set rows {}
    for {set y 0} {$y < $s} {incr y} {
        set row ""
        for {set x 0} {$x < $s} {incr x} {
            if {$x >= 2 && $x <= $s - 3 && $y >= 2 && $y <= $s - 3} {
                append row $fill
            } elseif {$x >= 1 && $x <= $s - 2 && $y >= 1 && $y <= $s - 2} {
                append row $line
            } else {
                append row $margin
            }
        }
        lappend rows $row
    }
    return $rows
}
proc tcl_swatch {photo colour strip} {
    scan $colour #%2x%2x%2x r g b
    set s [image height $photo]
    set clear [binary format c4 {255 255 255 0}]
    set hi [binary format c4 {255 179 23 200}]
    set black [binary format c4 {0 0 0 255}]
    set faint [binary format c4 {0 0 0 127}]
    set fill [binary format c4 [list $r $g $b 255]]
    if {!$strip} {
        png_put $photo $s $s [join [frame_bytes $s $clear $black $fill] ""]
        return
    }
    set lr [expr {($r + 240) / 2}]; set lg [expr {($g + 240) / 2}]; set lb [expr {($b + 240) / 2}]
    set light [binary format c4 [list $lr $lg $lb 255]]
    set lightFaint [binary format c4 [list $lr $lg $lb 127]]
    set frames [list [frame_bytes $s $hi $black $light] [frame_bytes $s $clear $black $fill] \
        [frame_bytes $s $clear $faint $lightFaint] [frame_bytes $s $clear $faint $lightFaint] \
        [frame_bytes $s $hi $black $light] [frame_bytes $s $clear $black $light]]
    set bytes ""
    for {set y 0} {$y < $s} {incr y} {
        foreach f $frames { append bytes [lindex $f $y] }
    }
    $photo configure -width [expr {6 * $s}]
    png_put $photo [expr {6 * $s}] $s $bytes
}
# Tk-native rectangles: exact only for the plain enabled swatch (no partial alpha).
proc tk_swatch {photo colour} {
    set s [image height $photo]
    $photo blank
    $photo put white -to 0 0 $s $s
    $photo put black -to 1 1 [expr {$s - 1}] [expr {$s - 1}]
    $photo put $colour -to 2 2 [expr {$s - 2}] [expr {$s - 2}]
    for {set i 0} {$i < $s} {incr i} {
        foreach {x y} [list $i 0 $i [expr {$s - 1}] 0 $i [expr {$s - 1}] $i] {
            $photo transparency set $x $y 1
        }
    }
}
proc tcl_split {strip name} {
    set s [image height $strip]
    set k 0
    foreach state {active normal disabled disabledoff pressed selected} {
        set v ${state}_$name
        if {$v ni [image names]} {
            image create photo $v
            $v copy $strip -from [expr {$k * $s}] 0 [expr {$k * $s + $s}] $s
        }
        lappend answer $state $v
        incr k
    }
    return $answer
}
proc tcl_split_rehue {strip name} {
    set answer [tcl_split $strip $name]
    foreach state {active pressed selected} { tcl_rehue ${state}_$name }
    return $answer
}
proc drop_variants {name} {
    foreach state {active normal disabled disabledoff pressed selected} {
        catch {image delete ${state}_$name}
    }
}
# Microseconds per iteration, best of five rounds.
proc usec {script n} {
    uplevel #0 $script
    set best Inf
    for {set r 0} {$r < 5} {incr r} {
        set t [lindex [time [list uplevel #0 $script] $n] 0]
        if {$t < $best} { set best $t }
    }
    return $best
}
)TCL";

Tcl_Interp* MakeInterp() {
    void* tcl = dlopen("libtcl8.6.so", RTLD_NOW | RTLD_GLOBAL);
    if (tcl == nullptr) return nullptr;
    auto findExecutable = reinterpret_cast<void (*)(const char*)>(dlsym(tcl, "Tcl_FindExecutable"));
    auto createInterp = reinterpret_cast<Tcl_Interp* (*)()>(dlsym(tcl, "Tcl_CreateInterp"));
    if (findExecutable == nullptr || createInterp == nullptr) return nullptr;
    findExecutable(nullptr);
    Tcl_Interp* interp = createInterp();
    if (Tcl_InitStubs(interp, "8.6", 0) == nullptr || Tcl_Init(interp) != TCL_OK ||
        Tcl_Eval(interp, "package require Tk; wm withdraw .") != TCL_OK ||
        Tclcoreutils_Init(interp) != TCL_OK || Tcl_Eval(interp, kTclReference) != TCL_OK) {
        std::fprintf(stderr, "interpreter: %s\n", interp ? Tcl_GetStringResult(interp) : "none");
        return nullptr;
    }
    return interp;
}

double TclUsec(Tcl_Interp* interp, const std::string& script, int n) {
    const std::string timed = "usec {" + script + "} " + std::to_string(n);
    if (Tcl_Eval(interp, timed.c_str()) != TCL_OK) {
        std::fprintf(stderr, "%s: %s\n", script.c_str(), Tcl_GetStringResult(interp));
        return -1;
    }
    return std::atof(Tcl_GetStringResult(interp));
}

void Eval(Tcl_Interp* interp, const std::string& script) {
    if (Tcl_Eval(interp, script.c_str()) != TCL_OK)
        std::fprintf(stderr, "%s: %s\n", script.c_str(), Tcl_GetStringResult(interp));
}

bool SamePixels(Tcl_Interp* interp, const char* a, const char* b) {
    std::vector<std::uint8_t> pa, pb;
    for (auto [name, out] : {std::pair{a, &pa}, std::pair{b, &pb}}) {
        Tk_PhotoImageBlock block;
        Tk_PhotoGetImage(FindPhoto(interp, name), &block);
        CopyBlockToRgba(block, *out);
    }
    return !pa.empty() && pa == pb;
}

void PhotoBenchmarks(Tcl_Interp* interp) {
    std::puts("-- on Tk photos, against plain Tcl in the same interpreter");
    Eval(interp,
         "image create photo sw -width 16 -height 16; image create photo swt -width 16 -height 16");
    Row("swatch 16 (BuildSwatchImage)",
        Usec([&] { BuildSwatchImage(interp, "sw", "#12ab34", false, false); }, 5000),
        "Tcl bytes + PNG put", TclUsec(interp, "tcl_swatch swt #12ab34 0", 500));
    Eval(interp, "image create photo swk -width 16 -height 16");
    Row("swatch 16 (BuildSwatchImage)",
        Usec([&] { BuildSwatchImage(interp, "sw", "#12ab34", false, false); }, 5000),
        "Tk put -to + transparency set", TclUsec(interp, "tk_swatch swk #12ab34", 500));
    Eval(interp, "image create photo st -width 16 -height 16; image create photo stt");
    Row("swatch strip 16 (BuildSwatchImage)",
        Usec(
            [&] {
                Tk_PhotoSetSize(interp, FindPhoto(interp, "st"), 16, 16);
                BuildSwatchImage(interp, "st", "#12ab34", true, false);
            },
            5000),
        "Tcl bytes + PNG put",
        TclUsec(interp, "stt configure -width 16 -height 16; tcl_swatch stt #12ab34 1", 200));

    std::printf("  the Tcl swatches give the same pixels: plain %s, strip %s\n",
                SamePixels(interp, "sw", "swt") ? "yes" : "NO",
                SamePixels(interp, "st", "stt") ? "yes" : "NO");

    // A 96 x 16 strip of icon content; the Tcl copy is identical.
    const auto strip = IconPixels(96, 16);
    Eval(interp, "image create photo strip; image create photo tstrip");
    PutRgbaPixels(interp, FindPhoto(interp, "strip"), strip.data(), 96, 16, true);
    Eval(interp, "tstrip copy strip");
    Tk_PhotoHandle stripPhoto = FindPhoto(interp, "strip");
    const double splitNew = Usec(
        [&] {
            Eval(interp, "drop_variants s.png");
            BuildStateVariants(interp, stripPhoto, "s.png");
        },
        1000);
    Row("strip split, new (BuildStateVariants)", splitNew, "Tcl copy -from only",
        TclUsec(interp, "drop_variants t.png; tcl_split tstrip t.png", 1000));
    Row("strip split, new (BuildStateVariants)", splitNew, "Tcl copy -from + Tcl re-hue",
        TclUsec(interp, "drop_variants t.png; tcl_split_rehue tstrip t.png", 50));
    Row("strip split, existing (re-hue only)",
        Usec([&] { BuildStateVariants(interp, stripPhoto, "s.png"); }, 2000), "Tcl re-hue of 3",
        TclUsec(interp, "tcl_split_rehue tstrip t.png", 50));

    for (int side : {16, 256}) {
        for (int wide : {1, 6}) {
            if (side == 256 && wide == 6) continue;
            const int w = side * wide, h = side;
            const auto px = IconPixels(w, h);
            Eval(interp,
                 "catch {image delete pc pt}; image create photo pc; image create photo pt");
            Tk_PhotoHandle pc = FindPhoto(interp, "pc");
            PutRgbaPixels(interp, pc, px.data(), w, h, true);
            Eval(interp, "pt copy pc");
            const int n = side == 16 ? 5000 : 20;
            const int tn = side == 16 ? 50 : 1;
            char label[64];
            std::snprintf(label, sizeof label, "invert %dx%d (InvertPhotoLightness)", w, h);
            // Both sides restore the picture each time: inversion twice drifts.
            const std::string restore = "pt copy pc; ";
            Row(label,
                Usec(
                    [&] {
                        PutRgbaPixels(interp, pc, px.data(), w, h, false);
                        InvertPhotoLightness(interp, pc);
                    },
                    n),
                "Tcl data/put loop", TclUsec(interp, restore + "tcl_invert pt", tn));
            PutRgbaPixels(interp, pc, px.data(), w, h, false);
            Eval(interp, "pt copy pc");
            std::snprintf(label, sizeof label, "re-hue %dx%d (ReplaceHighlightHue)", w, h);
            const RgbColor red{255, 0, 0, 255};
            Row(label,
                Usec(
                    [&] {
                        PutRgbaPixels(interp, pc, px.data(), w, h, false);
                        ReplaceHighlightHue(interp, pc, red);
                    },
                    n),
                "Tcl data/put loop", TclUsec(interp, restore + "tcl_rehue pt", tn));
        }
    }
    // For scale: Tk's own share, paid by both sides.
    const auto px = IconPixels(256, 256);
    Row("  Tk: put a 256x256 block",
        Usec([&] { PutRgbaPixels(interp, FindPhoto(interp, "pc"), px.data(), 256, 256, false); },
             200),
        "", 0);
    Row("  Tk: FindPhoto", Usec([&] { FindPhoto(interp, "sw"); }, 100000), "", 0);
    const auto small = IconPixels(16, 16);
    Row("  Tk: put a 16x16 block with resize",
        Usec([&] { PutRgbaPixels(interp, FindPhoto(interp, "sw"), small.data(), 16, 16, true); },
             10000),
        "", 0);
}

}  // namespace

int main(int argc, char** argv) {
    (void)argc;
    if (std::getenv("DISPLAY") == nullptr && std::getenv("SYNTH_BENCH_NO_X") == nullptr) {
        setenv("SYNTH_BENCH_NO_X", "1", 1);  // no second attempt
        execlp("xvfb-run", "xvfb-run", "-a", argv[0], static_cast<char*>(nullptr));
    }
    BufferBenchmarks();
    if (std::getenv("DISPLAY") == nullptr) {
        std::puts("-- no X display: photo benchmarks skipped");
        return 0;
    }
    Tcl_Interp* interp = MakeInterp();
    if (interp == nullptr) return 1;
    PhotoBenchmarks(interp);
    return 0;
}
