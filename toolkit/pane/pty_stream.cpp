// SPDX-License-Identifier: MIT
#include "toolkit/pane/pty_stream.h"

#include <algorithm>
#include <utility>

#include <poll.h>

namespace {

using terminal::Pty;

// One turn of the event loop works for so long, so that keys and painting get their turn. A few bytes can ask
// for much work, such as one that repeats a character does: the clock is looked at every so many.
constexpr int slice_milliseconds = 3;
constexpr std::size_t piece_bytes = 1024;
constexpr std::size_t last_words_limit = 262'144;
// How long an echo may take, and how long nothing more follows once it has come.
constexpr int echo_limit_milliseconds = 100;
constexpr int echo_quiet_milliseconds = 20;
// Keys that came longer ago have been answered.
constexpr int recent_key_milliseconds = 150;
// Output can ask for answers faster than a program that does not listen takes them.
constexpr std::size_t unread_replies_limit = 65'536;
// The kernel holds some 12 KB for a program to read, and keys do not overtake that. A program that asks on
// and on gets its answers no faster than it can read them byte by byte.
constexpr std::size_t replies_at_once = 4096;
constexpr std::size_t replies_a_tick = 1024;
constexpr int reply_tick_milliseconds = 4;
// So much time's work is read ahead: at the pace of a slice that took all its time.
constexpr int slices_ahead = 4;
constexpr std::size_t least_ahead = 4096;  // what the kernel hands out at once
constexpr std::size_t most_ahead = 262'144;

}  // namespace

PtyStream::PtyStream(std::unique_ptr<Pty> pty, Events events)
    : pty_(std::move(pty)),
      reader_(std::make_unique<PtyReader>(*pty_)),
      events_(std::move(events)),
      readable_(reader_->descriptor(), QSocketNotifier::Read),
      writable_(pty_->descriptor(), QSocketNotifier::Write),
      replies_allowed_(replies_at_once) {
    writable_.setEnabled(false);
    connect(&reply_timer_, &QTimer::timeout, this, [this] { pass_time_for_replies(); });
    connect(&readable_, &QSocketNotifier::activated, this, [this] { read_slice(); });
    connect(&writable_, &QSocketNotifier::activated, this, [this] { write_pending(); });
}

void PtyStream::close() {
    readable_.setEnabled(false);
    writable_.setEnabled(false);
    reply_timer_.stop();
    replies_.clear();
    reader_.reset();
    pty_.reset();
}

void PtyStream::write(std::string_view bytes) {
    pty_->write(bytes);
    watch_for_room();
}

void PtyStream::watch_for_room() {
    writable_.setEnabled(pty_->pending() > 0 || (!replies_.empty() && replies_allowed_ > 0));
}

void PtyStream::type(std::string_view bytes) {
    if (bytes.empty()) {
        return;  // there is nothing to answer
    }
    write(bytes);
    since_key_.start();
    echo_due_ = true;
}

void PtyStream::reply(std::string_view bytes) {
    if (unread_replies_ + bytes.size() <= unread_replies_limit) {
        unread_replies_ += bytes.size();
        replies_.emplace_back(bytes);
        write_replies();
    }
}

/// One by one, when the program has taken what was written before: keys do not wait behind all of them.
void PtyStream::write_replies() {
    while (pty_->pending() == 0 && !replies_.empty() && replies_allowed_ > 0) {
        const std::size_t size = replies_.front().size();
        unread_replies_ -= size;
        replies_allowed_ -= std::min(size, replies_allowed_);
        pty_->write(replies_.front());
        replies_.pop_front();
        if (!reply_timer_.isActive()) {
            reply_timer_.start(reply_tick_milliseconds);
        }
    }
    watch_for_room();
}

void PtyStream::pass_time_for_replies() {
    replies_allowed_ = std::min(replies_allowed_ + replies_a_tick, replies_at_once);
    write_replies();
    if (replies_allowed_ == replies_at_once) {
        reply_timer_.stop();
    }
}

void PtyStream::write_pending() {
    pty_->flush();
    write_replies();
}

void PtyStream::await_echo() {
    const bool typing = since_key_.isValid() && !since_key_.hasExpired(recent_key_milliseconds);
    const int quiet = typing ? echo_quiet_milliseconds : 0;
    const bool password = pty_->asks_for_password();
    int wait = password ? 0 : echo_due_ ? echo_limit_milliseconds : quiet;
    QElapsedTimer clock;
    clock.start();
    while (pty_ && clock.elapsed() <= echo_limit_milliseconds) {
        pollfd output{.fd = reader_->descriptor(), .events = POLLIN, .revents = 0};
        if (poll(&output, 1, wait) <= 0) {
            return;
        }
        read_slice();
        wait = quiet;
    }
}

void PtyStream::read_slice() {
    reader_->acknowledge();
    const std::size_t total = read_pieces();
    if (total > 0) {
        echo_due_ = false;
        events_.slice_read();
    }
    end_slice();
}

/// Until the slice's time is over, or there is nothing more.
std::size_t PtyStream::read_pieces() {
    QElapsedTimer clock;
    clock.start();
    std::size_t total = 0;
    while (!clock.hasExpired(slice_milliseconds)) {
        const std::string_view piece = reader_->unread().substr(0, piece_bytes);
        if (piece.empty()) {
            break;
        }
        const std::size_t taken = events_.output(piece);
        reader_->consume(taken);
        total += taken;
    }
    const bool is_slow = clock.hasExpired(slice_milliseconds);
    reader_->set_read_ahead(is_slow ? std::max(total * slices_ahead, least_ahead) : most_ahead);
    return total;
}

void PtyStream::end_slice() {
    if (!reader_->unread().empty()) {
        reader_->call_again();
    } else if (last_words_) {
        const bool more = *last_words_ < last_words_limit && reader_->fill() == Pty::ReadState::data;
        if (!more) {
            return events_.last_words_read();
        }
        *last_words_ += reader_->unread().size();
    } else if (reader_->hung_up()) {
        events_.hung_up();  // most likely the program has ended; else somebody may open the terminal again
    }
}

void PtyStream::read_last_words() {
    if (!last_words_) {
        last_words_ = 0;
        reader_->stop();
        reader_->call_again();
    }
}
