// SPDX-License-Identifier: MIT
#include "browsers/tree/centring.h"

#include <algorithm>

int centred_start(int position, const TreeCanvas::Scrolling& bar, int pixels_per_unit) {
    const int view_length = bar.view_length * pixels_per_unit;
    const int object_length = bar.object_length * pixels_per_unit;
    const int start = (position - view_length / 2) / pixels_per_unit;
    return std::max(std::min(start, object_length - view_length), 0);
}

int stepped_start(const TreeCanvas::Scrolling& bar, int step) {
    return std::clamp(bar.view_start + step, 0, std::max(bar.object_length - bar.view_length, 0));
}
