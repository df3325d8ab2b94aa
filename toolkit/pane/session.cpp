// SPDX-License-Identifier: MIT
#include "toolkit/pane/session.h"

#include "toolkit/pane/colour_name.h"
#include "toolkit/pane/colours.h"
#include "toolkit/text_conversion.h"

#include <QClipboard>
#include <QGuiApplication>

#include <array>
#include <csignal>
#include <cstring>

#include <fmt/format.h>
#include <poll.h>
#include <sys/wait.h>

namespace {

// One turn of the event loop takes at most this much output, so that keys and painting get their turn.
constexpr std::size_t slice_bytes = 262'144;
constexpr std::size_t read_bytes = 16'384;
constexpr int slice_milliseconds = 3;
constexpr int update_limit_milliseconds = 150;
constexpr int hung_up_interval_milliseconds = 100;
// How long an echo may take, and how long nothing more follows once it has come.
constexpr int echo_limit_milliseconds = 100;
constexpr int echo_quiet_milliseconds = 20;
// Keys that came longer ago have been answered.
constexpr int recent_key_milliseconds = 150;
// A program that reads lines and has no line editor is taken to be ready when it has written its prompt and
// gone quiet, or at the latest after the limit.
constexpr int readiness_interval_milliseconds = 10;
constexpr int quiet_milliseconds = 100;
constexpr int readiness_limit_milliseconds = 1500;
constexpr int password_limit_milliseconds = 60'000;
// Output can ask for answers faster than a program that does not listen takes them.
constexpr std::size_t unread_replies_limit = 1'048'576;
constexpr std::size_t window_requests_limit = 16;  // in one piece of output

// Takes back what a program that ended untidily may have left: VT52 mode and other forms of controls and
// text, margins and modes (DECSTR), mouse and focus reports, brackets around pastes, an open update.
constexpr std::string_view tidy_up =
    "\x1b[?2h\x1b F\x1b%G\x1b[?2026l\x1b[!p\x1b[?9;1000;1002;1003;1004;1005;1006;1015;1016;2004l\x1b[?7;8h"
    "\x1b[12h\x1b[0m";

/// Names from the C library, without the "SIG" before them.
std::string end_text(int status) {
    constexpr std::string_view hint = "press Return to start a new one";
    if (WIFSIGNALED(status)) {
        const char* const name = sigabbrev_np(WTERMSIG(status));
        const std::string signal =
            name != nullptr ? fmt::format("SIG{}", name) : fmt::format("{}", WTERMSIG(status));
        return fmt::format("[shell ended by signal {}; {}]", signal, hint);
    }
    return fmt::format("[shell ended with status {}; {}]", WEXITSTATUS(status), hint);
}

}  // namespace

TerminalSession::TerminalSession(std::size_t scrollback_rows)
    : terminal_({.size = {}, .scrollback_rows = scrollback_rows}, *this) {
    terminal_.set_standard_colours(terminal_colours::foreground, terminal_colours::background,
                                   terminal_colours::cursor, terminal_colours::palette);
    hung_up_.setInterval(hung_up_interval_milliseconds);
    hung_up_.setSingleShot(true);
    QObject::connect(&hung_up_, &QTimer::timeout, [this] { readable_->setEnabled(true); });
    readiness_.setInterval(readiness_interval_milliseconds);
    QObject::connect(&readiness_, &QTimer::timeout, [this] { watch_readiness(); });
}

TerminalSession::~TerminalSession() = default;

void TerminalSession::start(const terminal::Program& program) {
    program_ = program;
    run();
}

void TerminalSession::restart() {
    run();
    if (state_ == State::starting && events_.restarted) {
        events_.restarted();
    }
}

void TerminalSession::run() {
    if (!program_) {
        return;
    }
    drop_pty();
    std::string error;
    pty_ = terminal::Pty::start(*program_, terminal_.size(), error);
    if (!pty_) {
        state_ = State::ended;
        held_back_.clear();
        announce(fmt::format("[shell can't be started: {}; press Return to try again]", error));
        return;
    }
    state_ = State::starting;
    since_start_.start();
    since_output_.invalidate();
    readiness_.start();
    pty_->resize(terminal_.size(), pixel_width_, pixel_height_);
    readable_ = std::make_unique<QSocketNotifier>(pty_->descriptor(), QSocketNotifier::Read);
    QObject::connect(readable_.get(), &QSocketNotifier::activated, [this] { read_slice(); });
    writable_ = std::make_unique<QSocketNotifier>(pty_->descriptor(), QSocketNotifier::Write);
    writable_->setEnabled(false);
    QObject::connect(writable_.get(), &QSocketNotifier::activated, [this] { write_pending(); });
    if (pty_->exit_descriptor() >= 0) {
        exited_ = std::make_unique<QSocketNotifier>(pty_->exit_descriptor(), QSocketNotifier::Read);
        QObject::connect(exited_.get(), &QSocketNotifier::activated, [this] { check_for_end(); });
    }
}

void TerminalSession::write(std::string_view bytes) {
    if (pty_) {
        pty_->write(bytes);
        writable_->setEnabled(pty_->pending() > 0);
    }
}

void TerminalSession::type(std::string_view bytes) {
    write(bytes);
    since_key_.start();
    echo_due_ = true;
}

void TerminalSession::submit(std::string_view bytes) {
    if (state_ == State::idle || state_ == State::starting) {
        held_back_.append(bytes);
    } else {
        write(bytes);
    }
}

/// A line editor, which reads characters, is sure to be a shell at its prompt. Where nothing is echoed, a
/// password is being asked for, which may take its user a while.
bool TerminalSession::is_ready() const {
    if (!pty_->reads_lines()) {
        return true;
    }
    if (!pty_->echoes()) {
        return since_start_.hasExpired(password_limit_milliseconds);
    }
    const bool prompted = since_output_.isValid() && since_output_.hasExpired(quiet_milliseconds);
    return prompted || since_start_.hasExpired(readiness_limit_milliseconds);
}

void TerminalSession::watch_readiness() {
    if (!is_ready()) {
        return;
    }
    readiness_.stop();
    state_ = State::running;
    write(std::exchange(held_back_, {}));
    if (events_.ready) {
        events_.ready();
    }
}

void TerminalSession::await_echo() {
    const bool typing = since_key_.isValid() && !since_key_.hasExpired(recent_key_milliseconds);
    const int quiet = typing ? echo_quiet_milliseconds : 0;
    int wait = asks_for_password() ? 0 : echo_due_ ? echo_limit_milliseconds : quiet;
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

void TerminalSession::show(std::string_view text) {
    terminal_.write_local(text);
    do_requests();
    if (events_.changed) {
        events_.changed();
    }
}

void TerminalSession::resize(terminal::Size size, int pixel_width, int pixel_height,
                             std::span<terminal::Position> anchors) {
    pixel_width_ = pixel_width;
    pixel_height_ = pixel_height;
    terminal_.resize(size, anchors);
    if (pty_) {
        pty_->resize(size, pixel_width, pixel_height);
    }
}

void TerminalSession::clear() {
    terminal_.clear_all();
    if (events_.changed) {
        events_.changed();
    }
}

void TerminalSession::reset() {
    terminal_.reset();
    if (events_.changed) {
        events_.changed();
    }
}

bool TerminalSession::update_is_open() const {
    return terminal_.modes().synchronized_output && update_open_.isValid() &&
           !update_open_.hasExpired(update_limit_milliseconds);
}

void TerminalSession::reply(std::string_view bytes) {
    if (pty_ && pty_->pending() < unread_replies_limit) {
        write(bytes);
    }
}

void TerminalSession::bell() {
    if (events_.bell) {
        events_.bell();
    }
}

bool TerminalSession::asks_for_password() const { return pty_ && pty_->reads_lines() && !pty_->echoes(); }

void TerminalSession::size_changed() { requests_.resized = true; }

void TerminalSession::window_requested(const terminal::WindowRequest& request) {
    if (requests_.window.size() < window_requests_limit) {
        requests_.window.push_back(request);
    }
}

/// As it will be when what the program has asked for is done.
terminal::WindowGeometry TerminalSession::window() const {
    terminal::WindowGeometry geometry = window_ ? window_() : terminal::WindowGeometry{};
    for (const terminal::WindowRequest& request : requests_.window) {
        using Kind = terminal::WindowRequest::Kind;
        if (request.kind == Kind::iconify || request.kind == Kind::restore) {
            geometry.iconified = request.kind == Kind::iconify;
        } else if (request.kind == Kind::move) {
            geometry.window_place = request.place;
        }
    }
    return geometry;
}

std::optional<terminal::Rgb> TerminalSession::named_colour(std::string_view name) { return x_colour(name); }

void TerminalSession::selection_written(Selection selection, std::string_view text) {
    requests_.selection = {selection, std::string(text)};
}

/// Shows what the program has written, and then does what it has asked for.
void TerminalSession::feed(std::string_view bytes) {
    terminal_.write(bytes);
    note_update_state();
    if (requests_.resized || !requests_.window.empty() || requests_.selection) {
        do_requests();
    }
}

void TerminalSession::do_requests() {
    const Requests requests = std::exchange(requests_, {});
    if (requests.resized && events_.resized) {
        events_.resized();
    }
    for (const terminal::WindowRequest& request : requests.window) {
        if (events_.window_requested) {
            events_.window_requested(request);
        }
    }
    if (requests.selection) {
        const auto mode =
            requests.selection->first == Selection::clipboard ? QClipboard::Clipboard : QClipboard::Selection;
        QGuiApplication::clipboard()->setText(to_qstring(requests.selection->second), mode);
    }
}

void TerminalSession::title_changed(std::string_view /*title*/) {}  // the window's title is the tool's own

void TerminalSession::note_update_state() {
    if (!terminal_.modes().synchronized_output) {
        update_open_.invalidate();
    } else if (!update_open_.isValid()) {
        update_open_.start();
    }
}

void TerminalSession::read_slice() {
    QElapsedTimer clock;
    clock.start();
    std::array<char, read_bytes> buffer;
    std::size_t total = 0;
    auto state = terminal::Pty::ReadState::data;
    while (total < slice_bytes && !clock.hasExpired(slice_milliseconds)) {
        const terminal::Pty::ReadResult result = pty_->read(buffer);
        state = result.state;
        if (state != terminal::Pty::ReadState::data) {
            break;
        }
        feed({buffer.data(), result.size});
        total += result.size;
    }
    if (total > 0) {
        since_output_.start();
        echo_due_ = false;
        if (events_.changed) {
            events_.changed();
        }
    }
    if (state == terminal::Pty::ReadState::hung_up) {
        // Nobody holds the terminal open. Most likely the program has ended; else somebody may open it again.
        readable_->setEnabled(false);
        hung_up_.start();
        check_for_end();
    }
}

void TerminalSession::write_pending() {
    pty_->flush();
    writable_->setEnabled(pty_->pending() > 0);
}

void TerminalSession::check_for_end() {
    if (const std::optional<int> status = pty_ ? pty_->exit_status() : std::nullopt) {
        finish(*status);
    }
}

void TerminalSession::finish(int status) {
    // The last words of the program are still in the pty; jobs it left behind must not keep us here.
    std::array<char, read_bytes> buffer;
    std::size_t total = 0;
    auto result = pty_->read(buffer);
    while (result.state == terminal::Pty::ReadState::data && total < slice_bytes) {
        terminal_.write({buffer.data(), result.size});
        total += result.size;
        result = pty_->read(buffer);
    }
    state_ = State::ended;
    held_back_.clear();
    drop_pty();
    announce(end_text(status));
}

void TerminalSession::announce(const std::string& text) {
    // Leaving the alternate screen when it is not shown would move the cursor.
    if (terminal_.modes().alternate_screen) {
        terminal_.write_local("\x1b[?1049l");
    }
    terminal_.write_local(tidy_up);
    note_update_state();
    const bool line_begun = terminal_.cursor().position.column > 0;
    show(fmt::format("{}{}\n", line_begun ? "\n" : "", text));
    if (events_.ended) {
        events_.ended();
    }
}

void TerminalSession::drop_pty() {
    hung_up_.stop();
    readiness_.stop();
    // May be called by one of the notifiers itself.
    for (auto* notifier : {&readable_, &writable_, &exited_}) {
        if (*notifier) {
            (*notifier)->setEnabled(false);
            notifier->release()->deleteLater();
        }
    }
    pty_.reset();
}
