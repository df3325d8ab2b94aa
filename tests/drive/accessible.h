// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

/// Where something is on the screen, in pixels.
struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// What a search looks for; an empty text fits any.
struct Sought {
    std::string_view role;  ///< as AT-SPI names it: "push button", "text", "terminal"
    std::string_view name;
    std::string_view description = {};
};

/// An object on the accessibility bus: what an assistive program sees of a window or a control. An empty one,
/// and one whose program has ended, answers every question with nothing.
class Accessible {
  public:
    Accessible() = default;

    /// The application that a process has put on the bus; empty while it has not.
    [[nodiscard]] static Accessible application(pid_t process);

    explicit operator bool() const { return object_ != nullptr; }

    [[nodiscard]] std::string name() const;
    [[nodiscard]] std::string description() const;
    [[nodiscard]] std::string role() const;
    [[nodiscard]] Accessible parent() const;
    [[nodiscard]] std::vector<Accessible> children() const;
    [[nodiscard]] bool showing() const;
    [[nodiscard]] bool focused() const;
    [[nodiscard]] bool active() const;
    [[nodiscard]] bool checked() const;
    [[nodiscard]] Rectangle place() const;

    /// The whole text of a control, and its last so many characters.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::string last_text(int characters) const;
    [[nodiscard]] int caret() const;

    /// Each tells whether the control took it.
    [[nodiscard]] bool set_text(std::string_view text) const;
    [[nodiscard]] bool press() const;
    [[nodiscard]] bool take_focus() const;

    /// The first object below this one, in depth, that fits; empty when none does.
    [[nodiscard]] Accessible find(const Sought& sought) const;
    /// Everything below, one line an object, indented: for a message that tells what was there instead.
    [[nodiscard]] std::string tree() const;

  private:
    explicit Accessible(std::shared_ptr<void> object) : object_(std::move(object)) {}
    [[nodiscard]] bool has_state(int state) const;
    [[nodiscard]] bool fits(const Sought& sought) const;

    std::shared_ptr<void> object_;  ///< an AtspiAccessible; its header stays in the source file
};
