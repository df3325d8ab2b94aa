// SPDX-License-Identifier: MIT
#include "toolkit/pane/link_notice.h"

#include "toolkit/pane/link.h"
#include "toolkit/text_conversion.h"

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSysInfo>
#include <QUrl>
#include <QVBoxLayout>

namespace {

/// The host stands by itself: in "https://example.org@evil.example/" it is easily misread.
QString question(const std::string& address) {
    const QString host = QUrl(to_qstring(address)).host(QUrl::FullyEncoded);
    return host.isEmpty() ? QStringLiteral("Open this address?")
                          : QStringLiteral("Open this address on %1?").arg(host);
}

QLabel* make_label(const QString& text, QDialog* dialog) {
    auto* label = new QLabel(text, dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPlainTextEdit* make_address_view(const std::string& address, QDialog* dialog) {
    auto* view = new QPlainTextEdit(visible_text(address), dialog);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setWordWrapMode(QTextOption::WrapAnywhere);
    view->setAccessibleName(QStringLiteral("Address"));
    constexpr int lines = 4;
    view->setFixedHeight(lines * view->fontMetrics().lineSpacing() + 2 * view->frameWidth() + 8);
    return view;
}

}  // namespace

void offer_link(QWidget* parent, const std::string& address) {
    auto* dialog = new QDialog(parent->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QStringLiteral("Open Link"));
    dialog->setWindowModality(Qt::WindowModal);
    const QString refusal = to_qstring(link_refusal(address, from_qstring(QSysInfo::machineHostName())));
    auto* label = make_label(refusal.isEmpty() ? question(address) : refusal, dialog);
    auto* view = make_address_view(address, dialog);

    auto* buttons = new QDialogButtonBox(dialog);
    if (refusal.isEmpty()) {
        auto* open = buttons->addButton(QStringLiteral("Open"), QDialogButtonBox::ActionRole);
        open->setDefault(true);
        open->setFocus();
        QObject::connect(open, &QPushButton::clicked, dialog, [=] {
            if (open_link(address)) {
                dialog->accept();
            } else {
                label->setText(QStringLiteral("xdg-open, the program that opens links, can't be started."));
            }
        });
    }
    auto* copy = buttons->addButton(QStringLiteral("Copy Address"), QDialogButtonBox::ActionRole);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    QObject::connect(copy, &QPushButton::clicked, dialog, [=] {
        QGuiApplication::clipboard()->setText(to_qstring(address), QClipboard::Clipboard);
        dialog->reject();
    });
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(dialog, &QDialog::finished, parent, [parent] { parent->setFocus(); });

    auto* layout = new QVBoxLayout(dialog);
    for (QWidget* widget : std::initializer_list<QWidget*>{label, view, buttons}) {
        layout->addWidget(widget);
    }
    constexpr int comfortable_width = 520;
    dialog->resize(comfortable_width, dialog->sizeHint().height());
    dialog->open();
}
