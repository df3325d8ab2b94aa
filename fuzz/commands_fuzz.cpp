// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "settings/command_list_format.h"
#include "shell/fill_template.h"

namespace {

/// Fills a placeholder with itself.
Placeholder itself(std::string_view mark, std::string_view row) {
    return {mark, [mark, row](std::string_view before) -> std::optional<std::string> {
                require(row.starts_with(before), "a placeholder's place");
                return std::string(mark);
            }};
}

}  // namespace

/// The commands file, and the templates in it.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto rows = parse_commands(as_text(data, size));
    if (!rows) {
        return 0;
    }
    for (const std::string& row : *rows) {
        require(without_comment(row).find("/*") == std::string::npos, "a comment is left");
        const Placeholder placeholders[] = {itself("$$$", row), itself("???", row), itself("%%%", row)};
        require(fill_template(row, placeholders, 2) == row,
                "placeholders that stand for themselves change a row");
    }
    return 0;
}
