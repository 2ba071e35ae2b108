#include "platform/sys_file.h"

#include <string>
#include <sys/stat.h>

namespace tcu {

bool SysFile::Exists(std::string_view path) {
    if (path.empty()) return false;
    // An embedded NUL would silently name another file.
    if (path.find('\0') != std::string_view::npos) return false;
    struct stat st;
    return ::stat(std::string(path).c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

std::string SysFileInfo::GetFileName(std::string_view path) {
    const size_t slash = path.find_last_of('/');
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

}  // namespace tcu
