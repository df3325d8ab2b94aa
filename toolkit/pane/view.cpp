// SPDX-License-Identifier: MIT
#include "toolkit/pane/view.h"

#include "toolkit/pane/reader.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

using terminal::Position;
using terminal::RowId;

namespace {

constexpr int frame_milliseconds = 16;
constexpr int longest_frame_milliseconds = 100;  // where painting is slow
constexpr terminal::Size smallest{2, 1};

}  // namespace

TerminalView::TerminalView(TerminalSession& session, QScrollBar& scroll_bar, QWidget* parent)
    : QWidget(parent),
      session_(session),
      scroll_bar_(scroll_bar),
      font_(std::make_unique<TerminalFont>(QFontDatabase::systemFont(QFontDatabase::FixedFont),
                                           devicePixelRatioF())),
      reader_(std::make_unique<TerminalReader>(session.terminal())),
      selection_(session.terminal()),
      menu_(new QMenu(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled);
    setMouseTracking(true);
    setCursor(Qt::IBeamCursor);
    frame_timer_.setSingleShot(true);
    frame_timer_.setTimerType(Qt::PreciseTimer);
    connect(&frame_timer_, &QTimer::timeout, this, [this] { frame(); });
    settle_timer_.setSingleShot(true);
    connect(&settle_timer_, &QTimer::timeout, this, [this] { settle(); });
    connect(&scroll_bar_, &QScrollBar::valueChanged, this,
            [this](int value) { scroll_to(terminal().first_row() + value); });
    connect(QGuiApplication::clipboard(), &QClipboard::selectionChanged, this,
            [this] { primary_selection_changed(); });
}

TerminalView::~TerminalView() = default;

void TerminalView::set_terminal_font(const QFont& font) {
    font_ = std::make_unique<TerminalFont>(font, devicePixelRatioF());
    fit_to_size();
    updateGeometry();
    refresh_all();
}

QSize TerminalView::sizeHint() const {
    const terminal::Size standard;
    return {standard.columns * font_->cell_width() + 2 * margin,
            standard.rows * font_->cell_height() + 2 * margin};
}

// Geometry.

void TerminalView::resizeEvent(QResizeEvent* /*event*/) {
    laid_out_ = true;
    fit_to_size();
}

terminal::Size TerminalView::room_for_text() const {
    return {std::max(smallest.columns, (width() - 2 * margin) / font_->cell_width()),
            std::max(smallest.rows, (height() - 2 * margin) / font_->cell_height())};
}

void TerminalView::fit_to_size() {
    const terminal::Size size = room_for_text();
    if (laid_out_ && size != terminal().size() && !settle_timer_.isActive()) {
        std::vector<Position> anchors(selection_.anchors().begin(), selection_.anchors().end());
        anchors.insert(anchors.end(), {match_.begin, match_.end, Position{top_row(), 0}});
        session_.resize(size, size.columns * font_->cell_width(), size.rows * font_->cell_height(), anchors);
        std::copy_n(anchors.begin(), selection_.anchors().size(), selection_.anchors().begin());
        selection_.anchors_moved();
        match_ = {anchors[anchors.size() - 3], anchors[anchors.size() - 2]};
        view_top_ = anchors.back().row;
    }
    refresh_all();
}

QRect TerminalView::row_area(int line) const {
    return {0, margin + line * font_->cell_height(), width(), font_->cell_height()};
}

QRect TerminalView::cell_area(Position position) const {
    const auto line = static_cast<int>(position.row - top_row());
    return {margin + position.column * font_->cell_width(), margin + line * font_->cell_height(),
            font_->cell_width(), font_->cell_height()};
}

Position TerminalView::position_at(QPointF point) const {
    const terminal::Size size = terminal().size();
    const auto cell = [](qreal at, int cell_size, int count) {
        return std::clamp(static_cast<int>(std::floor((at - margin) / cell_size)), 0, count - 1);
    };
    return {top_row() + cell(point.y(), font_->cell_height(), size.rows),
            cell(point.x(), font_->cell_width(), size.columns)};
}

// Scrolling.

RowId TerminalView::top_row() const {
    return follows_output_ ? terminal().screen_top()
                           : std::clamp(view_top_, terminal().first_row(), terminal().screen_top());
}

void TerminalView::scroll_to(RowId top) {
    view_top_ = std::clamp(top, terminal().first_row(), terminal().screen_top());
    follows_output_ = view_top_ == terminal().screen_top();
    content_changed();
}

void TerminalView::scroll_to_bottom() { scroll_to(terminal().screen_top()); }

void TerminalView::scroll_lines(int lines) { scroll_to(top_row() + lines); }

void TerminalView::show_row(RowId row) {
    const int rows = terminal().size().rows;
    if (row < top_row() || row >= top_row() + rows) {
        scroll_to(row - rows / 2);
    }
}

void TerminalView::update_scroll_bar() {
    const QSignalBlocker blocker(scroll_bar_);
    const RowId first = terminal().first_row();
    scroll_bar_.setPageStep(terminal().size().rows);
    scroll_bar_.setRange(0, static_cast<int>(terminal().screen_top() - first));
    scroll_bar_.setValue(static_cast<int>(top_row() - first));
}

// Frames.

void TerminalView::content_changed() {
    if (frame_timer_.isActive()) {
        return;
    }
    // At least half of the time is for reading what comes.
    const qint64 interval =
        std::clamp<qint64>(2 * paint_milliseconds_, frame_milliseconds, longest_frame_milliseconds);
    const qint64 passed = since_frame_.isValid() ? since_frame_.elapsed() : interval;
    frame_timer_.start(static_cast<int>(std::max<qint64>(interval - passed, 0)));
}

void TerminalView::frame() {
    if (session_.update_is_open()) {
        frame_timer_.start(frame_milliseconds);
        return;
    }
    refresh();
    reader_->tell_changes(*this, selection_.range());
}

TerminalView::Picture TerminalView::picture_of(RowId row) const {
    const int columns = terminal().size().columns;
    const auto columns_of = [&](const terminal::Range& range) -> Columns {
        if (range.empty() || row < range.begin.row || row > range.end.row) {
            return {};
        }
        return {row == range.begin.row ? range.begin.column : 0,
                row == range.end.row ? range.end.column : columns};
    };
    const terminal::Row shown = terminal().row(row);
    Picture picture{row, shown.stamp, {}};
    picture.marks.link = hovered_link_in(shown);
    picture.marks.selection = columns_of(selection_.range());
    picture.marks.match = columns_of(match_);
    const terminal::Cursor cursor = terminal().cursor();
    if (cursor.position.row == row) {
        picture.marks.cursor = cursor_look();
        picture.marks.cursor_column = cursor.position.column;
        picture.marks.preedit = preedit_;
    }
    return picture;
}

CursorLook TerminalView::cursor_look() const {
    const terminal::Cursor cursor = terminal().cursor();
    if (!cursor.visible || session_.has_ended()) {
        return CursorLook::none;
    }
    if (!hasFocus()) {
        return CursorLook::hollow;
    }
    if (cursor_hidden_ && cursor.blinking) {
        return CursorLook::none;
    }
    switch (cursor.shape) {
        case terminal::CursorShape::block:
            break;
        case terminal::CursorShape::underline:
            return CursorLook::underline;
        case terminal::CursorShape::bar:
            return CursorLook::bar;
    }
    return CursorLook::block;
}

void TerminalView::refresh_all() {
    pictures_.clear();
    update();
    content_changed();
}

void TerminalView::repaint_all_if_colours_changed() {
    constexpr int palette_size = 256;
    std::vector<terminal::Rgb> colours{terminal().foreground(), terminal().background(),
                                       terminal().cursor_colour()};
    for (int index = 0; index < palette_size; ++index) {
        colours.push_back(terminal().palette(index));
    }
    const ScreenLook look{terminal().modes().reverse_video, look_.blink_hidden};
    if (colours != colours_ || look != look_) {
        colours_ = std::move(colours);
        look_ = look;
        pictures_.clear();
        update();
    }
}

/// What is still to be seen after scrolling is moved, not painted anew: where a row is a whole number of the
/// screen's own pixels.
void TerminalView::shift_pictures(RowId top) {
    const qreal row_pixels = font_->cell_height() * devicePixelRatioF();
    if (row_pixels != std::floor(row_pixels)) {
        return;
    }
    const auto rows = static_cast<RowId>(pictures_.size());
    const RowId shift = rows == 0 ? 0 : top - pictures_.front().row;
    if (shift == 0 || std::abs(shift) >= rows) {
        return;
    }
    const auto lines = static_cast<int>(shift);
    const QRect area(0, margin, width(), static_cast<int>(rows) * font_->cell_height());
    scroll(0, -lines * font_->cell_height(), area);
    if (lines > 0) {
        std::move(pictures_.begin() + lines, pictures_.end(), pictures_.begin());
        std::fill(pictures_.end() - lines, pictures_.end(), Picture{-1, 0, {}});
    } else {
        std::move_backward(pictures_.begin(), pictures_.end() + lines, pictures_.end());
        std::fill(pictures_.begin(), pictures_.begin() - lines, Picture{-1, 0, {}});
    }
}

void TerminalView::refresh() {
    if (selection_.drop_if_changed()) {
        mouse_.selecting = false;
    }
    if (!follows_output_ && view_top_ >= terminal().screen_top()) {
        follows_output_ = true;  // the text was cleared
    }
    update_scroll_bar();
    repaint_all_if_colours_changed();
    const RowId top = top_row();
    shift_pictures(top);
    follow_pointer();
    const auto rows = static_cast<std::size_t>(terminal().size().rows);
    if (pictures_.size() != rows) {
        pictures_.assign(rows, Picture{-1, 0, {}});
    }
    for (std::size_t line = 0; line < rows; ++line) {
        Picture picture = picture_of(top + static_cast<RowId>(line));
        if (picture != pictures_[line]) {
            pictures_[line] = std::move(picture);
            update(row_area(static_cast<int>(line)));
        }
    }
    follow_cursor();
}

void TerminalView::paintEvent(QPaintEvent* event) {
    if (font_->pixel_ratio() != devicePixelRatioF()) {
        set_terminal_font(QFont(font_->font()));  // now on another screen
    }
    if (pictures_.empty()) {
        refresh();
    }
    since_frame_.start();
    QPainter painter(this);
    TerminalPainter rows(painter, terminal(), *font_, look_);
    const terminal::Rgb standard = look_.reverse_video ? terminal().foreground() : terminal().background();
    const QColor background(standard.red, standard.green, standard.blue);
    const int columns = terminal().size().columns;
    const QRect cells(margin, margin, columns * font_->cell_width(),
                      static_cast<int>(pictures_.size()) * font_->cell_height());
    for (const QRect& area : event->region() - cells) {
        painter.fillRect(area, background);
    }
    for (std::size_t line = 0; line < pictures_.size(); ++line) {
        const QRect area = row_area(static_cast<int>(line)) & cells;
        if (!event->region().intersects(area)) {
            continue;
        }
        const Picture& picture = pictures_[line];
        painter.setClipRect(area);
        rows.draw_row(terminal().row(picture.row), picture.marks, {margin, area.y()}, columns);
    }
    painter.setClipping(false);
    if (flash_timer_.isActive()) {
        const terminal::Rgb colour = terminal().cursor_colour();
        for (const QRect& area : flash_area()) {
            painter.fillRect(area, QColor(colour.red, colour.green, colour.blue));
        }
    }
    await_blink(rows.has_blinking_text());
    paint_milliseconds_ = since_frame_.elapsed();
}
