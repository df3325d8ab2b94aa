// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/tree/tree_canvas.h"

/// Where a scroll bar's view starts, in its units, so that a position in pixels stands in the middle. The
/// upper limit is a number of pixels, as that of the bar itself is a number of units: the bar has the last
/// word.
int centred_start(int position, const TreeCanvas::Scrolling& bar, int pixels_per_unit);

/// Where it starts after a step of so many units, within what there is.
int stepped_start(const TreeCanvas::Scrolling& bar, int step);
