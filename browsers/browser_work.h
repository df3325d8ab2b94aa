// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/long_work.h"
#include "toolkit/notify.h"
#include "ui/file_list_browser.h"

#include <chrono>
#include <optional>
#include <string_view>
#include <utility>

// Long work of the "File List Browser". What asks a disk or a server goes through here.

/// What a procedure leaves its window's footer with when it has nothing to say and does not clear it.
inline constexpr std::optional<Message> no_message = std::nullopt;

/// The items of a copy, which no other work of the browser may take the place of.
inline constexpr std::string_view copied_bytes = "Bytes copied";

/// Runs `work` for the browser and then calls `done` with its result; the message that `done` gives, if any,
/// is shown in the left footer, which is cleared before. What takes no time is done when this returns, with
/// what that footer shows then. While the browser is copying a file it does no other work, and says so.
template <typename Work, typename Done>
[[nodiscard]] Message work_in_browser(std::string_view items_label, Work work, Done done) {
    if (waits_for_work(file_list_browser(), copied_bytes)) {
        return "A file is being copied. Escape stops it.";
    }
    file_list_browser().set_left_footer("");
    start_work(file_list_browser(), items_label, std::move(work), [done](auto result) {
        if (const std::optional<Message> message = done(std::move(result))) {
            file_list_browser().set_left_footer(*message);
        }
    });
    constexpr std::chrono::milliseconds hardly_noticed{50};
    await_work(file_list_browser(), hardly_noticed);
    return file_list_browser().left_footer();
}

/// The same for work on one file that cannot be broken off.
template <typename Work, typename Done>
[[nodiscard]] Message ask_disk(Work work, Done done) {
    return work_in_browser(
        "Files examined", [work](Progress& /*progress*/) { return work(); }, std::move(done));
}
