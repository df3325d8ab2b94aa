// SPDX-License-Identifier: MIT
#include "toolkit/pane/frame_pacer.h"

#include <algorithm>

namespace {

constexpr int longest_frame_milliseconds = 100;  // where painting is slow

}  // namespace

FramePacer::FramePacer(std::function<void()> due) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, std::move(due));
}

void FramePacer::request() {
    if (timer_.isActive()) {
        return;
    }
    const qint64 interval =
        std::clamp<qint64>(2 * paint_milliseconds_, frame_milliseconds, longest_frame_milliseconds);
    const qint64 passed = since_frame_.isValid() ? since_frame_.elapsed() : interval;
    timer_.start(static_cast<int>(std::max<qint64>(interval - passed, 0)));
}

void FramePacer::put_off() { timer_.start(frame_milliseconds); }
