// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/descriptor.h"

#include <functional>

class Frame;

/// Calls a procedure on the event loop as soon as something can be read from a descriptor, or its other end
/// is closed, and closes it then. Not called when the frame is gone by that time.
void when_readable(Frame& frame, terminal::Descriptor descriptor,
                   std::function<void(const terminal::Descriptor&)> procedure);
