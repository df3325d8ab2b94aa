// SPDX-License-Identifier: MIT
#include "toolkit/text_pane.h"

#include "toolkit/text_conversion.h"
#include "toolkit/text_size.h"

#include <QPlainTextEdit>

#include <algorithm>

TextPane::TextPane(Container& parent, std::string_view accessible_name, Access access)
    : widget_(new QPlainTextEdit(parent.widget())) {
    widget_->setAccessibleName(to_qstring(accessible_name));
    widget_->setTabChangesFocus(true);
    if (access == Access::read_only) {
        widget_->setReadOnly(true);
        widget_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    parent.add({}, widget_, Place::line);
}

std::string TextPane::text() const { return from_qstring(widget_->toPlainText()); }

void TextPane::set_text(std::string_view text) { widget_->setPlainText(to_qstring(text)); }

bool TextPane::modified() const { return widget_->document()->isModified(); }

void TextPane::set_unmodified() { widget_->document()->setModified(false); }

void TextPane::set_font(const Font& font) {
    widget_->setFont(font.qt());
    set_display_size(columns_, lines_);
}

void TextPane::set_display_size(int columns, int lines) {
    columns_ = columns;
    lines_ = lines;
    widget_->setMinimumSize(text_size(*widget_, columns, lines));
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
