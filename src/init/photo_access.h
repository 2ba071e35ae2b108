// Safe access to Tk photos from the library's commands.
//
// Debian's libtk reaches Tcl through stubs that only Tk's own initialisation
// sets up, so no Tk function may be called in an interpreter without Tk.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <tcl.h>
#include <tk.h>

namespace tcu {

// True when Tk is loaded into this interpreter and its main window exists.
// Leaves the interpreter result as it was.
bool TkAvailable(Tcl_Interp* interp);

// Tk_FindPhoto, or null when Tk is unavailable or there is no such photo.
Tk_PhotoHandle FindPhoto(Tcl_Interp* interp, const char* name);

// Number of pixels of a w x h picture whose RGBA buffer stays below 2^31 bytes,
// or -1 when a dimension is negative or the buffer would be larger.
long long CheckedPixelCount(long long width, long long height);

// Sets the photo to w x h (when resize is true) and puts an RGBA buffer at
// (0, 0) with TK_PHOTO_COMPOSITE_SET. Rows are rowPixels apart (0: width),
// so a part of a wider buffer can be put without copying it.
void PutRgbaPixels(Tcl_Interp* interp, Tk_PhotoHandle photo, const std::uint8_t* pixels,
                   int width, int height, bool resize, int rowPixels = 0);

// Editing a photo's pixels as one tight RGBA buffer.
// True when the block is 4 bytes a pixel, red/green/blue/alpha at offsets
// 0..3, rows packed one after another: the layout Tk 8.6 hands out.
bool IsTightRgbaBlock(const Tk_PhotoImageBlock& block);

// Copies any 3- or 4-byte block into a tight RGBA buffer (missing alpha reads
// as opaque). Returns false, leaving out empty, for a block it cannot read.
bool CopyBlockToRgba(const Tk_PhotoImageBlock& block, std::vector<std::uint8_t>& out);

// Runs edit(rgba, width, height) over the photo's pixels and puts them back
// at (0, 0) with TK_PHOTO_COMPOSITE_SET so that the photo redisplays. Tk's
// own block is edited in place when it has the tight layout (Tk_PhotoPutBlock
// copies a source that lies inside the photo before writing), otherwise a
// tight copy is. An empty photo is left alone.
template <typename Edit>
void EditPhotoPixels(Tcl_Interp* interp, Tk_PhotoHandle photo, Edit edit) {
    if (photo == nullptr) return;
    Tk_PhotoImageBlock block;
    Tk_PhotoGetImage(photo, &block);
    if (block.pixelPtr == nullptr || block.width <= 0 || block.height <= 0) return;
    if (IsTightRgbaBlock(block)) {
        edit(block.pixelPtr, block.width, block.height);
        Tk_PhotoPutBlock(interp, photo, &block, 0, 0, block.width, block.height,
                         TK_PHOTO_COMPOSITE_SET);
        return;
    }
    std::vector<std::uint8_t> tight;
    if (!CopyBlockToRgba(block, tight)) return;
    edit(tight.data(), block.width, block.height);
    PutRgbaPixels(interp, photo, tight.data(), block.width, block.height, false);
}

// The creation words one command hands to CreatePhoto, kept across calls so
// that repeated calls do not reallocate. Holds a reference to each word.
class PhotoArgumentVector {
public:
    PhotoArgumentVector() = default;
    PhotoArgumentVector(const PhotoArgumentVector&) = delete;
    PhotoArgumentVector& operator=(const PhotoArgumentVector&) = delete;
    // Words are released by Clear only: at process exit Tcl may already be
    // finalised when static destructors run.
    ~PhotoArgumentVector() = default;

    void Clear();
    void Append(Tcl_Obj* word);
    void Append(const char* text) { Append(Tcl_NewStringObj(text, -1)); }
    // Starts a new word list: image create photo [name].
    void StartCreation(const char* name);
    // Replaces word i (which must exist).
    void Set(std::size_t i, Tcl_Obj* word);

    int Count() const { return static_cast<int>(words_.size()); }
    Tcl_Obj* const* Words() const { return words_.data(); }
    Tcl_Obj* operator[](std::size_t i) const { return words_[i]; }

private:
    std::vector<Tcl_Obj*> words_;
};

}  // namespace tcu
