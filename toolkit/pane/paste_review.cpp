// SPDX-License-Identifier: MIT
#include "toolkit/pane/paste_review.h"

#include "terminal/input.h"
#include "toolkit/text_conversion.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

// Enough to see what it is; laying out a huge text would hold up everything else.
constexpr std::size_t shown_bytes = 32'768;

/// What stands for a character that is not seen: "^C" as the terminal would echo it, an arrow for a line end,
/// "<U+202E>" for what turns the text round it.
QString picture(char32_t character) {
    if (character == U'\n' || character == U'\r') {
        return QStringLiteral("\u21b5");
    }
    if (character < 0x20 || character == 0x7f) {
        return QStringLiteral("^%1").arg(QChar(static_cast<char16_t>(character ^ 0x40)));
    }
    return character < 0xa0 ? QStringLiteral("<%1>").arg(character, 2, 16, QChar(u'0'))
                            : QStringLiteral("<U+%1>").arg(QString::number(character, 16).toUpper());
}

bool is_control(char32_t c) { return c < 0x20 || (c >= 0x7f && c < 0xa0); }

/// Fills the view with the beginning of the text. Pictures are marked by colour, so that they cannot be
/// mistaken for the characters they are made of.
void show_text(QPlainTextEdit& view, const std::string& text) {
    QTextCharFormat mark;
    mark.setBackground(QColor(0xff, 0xd9, 0x80));
    mark.setForeground(Qt::black);
    QTextCursor cursor = view.textCursor();
    QString plain;
    for (const uint character : to_qstring(std::string_view(text).substr(0, shown_bytes)).toUcs4()) {
        if (!is_control(character) && !terminal::is_unseen(character)) {
            plain += QChar::fromUcs4(character);
            continue;
        }
        cursor.insertText(std::exchange(plain, {}), QTextCharFormat());
        cursor.insertText(picture(character), mark);
        plain = character == U'\n' ? QStringLiteral("\n") : QString();
    }
    cursor.insertText(plain, QTextCharFormat());
    if (text.size() > shown_bytes) {
        cursor.insertText(QStringLiteral("\n... and %1 bytes more").arg(text.size() - shown_bytes), mark);
    }
    view.moveCursor(QTextCursor::Start);
}

QString summary(const std::string& text, std::string_view outcome) {
    const auto line_ends = std::count_if(text.begin(), text.end(), [](char c) { return c == '\n'; });
    const QString held = line_ends == 0 ? QStringLiteral("characters that are not seen")
                                        : QStringLiteral("%1 line end%2")
                                              .arg(line_ends)
                                              .arg(line_ends == 1 ? QString() : QStringLiteral("s"));
    return QStringLiteral("The text to be pasted holds %1. %2").arg(held, to_qstring(outcome));
}

}  // namespace

void review_paste(QWidget* parent, const std::string& text, std::string_view outcome,
                  std::function<void()> accepted) {
    auto* dialog = new QDialog(parent->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QStringLiteral("Paste"));
    dialog->setWindowModality(Qt::WindowModal);

    auto* label = new QLabel(summary(text, outcome), dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* view = new QPlainTextEdit(dialog);
    show_text(*view, text);
    view->setReadOnly(true);
    view->setAccessibleName(QStringLiteral("Text to be pasted"));
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    view->setTabChangesFocus(true);
    auto* buttons = new QDialogButtonBox(dialog);
    auto* paste = buttons->addButton(QStringLiteral("Paste"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    paste->setDefault(true);
    paste->setFocus();

    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(label);
    layout->addWidget(view, 1);
    layout->addWidget(buttons);
    constexpr QSize comfortable(560, 320);
    dialog->resize(comfortable);

    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(dialog, &QDialog::accepted, parent, std::move(accepted));
    QObject::connect(dialog, &QDialog::finished, parent, [parent] { parent->setFocus(); });
    dialog->open();
}
