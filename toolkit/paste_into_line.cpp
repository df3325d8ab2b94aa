// SPDX-License-Identifier: MIT
#include "toolkit/paste_into_line.h"

#include "toolkit/pane/paste_review.h"
#include "toolkit/text_conversion.h"

#include <QLineEdit>
#include <QObject>

#include <algorithm>
#include <utility>

namespace {

bool is_line_end(QChar character) { return character == u'\n' || character == u'\r'; }

/// The text without the line end at its end, and with blanks for tabs.
QString without_last_end(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (!text.isEmpty() && is_line_end(text.back())) {
        text.chop(1);
    }
    return text.replace(u'\t', u' ');
}

/// Looks at each change that the user makes; lives as long as the line edit.
class OneLine : public QObject {
  public:
    explicit OneLine(QLineEdit& edit) : QObject(&edit), edit_(edit) {
        connect(&edit, &QLineEdit::textChanged, this, [this] {
            if (!edit_.isModified()) {  // the program has set it
                before_ = edit_.text();
            }
        });
        connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) { look_at(text); });
    }

  private:
    /// What was put in stands before the cursor, behind what is left of the text before.
    void look_at(const QString& text) {
        const QString before = std::exchange(before_, text);
        const qsizetype cursor = edit_.cursorPosition();
        const qsizetype behind = text.size() - cursor;
        const qsizetype kept = std::clamp<qsizetype>(before.size() - behind, 0, cursor);
        const auto* const head = std::mismatch(text.begin(), text.begin() + kept, before.begin()).first;
        const qsizetype begin = head - text.begin();
        const QString inserted = text.mid(begin, cursor - begin);
        if (!is_being_put_right_ &&
            (inserted.contains(u'\t') || std::ranges::any_of(inserted, is_line_end))) {
            put_right(before, begin, before.size() - begin - behind, inserted);
        }
    }

    /// Takes the change back, so that it is no step of undoing, and puts in what it should have been.
    void put_right(const QString& before, qsizetype begin, qsizetype replaced, const QString& inserted) {
        is_being_put_right_ = true;
        edit_.undo();
        if (edit_.text() != before) {
            edit_.setText(before);
            edit_.setModified(true);
        }
        edit_.setSelection(static_cast<int>(begin), static_cast<int>(replaced));
        if (replaced == 0) {
            edit_.setCursorPosition(static_cast<int>(begin));
        }
        QString line = without_last_end(inserted);
        if (std::ranges::any_of(line, is_line_end)) {
            std::ranges::replace_if(line, is_line_end, QChar(u' '));
            review_paste(&edit_, from_qstring(inserted), "Line ends become blanks here.",
                         [this, line] { edit_.insert(line); });
        } else {
            edit_.insert(line);
        }
        before_ = edit_.text();
        is_being_put_right_ = false;
    }

    QLineEdit& edit_;
    QString before_;
    bool is_being_put_right_ = false;
};

}  // namespace

void make_one_line_of_pastes(QLineEdit& edit) { new OneLine(edit); }
