// SPDX-License-Identifier: MIT
#include "shell/process.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace {

constexpr std::size_t host_name_size = 80;
constexpr std::size_t path_size = 1024;

[[noreturn]] void fail(const char* message) {
    std::perror(message);
    std::exit(1);
}

std::string environment_value(const char* name, const char* failure) {
    const char* value = std::getenv(name);
    if (value == nullptr) {
        errno = ENODATA;  // getenv itself sets no error number
        fail(failure);
    }
    return value;
}

/// ORVIK_HOME; where that is unset, the data that was installed beside this program, and what runs in the
/// terminal finds them by the variable too.
std::string installation_directory() {
    namespace fs = std::filesystem;
    if (std::getenv("ORVIK_HOME") == nullptr) {
        std::error_code error;
        const fs::path program = fs::read_symlink("/proc/self/exe", error);
        const fs::path installed = program.parent_path().parent_path() / "share/orvik";
        if (fs::is_directory(installed, error)) {
            setenv("ORVIK_HOME", installed.c_str(), 1);
        }
    }
    return environment_value("ORVIK_HOME", "Can't get ORVIK_HOME enviroment variable");
}

}  // namespace

void read_process_values() {
    std::array<char, host_name_size> host{};
    if (gethostname(host.data(), host.size()) != 0) {
        fail("Can't read host name");
    }
    host.back() = '\0';  // POSIX leaves a name that was cut without its end
    host_own = host.data();
    home_dir = environment_value("HOME", "Can't read home directory");
    std::array<char, path_size> directory{};
    if (getcwd(directory.data(), directory.size()) == nullptr) {
        fail("Can't read current directory");
    }
    startup_dir = directory.data();
    user_name = environment_value("LOGNAME", "Can't get login user name");
    shell_name = environment_value("SHELL", "Can't get shell name");
    user_shell = {.family = shell_family(shell_name), .utf8 = environment_is_utf8()};
    orvik_home = installation_directory();
    pid = getpid();
}
