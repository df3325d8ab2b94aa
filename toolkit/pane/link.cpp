// SPDX-License-Identifier: MIT
#include "toolkit/pane/link.h"

#include "toolkit/text_conversion.h"

#include <QMimeDatabase>
#include <QProcess>
#include <QUrl>

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
    return scheme != "mailto" && url.host().isEmpty() ? "The address names no host." : std::string();
}

bool open_link(std::string_view address) {
    QProcess opener;
    opener.setProgram(QStringLiteral("xdg-open"));
    opener.setArguments({to_qstring(address)});
    opener.setStandardInputFile(QProcess::nullDevice());
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    return opener.startDetached();
}
