// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace terminal {

/// The titles of window and icon as programs set, save and ask for them. Which of the two an operation
/// concerns is told by a number: 0 both, 1 the icon's, 2 the window's.
class Titles {
  public:
    /// Plain text without control characters, at most `max_title` bytes.
    [[nodiscard]] const std::string& icon() const { return now_.icon; }
    [[nodiscard]] const std::string& window() const { return now_.window; }

    /// OSC 0, 1 and 2. Returns whether the window's title was set, so does `pop`.
    bool set(int which, std::string_view text);
    /// Both titles are saved, as on xterm, whichever is named.
    void push();
    bool pop(int which);

    /// XTSMTITLE and XTRMTITLE: 0 titles are set, 1 reported in hexadecimal digits. (2 and 3, UTF-8, always
    /// hold.)
    void change_mode(int mode, bool on);
    void reset_modes() { set_in_hex_ = reported_in_hex_ = false; }
    /// A title as a report gives it.
    [[nodiscard]] std::string reported(const std::string& title) const;

  private:
    struct Pair {
        std::string icon;
        std::string window;
    };
    bool change(int which, const Pair& titles);

    Pair now_;
    std::vector<Pair> saved_;
    bool set_in_hex_ = false;
    bool reported_in_hex_ = false;
};

}  // namespace terminal
