// SPDX-License-Identifier: MIT
// Entry of the test programs that need an X display and the toolkit.
#include "toolkit/application.h"

#include <cstdio>
#include <string>
#include <vector>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::vector<std::string> arguments(argv, argv + argc);
    const std::string failure = xv_init(arguments);
    if (!failure.empty()) {
        std::fprintf(stderr, "%s\n", failure.c_str());
        return 1;
    }
    const int result = RUN_ALL_TESTS();
    xv_destroy();
    return result;
}
