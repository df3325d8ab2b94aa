// SPDX-License-Identifier: MIT
#include "toolkit/pane/keys.h"
#include "toolkit/pane/view.h"
#include "toolkit/text_conversion.h"

#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>

// The terminal view's keyboard: what the pane does itself, and what goes to the program.

namespace {

constexpr Qt::KeyboardModifiers control_shift = Qt::ControlModifier | Qt::ShiftModifier;

Qt::KeyboardModifiers modifiers_of(const QKeyEvent& event) {
    return event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

}  // namespace

/// Every key is the program's before it is a menu's or a button's short cut.
bool TerminalView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::ToolTip) {
        show_tool_tip(*static_cast<QHelpEvent*>(event));
        return true;
    }
    return QWidget::event(event);
}

/// Tab is the program's; the focus leaves with Ctrl+Tab.
bool TerminalView::focusNextPrevChild(bool /*next*/) { return false; }

void TerminalView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Control) {
        mouse_.control_key(true);
    }
    const KeyEvent pressed = to_key_event(*event);
    KeyEvent key = pressed;
    if (interpose(key)) {
        return;
    }
    if (key == pressed && handle_own_key(*event)) {
        return;
    }
    type_key(key);
}

void TerminalView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Control) {
        mouse_.control_key(false);
    }
    KeyEvent key = to_key_event(*event);
    if (!key.repeated) {
        interpose(key);
    }
}

/// Keys that neither type nor send anything, as shift alone, are nobody's business.
bool TerminalView::interpose(KeyEvent& event) {
    const bool silent = event.key == terminal::Key::none && event.text.empty();
    return !silent && interposer_ && interposer_(event);
}

bool TerminalView::handle_own_key(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = modifiers_of(event);
    if (handle_zoom_key(event)) {
        return true;
    }
    if (modifiers == control_shift) {
        switch (event.key()) {
            case Qt::Key_C:
                copy();
                return true;
            case Qt::Key_V:
                paste(SelectionName::clipboard);
                return true;
            case Qt::Key_F:
                show_find_();
                return true;
            case Qt::Key_Tab:
            case Qt::Key_Backtab:
                QWidget::focusNextPrevChild(false);
                return true;
            default:
                return false;
        }
    }
    const bool menu_key =
        event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
    if (menu_key) {
        show_menu_at_cursor();
        return true;
    }
    if (event.key() == Qt::Key_Tab && modifiers == Qt::ControlModifier) {
        QWidget::focusNextPrevChild(true);
        return true;
    }
    if (event.key() == Qt::Key_Insert && modifiers == Qt::ShiftModifier) {
        paste(SelectionName::primary);
        return true;
    }
    return modifiers == Qt::ShiftModifier && handle_scroll_key(event);
}

/// Plus needs shift on many keyboards, and is on the same key as the equals sign.
bool TerminalView::handle_zoom_key(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = modifiers_of(event);
    switch (event.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            if ((modifiers & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) != Qt::ControlModifier) {
                return false;
            }
            zoom(1);
            return true;
        case Qt::Key_Minus:
        case Qt::Key_0:
            if (modifiers != Qt::ControlModifier) {
                return false;
            }
            zoom(event.key() == Qt::Key_0 ? 0 : -1);
            return true;
        default:
            return false;
    }
}

void TerminalView::show_menu_at_cursor() {
    show_menu_(mapToGlobal(cell_area(terminal().cursor().position).bottomLeft()));
}

/// Where there is nothing to scroll to, the keys are the program's.
bool TerminalView::handle_scroll_key(const QKeyEvent& event) {
    if (terminal().modes().alternate_screen) {
        return false;
    }
    const int page = std::max(1, terminal().size().rows - 1);
    switch (event.key()) {
        case Qt::Key_PageUp:
            scroll_to(viewport_.top_row() - page);
            return true;
        case Qt::Key_PageDown:
            scroll_to(viewport_.top_row() + page);
            return true;
        case Qt::Key_Home:
            scroll_to(terminal().first_row());
            return true;
        case Qt::Key_End:
            scroll_to_bottom();
            return true;
        default:
            return false;
    }
}

void TerminalView::type_key(const KeyEvent& event) {
    if (session_.has_ended()) {
        const bool restarts = event.key == terminal::Key::enter || event.key == terminal::Key::keypad_enter;
        if (restarts) {
            scroll_to_bottom();
            session_.restart();
        }
        return;
    }
    const terminal::Modes& modes = terminal().modes();
    const std::string bytes = terminal::encode_key(event.key, event.modifiers, event.text, modes);
    const bool ignored = event.repeated && !modes.auto_repeat;
    if (bytes.empty() || ignored) {
        return;
    }
    session_.type(bytes);
    if (modes.local_echo && !session_.asks_for_password()) {
        session_.show(bytes);
    }
    scroll_to_bottom();
    blinking_.restart_cursor(terminal().cursor(), hasFocus());
}

// Input methods and dead keys.

void TerminalView::inputMethodEvent(QInputMethodEvent* event) {
    preedit_ = event->preeditString();
    if (!event->commitString().isEmpty()) {
        KeyEvent key;
        key.text = from_qstring(event->commitString());
        if (!interpose(key)) {
            type_key(key);
        }
    }
    content_changed();
    event->accept();
}

QVariant TerminalView::inputMethodQuery(Qt::InputMethodQuery query) const {
    switch (query) {
        case Qt::ImEnabled:
            return true;
        case Qt::ImCursorRectangle:
            return cell_area(terminal().cursor().position);
        case Qt::ImFont:
            return font_->font();
        case Qt::ImHints:
            return static_cast<int>(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase | Qt::ImhMultiLine);
        default:
            return QWidget::inputMethodQuery(query);
    }
}

void TerminalView::focusInEvent(QFocusEvent* /*event*/) { focus_changed(true); }
void TerminalView::focusOutEvent(QFocusEvent* /*event*/) { focus_changed(false); }

void TerminalView::focus_changed(bool has_focus) {
    session_.report(terminal::encode_focus(has_focus, terminal().modes()));
    blinking_.restart_cursor(terminal().cursor(), has_focus);
    content_changed();
}
