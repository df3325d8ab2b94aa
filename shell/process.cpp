// SPDX-License-Identifier: MIT
#include "shell/process.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

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
    orvik_home = environment_value("ORVIK_HOME", "Can't get ORVIK_HOME enviroment variable");
    pid = getpid();
}
