// SPDX-License-Identifier: MIT
#include "toolkit/file_watch.h"

#include "toolkit/frame.h"

#include <QSocketNotifier>
#include <QWidget>

#include <array>
#include <cstddef>
#include <cstring>

#include <sys/inotify.h>
#include <unistd.h>

FileWatch::FileWatch(Frame& frame, void (*written)()) : inotify_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (inotify_.get() < 0) {  // the user's limit is reached: nothing is told then
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(inotify_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, frame.widget(),
                     [this, written] { read_events(written); });
}

FileWatch::~FileWatch() = default;

void FileWatch::watch(const std::string& path) {
    if (watched_ >= 0) {
        inotify_rm_watch(inotify_.get(), watched_);
    }
    watched_ = path.empty() ? -1 : inotify_add_watch(inotify_.get(), path.c_str(), IN_CLOSE_WRITE);
}

/// Of several writes at once the last one counts.
void FileWatch::read_events(void (*written)()) const {
    constexpr std::size_t room = 4096;
    alignas(inotify_event) std::array<char, room> events;
    bool is_written = false;
    for (ssize_t size; (size = read(inotify_.get(), events.data(), events.size())) > 0;) {
        for (const char* next = events.data(); next < events.data() + size;) {
            inotify_event event;
            std::memcpy(&event, next, sizeof event);
            is_written = is_written || (event.wd == watched_ && (event.mask & IN_CLOSE_WRITE) != 0);
            next += sizeof event + event.len;
        }
    }
    if (is_written) {
        written();
    }
}
