// SPDX-License-Identifier: MIT
#pragma once

#include "tests/drive/accessible.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

using WindowId = unsigned long;

/// The X server as the user and the window manager see it: keys, the pointer, and the windows on the screen.
class XDisplay {
  public:
    /// Connects to the server that DISPLAY names; ends the program when that fails.
    XDisplay();
    ~XDisplay();
    XDisplay(const XDisplay&) = delete;
    XDisplay& operator=(const XDisplay&) = delete;

    /// Types text of ASCII characters; a line feed is the Return key, a tab the Tab key. The server waits
    /// before each key, in milliseconds.
    void type(std::string_view text, unsigned long wait = 0);
    /// Presses and releases one key by its X name ("Return", "Escape", "c"), with others held: "Control_L".
    void press_key(std::string_view key, std::string_view held = {});
    /// Clicks in the middle of a place; button 1 is the left one, 2 the middle one.
    void click(const Rectangle& place, int button = 1);

    /// The managed window of a process with this title; nothing when there is none.
    [[nodiscard]] std::optional<WindowId> window(pid_t process, std::string_view title) const;
    [[nodiscard]] std::string title(WindowId window) const;
    /// The whole screen.
    [[nodiscard]] Rectangle screen() const;
    /// The window without the window manager's frame.
    [[nodiscard]] Rectangle place(WindowId window) const;
    /// With that frame.
    [[nodiscard]] Rectangle place_with_frame(WindowId window) const;
    [[nodiscard]] bool iconified(WindowId window) const;
    void resize(WindowId window, int width, int height);
    /// Asks the window manager to close the window, as its close button does.
    void close(WindowId window);
    /// Breaks the connection of the program that has made the window.
    void kill_client(WindowId window);

  private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};
