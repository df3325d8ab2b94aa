// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <sys/time.h>

class Frame;
class QTimer;

/// Arms the one-shot timer of a frame: `notify` is called once on the event loop after `value.it_value`
/// (`it_interval` is ignored). Replaces the frame's pending timer; a null `notify` only cancels it.
void notify_set_itimer_func(Frame& client, void (*notify)(), const itimerval& value);

/// Calls a procedure on the event loop every so often, while it is switched on and its frame lives.
class Ticker {
  public:
    Ticker(Frame& frame, int milliseconds, void (*notify)());
    void set_on(bool on);

  private:
    QTimer* timer_;
};
