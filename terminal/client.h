// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace terminal {

/// What the engine tells the one who shows it. Called from within `Terminal::write`; must not call back into
/// it.
class Client {
  public:
    virtual ~Client() = default;
    /// An answer for the program in the terminal (a cursor position report, say), to be written to the pty.
    /// Never holds text that a program could choose.
    virtual void reply(std::string_view bytes) = 0;
    virtual void bell() = 0;
    /// OSC 0 and 2: plain text without control characters, at most `max_title` bytes.
    virtual void title_changed(std::string_view title) = 0;
};

}  // namespace terminal
