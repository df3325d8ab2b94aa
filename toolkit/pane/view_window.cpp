// SPDX-License-Identifier: MIT
#include "toolkit/pane/view.h"

#include <QScreen>

#include <utility>

// The window around the terminal view, as a program in the terminal may know and, where the user permits it,
// change it.

namespace {

// Within this time the window takes on the size that a program has asked for, or it will not.
constexpr int settle_milliseconds = 300;

terminal::WindowGeometry::Extent extent(QSize size) { return {size.width(), size.height()}; }
terminal::WindowGeometry::Point corner(QPoint point) { return {point.x(), point.y()}; }

}  // namespace

terminal::WindowGeometry TerminalView::window_geometry() const {
    const QSize cell = viewport_.cell();
    const terminal::Size size = terminal().size();
    return {.cell = extent(cell),
            .text = {size.columns * cell.width(), size.rows * cell.height()},
            .window = extent(window()->size()),
            .screen = extent(screen()->size()),
            .window_corner = corner(window()->pos()),
            .text_corner = corner(mapToGlobal(QPoint(Viewport::margin, Viewport::margin))),
            .iconified = window()->isMinimized()};
}

/// A terminal that a program has given another size gets a window to match. Where the window stays larger,
/// the terminal keeps its size until the window's user gives it another.
void TerminalView::follow_size() {
    const terminal::Size size = terminal().size();
    const QSize wanted = viewport_.area_for(size);
    const QSize text = wanted - 2 * QSize(Viewport::margin, Viewport::margin);
    clear_selection();
    match_.clear();
    settle_timer_.start(settle_milliseconds);
    session_.resize(size, text.width(), text.height(), {});
    window()->resize(window()->size() + wanted - this->size());
    settled_size_ = this->size();
    scroll_to_bottom();
    refresh_all();
}

/// The window may have refused, or its user may have resized it meanwhile.
void TerminalView::settle() {
    const terminal::Size room = viewport_.room_for_text();
    const terminal::Size size = terminal().size();
    if (this->size() != settled_size_ || room.columns < size.columns || room.rows < size.rows) {
        fit_to_size();
    }
}

void TerminalView::perform(const terminal::WindowRequest& request) {
    using Kind = terminal::WindowRequest::Kind;
    QWidget& top = *window();
    const auto state = [&top](Qt::WindowState flag, bool on) {
        top.setWindowState(top.windowState().setFlag(flag, on));
    };
    const auto place = [&top](const QRect& area) {
        top.move(area.topLeft());
        top.resize(area.size());
    };
    // Window managers know no state that is both: size and place are kept here.
    const auto note_unmaximized = [&] {
        if (!unmaximized_) {
            unmaximized_ = QRect(top.pos(), top.size());
        }
    };
    const QRect available = screen()->availableGeometry();
    const QSize frame = top.frameGeometry().size() - top.size();
    switch (request.kind) {
        case Kind::restore:
        case Kind::iconify:
            return state(Qt::WindowMinimized, request.kind == Kind::iconify);
        case Kind::move:
            return top.move(request.corner.x, request.corner.y);
        case Kind::raise:
            return top.raise();
        case Kind::lower:
            return top.lower();
        case Kind::refresh:
            return update();
        case Kind::unmaximize:
            if (const auto before = std::exchange(unmaximized_, std::nullopt)) {
                return place({before->topLeft(), before->size()});
            }
            return state(Qt::WindowMaximized, false);
        case Kind::maximize:
            return state(Qt::WindowMaximized, true);
        case Kind::maximize_vertically:
            note_unmaximized();
            return place({{top.x(), available.y()}, QSize(top.width(), available.height() - frame.height())});
        case Kind::maximize_horizontally:
            note_unmaximized();
            return place({{available.x(), top.y()}, QSize(available.width() - frame.width(), top.height())});
        case Kind::leave_full_screen:
        case Kind::full_screen:
            return state(Qt::WindowFullScreen, request.kind == Kind::full_screen);
        case Kind::toggle_full_screen:
            return state(Qt::WindowFullScreen, !top.isFullScreen());
    }
}
