// SPDX-License-Identifier: MIT
#include "toolkit/text_pane.h"

#include "toolkit/text_conversion.h"

#include <QPlainTextEdit>
#include <QScrollBar>

#include <algorithm>

TextPane::TextPane(Container& parent, std::string_view accessible_name)
    : widget_(new QPlainTextEdit(parent.widget())) {
    widget_->setAccessibleName(to_qstring(accessible_name));
    widget_->setTabChangesFocus(true);
    parent.add({}, widget_);
}

std::string TextPane::text() const { return from_qstring(widget_->toPlainText()); }

void TextPane::set_font(const Font& font) { widget_->setFont(font.qt()); }

void TextPane::set_display_size(int columns, int lines) {
    const QFontMetrics metrics(widget_->font());
    const int frame = 2 * widget_->frameWidth() + static_cast<int>(2 * widget_->document()->documentMargin());
    widget_->setMinimumSize(
        metrics.averageCharWidth() * columns + frame + widget_->verticalScrollBar()->sizeHint().width(),
        metrics.lineSpacing() * lines + frame);
}

void textsw_set_insertion_point(TextPane& pane, int position) {
    QTextCursor cursor = pane.widget()->textCursor();
    const int end = pane.widget()->document()->characterCount() - 1;  // Qt counts a last paragraph mark
    cursor.setPosition(std::clamp(position, 0, end));
    pane.widget()->setTextCursor(cursor);
}

void textsw_insert(TextPane& pane, std::string_view text) {
    QTextCursor cursor = pane.widget()->textCursor();
    cursor.insertText(to_qstring(text));
    pane.widget()->setTextCursor(cursor);
}

void textsw_possibly_normalize(TextPane& pane) { pane.widget()->ensureCursorVisible(); }

void textsw_reset(TextPane& pane) { pane.widget()->clear(); }
