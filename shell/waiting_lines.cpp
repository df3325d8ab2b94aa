// SPDX-License-Identifier: MIT
#include "shell/waiting_lines.h"

#include "shell/text.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

namespace {

using std::chrono::milliseconds;

// How long a shell without a prompt hook stands in the foreground before it is taken to be ready again, and
// how long any does.
constexpr milliseconds calm{150};
constexpr milliseconds surely_calm{1000};
// The next line is usually given before that.
constexpr milliseconds usual_wait{250};

}  // namespace

WaitingLines::WaitingLines(Surroundings surroundings)
    : surroundings_(std::move(surroundings)), reader_(surroundings_.program_name) {}

void WaitingLines::submit(WaitingLine line) {
    if (lines_.empty()) {
        last_progress_ = surroundings_.now();
    }
    lines_.push_back(std::move(line));
    look();
    if (!lines_.empty()) {
        surroundings_.changed();
    }
}

void WaitingLines::look() {
    if (lines_.empty() && !given_) {
        return;
    }
    const std::size_t waiting = lines_.size();
    while (is_ready() && !lines_.empty() && !is_held_back()) {
        give_first();
    }
    if (lines_.size() != waiting) {
        surroundings_.changed();
    }
}

void WaitingLines::send_first() {
    if (!lines_.empty()) {
        give_first();
        surroundings_.changed();
    }
}

void WaitingLines::drop(std::size_t index) {
    if (index < lines_.size()) {
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(index));
        surroundings_.changed();
    }
}

std::size_t WaitingLines::drop_all() {
    const std::size_t dropped = std::exchange(lines_, {}).size();
    surroundings_.changed();
    return dropped;
}

void WaitingLines::user_ended_line() {
    if (is_shell(reader())) {
        note_given();
    }
}

void WaitingLines::shell_started() {
    reader_.shell_started();
    given_.reset();
    silent_.reset();
}

bool WaitingLines::is_stalled() const {
    return !lines_.empty() && surroundings_.now() - last_progress_ >= usual_wait;
}

bool WaitingLines::has_just_given() const {
    return last_given_ && surroundings_.now() - *last_given_ < usual_wait;
}

std::string WaitingLines::announcement() const {
    if (lines_.empty()) {
        return {};
    }
    const std::string name =
        held_back_ ? lines_.front().behind : surroundings_.program_name(surroundings_.use().group);
    return fmt::format("{} for {}: {}",
                       lines_.size() == 1 ? "1 line waits" : fmt::format("{} lines wait", lines_.size()),
                       user_types_    ? "the command you are typing"
                       : name.empty() ? "the shell"
                                      : name,
                       remove_line_feeds(lines_.front().text));
}

bool WaitingLines::is_ready() {
    const PaneUse use = surroundings_.use();
    user_types_ = held_back_ = false;
    if (!use.started || !hold_) {
        return use.started;
    }
    const Reader reader = reader_.look(use);
    if (reader != in_front_ || use.group != group_in_front_) {
        in_front_ = reader;
        group_in_front_ = use.group;
        in_front_since_ = surroundings_.now();
    }
    if (!is_ready_for_line(reader) || (given_ && !has_come_back(reader))) {
        return false;
    }
    given_.reset();
    user_types_ = !lines_.empty() && surroundings_.half_typed();
    return !user_types_;
}

/// A shell that has prompted may have left a program behind that is still being started: so it is not looked
/// for too early.
bool WaitingLines::is_held_back() {
    const std::string& program = lines_.front().behind;
    held_back_ = hold_ && !program.empty() &&
                 (has_just_given() || surroundings_.works_in_background(surroundings_.use().group, program));
    return held_back_;
}

bool WaitingLines::has_come_back(Reader reader) {
    const auto waited = surroundings_.now() - std::max(in_front_since_, given_->at);
    const FileStamp stamp = surroundings_.hook_stamp();
    const bool hook_works = reader == Reader::shell && silent_ && stamp != *silent_;
    if (hook_works && stamp != given_->stamp) {
        return true;
    }
    if (hook_works && waited >= surely_calm) {
        silent_ = stamp;  // it has been taken away
    }
    const bool may_be_far = reader == Reader::far_shell || reader == Reader::line_editor;
    return waited >= (hook_works || may_be_far ? surely_calm : calm);
}

void WaitingLines::give_first() {
    const std::string line = std::move(lines_.front().text);
    lines_.pop_front();
    held_back_ = false;
    note_given();
    last_progress_ = surroundings_.now();
    last_given_ = last_progress_;
    surroundings_.give(line);
}

void WaitingLines::note_given() { given_ = {.at = surroundings_.now(), .stamp = surroundings_.hook_stamp()}; }
