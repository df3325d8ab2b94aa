// SPDX-License-Identifier: MIT
#include "terminal/text.h"
#include "terminal/utf8.h"

#include <algorithm>
#include <vector>

#include <utf8proc.h>

namespace terminal {

namespace {

char32_t fold(char32_t character) {
    if (character < 0x80) {
        return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
    }
    return static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(character)));
}

/// Valid UTF-8 in small letters, character by character.
std::string fold(std::string_view text) {
    std::string out;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at < end) {
        append_utf8(fold(take_utf8(at)), out);
    }
    return out;
}

/// What was asked for need not be valid UTF-8.
std::string valid(std::string_view text) {
    std::string out;
    Utf8Decoder decoder;
    for (std::size_t i = 0; i < text.size();) {
        const auto step = decoder.push(static_cast<std::uint8_t>(text[i]));
        if (step == Utf8Decoder::Step::character) {
            append_utf8(decoder.character(), out);
        } else if (step != Utf8Decoder::Step::incomplete) {
            append_utf8(replacement_character, out);
        }
        i += step == Utf8Decoder::Step::invalid_before ? 0 : 1;
    }
    return out;
}

/// The text of one logical line as it is searched, with where each row begins in it.
class SearchLine {
  public:
    SearchLine(const Terminal& terminal, LetterCase letter_case)
        : terminal_(terminal), letter_case_(letter_case) {}

    /// Reads the line that `row` belongs to.
    void read(RowId row) {
        text_.clear();
        rows_.clear();
        while (row > terminal_.first_row() && terminal_.row(row - 1).wrapped) {
            --row;
        }
        first_ = row;
        for (bool wrapped = true; wrapped && row < terminal_.end_row(); ++row) {
            const Row current = terminal_.row(row);
            rows_.push_back(text_.size());
            for (const Cell& cell : current.cells) {
                append(cell, text_);
            }
            wrapped = current.wrapped;
        }
    }
    [[nodiscard]] RowId first() const { return first_; }
    [[nodiscard]] RowId end() const { return first_ + std::ssize(rows_); }
    [[nodiscard]] std::string_view text() const { return text_; }

    /// Where a position is in the text.
    [[nodiscard]] std::size_t offset(Position position) const {
        const std::size_t begin = rows_[static_cast<std::size_t>(position.row - first_)];
        std::string before;
        const Row row = terminal_.row(position.row);
        const auto count = std::min<std::ptrdiff_t>(std::max(position.column, 0), std::ssize(row.cells));
        std::ranges::for_each(row.cells.first(static_cast<std::size_t>(count)),
                              [&](const Cell& cell) { append(cell, before); });
        return begin + before.size();
    }
    /// The position whose character holds the byte at `offset`, and the one behind that character.
    [[nodiscard]] Range character_at(std::size_t offset) const {
        const auto after = std::ranges::upper_bound(rows_, offset);
        const auto index = static_cast<std::size_t>(after - rows_.begin()) - 1;
        const RowId id = first_ + static_cast<RowId>(index);
        const Row row = terminal_.row(id);
        std::string before;
        int column = 0;
        for (;; ++column) {
            const Cell& cell = row.cells[static_cast<std::size_t>(column)];
            append(cell, before);
            if (rows_[index] + before.size() > offset) {
                return {{id, column}, {id, column + (cell.is_wide() ? 2 : 1)}};
            }
        }
    }

  private:
    void append(const Cell& cell, std::string& out) const {
        if (cell.glyph != 0 && cell.glyph < 0x80) {
            const char32_t character = cell.glyph;
            out += static_cast<char>(letter_case_ == LetterCase::ignored ? fold(character) : character);
            return;
        }
        const std::size_t begin = out.size();
        terminal_.append_text(cell, out);
        if (letter_case_ == LetterCase::ignored) {
            const std::string folded = fold(std::string_view(out).substr(begin));
            out.resize(begin);
            out += folded;
        }
    }

    const Terminal& terminal_;
    LetterCase letter_case_;
    RowId first_ = 0;
    std::string text_;
    std::vector<std::size_t> rows_;  // where each row begins in `text_`
};

Range found(const SearchLine& line, std::size_t offset, std::size_t size) {
    return {line.character_at(offset).begin, line.character_at(offset + size - 1).end};
}

std::optional<Range> find_forward(const Terminal& terminal, SearchLine& line, std::string_view needle,
                                  Position from) {
    const RowId first = std::max(from.row, terminal.first_row());
    for (RowId row = first; row < terminal.end_row(); row = line.end()) {
        line.read(row);
        std::size_t offset = line.text().find(needle);
        if (row == first && from.row == first && from.column >= 0) {
            offset = line.text().find(needle, line.offset({from.row, from.column + 1}));
        }
        if (offset != std::string_view::npos) {
            return found(line, offset, needle.size());
        }
    }
    return std::nullopt;
}

std::optional<Range> find_backward(const Terminal& terminal, SearchLine& line, std::string_view needle,
                                   Position from) {
    const RowId last = std::min(from.row, terminal.end_row() - 1);
    for (RowId row = last; row >= terminal.first_row(); row = line.first() - 1) {
        line.read(row);
        std::size_t end = line.text().size();
        if (row == last && from.row == last) {
            end = line.offset(from);
            if (end == 0) {
                continue;
            }
            --end;
        }
        const std::size_t offset = line.text().rfind(needle, end);
        if (offset != std::string_view::npos) {
            return found(line, offset, needle.size());
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<Range> find(const Terminal& terminal, std::string_view needle, Position from,
                          SearchDirection direction, LetterCase letter_case) {
    const std::string text = letter_case == LetterCase::ignored ? fold(valid(needle)) : valid(needle);
    if (text.empty()) {
        return std::nullopt;
    }
    SearchLine line(terminal, letter_case);
    return direction == SearchDirection::forward ? find_forward(terminal, line, text, from)
                                                 : find_backward(terminal, line, text, from);
}

}  // namespace terminal
