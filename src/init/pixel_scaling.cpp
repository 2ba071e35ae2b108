#include "init/pixel_scaling.h"

#include <magick/MagickCore.h>

#include "init/photo_access.h"

namespace tcu {
namespace {

void EnsureMagickStarted() {
    static bool started = false;
    if (started) return;
    // MagickFalse: ImageMagick must not install signal handlers in the host.
    MagickCoreGenesis(nullptr, MagickFalse);
    // The library owns no threads; small pictures gain nothing from them either.
    SetMagickResourceLimit(ThreadResource, 1);
    started = true;
}

}  // namespace

bool ScaleRgbaPixels(const std::uint8_t* pixels, int width, int height, int newWidth,
                     int newHeight, std::vector<std::uint8_t>& out) {
    out.clear();
    if (pixels == nullptr || width <= 0 || height <= 0 || newWidth <= 0 || newHeight <= 0)
        return false;
    if (CheckedPixelCount(width, height) < 0) return false;
    const long long count = CheckedPixelCount(newWidth, newHeight);
    if (count <= 0) return false;

    EnsureMagickStarted();
    ExceptionInfo* exception = AcquireExceptionInfo();
    Image* source = ConstituteImage(static_cast<size_t>(width), static_cast<size_t>(height),
                                    "RGBA", CharPixel, pixels, exception);
    Image* scaled = nullptr;
    bool ok = false;
    if (source != nullptr) {
        scaled = ScaleImage(source, static_cast<size_t>(newWidth),
                            static_cast<size_t>(newHeight), exception);
    }
    if (scaled != nullptr && scaled->columns == static_cast<size_t>(newWidth) &&
        scaled->rows == static_cast<size_t>(newHeight)) {
        out.resize(static_cast<size_t>(count) * 4);
        ok = ExportImagePixels(scaled, 0, 0, scaled->columns, scaled->rows, "RGBA", CharPixel,
                               out.data(), exception) == MagickTrue;
    }
    if (scaled != nullptr) DestroyImage(scaled);
    if (source != nullptr) DestroyImage(source);
    DestroyExceptionInfo(exception);
    if (!ok) out.clear();
    return ok;
}

}  // namespace tcu
