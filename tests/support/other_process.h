// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

// What a test does in a process of its own, which may change what belongs to a process.

inline constexpr uid_t nobody = 65534;
/// What a body returns when the system does not let it do what it wants to try.
inline constexpr int cannot_be_tried = 77;

/// Runs expectations in a new process. Gives 0, 1 when one failed, or what the body itself returned; -1 when
/// it was killed.
[[nodiscard]] inline int in_child(const std::function<int()>& body) {
    const pid_t child = fork();
    if (child == 0) {
        const int result = body();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : result);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Makes root an ordinary user; anybody else is one.
[[nodiscard]] bool become_ordinary();

/// Gives the process a file system of its own in a directory, which is full after so many bytes ("64k");
/// whether the system lets it.
[[nodiscard]] bool mount_small_disk(const std::filesystem::path& directory, const std::string& size);

/// What stands in a directory, links with their targets.
[[nodiscard]] std::vector<std::string> listing(const std::filesystem::path& directory);
