// SPDX-License-Identifier: MIT
#include "shell/command_line.h"

#include <optional>
#include <utility>

namespace {

std::string with_peg(std::string_view name) {
    return fmt::format("{}{}", name, name.find('@') == std::string_view::npos ? "" : "@");
}

}  // namespace

CommandLine& CommandLine::add(Kind kind, std::string text) {
    pieces_.push_back({kind, std::move(text)});
    return *this;
}

CommandLine& CommandLine::word(Words words) { return add(Kind::words, std::string(words.text())); }
CommandLine& CommandLine::raw(std::string_view text) { return add(Kind::words, std::string(text)); }
CommandLine& CommandLine::path(std::string_view name) { return add(Kind::path, std::string(name)); }
CommandLine& CommandLine::double_quoted(std::string_view name) {
    return add(Kind::double_quoted, std::string(name));
}
CommandLine& CommandLine::escaped(std::string_view name) { return add(Kind::escaped, std::string(name)); }
CommandLine& CommandLine::peg(std::string_view name) { return path(with_peg(name)); }
CommandLine& CommandLine::double_quoted_peg(std::string_view name) { return double_quoted(with_peg(name)); }
CommandLine& CommandLine::text(std::string_view value) { return add(Kind::text, std::string(value)); }
CommandLine& CommandLine::double_quoted_text(std::string_view value) {
    return add(Kind::double_quoted_text, std::string(value));
}
CommandLine& CommandLine::host(std::string_view name) { return add(Kind::host, std::string(name)); }

CommandLine& CommandLine::in_background() {
    in_background_ = true;
    return *this;
}

CommandLine& CommandLine::behind(Words program) {
    behind_ = program.text();
    return *this;
}

CommandLine& CommandLine::behind_line_feed() {
    behind_line_feed_ = true;
    return *this;
}

template <typename Write>
ComposedLine CommandLine::compose(Write write) const {
    ComposedLine line;
    const auto append = [&line](std::string_view text) {
        line.text.append(line.text.empty() ? "" : " ").append(text);
    };
    for (const Piece& piece : pieces_) {
        if (piece.kind == Kind::words) {
            append(piece.text);
        } else if (piece.kind == Kind::host) {
            if (!is_host_name(piece.text)) {
                return {.refusal = fmt::format("Illegal host name: {}", piece.text)};
            }
            append(piece.text);
        } else if (const std::optional<std::string> word = write(piece)) {
            append(*word);
        } else {
            return {.refusal = fmt::format("Name can't be typed into the shell: {}", piece.text)};
        }
    }
    if (in_background_) {
        append("&");
    }
    return line;
}

ComposedLine CommandLine::typed_into(const Shell& shell) const {
    return compose([&shell](const Piece& piece) {
        switch (piece.kind) {
            case Kind::double_quoted:
                return double_quoted_word(piece.text, shell);
            case Kind::escaped:
                return escaped_word(piece.text, shell);
            case Kind::text:
                return shell_text(piece.text, shell);
            case Kind::double_quoted_text:
                return ::double_quoted_text(piece.text, shell);
            default:
                return shell_word(piece.text, shell);
        }
    });
}

ComposedLine CommandLine::read_by(ShellFamily shell) const {
    return compose([shell](const Piece& piece) {
        switch (piece.kind) {
            case Kind::double_quoted:
                return std::optional(script_double_quoted(piece.text, shell));
            case Kind::text:
            case Kind::double_quoted_text:
                return std::optional(script_text(piece.text, shell));
            default:
                return std::optional(script_word(piece.text, shell));
        }
    });
}
