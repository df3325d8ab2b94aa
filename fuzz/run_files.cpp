// SPDX-License-Identifier: MIT
#include "fuzz/input.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// Runs a fuzz target once with each file, or each file of a folder: the seeds as an ordinary test, and any
// input under a debugger, with no need of libFuzzer.

namespace {

int run(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (!file) {
        std::fprintf(stderr, "%s: cannot be read\n", path.c_str());
        return 1;
    }
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);  // the last line names the input that fails
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    int files = 0;
    int unreadable = 0;
    for (int i = 1; i < argc; ++i) {
        if (!std::filesystem::is_directory(argv[i])) {
            unreadable += run(argv[i]);
            ++files;
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            unreadable += run(entry.path());
            ++files;
        }
    }
    return files > 0 && unreadable == 0 ? 0 : 1;
}
