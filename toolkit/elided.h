// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/text_conversion.h"

#include <QFontMetrics>
#include <QString>

#include <string_view>

/// A label made at run time, for a widget that takes "&" for the mark of a mnemonic, cut to a width in
/// pixels.
inline QString elided(const QFontMetrics& metrics, std::string_view label, int widest) {
    constexpr std::size_t surely_too_long = 1024;  // bytes; measuring a megabyte of text takes its time
    const QString text = visible_text(label.substr(0, surely_too_long));
    return metrics.elidedText(text, Qt::ElideRight, widest).replace(u'&', QStringLiteral("&&"));
}
