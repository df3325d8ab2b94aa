// SPDX-License-Identifier: MIT
#include "terminal/child_process.h"

#include <algorithm>
#include <cerrno>
#include <csignal>

#include <sys/syscall.h>
#include <unistd.h>

namespace terminal {

pid_t fork_with_signals_blocked() {
    sigset_t all;
    sigset_t previous;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &previous);
    const pid_t child = fork();
    if (child == 0) {
        return child;
    }
    const int error = errno;
    pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    errno = error;
    return child;
}

int descriptor_limit() { return static_cast<int>(std::min<long>(sysconf(_SC_OPEN_MAX), 1 << 20)); }

void reset_signals() {
    struct sigaction standard {};
    standard.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number) {
        sigaction(number, &standard, nullptr);
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

void close_descriptors_from(unsigned first, int limit) {
    if (syscall(SYS_close_range, first, ~0U, 0U) == 0) {
        return;
    }
    for (int number = static_cast<int>(first); number < limit; ++number) {
        close(number);
    }
}

}  // namespace terminal
