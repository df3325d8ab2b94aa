// SPDX-License-Identifier: MIT
#include "toolkit/pane/link_notice.h"
#include "toolkit/pane/view.h"
#include "toolkit/text_conversion.h"

#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>

// The terminal view's links (OSC 8): underlined under the pointer, opened with Ctrl and a click.

using terminal::LinkId;

LinkId TerminalView::link_id_at(QPointF point) const {
    const terminal::Position place = position_at(point);
    if (!cell_area(place).contains(point.toPoint())) {
        return 0;  // beside the text
    }
    const std::span<const terminal::Cell> cells = terminal().row(place.row).cells;
    const auto column = static_cast<std::size_t>(place.column);
    return column < cells.size() ? cells[column].link : LinkId{0};
}

std::string TerminalView::link_at(QPointF point) const {
    return std::string(terminal().link(link_id_at(point)));
}

/// The link under the pointer, which stays where it is while the text moves.
void TerminalView::follow_pointer() {
    const LinkId found = pointer_ ? link_id_at(*pointer_) : LinkId{0};
    if (found != hovered_link_) {
        hovered_link_ = found;
        content_changed();
    }
    const bool opens = found != 0 && pointer_modifiers_.testFlag(Qt::ControlModifier) &&
                       !program_has_mouse(pointer_modifiers_);
    const Qt::CursorShape shape = opens ? Qt::PointingHandCursor : Qt::IBeamCursor;
    if (cursor().shape() != shape) {
        setCursor(shape);
    }
}

void TerminalView::move_pointer(std::optional<QPointF> point, Qt::KeyboardModifiers modifiers) {
    pointer_ = point;
    pointer_modifiers_ = modifiers;
    follow_pointer();
}

/// Whether a row holds the link under the pointer.
LinkId TerminalView::hovered_link_in(const terminal::Row& row) const {
    const bool holds = hovered_link_ != 0 &&
                       std::any_of(row.cells.begin(), row.cells.end(),
                                   [this](const terminal::Cell& cell) { return cell.link == hovered_link_; });
    return holds ? hovered_link_ : LinkId{0};
}

/// True when a press of the button is one on a link that is to be opened.
bool TerminalView::press_link(QPointF point, Qt::KeyboardModifiers modifiers) {
    mouse_.link = modifiers.testFlag(Qt::ControlModifier) ? link_at(point) : std::string();
    return !mouse_.link.empty();
}

/// As with a button, the release counts, and only on the same link.
void TerminalView::release_link(QPointF point) {
    const std::string pressed = std::exchange(mouse_.link, {});
    if (!pressed.empty() && link_at(point) == pressed) {
        offer_link(this, pressed);
    }
}

/// On one line; an address too long for that is seen in full in the notice.
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

void TerminalView::leaveEvent(QEvent* event) {
    move_pointer({}, {});
    QWidget::leaveEvent(event);
}
