// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <thread>

/// How long a test waits for what must happen, unless it says otherwise: long enough for a loaded machine,
/// since only a failing test ever waits that long.
inline constexpr std::chrono::seconds patience{20};

/// Asks until the condition holds or the deadline has passed; whether it held. Between two questions the
/// caller's `idle` runs: for a test that shares its thread with an event loop, one turn of that loop.
template <typename Condition, typename Idle>
[[nodiscard]] bool wait_until(Condition condition, std::chrono::milliseconds deadline, Idle idle) {
    const auto end = std::chrono::steady_clock::now() + deadline;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        idle();
    }
    return true;
}

template <typename Condition>
[[nodiscard]] bool wait_until(Condition condition, std::chrono::milliseconds deadline = patience) {
    return wait_until(condition, deadline, [] { std::this_thread::sleep_for(std::chrono::milliseconds{5}); });
}
