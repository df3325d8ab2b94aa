// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/progress.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>

class Frame;

// Work that may take long beside the event loop: a large copy, a directory on a server that does not answer.
//
// It runs in a thread of its own and touches no window. Meanwhile its frame is busy, the right footer tells
// how many items are done, and Escape in the frame stops the work after the current item; where that does not
// end, a second Escape gives up waiting for it. A frame waits for one piece of work at a time: the next one
// takes its place.

/// Starts work for a frame. When it is over, `done` is called from the event loop. It is not called when
/// nobody waits any more: the user has given up, other work was started, or the frame is gone. The work is
/// asked to stop then.
void start_work(Frame& frame, std::string_view items_label, std::function<void(Progress&)> work,
                std::function<void()> done);

/// The same for work with a result, which `done` is called with.
template <typename Work, typename Done>
requires(!std::is_void_v<std::invoke_result_t<Work, Progress&>>) void start_work(Frame& frame,
                                                                                 std::string_view items_label,
                                                                                 Work work, Done done) {
    auto result = std::make_shared<std::invoke_result_t<Work, Progress&>>();
    start_work(frame, items_label,
               std::function<void(Progress&)>([=](Progress& progress) { *result = work(progress); }),
               std::function<void()>([=] { done(std::move(*result)); }));
}

/// Waits so long for a frame's work. What is over by then is done before this returns: most work on a disk
/// takes no time worth a waiting pointer, and what its user does next finds it done.
void await_work(Frame& frame, std::chrono::milliseconds limit);

/// Whether a frame waits for work with items of that label.
[[nodiscard]] bool waits_for_work(const Frame& frame, std::string_view items_label);

/// Waits until all threads that were asked to stop have ended, but no longer than that.
void await_stopped_work(std::chrono::milliseconds limit);
