// SPDX-License-Identifier: MIT
#include "toolkit/text_pane.h"

#include "toolkit/text_conversion.h"
#include "toolkit/text_size.h"

#include <QPlainTextEdit>

#include <algorithm>
#include <array>

namespace {

/// A character that Qt's documents take for a line end or for a mark of their own, and what stands for it
/// there: a lone surrogate as those of `to_qstring`, but one that it does not use.
struct Substitute {
    char16_t character;
    char16_t in_document;
};

constexpr std::array substitutes{
    Substitute{u'\r', 0xDC0D},  Substitute{u'\u2028', 0xDC28}, Substitute{u'\u2029', 0xDC29},
    Substitute{0xFDD0, 0xDC30}, Substitute{0xFDD1, 0xDC31},
};

QString to_document(std::string_view text) {
    QString result = to_qstring(text);
    for (const auto& [character, in_document] : substitutes) {
        result.replace(QChar(character), QChar(in_document));
    }
    return result;
}

QChar from_document(QChar c) {
    if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator) {  // Return and Shift+Return
        return u'\n';
    }
    const auto* const found =
        std::ranges::find(substitutes, c.unicode(), [](const Substitute& pair) { return pair.in_document; });
    return found != substitutes.end() ? QChar(found->character) : c;
}

}  // namespace

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

std::string TextPane::text() const {
    QString text = widget_->document()->toRawText();  // toPlainText() makes blanks of no-break spaces
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool paired = at > 0 && text[at - 1].isHighSurrogate();
        if (!paired) {
            text[at] = from_document(text[at]);
        }
    }
    return from_qstring(text);
}

void TextPane::set_text(std::string_view text) { widget_->setPlainText(to_document(text)); }

bool TextPane::modified() const { return widget_->document()->isModified(); }

void TextPane::set_unmodified() { widget_->document()->setModified(false); }

void TextPane::set_line_limit(int lines) { widget_->setMaximumBlockCount(lines + 1); }

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
    cursor.insertText(to_document(text));
    pane.widget()->setTextCursor(cursor);
}

void textsw_possibly_normalize(TextPane& pane) { pane.widget()->ensureCursorVisible(); }

void textsw_reset(TextPane& pane) { pane.widget()->clear(); }
