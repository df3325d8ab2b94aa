// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/cell.h"
#include "terminal/client.h"
#include "terminal/modes.h"
#include "terminal/style.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace terminal {

/// Size of the screen in character positions.
struct Size {
    int columns = 80;
    int rows = 24;
    bool operator==(const Size&) const = default;
};

/// What programs may do beyond writing text and asking for numbers. All off unless the user wants it: with
/// them, whatever is shown in the terminal can do it too.
struct Permissions {
    bool checksum = false;           ///< read the screen back (DECRQCRA)
    bool window_operations = false;  ///< move, resize and iconify the window; read its title
    bool clipboard = false;          ///< write the clipboard and the primary selection (OSC 52)
};

struct Options {
    Size size;
    std::size_t scrollback_rows = 10'000;
};

/// A row as it is shown. The cells are valid until the terminal is next written to or resized, or until the
/// next `row` call (rows of the scrollback are unpacked into one buffer).
struct Row {
    std::span<const Cell>
        cells;                ///< at most the screen's columns; trailing cells never written may be absent
    bool wrapped = false;     ///< the text goes on in the next row: no line feed ended this one
    std::uint64_t stamp = 0;  ///< grows whenever the row's picture changes; same row and stamp, same picture
};

enum class CursorShape : std::uint8_t { block, underline, bar };

struct Cursor {
    Position position;  ///< column is below the screen's columns, also when a wrap is pending
    bool visible = true;
    bool blinking = false;
    CursorShape shape = CursorShape::block;
    bool wrap_pending = false;  ///< the last column was written: the insertion point stands behind it
};

class Engine;

/// A video terminal after DEC's VT220 to VT420 and xterm: bytes go in, a screen with its scrollback is there
/// to be shown. Plain value logic: knows no pty, no window and no clock. Owned by whoever shows it.
class Terminal {
  public:
    Terminal(const Options& options, Client& client);
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Output of the program in the terminal. Sequences may be split anywhere between calls.
    void write(std::string_view bytes);
    /// Text of our own for the display: like `write`, but a sequence the program has begun is not disturbed,
    /// and line feeds return the carriage.
    void write_local(std::string_view text);
    /// Wrapped lines flow anew, in the screen and lazily in the scrollback. `anchors` are moved with their
    /// text. Sizes are limited (limits.h).
    void resize(Size size, std::span<Position> anchors = {});
    void permit(const Permissions& permissions);
    /// Empties screen and scrollback, as `clear` with the scrollback does; the cursor goes home.
    void clear_all();
    /// Back to the state of a new terminal (RIS); the scrollback stays.
    void reset();

    [[nodiscard]] Size size() const;
    [[nodiscard]] const Modes& modes() const;
    [[nodiscard]] Cursor cursor() const;

    /// Rows that can be shown are `first_row()` up to `end_row()`; the screen begins at `screen_top()`. While
    /// the alternate screen is shown, the scrollback is not reachable and `first_row() == screen_top()`; its
    /// rows have numbers of their own, so that a place on one screen is none on the other.
    [[nodiscard]] RowId first_row() const;
    [[nodiscard]] RowId screen_top() const;
    [[nodiscard]] RowId end_row() const;
    /// A row of that range; beyond it an empty row.
    [[nodiscard]] Row row(RowId id) const;
    /// Grows with every change of anything that can be seen: same stamp, same picture.
    [[nodiscard]] std::uint64_t stamp() const;

    /// Ids of styles, links and clusters are good until the next `write`: those out of use are given anew.
    [[nodiscard]] const Style& style(StyleId id) const;
    /// The text of a cell as UTF-8, appended: a blank for a cell never written, nothing for a wide tail.
    void append_text(const Cell& cell, std::string& out) const;
    /// Address of an OSC 8 link; empty for 0.
    [[nodiscard]] std::string_view link(LinkId id) const;

    /// The palette (0 to 255) and the three colours by purpose as OSC 4, 10, 11, 12 and 104, 110 to 112 left
    /// them.
    [[nodiscard]] Rgb palette(int index) const;
    [[nodiscard]] Rgb foreground() const;
    [[nodiscard]] Rgb background() const;
    [[nodiscard]] Rgb cursor_colour() const;
    /// The colours that a reset goes back to; `palette` are the first 16.
    void set_standard_colours(Rgb foreground, Rgb background, Rgb cursor, std::span<const Rgb> palette);

  private:
    std::unique_ptr<Engine> engine_;
};

}  // namespace terminal
