// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/walk.h"
#include "toolkit/notify.h"

#include <string>
#include <string_view>

// What the buttons of the pop-ups that ask for a name have in common. Their messages stand in the pop-up's
// own footer and in the tree browser's.

/// Why a name cannot be given; empty when it can.
Message name_fault(const std::string& name, std::string_view missing);

/// A message for both footers, said at once.
Message told_twice(Message message);

/// Walks the tree's selection for such a pop-up.
Message walk_for(Frame& popup, WalkRule rule, WalkAction action);
