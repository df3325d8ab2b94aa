// SPDX-License-Identifier: MIT
#include "toolkit/selection.h"

#include "toolkit/text_conversion.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

bool selection_inquire() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData(QClipboard::Selection);
    return data != nullptr && data->hasText();
}

std::optional<std::string> selection_ask() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData(QClipboard::Selection);
    if (data == nullptr || !data->hasText()) {
        return std::nullopt;
    }
    return from_qstring(data->text());
}

void copy_to_clipboard(const std::string& text) { QGuiApplication::clipboard()->setText(to_qstring(text)); }
