// SPDX-License-Identifier: MIT
// Stands in for a shell where a test wants to know exactly what it was given: notes how it was started and
// what size its terminal has, then every byte that is typed. Each of its files in the home is complete when
// its name appears.
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

void write_file(const std::string& name, const std::string& content) {
    const fs::path path = fs::path(std::getenv("HOME")) / name;
    const fs::path unfinished = path.string() + ".unfinished";
    std::ofstream(unfinished, std::ios::binary) << content;
    fs::rename(unfinished, path);
}

/// Looked at before anything else is opened.
std::string open_descriptors() {
    std::string result;
    const int most = static_cast<int>(sysconf(_SC_OPEN_MAX));
    for (int descriptor = 0; descriptor < std::min(most, 4096); ++descriptor) {
        if (fcntl(descriptor, F_GETFD) >= 0) {
            result += std::to_string(descriptor) + ' ';
        }
    }
    return result;
}

void note_size() {
    winsize size{};
    ioctl(STDIN_FILENO, TIOCGWINSZ, &size);
    write_file("size", std::to_string(size.ws_row) + ' ' + std::to_string(size.ws_col));
}

std::string environment() {
    std::string result;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        result.append(*variable).append(1, '\0');
    }
    return result;
}

/// Bytes come as they are typed, but the kernel's signals stay away too. What waits in the queue is kept.
void make_raw() {
    termios settings{};
    tcgetattr(STDIN_FILENO, &settings);
    cfmakeraw(&settings);
    tcsetattr(STDIN_FILENO, TCSADRAIN, &settings);
}

volatile std::sig_atomic_t resized = 0;
void note_resize(int /*signal*/) { resized = 1; }

}  // namespace

int main(int /*argc*/, char** argv) {
    const std::string descriptors = open_descriptors();
    struct sigaction action {};
    action.sa_handler = note_resize;  // without SA_RESTART: a resize wakes the reader
    sigaction(SIGWINCH, &action, nullptr);
    make_raw();
    write_file("descriptors", descriptors);
    write_file("name", argv[0]);
    write_file("directory", fs::current_path());
    write_file("environment", environment());
    note_size();
    std::string typed;
    write_file("typed", typed);
    std::array<char, 4096> piece{};
    for (;;) {
        const ssize_t count = read(STDIN_FILENO, piece.data(), piece.size());
        if (std::exchange(resized, 0) != 0) {
            note_size();
        }
        if (count > 0) {
            typed.append(piece.data(), static_cast<std::size_t>(count));
            write_file("typed", typed);
        } else if (count == 0 || errno != EINTR) {
            return 0;
        }
    }
}
