// SPDX-License-Identifier: MIT
#include "toolkit/tree/shown_label.h"

#include "toolkit/text_conversion.h"

#include <algorithm>

namespace {

/// What `to_qstring` makes of a byte that is no UTF-8.
bool is_bad_byte(char16_t code) { return code >= 0xDC80 && code <= 0xDCFF; }

/// Line ends, marks of direction, and what has no width and joins nothing.
bool is_hidden(char16_t code) {
    return (code >= 0x80 && code < 0xA0) || code == 0xAD || code == 0x061C || code == 0x180E ||
           code == 0x200B || code == 0x200E || code == 0x200F || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2060 && code <= 0x206F) || code == 0xFEFF || (code >= 0xFFF9 && code <= 0xFFFB);
}

QString in_hex(const char* mark, unsigned value, int digits) {
    return QLatin1String(mark) + QString::number(value, 16).rightJustified(digits, u'0');
}

QString shown(QChar character, bool ends_pair) {
    const char16_t code = character.unicode();
    if (code < 0x20 || code == 0x7F) {
        return QLatin1String("^") + QChar(static_cast<char16_t>(code ^ 0x40));
    }
    if (is_bad_byte(code) && !ends_pair) {
        return in_hex("\\x", code & 0xFFu, 2);
    }
    return is_hidden(code) ? in_hex("\\u", code, 4) : QString(character);
}

}  // namespace

QString shown_label(std::string_view label) {
    if (is_plain(label)) {
        return QString::fromLatin1(label.data(), static_cast<qsizetype>(label.size()));
    }
    const QString text = to_qstring(label);
    QString result;
    for (qsizetype at = 0; at < text.size(); ++at) {
        result += shown(text[at], at > 0 && text[at - 1].isHighSurrogate());
    }
    return result;
}

bool is_plain(std::string_view label) {
    return std::ranges::all_of(label, [](char c) { return c >= ' ' && c <= '~'; });
}
