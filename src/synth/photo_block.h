// Editing a photo's pixels as one tight RGBA buffer.
#pragma once

#include <tcl.h>
#include <tk.h>

#include <cstdint>
#include <vector>

#include "init/photo_access.h"

namespace tcu {

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

}  // namespace tcu
