// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/window_work.h"
#include "toolkit/notify.h"
#include "ui/file_list_browser.h"

#include <chrono>
#include <optional>
#include <string_view>
#include <utility>

// Long work of the "File List Browser". What asks a disk or a server goes through here.

/// The items of a copy, which no other work of the browser may take the place of.
inline constexpr std::string_view copied_bytes = "Bytes copied";

/// `work_for` the browser. While it is copying a file it does no other work, and says so.
template <typename Work, typename Done>
[[nodiscard]] Message work_in_browser(std::string_view items_label, Work work, Done done) {
    if (waits_for_work(file_list_browser(), copied_bytes)) {
        return "A file is being copied. Escape stops it.";
    }
    return work_for(file_list_browser(), items_label, std::move(work), std::move(done));
}

/// The same for work on one file that cannot be broken off.
template <typename Work, typename Done>
[[nodiscard]] Message ask_disk(Work work, Done done) {
    return work_in_browser(
        "Files examined", [work](Progress& /*progress*/) { return work(); }, std::move(done));
}
