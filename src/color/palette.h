// The fixed 64-colour palette that scripts address by index 1..64.
#pragma once

namespace tcu {

// True for 1..64: one unsigned comparison, so 0 and negatives are out too.
inline bool PaletteIndexValid(long index) {
    return static_cast<unsigned long>(index) - 1u <= 63u;
}

// The palette text ("#rrggbb", lowercase) of an index that PaletteIndexValid accepts.
const char* PaletteColor(int index);

}  // namespace tcu
