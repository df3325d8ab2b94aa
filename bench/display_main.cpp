// SPDX-License-Identifier: MIT
// The main function of the benchmarks that need a display.
#include "toolkit/application.h"

#include <cstdio>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    std::vector<std::string> arguments(argv, argv + argc);
    if (const std::string failure = xv_init(arguments); !failure.empty()) {
        std::fprintf(stderr, "%s\n", failure.c_str());
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    xv_destroy();
    return 0;
}
