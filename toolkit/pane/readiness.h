// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/pty.h"

#include <chrono>
#include <functional>
#include <optional>

/// Tells whether the shell in a terminal is ready for commands: from what can be seen of the terminal from
/// outside, and from when it was last written to. Knows no pty and no event loop; whoever has them asks.
class Readiness {
  public:
    using Clock = std::chrono::steady_clock;

    /// Where it looks, and what time it is.
    struct Senses {
        std::function<terminal::TerminalUse()> use;
        std::function<Clock::time_point()> now = Clock::now;
    };

    explicit Readiness(Senses senses) : senses_(std::move(senses)) {}

    /// A shell was started, in a process group of its own: it is busy with its start-up files.
    void shell_started(pid_t group);
    /// The terminal was written to.
    void output_came() { last_output_ = senses_.now(); }

    /// Whether a shell that was started has worked through its start-up files.
    [[nodiscard]] bool start_up_is_over() const;

  private:
    Senses senses_;
    Clock::time_point start_;
    pid_t shell_ = -1;
    std::optional<Clock::time_point> last_output_;  ///< since the start
};
