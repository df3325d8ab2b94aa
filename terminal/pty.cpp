// SPDX-License-Identifier: MIT
#include "terminal/pty.h"

#include "terminal/child_process.h"
#include "terminal/descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace terminal {
namespace {

constexpr int cannot_execute = 127;  // as a shell says it

winsize window_size(Size size, int pixel_width, int pixel_height) {
    const auto limited = [](int value) {
        return static_cast<unsigned short>(std::clamp(value, 0, int{USHRT_MAX}));
    };
    return {limited(size.rows), limited(size.columns), limited(pixel_width), limited(pixel_height)};
}

/// The modes a login terminal has: lines are edited and echoed by the kernel, in UTF-8, erased with DEL.
void set_line_discipline(int terminal) {
    termios modes{};
    if (tcgetattr(terminal, &modes) != 0) {
        return;
    }
    modes.c_iflag = ICRNL | IXON | IUTF8;
    modes.c_oflag = OPOST | ONLCR;
    modes.c_cflag = CS8 | CREAD | HUPCL;
    modes.c_lflag = ISIG | ICANON | IEXTEN | ECHO | ECHOE | ECHOK | ECHOCTL | ECHOKE;
    constexpr std::array<std::pair<int, cc_t>, 14> characters{{{VINTR, 0x03},
                                                               {VQUIT, 0x1c},
                                                               {VERASE, 0x7f},
                                                               {VKILL, 0x15},
                                                               {VEOF, 0x04},
                                                               {VSTART, 0x11},
                                                               {VSTOP, 0x13},
                                                               {VSUSP, 0x1a},
                                                               {VREPRINT, 0x12},
                                                               {VDISCARD, 0x0f},
                                                               {VWERASE, 0x17},
                                                               {VLNEXT, 0x16},
                                                               {VMIN, 1},
                                                               {VTIME, 0}}};
    for (const auto& [index, character] : characters) {
        modes.c_cc[index] = character;
    }
    modes.c_cc[VEOL] = _POSIX_VDISABLE;
    modes.c_cc[VEOL2] = _POSIX_VDISABLE;
    cfsetispeed(&modes, B38400);
    cfsetospeed(&modes, B38400);
    tcsetattr(terminal, TCSANOW, &modes);
}

/// What the child needs between fork and exec, made before: pointers into a `Program` that outlives it.
struct Image {
    explicit Image(const Program& program)
        : path(program.path.c_str()), directory(program.directory.c_str()) {
        for (const std::string& argument : program.arguments) {
            arguments.push_back(const_cast<char*>(argument.c_str()));
        }
        for (const std::string& variable : program.environment) {
            environment.push_back(const_cast<char*>(variable.c_str()));
        }
        arguments.push_back(nullptr);
        environment.push_back(nullptr);
    }
    const char* path;
    const char* directory;
    std::vector<char*> arguments;
    std::vector<char*> environment;
};

// From here to `run` the rules of terminal/child_process.h hold.

void say(const char* text) {
    const std::size_t size = std::strlen(text);
    for (std::size_t sent = 0; sent < size;) {
        const ssize_t count = ::write(STDERR_FILENO, text + sent, size - sent);
        if (count <= 0 && errno != EINTR) {
            return;
        }
        sent += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
}

void say_failure(const char* name, int error) {
    const char* const description = strerrordesc_np(error);  // unlike strerror, async-signal-safe
    say(name);
    say(": ");
    say(description != nullptr ? description : "unknown error");
    say("\n");
}

[[noreturn]] void run(const Image& image, int terminal, int limit) {
    reset_signals();
    setsid();
    ioctl(terminal, TIOCSCTTY, 0);
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        dup2(terminal, number);
    }
    close_descriptors_from(STDERR_FILENO + 1, limit);
    // A lost home directory is no reason to refuse the user a shell.
    if (*image.directory != '\0' && chdir(image.directory) != 0) {
        say_failure(image.directory, errno);
        if (chdir("/") != 0) {
            _exit(cannot_execute);
        }
    }
    execve(image.path, image.arguments.data(), image.environment.data());
    say_failure(image.path, errno);
    _exit(cannot_execute);
}

pid_t fork_and_run(const Image& image, int terminal) {
    const int limit = descriptor_limit();
    const pid_t child = fork_with_signals_blocked();
    if (child == 0) {
        run(image, terminal, limit);
    }
    return child;
}

/// Programs whose pty was closed before they ended: a shell takes a moment to die of the hang-up, and what
/// ignores it may live on. Each is waited for at the next occasion. Used by the event thread only.
std::vector<pid_t>& lingering() {
    static std::vector<pid_t> children;
    return children;
}

void reap_lingering() {
    std::erase_if(lingering(), [](pid_t child) { return waitpid(child, nullptr, WNOHANG) != 0; });
}

}  // namespace

std::unique_ptr<Pty> Pty::start(const Program& program, Size size, std::string& error) {
    reap_lingering();
    const auto failed = [&error](const char* what) {
        error = std::string(what).append(": ").append(std::strerror(errno));
        return nullptr;
    };
    Descriptor master(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
    if (master.get() < 0 || grantpt(master.get()) != 0 || unlockpt(master.get()) != 0) {
        return failed("Can't open a pseudo terminal");
    }
    std::array<char, PATH_MAX> name{};
    if (ptsname_r(master.get(), name.data(), name.size()) != 0) {
        return failed("Can't find the pseudo terminal's name");
    }
    const Descriptor terminal(open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    if (terminal.get() < 0) {
        return failed(name.data());
    }
    set_line_discipline(terminal.get());
    const winsize window = window_size(size, 0, 0);
    ioctl(terminal.get(), TIOCSWINSZ, &window);
    if (fcntl(master.get(), F_SETFL, O_NONBLOCK) != 0) {
        return failed("Can't set up the pseudo terminal");
    }
    const pid_t child = fork_and_run(Image(program), terminal.get());
    if (child < 0) {
        return failed("Can't start a process");
    }
    std::unique_ptr<Pty> pty(new Pty);
    pty->master_ = master.release();
    pty->child_ = child;
    pty->process_ = static_cast<int>(syscall(SYS_pidfd_open, child, 0U));  // is close-on-exec
    return pty;
}

Pty::~Pty() {
    close(master_);  // the kernel hangs up the program and the terminal's foreground job
    if (process_ >= 0) {
        close(process_);
    }
    if (!exit_status()) {
        lingering().push_back(child_);
    }
    reap_lingering();
}

Pty::ReadResult Pty::read(std::span<char> buffer) {
    ssize_t count = 0;
    do {
        count = ::read(master_, buffer.data(), buffer.size());
    } while (count < 0 && errno == EINTR);
    if (count > 0) {
        return {ReadState::data, static_cast<std::size_t>(count)};
    }
    // Linux says EIO once nobody holds the other side open, others the end of file.
    return {count < 0 && errno == EAGAIN ? ReadState::nothing_yet : ReadState::hung_up, 0};
}

void Pty::write(std::string_view bytes) {
    queue_.append(bytes);
    flush();
}

void Pty::flush() {
    constexpr std::size_t compaction = 65'536;
    while (pending() > 0) {
        const ssize_t count = ::write(master_, queue_.data() + sent_, pending());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0 && errno != EAGAIN) {
            sent_ = queue_.size();  // nobody is there to read it
        }
        if (count <= 0) {
            break;
        }
        sent_ += static_cast<std::size_t>(count);
    }
    if (pending() == 0) {
        queue_.clear();
        sent_ = 0;
    } else if (sent_ > compaction && sent_ > queue_.size() / 2) {
        queue_.erase(0, sent_);
        sent_ = 0;
    }
}

void Pty::resize(Size size, int pixel_width, int pixel_height) {
    const winsize window = window_size(size, pixel_width, pixel_height);
    ioctl(master_, TIOCSWINSZ, &window);
}

std::optional<int> Pty::exit_status() {
    int status = 0;
    if (!status_ && waitpid(child_, &status, WNOHANG) == child_) {
        status_ = status;
    }
    return status_;
}

std::string Pty::control_characters() const {
    constexpr std::array indexes{VINTR,  VQUIT, VERASE, VKILL,    VEOF,     VEOL,    VEOL2,
                                 VSTART, VSTOP, VSUSP,  VREPRINT, VDISCARD, VWERASE, VLNEXT};
    termios modes{};
    std::string characters;
    if (tcgetattr(master_, &modes) != 0) {
        return characters;
    }
    for (const auto index : indexes) {
        if (modes.c_cc[index] != _POSIX_VDISABLE) {
            characters += static_cast<char>(modes.c_cc[index]);
        }
    }
    return characters;
}

TerminalUse Pty::use() const {
    termios modes{};
    (void)tcgetattr(master_, &modes);  // all off where it fails
    return {.reads_lines = (modes.c_lflag & ICANON) != 0,
            .echoes = (modes.c_lflag & ECHO) != 0,
            .translates_return = (modes.c_iflag & ICRNL) != 0,
            .locks_on_control_s = (modes.c_iflag & IXON) != 0,
            .group = tcgetpgrp(master_)};
}

bool Pty::asks_for_password() const {
    const TerminalUse now = use();
    return now.reads_lines && !now.echoes;
}

}  // namespace terminal
