// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/frame.h"
#include "toolkit/long_work.h"
#include "toolkit/notify.h"

#include <chrono>
#include <optional>
#include <string_view>
#include <utility>

/// What a procedure leaves its window's footer with when it has nothing to say and does not clear it.
inline constexpr std::optional<Message> no_message = std::nullopt;

/// Work that takes no longer is waited for.
inline constexpr std::chrono::milliseconds hardly_noticed{50};

/// The items of work that changes files from the tree, which no other work of its window may take the place
/// of: the tree is to show what has been done.
inline constexpr std::string_view files_done = "Files done";

/// Runs `work` for a window (toolkit/long_work.h) and then calls `done` with its result; the message that
/// `done` gives, if any, is shown in the left footer, which is cleared before. What takes no time is done
/// when this returns, with what that footer shows then.
template <typename Work, typename Done>
[[nodiscard]] Message work_for(Frame& window, std::string_view items_label, Work work, Done done) {
    if (waits_for_work(window, files_done)) {
        return "Files are being changed. Escape stops that.";
    }
    window.set_left_footer("");
    start_work(window, items_label, std::move(work), [&window, done](auto result) {
        if (const std::optional<Message> message = done(std::move(result))) {
            window.set_left_footer(*message);
        }
    });
    await_work(window, hardly_noticed);
    return window.left_footer();
}
