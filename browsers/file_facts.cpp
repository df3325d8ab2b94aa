// SPDX-License-Identifier: MIT
#include "browsers/file_facts.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <vector>

#include <fmt/format.h>
#include <fmt/printf.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>

namespace {

struct TypeText {
    mode_t type;
    std::string_view text;
};

constexpr std::array type_texts{
    TypeText{S_IFDIR, "Directory"},     TypeText{S_IFCHR, "Character special"},
    TypeText{S_IFBLK, "Block special"}, TypeText{S_IFREG, "Regular"},
    TypeText{S_IFLNK, "Symbolic link"}, TypeText{S_IFSOCK, "Socket"},
    TypeText{S_IFIFO, "FIFO"},
};

/// Read and execute stand the other way round in a mode.
unsigned with_ends_swapped(unsigned three_bits) {
    return ((three_bits & 1U) << 2U) | (three_bits & 2U) | ((three_bits >> 2U) & 1U);
}

/// An entry of the user or group database, by the functions that may be called from any thread; its text is
/// made by `tell`, empty where there is no entry.
template <typename Entry, typename Id, typename Tell>
std::string entry_text(int (*find)(Id, Entry*, char*, std::size_t, Entry**), Id id, Tell tell) {
    constexpr std::size_t most = std::size_t{1} << 20U;
    Entry entry{};
    Entry* found = nullptr;
    std::vector<char> buffer(1024);
    while (find(id, &entry, buffer.data(), buffer.size(), &found) == ERANGE && buffer.size() < most) {
        buffer.resize(2 * buffer.size());
    }
    return found == nullptr ? std::string() : tell(*found);
}

std::string owner_text(uid_t user) {
    const std::string name = entry_text<passwd>(getpwuid_r, user, [](const passwd& entry) {
        return fmt::sprintf("%s (%s)", entry.pw_gecos, entry.pw_name);
    });
    return name.empty() ? fmt::sprintf("%d", user) : name;
}

std::string group_text(gid_t id) {
    const std::string name =
        entry_text<group>(getgrgid_r, id, [](const group& entry) { return std::string(entry.gr_name); });
    return name.empty() ? fmt::sprintf("%d", id) : name;
}

std::string line(std::string_view bare, std::string_view value) { return fmt::format("{}{}", bare, value); }

}  // namespace

std::string_view file_type_text(mode_t mode) {
    for (const TypeText& type : type_texts) {
        if ((mode & S_IFMT) == type.type) {
            return type.text;
        }
    }
    return {};
}

PermissionBoxes boxes_of(mode_t mode) {
    return {.owner = with_ends_swapped((mode >> 6U) & 7U),
            .group = with_ends_swapped((mode >> 3U) & 7U),
            .world = with_ends_swapped(mode & 7U)};
}

mode_t mode_of(const PermissionBoxes& boxes) {
    return with_ends_swapped(boxes.owner) << 6U | with_ends_swapped(boxes.group) << 3U |
           with_ends_swapped(boxes.world);
}

std::string status_time(time_t time) {
    std::tm local{};
    std::array<char, 64> text{};
    const bool known = localtime_r(&time, &local) != nullptr;
    return known ? std::string(text.data(),
                               std::strftime(text.data(), text.size(), "%Y-%m-%d  %H:%M:%S", &local))
                 : std::string();
}

FileFacts examine_file(const std::string& path) {
    struct stat status {};
    if (path.find('\0') != std::string::npos || stat(path.c_str(), &status) != 0) {
        return {};
    }
    const auto low_bits = static_cast<std::int32_t>(static_cast<std::uint32_t>(status.st_size));
    return {.known = true,
            .permissions = boxes_of(status.st_mode),
            .type = line(bare_type_line, file_type_text(status.st_mode)),
            .owner = line(bare_owner_line, owner_text(status.st_uid)),
            .group = line(bare_group_line, group_text(status.st_gid)),
            .size = line(bare_size_line, fmt::sprintf("%d", low_bits)),
            .accessed = line(bare_accessed_line, status_time(status.st_atime)),
            .modified = line(bare_modified_line, status_time(status.st_mtime)),
            .changed = line(bare_changed_line, status_time(status.st_ctime))};
}
