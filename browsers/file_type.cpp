// SPDX-License-Identifier: MIT
#include "browsers/file_type.h"

#include <sys/stat.h>

FileType GetFileType(const std::string& path) {
    if (path.empty()) {
        return FT_NO_NAME;
    }
    const std::optional<mode_t> mode = file_mode(path);
    if (!mode) {
        return FT_NO_FILE;
    }
    if (path.find(".htm") != std::string::npos) {  // ".html" too
        return FT_HTML;
    }
    if (path.find(".pdf") != std::string::npos) {
        return FT_PDF;
    }
    if (S_ISDIR(*mode)) {
        return FT_DIRECTORY;
    }
    return S_ISREG(*mode) ? FT_REGULAR : FT_SPECIAL;
}

std::optional<mode_t> file_mode(const std::string& path) {
    struct stat status {};
    const bool known = path.find('\0') == std::string::npos && stat(path.c_str(), &status) == 0;
    return known ? std::optional(status.st_mode) : std::nullopt;
}
