// SPDX-License-Identifier: MIT
// Preloaded into a program: a directory on a server that does not answer. Who asks for the directory
// DEAD_PATH, or for anything in it, waits until somebody opens the fifo beside it for writing.
#include <cstdlib>
#include <cstring>
#include <string>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void ask_server(const char* path) {
    const char* const dead = std::getenv("DEAD_PATH");
    if (dead != nullptr && std::strncmp(path, dead, std::strlen(dead)) == 0) {
        close(open((std::string(dead) + ".server").c_str(), O_RDONLY | O_CLOEXEC));
    }
}

template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

DIR* opendir(const char* path) {
    ask_server(path);
    return next<DIR*(const char*)>("opendir")(path);
}

int access(const char* path, int mode) noexcept {
    ask_server(path);
    return next<int(const char*, int)>("access")(path, mode);
}

int stat(const char* path, struct stat* status) noexcept {
    ask_server(path);
    return next<int(const char*, struct stat*)>("stat")(path, status);
}
}
