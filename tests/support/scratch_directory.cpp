// SPDX-License-Identifier: MIT
#include "tests/support/scratch_directory.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

ScratchDirectory::ScratchDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "orvik-test.XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        std::perror("orvik test: mkdtemp");
        std::abort();
    }
    // Shells report the directory without symbolic links in it, so tests compare with that name.
    path_ = std::filesystem::canonical(name);
}

ScratchDirectory::~ScratchDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path ScratchDirectory::write(std::string_view name, std::string_view content) const {
    std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file;
}

std::filesystem::path ScratchDirectory::write_script(std::string_view name, std::string_view content) const {
    std::filesystem::path file = write(name, content);
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    return file;
}

std::string read_file(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}
