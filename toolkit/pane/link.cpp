// SPDX-License-Identifier: MIT
#include "toolkit/pane/link.h"

#include "toolkit/text_conversion.h"

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeDatabase>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSysInfo>
#include <QUrl>
#include <QUrlQuery>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <filesystem>

#include <fmt/format.h>

namespace {

constexpr std::array<std::string_view, 3> schemes{"http", "https", "mailto"};

/// Kinds of documents that the desktop shows or plays. Others may be given to an interpreter or an installer.
constexpr std::array<std::string_view, 4> document_classes{"text/", "image/", "audio/", "video/"};
constexpr std::array<std::string_view, 3> document_types{"application/pdf", "application/json",
                                                         "application/xml"};

bool is_document(const std::string& path) {
    const std::string type = from_qstring(QMimeDatabase().mimeTypeForFile(to_qstring(path)).name());
    return std::any_of(document_classes.begin(), document_classes.end(),
                       [&](std::string_view start) { return type.starts_with(start); }) ||
           std::find(document_types.begin(), document_types.end(), type) != document_types.end();
}

/// Mail programs know further fields than RFC 6068's, such as "attach", which names a file to be sent.
bool only_words_a_mail(const QUrl& url) {
    constexpr std::array<std::string_view, 5> fields{"to", "cc", "bcc", "subject", "body"};
    const auto items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    return std::all_of(items.begin(), items.end(), [&](const auto& item) {
        return std::ranges::find(fields, from_qstring(item.first.toLower())) != fields.end();
    });
}

std::string file_refusal(const QUrl& url, std::string_view host) {
    const std::string named = from_qstring(url.host());
    const std::string own = from_qstring(to_qstring(host).toLower());
    if (!named.empty() && named != "localhost" && named != own) {
        return fmt::format("The file is on another host, {}.", named);
    }
    namespace fs = std::filesystem;
    const std::string path = from_qstring(url.path(QUrl::FullyDecoded));
    const auto is_control = [](char c) { return static_cast<unsigned char>(c) < ' '; };
    if (std::any_of(path.begin(), path.end(), is_control)) {
        return "The file's name holds control characters.";
    }
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) {
        return "There is no such file.";
    }
    if (fs::is_directory(status)) {
        return {};
    }
    constexpr fs::perms executable = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    const bool may_run = (status.permissions() & executable) != fs::perms::none;
    return fs::is_regular_file(status) && !may_run && is_document(path)
               ? std::string()
               : "The file is no document, and opening it might start a program.";
}

/// Gives the address to the desktop's own opener (xdg-open), as one argument and without a shell. What
/// becomes of it is not watched. False when the opener cannot be started.
bool open_link(std::string_view address) {
    QProcess opener;
    opener.setProgram(QStringLiteral("xdg-open"));
    opener.setArguments({to_qstring(address)});
    opener.setStandardInputFile(QProcess::nullDevice());
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    return opener.startDetached();
}

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

std::string link_refusal(std::string_view address, std::string_view host) {
    const QUrl url(to_qstring(address), QUrl::StrictMode);
    const std::string scheme = from_qstring(url.scheme());
    if (!url.isValid() || scheme.empty()) {
        return "This is no valid address.";
    }
    if (scheme == "file") {
        return file_refusal(url, host);
    }
    if (std::find(schemes.begin(), schemes.end(), scheme) == schemes.end()) {
        return fmt::format("Links to \"{}:\" are not opened: they could start a program.", scheme);
    }
    if (scheme == "mailto") {
        return only_words_a_mail(url) ? std::string()
                                      : "The mail would hold more than text: it could take a file along.";
    }
    return url.host().isEmpty() ? "The address names no host." : std::string();
}

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
