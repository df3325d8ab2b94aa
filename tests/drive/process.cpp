// SPDX-License-Identifier: MIT
#include "tests/drive/process.h"

#include "tests/support/wait_until.h"

#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

namespace {

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (std::string& text : texts) {
        result.push_back(text.data());
    }
    result.push_back(nullptr);
    return result;
}

pid_t start(const Command& command) {
    std::vector<std::string> arguments = command.arguments;
    std::vector<std::string> environment;
    for (const auto& [name, value] : command.environment) {
        environment.push_back(name + '=' + value);
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, command.directory.c_str());
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, command.output.c_str(), O_WRONLY | O_CREAT | O_APPEND,
                                     0600);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t pid = -1;
    const int failure = posix_spawn(&pid, command.arguments.front().c_str(), &actions, &attributes,
                                    pointers(arguments).data(), pointers(environment).data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? pid : -1;
}

}  // namespace

Process::Process(const Command& command) : pid_(start(command)) {
    if (pid_ < 0) {
        std::fprintf(stderr, "can't start %s\n", command.arguments.front().c_str());
        constexpr int not_found = 127;
        status_ = not_found;
    }
}

Process::~Process() {
    if (!status()) {
        signal(SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
}

std::optional<int> Process::status() const {
    int status = 0;
    if (!status_ && waitpid(pid_, &status, WNOHANG) == pid_) {
        constexpr int ended_by_signal = 128;
        status_ = WIFEXITED(status) ? WEXITSTATUS(status) : ended_by_signal + WTERMSIG(status);
    }
    return status_;
}

std::optional<int> Process::wait_for_end(std::chrono::milliseconds deadline) const {
    (void)wait_until([this] { return status().has_value(); }, deadline);
    return status_;
}

void Process::signal(int number) const {
    if (!status_) {
        kill(pid_, number);
    }
}
