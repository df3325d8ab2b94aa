// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/pty.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string_view>
#include <thread>

/// Reads what a program writes to its pty into a ring of bounded size, in a thread of its own: the kernel
/// hands out some 4 KB at a time, and while the terminal works on one piece the next ones are fetched.
/// Everything but that thread's own work belongs to the thread that made the reader.
class PtyReader {
  public:
    explicit PtyReader(terminal::Pty& pty);
    ~PtyReader();
    PtyReader(const PtyReader&) = delete;
    PtyReader& operator=(const PtyReader&) = delete;

    /// Readable when something has happened that was not acknowledged: bytes have come, or the program has
    /// closed the terminal.
    [[nodiscard]] int descriptor() const { return call_; }
    void acknowledge();
    /// Makes the descriptor readable again.
    void call_again();

    /// The oldest bytes not yet consumed, as far as they stand in one piece.
    [[nodiscard]] std::string_view unread();
    void consume(std::size_t bytes);
    /// Reads no more than so many bytes ahead (256 KiB at most): what is read has to be worked off before the
    /// answer to a key is seen.
    void set_read_ahead(std::size_t bytes);
    /// Nobody holds the terminal open, and everything was read. It may be opened again.
    [[nodiscard]] bool hung_up();

    /// Ends the thread. Afterwards `fill` reads one piece of what is still there.
    void stop();
    terminal::Pty::ReadState fill();

  private:
    void work();
    /// Until the pty or the end calls; false at the end.
    [[nodiscard]] bool wait_for_bytes(bool hung_up) const;
    [[nodiscard]] bool wait_for_room();
    void call();

    static constexpr std::size_t capacity = 262'144;

    terminal::Pty& pty_;
    int call_;
    int stop_;
    std::unique_ptr<char[]> ring_ = std::make_unique<char[]>(capacity);
    std::mutex mutex_;  ///< for all below
    std::condition_variable room_;
    std::size_t begin_ = 0;  ///< of what is unread, counted on and on
    std::size_t end_ = 0;
    std::size_t read_ahead_ = capacity;
    bool called_ = false;
    bool hung_up_ = false;
    bool stopping_ = false;
    std::thread thread_;
};
