// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <utility>

/// How far a piece of work has come, and whether it is to stop: what the thread that works and the one that
/// waits for it share.
class Progress {
  public:
    Progress() = default;
    /// `tell` is called from the working thread when there is something to tell, and then not before `told`.
    explicit Progress(std::function<void()> tell) : tell_(std::move(tell)) {}

    // The working thread.

    [[nodiscard]] bool stopping() const { return stop_.load(std::memory_order_relaxed); }
    /// Another item is done, or so many; whether to go on with the next.
    [[nodiscard]] bool next(std::int64_t items = 1) {
        items_.fetch_add(items, std::memory_order_relaxed);
        if (tell_ && !telling_.load(std::memory_order_relaxed) && !telling_.exchange(true)) {
            tell_();
        }
        return !stopping();
    }

    // The waiting one.

    /// Asks the work to stop after the current item.
    void stop() { stop_ = true; }
    [[nodiscard]] std::int64_t items() const { return items_; }
    void told() { telling_ = false; }

  private:
    std::function<void()> tell_;
    std::atomic<bool> telling_ = false;
    std::atomic<bool> stop_ = false;
    std::atomic<std::int64_t> items_ = 0;
};
