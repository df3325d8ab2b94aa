// SPDX-License-Identifier: MIT
#include "toolkit/pane/readiness.h"

namespace {

using std::chrono::milliseconds;

// A shell without a line editor is taken to be ready when it has written its prompt and gone quiet, any at
// the latest after the limit.
constexpr milliseconds quiet{100};
constexpr milliseconds start_up_limit{1500};
// Where nothing is echoed, a password is being asked for, which may take its user a while.
constexpr milliseconds password_limit{60'000};

}  // namespace

void Readiness::shell_started(pid_t group) {
    start_ = senses_.now();
    shell_ = group;
    last_output_.reset();
}

bool Readiness::start_up_is_over() const {
    const terminal::TerminalUse use = senses_.use();
    const Clock::time_point now = senses_.now();
    const bool late = now - start_ >= start_up_limit;
    if (!use.reads_lines) {
        return use.group == shell_ || late;  // a shell that reads characters is in its line editor
    }
    if (!use.echoes) {
        return now - start_ >= password_limit;
    }
    const bool prompted = last_output_ && now - *last_output_ >= quiet;
    return prompted || late;
}
