// SPDX-License-Identifier: MIT
// What copying a large file costs, beside `cp` of the same one: dense, and sparse with a block every 4 MB.
// The directory is that of TMPDIR; what is on the disk before the next round starts is waited for untimed.
#include "shell/file_copy.h"
#include "tests/support/scratch_directory.h"

#include <cstdlib>
#include <string>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

namespace {

constexpr off_t block = off_t{1} << 20;
constexpr off_t large = off_t{2} << 30;

enum Kind { dense, sparse };

const ScratchDirectory& files() {
    static const ScratchDirectory directory;
    return directory;
}

/// The large file, made at the first question.
std::string source(Kind kind) {
    const std::string path = files() / (kind == dense ? "dense" : "sparse");
    if (access(path.c_str(), F_OK) == 0) {
        return path;
    }
    const int file = open(path.c_str(), O_WRONLY | O_CREAT, 0600);
    const std::string data(block, 'd');
    for (off_t at = 0; at < large; at += kind == dense ? block : 4 * block) {
        (void)!pwrite(file, data.data(), data.size(), at);
    }
    (void)!ftruncate(file, large);
    close(file);
    return path;
}

template <typename Copy>
void measure(benchmark::State& state, Copy copy) {
    const auto kind = static_cast<Kind>(state.range(0));
    const std::string from = source(kind);
    const std::string to = files() / "copy";
    for (auto _ : state) {
        state.PauseTiming();
        unlink(to.c_str());
        sync();
        state.ResumeTiming();
        if (!copy(from, to)) {
            state.SkipWithError("the file could not be copied");
        }
    }
    unlink(to.c_str());
}

void CopyWithCp(benchmark::State& state) {
    measure(state, [](const std::string& from, const std::string& to) {
        return std::system(fmt::format("exec cp '{}' '{}'", from, to).c_str()) == 0;
    });
}

void CopyFile(benchmark::State& state) {
    measure(state,
            [](const std::string& from, const std::string& to) { return file_copy(to, from) == COPY_OK; });
}

void as_asked(benchmark::internal::Benchmark* test) {
    test->ArgName("sparse")
        ->Arg(dense)
        ->Arg(sparse)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(2);
}
BENCHMARK(CopyWithCp)->Apply(as_asked);
BENCHMARK(CopyFile)->Apply(as_asked);

}  // namespace
