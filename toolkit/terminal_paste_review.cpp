// SPDX-License-Identifier: MIT
#include "toolkit/terminal_paste_review.h"

#include "toolkit/text_conversion.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Enough to see what it is; laying out a huge text would hold up everything else.
constexpr std::size_t shown_bytes = 32 * 1024;

/// Each line with its end shown, so that a line end cannot hide.
QString shown_text(const std::string& text) {
    const std::string_view shown = std::string_view(text).substr(0, shown_bytes);
    QString result;
    std::size_t begin = 0;
    while (begin < shown.size()) {
        const std::size_t end = std::min(shown.find('\n', begin), shown.size());
        const bool ended = end < shown.size();
        result += visible_text(shown.substr(begin, end - begin + (ended ? 1 : 0)));
        if (ended) {
            result += u'\n';
        }
        begin = end + 1;
    }
    if (text.size() > shown.size()) {
        result += QStringLiteral("\n... and %1 bytes more").arg(text.size() - shown.size());
    }
    return result;
}

QString summary(const std::string& text) {
    const auto line_ends = std::count_if(text.begin(), text.end(), [](char c) { return c == '\n'; });
    const QString lines = line_ends == 0 ? QStringLiteral("control characters")
                                         : QStringLiteral("%1 line end%2")
                                               .arg(line_ends)
                                               .arg(line_ends == 1 ? QString() : QStringLiteral("s"));
    return QStringLiteral("The text to be pasted holds %1. A line end may run a command at once.").arg(lines);
}

}  // namespace

void review_paste(QWidget* parent, const std::string& text, std::function<void()> accepted) {
    auto* dialog = new QDialog(parent->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QStringLiteral("Paste"));
    dialog->setWindowModality(Qt::WindowModal);

    auto* label = new QLabel(summary(text), dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* view = new QPlainTextEdit(shown_text(text), dialog);
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
