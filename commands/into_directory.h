// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/walk.h"

/// When the selected files of the tree can be moved into the selected directory.
WalkRule rule_for_moving();
