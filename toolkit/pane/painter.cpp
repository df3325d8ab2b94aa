// SPDX-License-Identifier: MIT
#include "toolkit/pane/painter.h"

#include "toolkit/pane/colours.h"
#include "toolkit/pane/frame_pacer.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

using terminal::Cell;
using terminal::Underline;

QRgb to_qrgb(terminal::Rgb colour) { return qRgb(colour.red, colour.green, colour.blue); }

/// Between two colours; `part` of 100 is of the first.
QRgb mixed(QRgb first, QRgb second, int part) {
    const auto channel = [part](int a, int b) { return (a * part + b * (100 - part)) / 100; };
    return qRgb(channel(qRed(first), qRed(second)), channel(qGreen(first), qGreen(second)),
                channel(qBlue(first), qBlue(second)));
}

const Cell& cell_at(const terminal::Row& row, int column) {
    static constexpr Cell blank;
    return static_cast<std::size_t>(column) < row.cells.size() ? row.cells[static_cast<std::size_t>(column)]
                                                               : blank;
}

/// A program may have put the cursor on a wide character's second cell: it covers both all the same.
RowMarks with_cursor_on_character(const terminal::Row& row, const RowMarks& marks, int columns) {
    RowMarks moved = marks;
    moved.cursor_column = std::min(marks.cursor_column, columns - 1);
    moved.cursor_column -=
        moved.cursor_column > 0 && cell_at(row, moved.cursor_column).is_wide_tail() ? 1 : 0;
    return moved;
}

}  // namespace

TerminalPainter::TerminalPainter(QPainter& painter, const terminal::Terminal& terminal, TerminalFont& font,
                                 ScreenLook look)
    : painter_(painter), terminal_(terminal), font_(font), screen_(look) {
    clock_.start();
}

bool TerminalPainter::time_is_over() const { return clock_.hasExpired(frame_milliseconds); }

QRgb TerminalPainter::rgb(terminal::Colour colour, QRgb standard, bool brighten) const {
    switch (colour.kind) {
        case terminal::Colour::Kind::standard:
            return standard;
        case terminal::Colour::Kind::indexed: {
            // As on xterm, bold text in one of the eight colours takes the bright one.
            const int index = colour.index();
            return to_qrgb(terminal_.palette(brighten && index < 8 ? index + 8 : index));
        }
        case terminal::Colour::Kind::direct:
            break;
    }
    return qRgb(colour.red, colour.green, colour.blue);
}

TerminalPainter::Look TerminalPainter::look_of(terminal::StyleId id) const {
    constexpr int faint_part = 55;
    const terminal::Style& style = terminal_.style(id);
    QRgb standard_foreground = to_qrgb(terminal_.foreground());
    QRgb standard_background = to_qrgb(terminal_.background());
    if (screen_.reverse_video) {
        std::swap(standard_foreground, standard_background);
    }
    Look look;
    look.style = style;
    look.foreground = rgb(style.foreground, standard_foreground, style.bold);
    look.background = rgb(style.background, standard_background, false);
    if (style.reverse) {
        std::swap(look.foreground, look.background);
    }
    if (style.faint) {
        look.foreground = mixed(look.foreground, look.background, faint_part);
    }
    look.underline = rgb(style.underline_colour, look.foreground, false);
    look.face = static_cast<Face>((style.bold ? 1 : 0) + (style.italic ? 2 : 0));
    look.hidden = style.invisible || (style.blink && screen_.blink_hidden);
    return look;
}

TerminalPainter::Look TerminalPainter::marked(Look look, const RowMarks& marks, const Cell& cell,
                                              int column) const {
    const auto recolour = [&look](QRgb foreground, QRgb background) {
        look.foreground = look.underline = foreground;
        look.background = background;
    };
    if ((marks.link != 0 && cell.link == marks.link) || marks.address.contain(column)) {
        const bool plain = look.style.underline == Underline::none;
        look.style.underline = plain ? Underline::single : Underline::twofold;
    }
    if (marks.match.contain(column)) {
        recolour(to_qrgb(terminal_colours::match_foreground), to_qrgb(terminal_colours::match_background));
    } else if (marks.selection.contain(column)) {
        recolour(to_qrgb(terminal_colours::selection_foreground),
                 to_qrgb(terminal_colours::selection_background));
    }
    if (marks.cursor == CursorLook::block && column == marks.cursor_column) {
        recolour(to_qrgb(terminal_.background()), to_qrgb(terminal_.cursor_colour()));
    }
    return look;
}

/// Splits the row where its look changes. A wide character's second cell follows the first.
void TerminalPainter::find_runs(const terminal::Row& row, const RowMarks& marks, int columns) {
    runs_.clear();
    terminal::StyleId known = cell_at(row, 0).style;
    Look known_look = look_of(known);
    Look look;
    for (int column = 0; column < columns; ++column) {
        const Cell& cell = cell_at(row, column);
        if (cell.style != known) {
            known = cell.style;
            known_look = look_of(known);
        }
        if (!cell.is_wide_tail() || column == 0) {
            look = marked(known_look, marks, cell, column);
        }
        if (runs_.empty() || runs_.back().look != look) {
            runs_.push_back({look, {column, column}});
        }
        runs_.back().columns.end = column + 1;
        has_blinking_text_ = has_blinking_text_ || look.style.blink;
    }
}

void TerminalPainter::draw_row(const terminal::Row& row, const RowMarks& given, QPoint origin, int columns) {
    const RowMarks marks = with_cursor_on_character(row, given, columns);
    row_is_unfinished_ = false;
    find_runs(row, marks, columns);
    draw_backgrounds(origin);
    for (const Run& run : runs_) {
        if (!run.look.hidden) {
            draw_text(row, run, origin);
            draw_lines(run, origin);
        }
    }
    draw_cursor(row, marks, origin);
    draw_preedit(marks, origin, columns);
}

void TerminalPainter::draw_backgrounds(QPoint origin) {
    std::size_t at = 0;
    while (at < runs_.size()) {
        const Run& first = runs_[at];
        int end = first.columns.end;
        while (++at < runs_.size() && runs_[at].look.background == first.look.background) {
            end = runs_[at].columns.end;
        }
        painter_.fillRect(origin.x() + first.columns.begin * font_.cell_width(), origin.y(),
                          (end - first.columns.begin) * font_.cell_width(), font_.cell_height(),
                          QColor::fromRgb(first.look.background));
    }
}

void TerminalPainter::draw_text(const terminal::Row& row, const Run& run, QPoint origin) {
    painter_.setPen(QColor::fromRgb(run.look.foreground));
    for (int column = run.columns.begin; column < run.columns.end; ++column) {
        const Cell& cell = cell_at(row, column);
        if (cell.glyph != 0 && !cell.is_wide_tail() && cell.glyph != U' ') {
            draw_cell(cell, run.look, column, origin);
        }
    }
    flush_glyphs(run.look);
}

void TerminalPainter::draw_cell(const Cell& cell, const Look& look, int column, QPoint origin) {
    const QPoint corner = origin + QPoint(column * font_.cell_width(), 0);
    if (!cell.is_cluster() && is_box_character(cell.character())) {
        font_.boxes().draw(painter_, QRect(corner, QSize(font_.cell_width(), font_.cell_height())),
                           cell.character(), look.foreground);
        return;
    }
    const QPointF base = corner + QPoint(0, font_.ascent());
    if (!cell.is_cluster() && !cell.is_wide()) {
        if (const quint32 glyph = font_.glyph(cell.character(), look.face); glyph != 0) {
            glyphs_.push_back(glyph);
            positions_.push_back(base);
            return;
        }
    }
    text_.clear();
    terminal_.append_text(cell, text_);
    draw_shaped(QString::fromStdString(text_), look, cell.is_wide() ? 2 : 1, base);
}

/// Text of a cell in whatever font has it: centred when it is narrower than the cell, squeezed when wider.
void TerminalPainter::draw_shaped(const QString& text, const Look& look, int cells, QPointF base) {
    if (time_is_over() && !font_.knows(text, look.face)) {
        row_is_unfinished_ = true;
        return;
    }
    const ShapedCell& shaped = font_.shaped(text, look.face, cells);
    const qreal room = cells * font_.cell_width();
    if (shaped.width <= room + 1) {
        const QPointF start = base + QPointF(std::max(0.0, (room - shaped.width) / 2), 0);
        for (const QGlyphRun& run : shaped.runs) {
            painter_.drawGlyphRun(start, run);
        }
        return;
    }
    painter_.save();
    painter_.translate(base);
    painter_.scale(room / shaped.width, room / shaped.width);
    for (const QGlyphRun& run : shaped.runs) {
        painter_.drawGlyphRun({}, run);
    }
    painter_.restore();
}

void TerminalPainter::flush_glyphs(const Look& look) {
    if (glyphs_.empty()) {
        return;
    }
    QGlyphRun run;
    run.setRawFont(font_.raw(look.face));
    run.setRawData(glyphs_.data(), positions_.data(), static_cast<int>(glyphs_.size()));
    painter_.drawGlyphRun({}, run);
    glyphs_.clear();
    positions_.clear();
}

void TerminalPainter::draw_lines(const Run& run, QPoint origin) {
    const terminal::Style& style = run.look.style;
    const int x = origin.x() + run.columns.begin * font_.cell_width();
    const int width = (run.columns.end - run.columns.begin) * font_.cell_width();
    const int line = font_.line_width();
    if (style.underline != Underline::none) {
        draw_underline(run.look, x, origin.y(), width);
    }
    const QColor colour = QColor::fromRgb(run.look.foreground);
    if (style.struck) {
        painter_.fillRect(x, origin.y() + font_.ascent() * 2 / 3, width, line, colour);
    }
    if (style.overlined) {
        painter_.fillRect(x, origin.y(), width, line, colour);
    }
}

/// `y` is the row's top. Patterns count from the pane's left edge, so that they go on from run to run.
void TerminalPainter::draw_underline(const Look& look, int x, int y, int width) {
    const QColor colour = QColor::fromRgb(look.underline);
    const int line = font_.line_width();
    const int lowest = y + font_.cell_height() - line;
    const int top = std::min(y + font_.ascent() + line, lowest);
    const auto draw_pattern = [&](int period, int filled) {
        for (int at = x - x % period; at < x + width; at += period) {
            const int begin = std::max(at, x);
            const int end = std::min(at + filled, x + width);
            painter_.fillRect(begin, top, std::max(0, end - begin), line, colour);
        }
    };
    switch (look.style.underline) {
        case Underline::none:
            break;
        case Underline::single:
            painter_.fillRect(x, top, width, line, colour);
            break;
        case Underline::twofold:
            painter_.fillRect(x, std::min(top, lowest - 2 * line), width, line, colour);
            painter_.fillRect(x, std::min(top + 2 * line, lowest), width, line, colour);
            break;
        case Underline::dotted:
            draw_pattern(3 * line, line);
            break;
        case Underline::dashed:
            draw_pattern(font_.cell_width(), font_.cell_width() * 2 / 3);
            break;
        case Underline::curly: {
            const qreal step = font_.cell_width() / 2.0;
            const qreal middle = std::min(y + font_.ascent() + 1.5 * line, lowest - line * 1.0);
            QPainterPath path(QPointF(x, middle));
            for (int half = 0; half * step < width; ++half) {
                const qreal swing = half % 2 == 0 ? 2.0 * line : -2.0 * line;
                path.quadTo(x + (half + 0.5) * step, middle + swing, x + (half + 1) * step, middle);
            }
            painter_.setRenderHint(QPainter::Antialiasing, true);
            painter_.strokePath(path, QPen(colour, 1.3 * line));  // slopes look thinner
            painter_.setRenderHint(QPainter::Antialiasing, false);
            break;
        }
    }
}

void TerminalPainter::draw_cursor(const terminal::Row& row, const RowMarks& marks, QPoint origin) {
    const int column = marks.cursor_column;
    const int line = 2 * font_.line_width();
    const int cells = cell_at(row, column).is_wide() ? 2 : 1;
    const QRect cell(origin.x() + column * font_.cell_width(), origin.y(), cells * font_.cell_width(),
                     font_.cell_height());
    const QColor colour = QColor::fromRgb(to_qrgb(terminal_.cursor_colour()));
    switch (marks.cursor) {
        case CursorLook::none:
        case CursorLook::block:
            break;  // drawn as the cell's own look
        case CursorLook::underline:
            painter_.fillRect(cell.x(), cell.y() + cell.height() - line, cell.width(), line, colour);
            break;
        case CursorLook::bar:
            painter_.fillRect(cell.x(), cell.y(), line, cell.height(), colour);
            break;
        case CursorLook::hollow:
            painter_.setPen(colour);
            painter_.setBrush(Qt::NoBrush);
            painter_.drawRect(cell.adjusted(0, 0, -1, -1));
            break;
    }
}

void TerminalPainter::draw_preedit(const RowMarks& marks, QPoint origin, int columns) {
    if (marks.preedit.isEmpty()) {
        return;
    }
    const ShapedCell& shaped = font_.shaped(marks.preedit, Face::normal, 1);
    const int width = static_cast<int>(shaped.width) + 1;
    const int last = std::max(0, columns * font_.cell_width() - width);
    const int x = origin.x() + std::min(marks.cursor_column * font_.cell_width(), last);
    painter_.fillRect(x, origin.y(), width, font_.cell_height(),
                      QColor::fromRgb(to_qrgb(terminal_.background())));
    const QColor colour = QColor::fromRgb(to_qrgb(terminal_.foreground()));
    painter_.setPen(colour);
    for (const QGlyphRun& run : shaped.runs) {
        painter_.drawGlyphRun(QPointF(x, origin.y() + font_.ascent()), run);
    }
    painter_.fillRect(x, origin.y() + font_.cell_height() - font_.line_width(), width, font_.line_width(),
                      colour);
}
