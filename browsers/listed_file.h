// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>

/// A path, or why there is none.
struct ListedFile {
    std::string path;
    Message refusal;

    explicit operator bool() const { return refusal.empty(); }
};

/// The file named in the "File List Browser", by its "File Name:" and "Directory:".
ListedFile listed_file();
