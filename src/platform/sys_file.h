// File utilities the image library resolves picture names with.
#pragma once

#include <string>
#include <string_view>

namespace tcu {

struct SysFile {
    // True when path names an existing regular file (relative to the current
    // directory when not absolute).
    static bool Exists(std::string_view path);
};

struct SysFileInfo {
    // The last component of a path, extension included ("a/b/open-16.png" ->
    // "open-16.png"); the whole text when it has no separator.
    static std::string GetFileName(std::string_view path);
};

}  // namespace tcu
