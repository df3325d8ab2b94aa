// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "settings/user_menu_format.h"

#include <algorithm>

namespace {

bool is_line(std::string_view text) {
    return text.size() <= 1023 && text.find_first_of(std::string_view("\n\0", 2)) == std::string_view::npos;
}

}  // namespace

/// The menu definition file.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view contents = as_text(data, size);
    const UserMenu menu = parse_user_menu(contents);
    require(menu.result == 1 || menu.result == 2 || (menu.result == -1 && menu.items.empty()), "a result");
    require(std::ssize(menu.items) <= std::ranges::count(contents, '\n') + std::ssize(contents) / 1023 + 1,
            "more items than lines");
    for (const UserMenuItem& item : menu.items) {
        require(is_line(item.label) && is_line(item.command), "an item is more than a line");
        require(!item.is_title || (!item.label.empty() && item.command.empty()),
                "a title that could be chosen");
    }
    require(!menu.button_label || (!menu.button_label->empty() && is_line(*menu.button_label)),
            "a button's label");
    return 0;
}
