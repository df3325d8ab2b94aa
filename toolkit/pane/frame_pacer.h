// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

/// How long a frame is shown, and so how long one may take.
inline constexpr int frame_milliseconds = 16;

/// Says when the next frame is due: at most once a display frame, and less often where painting takes more
/// than half of the time, so that the rest is for reading what comes.
class FramePacer {
  public:
    /// `due` is called from the event loop.
    explicit FramePacer(std::function<void()> due);

    /// There is something new to paint.
    void request();
    /// Whether something new has not been painted yet.
    [[nodiscard]] bool pending() const { return timer_.isActive(); }
    /// What is new is not to be seen yet.
    void put_off();
    /// Round the painting of a frame. Only such as paint something count: a key typed must not put its echo
    /// off.
    void painting_begins() { since_frame_.start(); }
    void painting_ends() { paint_milliseconds_ = since_frame_.elapsed(); }

  private:
    QTimer timer_;
    QElapsedTimer since_frame_;
    qint64 paint_milliseconds_ = 0;  ///< what the last frame took
};
