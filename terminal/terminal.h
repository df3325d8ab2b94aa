// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/cell.h"
#include "terminal/cell_tables.h"
#include "terminal/character_set.h"
#include "terminal/client.h"
#include "terminal/colours.h"
#include "terminal/geometry.h"
#include "terminal/modes.h"
#include "terminal/parser.h"
#include "terminal/pen.h"
#include "terminal/screen.h"
#include "terminal/scrollback.h"
#include "terminal/style.h"
#include "terminal/tab_stops.h"
#include "terminal/titles.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace terminal {

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

/// A video terminal after DEC's VT220 to VT420 and xterm: bytes go in, a screen with its scrollback is there
/// to be shown. Keeps cursor, modes and tables, and acts on the screen and the scrollback as the parser
/// reads. Plain value logic: knows no pty, no window and no clock. Owned by whoever shows it. Private
/// functions named with a mnemonic do what ECMA-48, a DEC manual or xterm's control sequences describe under
/// it.
class Terminal final : private ParserHandler {
  public:
    Terminal(const Options& options, Client& client);
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Output of the program in the terminal. Sequences may be split anywhere between calls.
    void write(std::string_view bytes);
    /// As much of it as `work` pays for, in cells written, erased or moved, but at least one function;
    /// returns how many bytes were taken. A few bytes can ask for a whole screen to be filled.
    [[nodiscard]] std::size_t write_within(std::string_view bytes, std::int64_t work);
    /// Text of our own for the display: like `write`, but a sequence the program has begun is not disturbed,
    /// and line feeds return the carriage.
    void write_local(std::string_view text);
    /// Wrapped lines flow anew, in the screen and lazily in the scrollback. `anchors` are moved with their
    /// text. Sizes are limited (limits.h).
    void resize(Size size, std::span<Position> anchors = {});
    void permit(const Permissions& permissions) { permissions_ = permissions; }
    /// Empties screen and scrollback, as `clear` with the scrollback does; the cursor goes home.
    void clear_all();
    /// The same, but the cursor's logical line stays and becomes the first one: a line editor is at work on
    /// it.
    void clear_all_but_line();
    /// Back to the state of a new terminal (RIS), whatever a program has begun; the scrollback stays.
    void reset();
    /// Takes back what a program that has ended may have left: the alternate screen, a sequence begun, modes,
    /// attributes, margins, colours. Text and cursor stay.
    void end_of_program();

    [[nodiscard]] Size size() const { return primary_.size(); }
    [[nodiscard]] const Modes& modes() const { return modes_; }
    [[nodiscard]] Cursor cursor() const;

    /// Rows that can be shown are `first_row()` up to `end_row()`; the screen begins at `screen_top()`. While
    /// the alternate screen is shown, the scrollback is not reachable and `first_row() == screen_top()`; its
    /// rows have numbers of their own, so that a position on one screen is none on the other.
    [[nodiscard]] RowId first_row() const;
    [[nodiscard]] RowId screen_top() const { return screen_->top(); }
    [[nodiscard]] RowId end_row() const { return screen_->top() + size().rows; }
    /// A row of that range; beyond it an empty row.
    [[nodiscard]] Row row(RowId id) const;
    /// Grows with every change of anything that can be seen: same stamp, same picture.
    [[nodiscard]] std::uint64_t stamp() const { return clock_; }

    /// Ids of styles, links and clusters are good until the next `write`: those out of use are given anew.
    [[nodiscard]] const Style& style(StyleId id) const { return tables_.style(id); }
    /// The text of a cell as UTF-8, appended: a blank for a cell never written, nothing for a wide tail.
    void append_text(const Cell& cell, std::string& out) const;
    /// Address of an OSC 8 link; empty for 0.
    [[nodiscard]] std::string_view link(LinkId id) const { return tables_.link(id).address; }

    /// The palette (0 to 255) and the three colours by purpose as OSC 4, 10, 11, 12 and 104, 110 to 112 left
    /// them.
    [[nodiscard]] Rgb palette(int index) const { return colours_.palette().colour(index); }
    [[nodiscard]] Rgb foreground() const { return colours_.palette().colour(ColourRole::foreground); }
    [[nodiscard]] Rgb background() const { return colours_.palette().colour(ColourRole::background); }
    [[nodiscard]] Rgb cursor_colour() const { return colours_.palette().colour(ColourRole::cursor); }
    /// The colours that a reset goes back to; `palette` are the first 16.
    void set_standard_colours(Rgb foreground, Rgb background, Rgb cursor, std::span<const Rgb> palette);

    /// Bytes held by the scrollback.
    [[nodiscard]] std::size_t scrollback_memory() const { return scrollback_.memory(); }

  private:
    static constexpr int top_level = 4;  // a VT420
    using Function = const ControlFunction&;
    using Handler = void (Terminal::*)(Function);
    struct Entry;   // a sequence and its handler
    struct Tables;  // which handler does what: functions/dispatch.cpp
    struct Mode;    // what can be set and reset: functions/modes.cpp
    class Flow;     // the primary screen's text while it is laid out anew: resize.cpp

    struct CursorState {
        int row = 0;
        int column = 0;
        bool wrap_pending = false;
        bool operator==(const CursorState&) const = default;
    };
    /// What DECSC saves and DECRC brings back.
    struct SavedCursor {
        CursorState cursor;
        Pen::State pen;
        bool origin = false;
        bool saved = false;  // by a program
        CharacterSets sets;
    };
    /// Modes that nobody above needs to know.
    struct InnerModes {
        bool insert = false;            // IRM
        bool origin = false;            // DECOM
        bool autowrap = true;           // DECAWM
        bool reverse_wrap = false;      // xterm 45
        bool far_reverse_wrap = false;  // xterm 1045
        bool side_margins = false;      // DECLRMM
        bool tab_wraps = false;         // xterm 41
        bool national_sets = false;     // DECNRCM
        bool allow_columns = false;     // xterm 40
        bool columns_132 = false;       // DECCOLM
        bool allow_alternate = true;    // xterm 1046
        // Kept, without effect here: DECSCLM, DECPFF, DECPEX.
        bool smooth_scroll = false;
        bool printer_form_feed = false;
        bool printer_extent = false;
        bool cursor_visible = true;    // DECTCEM
        bool cursor_blinking = false;  // xterm 12, DECSCUSR
    };
    enum class Which : std::uint8_t { begin_to_cursor, cursor_to_end, all };
    enum class Controls : std::uint8_t { of_7_bits, of_8_bits };
    enum class Encoding : std::uint8_t { utf8, latin1 };
    enum class Erasure : std::uint8_t { plain, selective };

    // ParserHandler
    void print_ascii(std::string_view text) override;
    void print(std::span<const char32_t> text) override;
    void control(char c0) override;
    void escape_sequence(const ControlFunction& function) override;
    void control_sequence(const ControlFunction& function) override;
    void device_control(const ControlFunction& function, std::string_view data) override;
    void operating_system_command(std::string_view data) override;
    void vt52_sequence(char final, std::array<char, max_intermediates> arguments) override;

    // functions/print.cpp: characters
    void print_latin1(std::span<const char32_t> text);
    void print_plain(std::string_view text);
    std::size_t print_run(std::span<const char32_t> text);
    void make_room(int columns, int limit);
    void advance_cursor(int columns, int limit);
    void put(char32_t character);
    void put_visible(char32_t character, int width);
    std::size_t combine(std::span<const char32_t> text);
    void wrap();
    [[nodiscard]] int right_limit() const;
    const Cell& blank() { return pen_.blank(tables_); }
    void add_used(UsedIds& used);
    void rep(Function function);

    // functions/cursor.cpp: movement
    void move_to(int row, int column);
    void move_in_origin(int row, int column);
    void move_vertically(int rows);
    void move_horizontally(int columns);
    void carriage_return();
    void line_feed();
    void reverse_line_feed();
    void back(int count);
    void tab(int count);
    void back_tab(int count);
    void save_cursor();
    void restore_cursor();
    void cuu(Function function);
    void cud(Function function);
    void cuf(Function function);
    void cub(Function function);
    void cnl(Function function);
    void cpl(Function function);
    void cha(Function function);
    void hpr(Function function);
    void vpr(Function function);
    void cup(Function function);
    void cht(Function function);
    void cbt(Function function);
    void vpa(Function function);
    void tbc(Function function);
    void decst8c(Function function);
    void hts(Function function);
    void ind(Function function);
    void nel(Function function);
    void ri(Function function);
    void decbi(Function function);
    void decfi(Function function);
    void decsc(Function function);
    void decrc(Function function);
    void scosc_or_decslrm(Function function);

    // functions/edit.cpp: erasing, inserting, deleting, scrolling
    [[nodiscard]] static std::optional<Which> which(Function function);
    void erase_row(int row, int from, int to, Erasure erasure);
    void erase_in_row(Which which, Erasure erasure);
    void erase_on_screen(Which which, Erasure erasure);
    void part_from_scrollback();
    void fill(const Region& region, Cell cell);
    void scroll_text_up(int count);
    void scroll_text_down(int count);
    [[nodiscard]] Region below_cursor() const;
    [[nodiscard]] Region rectangle(Function function, std::size_t first) const;
    void ich(Function function);
    void dch(Function function);
    void ech(Function function);
    void il(Function function);
    void dl(Function function);
    void ed(Function function);
    void el(Function function);
    void decsed(Function function);
    void decsel(Function function);
    void su(Function function);
    void sd(Function function);
    void sl(Function function);
    void sr(Function function);
    void decic(Function function);
    void decdc(Function function);
    void decaln(Function function);
    void insert_columns(int column, int count);
    void delete_columns(int column, int count);

    // functions/rectangle.cpp: DEC's rectangular areas
    void decera(Function function);
    void decsera(Function function);
    void decfra(Function function);
    void deccra(Function function);
    void deccara(Function function);
    void decrara(Function function);
    void decsace(Function function);
    void decrqcra(Function function);
    void xtchecksum(Function function);
    [[nodiscard]] int checksum(const Region& region) const;
    [[nodiscard]] int checksum(const Cell& cell) const;
    void change_styles(Function function, void (*change)(const Parameters&, std::size_t, Style&));

    // functions/modes.cpp: modes
    void sm(Function function);
    void rm(Function function);
    void decset(Function function);
    void decrst(Function function);
    void xtsave(Function function);
    void xtrestore(Function function);
    void decrqm(Function function);
    void decstbm(Function function);
    void change_modes(Function function, bool on);
    template <auto flag>
    void set_mode(bool on);
    template <auto flag>
    [[nodiscard]] bool mode() const;
    template <MouseTracking tracking>
    void set_mouse_tracking(bool on);
    template <MouseTracking tracking>
    [[nodiscard]] bool has_mouse_tracking() const;
    template <MouseEncoding encoding>
    void set_mouse_encoding(bool on);
    template <MouseEncoding encoding>
    [[nodiscard]] bool has_mouse_encoding() const;
    void set_origin(bool on);
    void set_side_margins(bool on);
    void set_reverse_video(bool on);
    void set_alternate(bool on);
    void set_alternate_cleared(bool on);
    void set_alternate_saved(bool on);
    void set_saved_cursor(bool on);
    void set_send_receive(bool on);
    [[nodiscard]] bool has_send_receive() const { return !modes_.local_echo; }
    void set_autowrap(bool on);
    void set_ansi(bool on);
    void set_columns(bool on);
    void set_allow_alternate(bool on);
    [[nodiscard]] bool is_ansi() const { return true; }  // who asks speaks it
    [[nodiscard]] bool has_saved_cursor() const { return saved_[is_alternate() ? 1 : 0].saved; }
    [[nodiscard]] bool is_alternate() const { return modes_.alternate_screen; }
    [[nodiscard]] int mode_state(std::span<const Mode> modes, int number) const;

    // functions/pen.cpp: attributes, protection, character sets
    void sgr(Function function);
    void xtpushsgr(Function function);
    void xtpopsgr(Function function);
    void decsca(Function function);
    void spa(Function function);
    void epa(Function function);
    void decscusr(Function function);
    void deckpam(Function function);
    void deckpnm(Function function);
    void xtmodkeys(Function function);
    void xtunmodkeys(Function function);
    void xtqmodkeys(Function function);
    void scs(Function function);
    void ls2(Function function);
    void ls3(Function function);
    void ls1r(Function function);
    void ls2r(Function function);
    void ls3r(Function function);
    void ss2(Function function);
    void ss3(Function function);

    // functions/reset.cpp: resets, conformance
    void decstr(Function function);
    void ris(Function function);
    void decscl(Function function);
    void s7c1t(Function function);
    void s8c1t(Function function);
    void use_latin1(Function function);
    void use_utf8(Function function);
    void soft_reset();
    void reset_settings();
    void full_reset();
    void reset_margins();
    void choose_controls(Controls controls);
    void choose_encoding(Encoding encoding);
    void update_parser();

    // functions/vt52.cpp: the sequences of a VT52
    void vt52_move(char final);

    // functions/report.cpp: replies
    void reply(std::string_view bytes);
    void hand_over_replies();
    void da1(Function function);
    void da2(Function function);
    void da3(Function function);
    void decid(Function function);
    void dsr(Function function);
    void decdsr(Function function);
    void decreqtparm(Function function);
    void xtversion(Function function);
    void decrqupss(Function function);
    void decrqlp(Function function);
    void decrqde(Function function);
    void report_position(std::string_view introducer, std::string_view end);
    void report_checksum(int id, int sum);

    // functions/settings.cpp: reports of settings and state
    void decrqss(std::string_view request);
    [[nodiscard]] std::string setting(std::string_view request) const;
    void xtgettcap(std::string_view request);
    void decrqpsr(Function function);
    void decrsps(Function function, std::string_view data);
    void deccir();
    void dectabsr();

    // functions/window.cpp: the window's size, position and titles
    void xtwinops(Function function);
    void decscpp(Function function);
    void decsnls(Function function);
    [[nodiscard]] std::optional<Size> display_size() const;
    void request_size(Size wanted);
    void request_pixels(Function function);
    void request_characters(Function function);
    void request_window(WindowRequest::Kind kind, WindowGeometry::Point corner = {});
    bool change_window(Function function);
    void report_window(Function function);
    void report_title(char kind, const std::string& title);
    void title_changed(bool of_window);
    void change_title_modes(Function function, bool on);
    void xtsmtitle(Function function);
    void xtrmtitle(Function function);

    // functions/osc.cpp: operating system commands
    void set_link(std::string_view data);
    void osc_colours(std::string_view number, std::string_view data);
    void osc_selection(std::string_view data);
    void palette_changed();

    // resize.cpp
    void resize_primary(Size wanted, std::span<Position> anchors);
    void flow_primary(Size wanted, const CursorState& cursor);
    void resize_alternate(Size wanted);
    [[nodiscard]] CursorState cursor_at(Position position) const;
    [[nodiscard]] std::vector<Mark> marks(std::span<const Position> positions) const;
    [[nodiscard]] Position position(Mark mark) const;

    void finish();
    void count_change() { ++clock_; }
    /// To be called by whatever does more than its few bytes let expect.
    void spend(std::int64_t cells) {
        work_left_ -= cells;
        if (work_left_ < 0) {
            parser_.stop();
        }
    }
    [[nodiscard]] bool is_consistent() const;
    [[nodiscard]] bool is_wholly_consistent() const;
    SavedCursor& saved() { return saved_[is_alternate() ? 1 : 0]; }

    Client& client_;
    std::string replies_;  // of the output being read
    std::int64_t work_left_ = 0;
    std::uint64_t clock_ = 0;  // the stamp given last
    std::uint64_t epoch_ = 0;  // stamp of the last change that concerned all rows
    Scrollback scrollback_;
    Screen primary_;
    Screen alternate_;
    Screen* screen_ = &primary_;

    CursorState cursor_;
    CursorState shown_cursor_;  // as of the last stamp
    CursorShape cursor_shape_ = CursorShape::block;
    std::array<SavedCursor, 2> saved_;
    Region margins_;
    TabStops tabs_;
    Modes modes_;
    InnerModes inner_;
    std::vector<std::pair<int, bool>> saved_modes_;
    CharacterSets sets_;
    char32_t last_character_ = 0;              // for REP; 0 behind a control function
    bool fills_row_ = false;                   // it stands in the last column for text
    bool whole_rectangles_ = false;            // DECSACE
    int checksum_flags_ = 0;                   // XTCHECKSUM
    int level_ = top_level;                    // of conformance (DECSCL)
    Controls controls_ = Controls::of_7_bits;  // in replies
    Encoding encoding_ = Encoding::utf8;
    Permissions permissions_;
    Titles titles_;
    Pen pen_;
    bool guards_areas_ = false;  // what SPA guards withstands ED, EL and ECH
    Colours colours_;
    CellTables tables_;
    Parser parser_;
    Parser local_parser_;
    mutable std::vector<Cell> row_buffer_;
    std::array<Cell, 257> run_;  // characters on their way into a row
};

}  // namespace terminal
