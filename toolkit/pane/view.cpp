// SPDX-License-Identifier: MIT
#include "toolkit/pane/view.h"

#include "toolkit/pane/keys.h"
#include "toolkit/pane/reader.h"
#include "toolkit/text_conversion.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>

using terminal::Position;
using terminal::RowId;

namespace {

constexpr std::uint64_t not_painted = std::numeric_limits<std::uint64_t>::max();  // no row's stamp

}  // namespace

TerminalView::TerminalView(TerminalSession& session, QScrollBar& scroll_bar, QWidget* parent)
    : QWidget(parent),
      session_(session),
      scroll_bar_(scroll_bar),
      reader_(std::make_unique<TerminalReader>(session.terminal())),
      viewport_(session.terminal()),
      selection_(session.terminal()),
      mouse_(*this, session, viewport_, selection_,
             {.changed = [this] { content_changed(); },
              .selected = [this] { publish_selection(); },
              .paste = [this] { paste(SelectionName::primary); }}),
      blinking_({.cursor = [this] { content_changed(); },
                 .text = [this] { blink_text(); },
                 .flash = [this] { update(flash_area()); }}),
      frames_([this] { frame(); }),
      match_(session.terminal()),
      menu_(new QMenu(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled);
    setMouseTracking(true);
    setCursor(Qt::IBeamCursor);
    set_terminal_font(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    settle_timer_.setSingleShot(true);
    connect(&settle_timer_, &QTimer::timeout, this, [this] { settle(); });
    connect(&scroll_bar_, &QScrollBar::valueChanged, this,
            [this](int value) { scroll_to(terminal().first_row() + value); });
    connect(QGuiApplication::clipboard(), &QClipboard::selectionChanged, this,
            [this] { primary_selection_changed(); });
}

TerminalView::~TerminalView() = default;

void TerminalView::set_terminal_font(const QFont& font) {
    usual_font_ = font;
    apply_font(font);
}

void TerminalView::zoom(int steps) {
    constexpr double smallest = 4;
    constexpr double largest = 96;
    QFont font = font_->font();
    const QFont& from = steps == 0 ? usual_font_ : font;
    if (from.pointSizeF() > 0) {
        font.setPointSizeF(std::clamp(from.pointSizeF() + steps, smallest, largest));
    } else {
        font.setPixelSize(static_cast<int>(std::clamp<double>(from.pixelSize() + steps, smallest, largest)));
    }
    apply_font(font);
}

void TerminalView::set_font_family(const QString& family) {
    QFont font = font_->font();
    font.setFamily(family);
    apply_font(font);
}

void TerminalView::apply_font(const QFont& font) {
    font_ = std::make_unique<TerminalFont>(font, devicePixelRatioF());
    viewport_.set_cell({font_->cell_width(), font_->cell_height()});
    fit_to_size();
    updateGeometry();
    refresh_all();
}

QSize TerminalView::sizeHint() const { return viewport_.area_for({}); }

void TerminalView::resizeEvent(QResizeEvent* /*event*/) {
    laid_out_ = true;
    viewport_.set_area(size());
    fit_to_size();
}

void TerminalView::fit_to_size() {
    const terminal::Size size = viewport_.room_for_text();
    if (laid_out_ && size != terminal().size() && !settle_timer_.isActive()) {
        std::vector<Position> anchors{{viewport_.top_row(), 0}};
        for (TerminalSelection* marked : {&selection_, &match_}) {
            anchors.insert(anchors.end(), marked->anchors().begin(), marked->anchors().end());
        }
        session_.resize(size, size.columns * font_->cell_width(), size.rows * font_->cell_height(), anchors);
        viewport_.top_row_moved(anchors.front().row);
        auto moved = std::next(anchors.begin());
        for (TerminalSelection* marked : {&selection_, &match_}) {
            std::copy_n(moved, marked->anchors().size(), marked->anchors().begin());
            moved += std::ssize(marked->anchors());
            marked->anchors_moved();
        }
    }
    refresh_all();
}

// Scrolling.

void TerminalView::scroll_to(RowId top) {
    viewport_.scroll_to(top);
    content_changed();
}

void TerminalView::scroll_to_bottom() { scroll_to(terminal().screen_top()); }

void TerminalView::show_row(RowId row) {
    viewport_.show_row(row);
    content_changed();
}

void TerminalView::update_scroll_bar() {
    const QSignalBlocker blocker(scroll_bar_);
    const RowId first = terminal().first_row();
    scroll_bar_.setPageStep(terminal().size().rows);
    scroll_bar_.setRange(0, static_cast<int>(terminal().screen_top() - first));
    scroll_bar_.setValue(static_cast<int>(viewport_.top_row() - first));
}

// Frames.

void TerminalView::frame() {
    if (session_.update_is_open()) {
        frames_.put_off();
        return;
    }
    refresh();
    reader_->tell_changes(*this, selection_.range());
}

TerminalView::Picture TerminalView::picture_of(RowId row) const {
    const terminal::Row shown = terminal().row(row);
    Picture picture{row, shown.stamp, {}};
    picture.marks.link = mouse_.hovered_link_in(shown);
    picture.marks.address = mouse_.hovered_address_in(row);
    picture.marks.selection = selection_.columns_in(row);
    picture.marks.match = match_.columns_in(row);
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
    if (blinking_.cursor_hidden() && cursor.blinking) {
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
    const bool reverse_video = terminal().modes().reverse_video;
    if (colours != colours_ || reverse_video != reverse_video_) {
        colours_ = std::move(colours);
        reverse_video_ = reverse_video;
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
    const QRect area(0, Viewport::margin, width(), static_cast<int>(rows) * font_->cell_height());
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
        mouse_.stop_selecting();
        withdraw_selection();
    }
    match_.drop_if_changed();
    viewport_.keep_to_text();
    update_scroll_bar();
    repaint_all_if_colours_changed();
    const RowId top = viewport_.top_row();
    shift_pictures(top);
    mouse_.follow_text();
    const auto rows = static_cast<std::size_t>(terminal().size().rows);
    if (pictures_.size() != rows) {
        pictures_.assign(rows, Picture{-1, 0, {}});
    }
    for (std::size_t line = 0; line < rows; ++line) {
        Picture picture = picture_of(top + static_cast<RowId>(line));
        if (picture != pictures_[line]) {
            pictures_[line] = std::move(picture);
            update(viewport_.line_area(static_cast<int>(line)));
        }
    }
    blinking_.follow_cursor(terminal().cursor(), hasFocus());
    if (const QRect area = cell_area(terminal().cursor().position); hasFocus() && area != cursor_area_) {
        cursor_area_ = area;
        updateMicroFocus(Qt::ImCursorRectangle);  // what is being composed stands there
    }
}

void TerminalView::paintEvent(QPaintEvent* event) {
    if (font_->pixel_ratio() != devicePixelRatioF()) {
        apply_font(QFont(font_->font()));  // now on another screen
    }
    if (pictures_.empty()) {
        refresh();
    }
    frames_.painting_begins();
    QPainter painter(this);
    TerminalPainter rows(painter, terminal(), *font_, look());
    const terminal::Rgb standard = reverse_video_ ? terminal().foreground() : terminal().background();
    const QColor background(standard.red, standard.green, standard.blue);
    const int columns = terminal().size().columns;
    const QRect cells(Viewport::margin, Viewport::margin, columns * font_->cell_width(),
                      static_cast<int>(pictures_.size()) * font_->cell_height());
    for (const QRect& area : event->region() - cells) {
        painter.fillRect(area, background);
    }
    bool unfinished = false;
    for (const std::size_t line : lines_in_turn()) {
        const QRect area = viewport_.line_area(static_cast<int>(line)) & cells;
        if (!event->region().intersects(area)) {
            continue;
        }
        Picture& picture = pictures_[line];
        if (!rows.time_is_over()) {
            painter.setClipRect(area);
            rows.draw_row(terminal().row(picture.row), picture.marks, {Viewport::margin, area.y()}, columns);
            if (!rows.row_is_unfinished()) {
                continue;
            }
        }
        next_line_ = unfinished ? next_line_ : line;
        unfinished = true;
        picture.stamp = not_painted;
    }
    painter.setClipping(false);
    if (blinking_.flashes()) {
        paint_flash(painter);
    }
    if (rows.has_blinking_text()) {
        blinking_.await_text();
    }
    frames_.painting_ends();
    if (unfinished) {
        content_changed();
    }
}

/// First the cursor's line, where keys are echoed; then on from where the last frame ran out of time.
std::vector<std::size_t> TerminalView::lines_in_turn() const {
    const std::size_t count = pictures_.size();
    std::vector<std::size_t> lines;
    const auto cursor = static_cast<std::size_t>(terminal().cursor().position.row - viewport_.top_row());
    if (cursor < count) {
        lines.push_back(cursor);
    }
    for (std::size_t step = 0; step < count; ++step) {
        if (const std::size_t line = (next_line_ + step) % count; line != cursor) {
            lines.push_back(line);
        }
    }
    return lines;
}

/// A frame in the margin round the text, which need not be painted anew.
QRegion TerminalView::flash_area() const {
    constexpr int thickness = Viewport::margin - 1;
    return QRegion(rect()) - rect().adjusted(thickness, thickness, -thickness, -thickness);
}

void TerminalView::paint_flash(QPainter& painter) const {
    const terminal::Rgb colour = terminal().cursor_colour();
    for (const QRect& area : flash_area()) {
        painter.fillRect(area, QColor(colour.red, colour.green, colour.blue));
    }
}

/// Goes on while a row in view has text that blinks; not while a program has an update of the screen open.
void TerminalView::blink_text() {
    if (session_.update_is_open()) {
        return;
    }
    blinking_.turn_text();
    bool any = false;
    for (std::size_t line = 0; line < pictures_.size(); ++line) {
        const std::span<const terminal::Cell> cells = terminal().row(pictures_[line].row).cells;
        const bool blinks = std::any_of(cells.begin(), cells.end(), [this](const terminal::Cell& cell) {
            return terminal().style(cell.style).blink;
        });
        if (blinks) {
            any = true;
            update(viewport_.line_area(static_cast<int>(line)));
        }
    }
    if (!any) {
        blinking_.rest_text();
    }
}

// The mouse.

void TerminalView::mousePressEvent(QMouseEvent* event) { mouse_.press(*event); }
void TerminalView::mouseDoubleClickEvent(QMouseEvent* event) { mouse_.press_again(*event); }
void TerminalView::mouseMoveEvent(QMouseEvent* event) { mouse_.move(*event); }
void TerminalView::mouseReleaseEvent(QMouseEvent* event) { mouse_.release(*event); }

void TerminalView::wheelEvent(QWheelEvent* event) {
    const QPoint delta = event->angleDelta();
    const bool sideways = std::abs(delta.x()) > std::abs(delta.y());
    if (!sideways) {
        mouse_.turn_wheel(*event);
    }
    event->setAccepted(!sideways);
}

void TerminalView::leaveEvent(QEvent* event) {
    mouse_.leave();
    QWidget::leaveEvent(event);
}

void TerminalView::contextMenuEvent(QContextMenuEvent* event) {
    const bool by_mouse = event->reason() == QContextMenuEvent::Mouse;
    if (by_mouse && !mouse_.is_the_programs(to_modifiers(event->modifiers()))) {
        show_menu_(event->globalPos());
    }
    // The menu key comes as a key.
    event->accept();
}

/// The address of a link on one line; one too long for that is seen in full in the notice.
void TerminalView::show_tool_tip(const QHelpEvent& event) {
    constexpr qsizetype longest = 120;
    QString address = visible_text(link_at(event.pos()));
    if (address.size() > longest) {
        address = address.left(longest) + QChar(u'\u2026');
    }
    const QString text = QStringLiteral("<p style='white-space:pre'>%1<br>Ctrl+click opens it</p>");
    QToolTip::showText(event.globalPos(), address.isEmpty() ? QString() : text.arg(address.toHtmlEscaped()),
                       this);
}
