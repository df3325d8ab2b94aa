// SPDX-License-Identifier: MIT
#include "toolkit/pane/session.h"

#include "toolkit/pane/colours.h"

#include <fmt/format.h>

namespace {

constexpr int update_limit_milliseconds = 150;
constexpr std::size_t window_requests_limit = 16;  // in one piece of output
// Cells that a piece of output may have written, erased or moved before the clock is looked at again: about a
// millisecond's work.
constexpr std::int64_t piece_work = 100'000;

/// Callbacks that the owner has not set are nobody's business.
template <typename... Parameters, typename... Arguments>
void call(const std::function<void(Parameters...)>& callback, Arguments&&... arguments) {
    if (callback) {
        callback(std::forward<Arguments>(arguments)...);
    }
}

}  // namespace

TerminalSession::TerminalSession(std::size_t scrollback_rows)
    : terminal_({.size = {}, .scrollback_rows = scrollback_rows}, *this),
      life_({.output = [this](std::string_view bytes) { return feed(bytes); },
             .slice_read = [this] { call(events_.changed); },
             .ready = [this] { call(events_.ready); },
             .ended = [this](const std::string& text) { announce(text); },
             .restarted = [this] { call(events_.restarted); }}) {
    terminal_.set_standard_colours(terminal_colours::foreground, terminal_colours::background,
                                   terminal_colours::cursor, terminal_colours::palette);
}

void TerminalSession::type(std::string_view bytes) {
    note_typed(bytes);
    life_.type(bytes);
}

void TerminalSession::submit(std::string_view bytes) {
    note_typed(bytes);
    life_.report(bytes);
}

void TerminalSession::note_typed(std::string_view bytes) {
    const bool was_begun = typed_line_.is_begun();
    typed_line_.type(bytes);
    if (!was_begun && typed_line_.is_begun()) {
        typed_to_ = pty() != nullptr ? pty()->use().group : -1;
    }
}

void TerminalSession::await_echo() {
    if (PtyStream* const stream = life_.stream()) {
        stream->await_echo();
    }
}

bool TerminalSession::echo_is_due() const {
    const PtyStream* const stream = life_.stream();
    return stream != nullptr && stream->echo_is_due();
}

void TerminalSession::show(std::string_view text) {
    terminal_.write_local(text);
    do_requests();
    call(events_.changed);
}

void TerminalSession::resize(terminal::Size size, int pixel_width, int pixel_height,
                             std::span<terminal::Position> anchors) {
    terminal_.resize(size, anchors);
    room_ = {size, pixel_width, pixel_height};
    life_.resize(room_);
}

void TerminalSession::clear() {
    const terminal::TerminalUse use = pty() != nullptr ? pty()->use() : terminal::TerminalUse{};
    const bool reads = pty() != nullptr && (use.group == pty()->child() || !use.reads_lines);
    if (reads && !terminal_.modes().alternate_screen) {
        terminal_.clear_all_but_line();
    } else {
        terminal_.clear_all();
    }
    call(events_.changed);
}

void TerminalSession::reset() {
    terminal_.reset();
    call(events_.changed);
}

bool TerminalSession::asks_for_password() const {
    const terminal::Pty* const pty = life_.pty();
    return pty != nullptr && pty->asks_for_password();
}

bool TerminalSession::update_is_open() const {
    return terminal_.modes().synchronized_output && update_open_.isValid() &&
           !update_open_.hasExpired(update_limit_milliseconds);
}

void TerminalSession::reply(std::string_view bytes) {
    if (PtyStream* const stream = life_.stream()) {
        stream->reply(bytes);
    }
}

void TerminalSession::bell() { call(events_.bell); }

void TerminalSession::window_requested(const terminal::WindowRequest& request) {
    if (requests_.window.size() < window_requests_limit) {
        requests_.window.push_back(request);
    }
}

/// As it will be when what the program has asked for is done.
terminal::WindowGeometry TerminalSession::window() const {
    terminal::WindowGeometry geometry =
        surroundings_.window ? surroundings_.window() : terminal::WindowGeometry{};
    for (const terminal::WindowRequest& request : requests_.window) {
        using Kind = terminal::WindowRequest::Kind;
        if (request.kind == Kind::iconify || request.kind == Kind::restore) {
            geometry.iconified = request.kind == Kind::iconify;
        } else if (request.kind == Kind::move) {
            geometry.window_corner = request.corner;
        }
    }
    return geometry;
}

std::optional<terminal::Rgb> TerminalSession::named_colour(std::string_view name) {
    return surroundings_.named_colour ? surroundings_.named_colour(name) : std::nullopt;
}

void TerminalSession::selection_written(Selection selection, std::string_view text) {
    requests_.selection = {selection, std::string(text)};
}

/// A carriage return before the line feed does not count: the cursor's place on the line is still to be seen.
std::size_t TerminalSession::feed_line_by_line(std::string_view bytes) {
    std::size_t begin = 0;
    std::size_t end = 0;
    while (line_left_ && (end = bytes.find('\n', begin)) != std::string_view::npos) {
        std::size_t text_end = end;
        while (text_end > begin && bytes[text_end - 1] == '\r') {
            --text_end;
        }
        terminal_.write(bytes.substr(begin, text_end - begin));
        const auto left = line_left_;  // may be replaced by what it calls
        left();
        terminal_.write(bytes.substr(text_end, end + 1 - text_end));
        begin = end + 1;
    }
    return begin + terminal_.write_within(bytes.substr(begin), piece_work);
}

/// Shows what the program has written, and then does what it has asked for.
std::size_t TerminalSession::feed(std::string_view bytes) {
    const std::size_t taken = feed_line_by_line(bytes);
    note_update_state();
    if (requests_.resized || !requests_.window.empty() || requests_.selection) {
        do_requests();
    }
    return taken;
}

void TerminalSession::do_requests() {
    const Requests requests = std::exchange(requests_, {});
    if (requests.resized) {
        call(events_.resized);
    }
    for (const terminal::WindowRequest& request : requests.window) {
        call(events_.window_requested, request);
    }
    if (requests.selection) {
        call(events_.selection_written, requests.selection->first, requests.selection->second);
    }
}

void TerminalSession::note_update_state() {
    if (!terminal_.modes().synchronized_output) {
        update_open_.invalidate();
    } else if (!update_open_.isValid()) {
        update_open_.start();
    }
}

void TerminalSession::announce(const std::string& text) {
    terminal_.end_of_program();
    note_update_state();
    const bool line_begun = terminal_.cursor().position.column > 0;
    show(fmt::format("{}{}\n", line_begun ? "\n" : "", text));
    call(events_.ended);
}
