// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends a fuzz target when a property does not hold; `fault` says what is wrong. Unlike an assertion it is
/// there in every build.
inline void require(bool holds, const char* fault) {
    if (!holds) {
        std::fprintf(stderr, "fuzz: %s\n", fault);
        std::abort();
    }
}
