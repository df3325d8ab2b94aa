// SPDX-License-Identifier: MIT
#include "toolkit/pane/paste_review.h"
#include "toolkit/pane/view.h"
#include "toolkit/text_conversion.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

// The terminal view's selection as other programs see it, and pasting.

void TerminalView::select(terminal::Range range) {
    selection_.select(range);
    content_changed();
    publish_selection();
}

void TerminalView::clear_selection() {
    selection_.clear();
    content_changed();
    withdraw_selection();
}

/// The finished selection becomes the X primary selection; a click that selects nothing takes back the last
/// one.
void TerminalView::publish_selection() {
    if (selection_.empty()) {
        return withdraw_selection();
    }
    publishing_ = true;
    QGuiApplication::clipboard()->setText(to_qstring(selection_.text()), QClipboard::Selection);
    publishing_ = false;
    published_ = true;
}

/// What is no longer marked in the pane is nobody's selection any more: no key shall act on what is not seen.
void TerminalView::withdraw_selection() {
    if (std::exchange(published_, false)) {
        publishing_ = true;
        QGuiApplication::clipboard()->clear(QClipboard::Selection);
        publishing_ = false;
    }
}

/// What is marked in the pane is what others get: as on xterm, the mark goes when somebody else takes the
/// primary selection.
void TerminalView::primary_selection_changed() {
    if (publishing_) {
        return;
    }
    published_ = false;
    if (!mouse_.selecting()) {
        clear_selection();
    }
}

void TerminalView::copy() {
    if (!selection_.empty()) {
        QGuiApplication::clipboard()->setText(to_qstring(selection_.text()), QClipboard::Clipboard);
    }
}

void TerminalView::paste(SelectionName source) {
    constexpr std::size_t longest = 16'777'216;
    const std::string text = selection_ask(longest, source).text;
    if (text.empty() || session_.has_ended()) {
        return;
    }
    if (terminal::paste_needs_review(text)) {
        review_paste(this, text, "A line end may run a command at once.", [this, text] { type_paste(text); });
    } else {
        type_paste(text);
    }
}

void TerminalView::type_paste(const std::string& text) {
    const terminal::Pty* const pty = session_.pty();
    const std::string line_discipline = pty != nullptr ? pty->control_characters() : std::string();
    session_.type(terminal::encode_paste(text, line_discipline, terminal().modes()));
    scroll_to_bottom();
}

void TerminalView::set_match(terminal::Range match) {
    match_.select(match);
    if (!match.empty()) {
        show_row(match.begin.row);
    }
    content_changed();
}
