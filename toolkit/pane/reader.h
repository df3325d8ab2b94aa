// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"

#include <QString>

#include <cstdint>
#include <deque>

class QObject;

/// A terminal's text as assistive tools read it: logical lines of scrollback and screen with a line feed
/// between them, no blanks at the ends of lines but before the insertion point, up to the later of the last
/// line with text and the insertion point. Offsets count UTF-16 units. Lines that have gone into the
/// scrollback are read once.
class TerminalReader {
  public:
    explicit TerminalReader(const terminal::Terminal& terminal) : terminal_(terminal) {}

    /// Part of the text: a line, with its offsets.
    struct Line {
        int begin = 0;
        int end = 0;  ///< of the text, before the line feed
        QString text;
    };

    [[nodiscard]] int size();
    [[nodiscard]] int caret();
    [[nodiscard]] QString text(int begin, int end);
    [[nodiscard]] Line line_at(int offset);
    [[nodiscard]] int offset_of(terminal::Position position);
    [[nodiscard]] terminal::Position position_of(int offset);

    /// Tells assistive tools, if there are any, what has changed in the view and its selection since they
    /// were last told.
    void tell_changes(QObject& view, const terminal::Range& selection);

  private:
    /// A logical line. `start` counts from the beginning of all text, what is gone from the scrollback
    /// included.
    struct StoredLine {
        terminal::RowId first_row = 0;
        terminal::RowId end_row = 0;
        std::int64_t start = 0;
        QString text;
        [[nodiscard]] std::int64_t end() const { return start + text.size(); }
    };
    struct Text {
        std::deque<StoredLine> lines;
        std::size_t settled = 0;  ///< so many lines are in the scrollback and change no more
        std::uint64_t stamp = 0;
        terminal::Size size;
    };
    /// What assistive tools know.
    struct Told {
        bool valid = false;
        bool alternate = false;
        std::int64_t base = 0;
        std::int64_t tail_start = 0;  ///< from here on the text may change
        QString tail;
        int caret = -1;
        int selection_begin = 0;
        int selection_end = 0;
    };

    Text& refresh();
    void drop_lost_lines(Text& text);
    void read_lines(Text& text);
    void drop_blank_lines(Text& text);
    [[nodiscard]] StoredLine read_line(terminal::RowId first) const;
    [[nodiscard]] static std::deque<StoredLine>::const_iterator line_of(const Text& text, std::int64_t place);
    void tell_text(QObject& view, Text& text);
    void tell_caret_and_selection(QObject& view, const terminal::Range& selection);
    [[nodiscard]] static QString text_from(const Text& text, std::int64_t place);

    const terminal::Terminal& terminal_;
    Text main_;
    Text alternate_;
    Told told_;
    QString lost_;  ///< text that has left the scrollback since assistive tools were last told
};
