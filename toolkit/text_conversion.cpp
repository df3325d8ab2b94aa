// SPDX-License-Identifier: MIT
#include "toolkit/text_conversion.h"

#include <QStringDecoder>
#include <QStringList>

namespace {

constexpr char16_t escape_base = 0xDC00;

bool is_escaped_byte(QChar c) { return c.unicode() >= 0xDC80 && c.unicode() <= 0xDCFF; }

/// Length of the valid UTF-8 sequence at the start of `text`, 0 when there is none (Unicode, table 3-7).
std::size_t sequence_length(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto continues = [&](std::size_t i, unsigned low = 0x80, unsigned high = 0xBF) {
        return i < text.size() && byte(i) >= low && byte(i) <= high;
    };
    const unsigned first = byte(0);
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return continues(1) ? 2 : 0;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        const unsigned low = first == 0xE0 ? 0xA0 : 0x80;
        const unsigned high = first == 0xED ? 0x9F : 0xBF;
        return continues(1, low, high) && continues(2) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        const unsigned low = first == 0xF0 ? 0x90 : 0x80;
        const unsigned high = first == 0xF4 ? 0x8F : 0xBF;
        return continues(1, low, high) && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
}

}  // namespace

QString to_qstring(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    std::size_t valid_from = 0;
    std::size_t at = 0;
    // Not fromUtf8(), which drops a byte order mark.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const auto take_valid = [&] {
        result += decode(QByteArrayView(text.data() + valid_from, static_cast<qsizetype>(at - valid_from)));
    };
    while (at < text.size()) {
        const std::size_t length = sequence_length(text.substr(at));
        if (length != 0) {
            at += length;
            continue;
        }
        take_valid();
        result += QChar(static_cast<char16_t>(escape_base + static_cast<unsigned char>(text[at])));
        valid_from = ++at;
    }
    take_valid();
    return result;
}

std::string from_qstring(const QString& text) {
    std::string result;
    qsizetype valid_from = 0;
    const auto take_valid = [&](qsizetype end) {
        const QByteArray bytes = QStringView(text).mid(valid_from, end - valid_from).toUtf8();
        result.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool paired = at > 0 && text[at - 1].isHighSurrogate();
        if (!is_escaped_byte(text[at]) || paired) {
            continue;
        }
        take_valid(at);
        result += static_cast<char>(text[at].unicode() - escape_base);
        valid_from = at + 1;
    }
    take_valid(text.size());
    return result;
}

QString visible_controls(QString text) {
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if (code < 0x20) {
            character = QChar(static_cast<char16_t>(0x2400 + code));
        } else if (code == 0x7F) {
            character = QChar(u'\u2421');
        }
    }
    return text;
}

QString visible_text(std::string_view text) {
    QString result = visible_controls(to_qstring(text));
    for (qsizetype at = 0; at < result.size(); ++at) {
        const char16_t code = result[at].unicode();
        const bool paired = at > 0 && result[at - 1].isHighSurrogate();
        if ((code > 0x7F && code < 0xA0) || (is_escaped_byte(result[at]) && !paired)) {
            result[at] = QChar(QChar::ReplacementCharacter);
        }
    }
    return result;
}

QString plain_tool_tip(std::string_view text) {
    return text.empty() ? QString() : plain_tool_tip(std::vector{std::string(text)});
}

QString plain_tool_tip(const std::vector<std::string>& lines) {
    QStringList shown;
    for (const std::string& line : lines) {
        shown += visible_text(line).toHtmlEscaped();
    }
    return shown.isEmpty() ? QString()
                           : QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>")
                                 .arg(shown.join(QStringLiteral("<br>")));
}

QString without_mnemonic(std::string_view label) {
    return visible_text(label).replace(u'&', QStringLiteral("&&"));
}
