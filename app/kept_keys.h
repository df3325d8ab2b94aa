// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/pane/key_event.h"

#include <string>
#include <string_view>
#include <vector>

/// Keys of the tool's that its user leaves to the shell.
class KeptKeys {
  public:
    /// Of a list such as "^R ^L F1 Up", with blanks between the names. What is no such key is skipped.
    explicit KeptKeys(std::string_view list = {});

    [[nodiscard]] bool holds(const KeyEvent& event) const;
    /// The names that were skipped, with a blank between them.
    [[nodiscard]] const std::string& unknown() const { return unknown_; }

  private:
    struct KeptKey {
        terminal::Key key = terminal::Key::none;  ///< none for a control character
        char letter = 0;                          ///< of the control character
    };
    std::vector<KeptKey> keys_;
    std::string unknown_;
};
