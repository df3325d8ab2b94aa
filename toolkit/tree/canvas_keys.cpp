// SPDX-License-Identifier: MIT
// What the keyboard does on the canvas.
#include "toolkit/return_key.h"
#include "toolkit/tree/canvas_widget.h"
#include "toolkit/tree/shown_label.h"

#include <QApplication>
#include <QKeyEvent>

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString letters = (event->modifiers() & commands) == 0 ? event->text() : QString();
    if (!press_key(*event) && !move_by_key(event->key()) && !jump(letters)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

/// The keys that act. Whether it was one.
bool CanvasWidget::press_key(const QKeyEvent& event) {
    const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
    const bool shift = (event.modifiers() & Qt::ShiftModifier) != 0;
    if (event.key() == Qt::Key_Escape && band_) {
        band_scrolling_.stop();
        band_.reset();
        viewport()->update();
    } else if (event.key() == Qt::Key_Space && current_ != nullptr) {
        click(current_, control ? Qt::ControlModifier : Qt::NoModifier);
    } else if (is_return(event) && current_ != nullptr) {
        activate(current_);
    } else if (event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && shift)) {
        open_menu_at_current();
    } else if (event.key() == Qt::Key_F5) {
        tell(procedures_.refresh);
    } else if (event.key() == Qt::Key_F2) {
        tell(procedures_.rename);
    } else if (event.key() == Qt::Key_Delete) {
        tell(procedures_.remove);
    } else {
        return false;
    }
    return true;
}

TreeNode* CanvasWidget::neighbour(int key) const {
    TreeNode* parent = tree_.parent(current_);
    switch (key) {
        case Qt::Key_Up:
            return tree_.above_in_column(current_);
        case Qt::Key_Down:
            return tree_.below_in_column(current_);
        case Qt::Key_Left:
            return parent;
        case Qt::Key_Right:
            return tree_.child(current_, 0);
        case Qt::Key_Home:
            return tree_.child(parent, 0);
        default:
            return tree_.last_child(parent);
    }
}

/// Whether the key was one of those that move. Without a current node they lead to the first root.
bool CanvasWidget::move_by_key(int key) {
    constexpr std::array keys{Qt::Key_Up,    Qt::Key_Down, Qt::Key_Left,
                              Qt::Key_Right, Qt::Key_Home, Qt::Key_End};
    if (tree_.size() == 0 || std::find(keys.begin(), keys.end(), key) == keys.end()) {
        return false;
    }
    TreeNode* node = current_ == nullptr ? tree_.child(nullptr, 0) : neighbour(key);
    go_to(node == nullptr ? current_ : node);
    return true;
}

/// Letters typed soon after each other are looked for together; the same letter again goes on to the next.
bool CanvasWidget::jump(const QString& letters) {
    if (current_ == nullptr || letters.isEmpty() || !letters[0].isPrint()) {
        return false;
    }
    const bool goes_on = jump_time_.isValid() && jump_time_.elapsed() < QApplication::keyboardInputInterval();
    jump_time_.start();
    const bool again = goes_on && jump_letters_ == letters;
    jump_letters_ = goes_on && !again ? jump_letters_ + letters : letters;
    const bool may_stay = jump_letters_.size() > letters.size();
    TreeNode* parent = tree_.parent(current_);
    TreeNode* node = may_stay ? current_ : tree_.next_sibling(current_);
    for (int left = tree_.child_count(parent); left > 0; --left) {
        node = node == nullptr ? tree_.child(parent, 0) : node;
        if (shown_label(node->record->label).startsWith(jump_letters_, Qt::CaseInsensitive)) {
            go_to(node);
            break;
        }
        node = tree_.next_sibling(node);
    }
    return true;
}

void CanvasWidget::focusInEvent(QFocusEvent* event) {
    if (current_ == nullptr && tree_.size() > 0 && event->reason() != Qt::MouseFocusReason) {
        current_ = tree_.child(nullptr, 0);
    }
    QAbstractScrollArea::focusInEvent(event);
    tell_focus();
    viewport()->update();
}

void CanvasWidget::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}
