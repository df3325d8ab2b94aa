// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <sys/time.h>

class Frame;

/// Arms the one-shot timer of a frame: `notify` is called once on the event loop after `value.it_value`
/// (`it_interval` is ignored). Replaces the frame's pending timer; a null `notify` only cancels it.
void notify_set_itimer_func(Frame& client, void (*notify)(), const itimerval& value);
