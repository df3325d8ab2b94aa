// SPDX-License-Identifier: MIT
#include "browsers/file_type.h"

#include <sys/stat.h>

FileType GetFileType(const std::string& path) {
    if (path.empty()) {
        return FT_NO_NAME;
    }
    struct stat status {};
    if (path.find('\0') != std::string::npos || stat(path.c_str(), &status) != 0) {
        return FT_NO_FILE;
    }
    if (path.find(".htm") != std::string::npos) {  // ".html" too
        return FT_HTML;
    }
    if (path.find(".pdf") != std::string::npos) {
        return FT_PDF;
    }
    if (S_ISDIR(status.st_mode)) {
        return FT_DIRECTORY;
    }
    return S_ISREG(status.st_mode) ? FT_REGULAR : FT_SPECIAL;
}
