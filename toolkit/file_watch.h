// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/descriptor.h"

#include <memory>
#include <string>

class Frame;
class QSocketNotifier;

/// Watches one file: a procedure is called on the event loop each time a program has written it and closed
/// it. While the frame lives.
class FileWatch {
  public:
    FileWatch(Frame& frame, void (*written)());
    ~FileWatch();
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;

    /// From now on the file that stands there, in place of the last one; none where none does.
    void watch(const std::string& path);

  private:
    void read_events(void (*written)()) const;

    terminal::Descriptor inotify_;
    std::unique_ptr<QSocketNotifier> notifier_;
    int watched_ = -1;
};
