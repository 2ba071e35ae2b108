#include "init/photo_access.h"

#include <cstddef>

namespace tcu {

namespace {

// Set on an interpreter once Tk has been found loaded there: Tk cannot be
// unloaded again, and the package query costs more than a whole cache hit.
const char* const kTkSeenKey = "tcu::tkSeen";

}  // namespace

bool TkAvailable(Tcl_Interp* interp) {
    if (interp == nullptr) return false;
    // Both checks may leave a message; the caller's result must survive them.
    Tcl_Obj* saved = Tcl_GetObjResult(interp);
    Tcl_IncrRefCount(saved);
    bool available = Tcl_GetAssocData(interp, kTkSeenKey, nullptr) != nullptr;
    // Ask Tcl (through our own stubs) first: only then is libtk safe to call.
    if (!available && Tcl_PkgPresentEx(interp, "Tk", nullptr, 0, nullptr) != nullptr) {
        Tcl_SetAssocData(interp, kTkSeenKey, nullptr, interp);
        available = true;
    }
    // After `destroy .` Tk has no main window and its image table is gone.
    available = available && Tk_MainWindow(interp) != nullptr;
    Tcl_SetObjResult(interp, saved);
    Tcl_DecrRefCount(saved);
    return available;
}

Tk_PhotoHandle FindPhoto(Tcl_Interp* interp, const char* name) {
    if (!TkAvailable(interp)) return nullptr;
    return Tk_FindPhoto(interp, name);
}

long long CheckedPixelCount(long long width, long long height) {
    constexpr long long kMaxBytes = 0x7fffffffLL;
    if (width < 0 || height < 0) return -1;
    if (width == 0 || height == 0) return 0;
    if (width > kMaxBytes / 4 / height) return -1;
    return width * height;
}

void PutRgbaPixels(Tcl_Interp* interp, Tk_PhotoHandle photo, const std::uint8_t* pixels,
                   int width, int height, bool resize, int rowPixels) {
    if (resize) Tk_PhotoSetSize(interp, photo, width, height);
    if (width <= 0 || height <= 0) return;
    Tk_PhotoImageBlock block;
    block.pixelPtr = const_cast<unsigned char*>(pixels);
    block.width = width;
    block.height = height;
    block.pitch = 4 * (rowPixels > 0 ? rowPixels : width);
    block.pixelSize = 4;
    block.offset[0] = 0;
    block.offset[1] = 1;
    block.offset[2] = 2;
    block.offset[3] = 3;
    Tk_PhotoPutBlock(interp, photo, &block, 0, 0, width, height, TK_PHOTO_COMPOSITE_SET);
}

bool IsTightRgbaBlock(const Tk_PhotoImageBlock& block) {
    return block.pixelSize == 4 && block.offset[0] == 0 && block.offset[1] == 1 &&
           block.offset[2] == 2 && block.offset[3] == 3 &&
           static_cast<long long>(block.pitch) == 4LL * block.width;
}

bool CopyBlockToRgba(const Tk_PhotoImageBlock& block, std::vector<std::uint8_t>& out) {
    out.clear();
    if (block.pixelPtr == nullptr || (block.pixelSize != 3 && block.pixelSize != 4)) return false;
    if (CheckedPixelCount(block.width, block.height) < 0) return false;
    const bool hasAlpha = block.pixelSize == 4;
    for (int i = 0; i < (hasAlpha ? 4 : 3); ++i) {
        if (block.offset[i] < 0 || block.offset[i] >= block.pixelSize) return false;
    }
    if (static_cast<long long>(block.pitch) < 1LL * block.width * block.pixelSize) return false;

    const std::size_t w = static_cast<std::size_t>(block.width);
    const std::size_t h = static_cast<std::size_t>(block.height);
    out.resize(w * h * 4);
    std::uint8_t* dst = out.data();
    for (std::size_t y = 0; y < h; ++y) {
        const unsigned char* row = block.pixelPtr + y * static_cast<std::size_t>(block.pitch);
        for (std::size_t x = 0; x < w; ++x, dst += 4) {
            const unsigned char* px = row + x * static_cast<std::size_t>(block.pixelSize);
            dst[0] = px[block.offset[0]];
            dst[1] = px[block.offset[1]];
            dst[2] = px[block.offset[2]];
            dst[3] = hasAlpha ? px[block.offset[3]] : 255;
        }
    }
    return true;
}

void PhotoArgumentVector::Clear() {
    for (Tcl_Obj* w : words_) Tcl_DecrRefCount(w);
    words_.clear();
}

void PhotoArgumentVector::Append(Tcl_Obj* word) {
    Tcl_IncrRefCount(word);
    words_.push_back(word);
}

void PhotoArgumentVector::StartCreation(const char* name) {
    Clear();
    Append("image");
    Append("create");
    Append("photo");
    if (name != nullptr) Append(name);
}

void PhotoArgumentVector::Set(std::size_t i, Tcl_Obj* word) {
    Tcl_IncrRefCount(word);
    Tcl_DecrRefCount(words_[i]);
    words_[i] = word;
}

}  // namespace tcu
