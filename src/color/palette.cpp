#include "color/palette.h"

namespace tcu {
namespace {

// Entry 0 is a filler and is never handed out.
const char* const ColorPalette[65] = {
    "#000000",
    // black, white, primaries and secondaries
    "#000000", "#ffffff", "#ff0000", "#00ff00", "#0000ff", "#ffff00", "#00ffff", "#ff00ff",
    // greys, light to dark
    "#cccccc", "#b9b9b9", "#a3a3a3", "#8c8c8c", "#767676", "#606060", "#494949", "#333333",
    // twelve families of four shades, lightest first
    "#fe3817", "#eb3117", "#c82817", "#820517",  // red
    "#316fff", "#2c66ec", "#2355c7", "#15317e",  // blue
    "#ff8358", "#ee7551", "#c96341", "#823817",  // orange
    "#5fb5ff", "#59a7ec", "#4a8cc7", "#2c557e",  // light blue
    "#fe358a", "#eb317f", "#c72869", "#810541",  // pink
    "#a37cff", "#9673ec", "#7e5ec7", "#50387e",  // violet
    "#ffbdb9", "#f0afaa", "#cb928e", "#831f58",  // rose
    "#fc3eff", "#e938ec", "#c631c7", "#811b7e",  // magenta
    "#ffb317", "#f0a517", "#cb8b17", "#835317",  // amber
    "#61fe6e", "#5aec64", "#4ec852", "#357d2c",  // green
    "#ffeb7c", "#f4d972", "#cfb760", "#857439",  // yellow
    "#c9fe17", "#bbec17", "#9ec817", "#647d17",  // yellow-green
};

}  // namespace

const char* PaletteColor(int index) {
    return PaletteIndexValid(index) ? ColorPalette[index] : ColorPalette[0];
}

}  // namespace tcu
