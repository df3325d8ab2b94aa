// SPDX-License-Identifier: MIT
#include "toolkit/pane/pty_stream.h"

#include <array>
#include <utility>

#include <poll.h>

namespace {

using terminal::Pty;

// One turn of the event loop takes at most this much output, so that keys and painting get their turn.
constexpr std::size_t slice_bytes = 262'144;
constexpr std::size_t read_bytes = 16'384;
constexpr int slice_milliseconds = 3;
constexpr int hung_up_interval_milliseconds = 100;
// How long an echo may take, and how long nothing more follows once it has come.
constexpr int echo_limit_milliseconds = 100;
constexpr int echo_quiet_milliseconds = 20;
// Keys that came longer ago have been answered.
constexpr int recent_key_milliseconds = 150;
// Output can ask for answers faster than a program that does not listen takes them.
constexpr std::size_t unread_replies_limit = 1'048'576;

}  // namespace

PtyStream::PtyStream(std::unique_ptr<Pty> pty, Events events)
    : pty_(std::move(pty)),
      events_(std::move(events)),
      readable_(pty_->descriptor(), QSocketNotifier::Read),
      writable_(pty_->descriptor(), QSocketNotifier::Write) {
    writable_.setEnabled(false);
    hung_up_.setInterval(hung_up_interval_milliseconds);
    hung_up_.setSingleShot(true);
    connect(&readable_, &QSocketNotifier::activated, this, [this] { read_slice(); });
    connect(&writable_, &QSocketNotifier::activated, this, [this] { write_pending(); });
    connect(&hung_up_, &QTimer::timeout, this, [this] { readable_.setEnabled(true); });
}

void PtyStream::close() {
    readable_.setEnabled(false);
    writable_.setEnabled(false);
    hung_up_.stop();
    pty_.reset();
}

void PtyStream::write(std::string_view bytes) {
    pty_->write(bytes);
    writable_.setEnabled(pty_->pending() > 0);
}

void PtyStream::type(std::string_view bytes) {
    write(bytes);
    since_key_.start();
    echo_due_ = true;
}

void PtyStream::reply(std::string_view bytes) {
    if (pty_->pending() < unread_replies_limit) {
        write(bytes);
    }
}

void PtyStream::write_pending() {
    pty_->flush();
    writable_.setEnabled(pty_->pending() > 0);
}

void PtyStream::await_echo() {
    const bool typing = since_key_.isValid() && !since_key_.hasExpired(recent_key_milliseconds);
    const int quiet = typing ? echo_quiet_milliseconds : 0;
    const bool password = pty_->reads_lines() && !pty_->echoes();
    int wait = password ? 0 : echo_due_ ? echo_limit_milliseconds : quiet;
    QElapsedTimer clock;
    clock.start();
    while (pty_ && clock.elapsed() <= echo_limit_milliseconds) {
        pollfd output{.fd = pty_->descriptor(), .events = POLLIN, .revents = 0};
        if (poll(&output, 1, wait) <= 0 || (output.revents & POLLIN) == 0) {
            return;
        }
        read_slice();
        wait = quiet;
    }
}

void PtyStream::read_slice() {
    QElapsedTimer clock;
    clock.start();
    std::array<char, read_bytes> buffer;
    std::size_t total = 0;
    auto state = Pty::ReadState::data;
    while (total < slice_bytes && !clock.hasExpired(slice_milliseconds)) {
        const Pty::ReadResult result = pty_->read(buffer);
        state = result.state;
        if (state != Pty::ReadState::data) {
            break;
        }
        events_.output({buffer.data(), result.size});
        total += result.size;
    }
    if (total > 0) {
        echo_due_ = false;
        events_.slice_read();
    }
    if (state == Pty::ReadState::hung_up) {
        // Most likely the program has ended; else somebody may open the terminal again.
        readable_.setEnabled(false);
        hung_up_.start();
        events_.hung_up();
    }
}

void PtyStream::read_last_words() {
    std::array<char, read_bytes> buffer;
    std::size_t total = 0;
    auto result = pty_->read(buffer);
    while (result.state == Pty::ReadState::data && total < slice_bytes) {
        events_.output({buffer.data(), result.size});
        total += result.size;
        result = pty_->read(buffer);
    }
}
