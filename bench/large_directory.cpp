// SPDX-License-Identifier: MIT
#include "bench/large_directory.h"

#include <cstdlib>
#include <string>

#include <fmt/format.h>

const ScratchDirectory& large_directory() {
    static const ScratchDirectory directory;
    static const bool filled = [] {
        for (int i = 0; i < most_files; ++i) {
            directory.write(fmt::format("some file {}.cpp", (i * 7919) % most_files), "");
        }
        return true;
    }();
    (void)filled;
    return directory;
}

void ListWithLs(benchmark::State& state) {
    const std::string command = fmt::format("exec ls -lU '{}' >/dev/null", large_directory().path().string());
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::system(command.c_str()));
    }
}
BENCHMARK(ListWithLs)->UseRealTime()->Unit(benchmark::kMillisecond);
