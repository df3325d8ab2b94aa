// SPDX-License-Identifier: MIT
#include "toolkit/xsettings.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace {

enum Type : std::uint8_t { number, text, colour };

/// Takes numbers and texts off the front, in the byte order that the first byte tells.
class Reader {
  public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {
        most_significant_first_ = !bytes.empty() && bytes.front() == 1;
    }

    template <typename Number>
    std::optional<Number> take() {
        if (bytes_.size() - at_ < sizeof(Number)) {
            return std::nullopt;
        }
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i) {
            const std::size_t byte = at_ + (most_significant_first_ ? i : sizeof(Number) - 1 - i);
            value = value << 8U | static_cast<unsigned char>(bytes_[byte]);
        }
        at_ += sizeof(Number);
        return static_cast<Number>(value);
    }
    /// A text and what fills it up to four bytes.
    std::optional<std::string_view> take_text(std::size_t length) {
        if (bytes_.size() - at_ < length) {
            return std::nullopt;
        }
        const std::string_view text = bytes_.substr(at_, length);
        at_ = std::min(bytes_.size(), at_ + (length + 3) / 4 * 4);
        return text;
    }

  private:
    std::string_view bytes_;
    std::size_t at_ = 0;
    bool most_significant_first_ = false;
};

/// The value behind a setting's name; empty for a colour, nothing where the property ends.
std::optional<std::string> take_value(Reader& reader, std::uint8_t type) {
    const auto first = reader.take<std::uint32_t>();  // the number, the text's length, half of the colour
    if (!first) {
        return std::nullopt;
    }
    switch (type) {
        case number:
            return std::to_string(static_cast<std::int32_t>(*first));
        case text: {
            const auto value = reader.take_text(*first);
            return value ? std::optional(std::string(*value)) : std::nullopt;
        }
        case colour:
            return reader.take<std::uint32_t>() ? std::optional(std::string()) : std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace

XSettings parse_xsettings(std::string_view property) {
    XSettings settings;
    Reader reader(property);
    (void)reader.take<std::uint32_t>();  // the byte order
    (void)reader.take<std::uint32_t>();  // a serial number
    const std::uint32_t count = reader.take<std::uint32_t>().value_or(0);
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto type = reader.take<std::uint8_t>();
        (void)reader.take<std::uint8_t>();
        const auto length = reader.take<std::uint16_t>();
        const auto name = length ? reader.take_text(*length) : std::nullopt;
        const auto serial = reader.take<std::uint32_t>();
        if (!name || !serial) {
            break;
        }
        std::optional<std::string> value = take_value(reader, *type);
        if (!value) {
            break;
        }
        if (*type != colour) {
            settings.insert_or_assign(std::string(*name), std::move(*value));
        }
    }
    return settings;
}
