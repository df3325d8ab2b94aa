// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"
#include "toolkit/pane/columns.h"
#include "toolkit/pane/font.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QRgb>
#include <QString>

#include <vector>

class QPainter;

enum class CursorLook : std::uint8_t { none, block, hollow, underline, bar };

/// What is seen of a row beyond its text. Same row, stamp and marks: same picture.
struct RowMarks {
    Columns selection;
    Columns match;
    CursorLook cursor = CursorLook::none;
    int cursor_column = 0;
    terminal::LinkId link = 0;  ///< of the link under the pointer, when the row holds some of it
    Columns address;            ///< of the plain web address under the pointer
    QString preedit;            ///< text an input method composes, at the cursor
    bool operator==(const RowMarks&) const = default;
};

/// What holds for all rows.
struct ScreenLook {
    bool reverse_video = false;
    bool blink_hidden = false;  ///< blinking text is in its dark half
    bool operator==(const ScreenLook&) const = default;
};

/// Draws rows of a terminal: runs of one look at once, each glyph at its own column, so that columns never
/// drift.
class TerminalPainter {
  public:
    TerminalPainter(QPainter& painter, const terminal::Terminal& terminal, TerminalFont& font,
                    ScreenLook look);

    void draw_row(const terminal::Row& row, const RowMarks& marks, QPoint origin, int columns);
    /// So much was drawn that what is left should wait for the next frame: laying out text that the font
    /// itself does not have takes long.
    [[nodiscard]] bool time_is_over() const;
    /// The last row drawn lacks some of its text for that reason.
    [[nodiscard]] bool row_is_unfinished() const { return row_is_unfinished_; }
    /// Whether a row drawn so far holds blinking text.
    [[nodiscard]] bool has_blinking_text() const { return has_blinking_text_; }

  private:
    /// A style with its colours worked out.
    struct Look {
        QRgb foreground = 0;
        QRgb background = 0;
        QRgb underline = 0;
        Face face = Face::normal;
        terminal::Style style;
        bool hidden = false;
        bool operator==(const Look&) const = default;
    };
    struct Run {
        Look look;
        Columns columns;
    };

    [[nodiscard]] QRgb rgb(terminal::Colour colour, QRgb standard, bool brighten) const;
    [[nodiscard]] Look look_of(terminal::StyleId id) const;
    void find_runs(const terminal::Row& row, const RowMarks& marks, int columns);
    [[nodiscard]] Look marked(Look look, const RowMarks& marks, const terminal::Cell& cell, int column) const;

    void draw_backgrounds(QPoint origin);
    void draw_text(const terminal::Row& row, const Run& run, QPoint origin);
    void draw_cell(const terminal::Cell& cell, const Look& look, int column, QPoint origin);
    void draw_shaped(const QString& text, const Look& look, int cells, QPointF base);
    void flush_glyphs(const Look& look);
    void draw_lines(const Run& run, QPoint origin);
    void draw_underline(const Look& look, int x, int y, int width);
    void draw_cursor(const terminal::Row& row, const RowMarks& marks, QPoint origin);
    void draw_preedit(const RowMarks& marks, QPoint origin, int columns);

    QPainter& painter_;
    const terminal::Terminal& terminal_;
    TerminalFont& font_;
    ScreenLook screen_;
    std::vector<Run> runs_;
    std::vector<quint32> glyphs_;
    std::vector<QPointF> positions_;
    std::string text_;
    bool has_blinking_text_ = false;
    bool row_is_unfinished_ = false;
    QElapsedTimer clock_;  ///< since the frame was begun
};
