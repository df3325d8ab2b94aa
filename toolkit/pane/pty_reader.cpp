// SPDX-License-Identifier: MIT
#include "toolkit/pane/pty_reader.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace {

using terminal::Pty;

// A terminal that nobody holds open is looked at again after a while.
constexpr int hung_up_interval_milliseconds = 100;

}  // namespace

PtyReader::PtyReader(Pty& pty)
    : pty_(pty), call_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), stop_(eventfd(0, EFD_CLOEXEC)) {
    // Signals are the event loop's.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    thread_ = std::thread([this] { work(); });
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

PtyReader::~PtyReader() {
    stop();
    close(call_);
    close(stop_);
}

void PtyReader::stop() {
    if (!thread_.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    room_.notify_one();
    eventfd_write(stop_, 1);
    thread_.join();
    read_ahead_ = capacity;
}

void PtyReader::work() {
    bool hung_up = false;
    while (wait_for_room() && wait_for_bytes(hung_up)) {
        hung_up = fill() == Pty::ReadState::hung_up;
    }
}

bool PtyReader::wait_for_room() {
    std::unique_lock lock(mutex_);
    room_.wait(lock, [this] { return stopping_ || end_ - begin_ < read_ahead_; });
    return !stopping_;
}

bool PtyReader::wait_for_bytes(bool hung_up) const {
    std::array<pollfd, 2> calls{{{.fd = stop_, .events = POLLIN, .revents = 0},
                                 {.fd = pty_.descriptor(), .events = POLLIN, .revents = 0}}};
    // A pty that is hung up would call at once.
    poll(calls.data(), hung_up ? 1 : calls.size(), hung_up ? hung_up_interval_milliseconds : -1);
    return (calls[0].revents & POLLIN) == 0;
}

Pty::ReadState PtyReader::fill() {
    std::size_t place = 0;
    std::size_t room = 0;
    {
        const std::lock_guard lock(mutex_);
        const std::size_t unread = end_ - begin_;
        place = end_ % capacity;
        room = std::min(capacity - place, std::max(read_ahead_, unread) - unread);
    }
    if (room == 0) {
        return Pty::ReadState::nothing_yet;  // it was told to read less far ahead meanwhile
    }
    const Pty::ReadResult result = pty_.read({ring_.get() + place, room});
    const std::lock_guard lock(mutex_);
    hung_up_ = result.state == Pty::ReadState::hung_up;
    end_ += result.size;
    if (result.state != Pty::ReadState::nothing_yet) {
        call();
    }
    return result.state;
}

void PtyReader::call() {
    if (!called_) {
        called_ = true;
        eventfd_write(call_, 1);
    }
}

void PtyReader::call_again() {
    const std::lock_guard lock(mutex_);
    call();
}

void PtyReader::acknowledge() {
    const std::lock_guard lock(mutex_);
    eventfd_t count = 0;
    eventfd_read(call_, &count);
    called_ = false;
}

std::string_view PtyReader::unread() {
    const std::lock_guard lock(mutex_);
    const std::size_t place = begin_ % capacity;
    return {ring_.get() + place, std::min(capacity - place, end_ - begin_)};
}

void PtyReader::consume(std::size_t bytes) {
    {
        const std::lock_guard lock(mutex_);
        begin_ += bytes;
    }
    room_.notify_one();
}

void PtyReader::set_read_ahead(std::size_t bytes) {
    {
        const std::lock_guard lock(mutex_);
        read_ahead_ = std::min(bytes, capacity);
    }
    room_.notify_one();
}

bool PtyReader::hung_up() {
    const std::lock_guard lock(mutex_);
    return hung_up_ && begin_ == end_;
}
