// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Copy to Public": a copy in another user's public directory.
struct CopyToPublic : CommandFrame {
    CopyToPublic() : CommandFrame("Copy to Public") {}

    TextField userid{panel, "Userid:"};
};

inline std::unique_ptr<CopyToPublic> Orvik_popup23;
inline CopyToPublic& copy_to_public_window() { return *Orvik_popup23; }
