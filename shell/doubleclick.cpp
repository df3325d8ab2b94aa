// SPDX-License-Identifier: MIT
#include "shell/doubleclick.h"

#include "shell/process.h"
#include "toolkit/scrolling_list.h"

namespace {

/// Right and lower edge lie outside.
struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] bool holds(int at_x, int at_y) const {
        return at_x >= x && at_x < x + width && at_y >= y && at_y < y + height;
    }
};

// The last press.
timeval last_select_time{};
Area last_area;
int last_row = -1;

bool soon_after_last(const timeval& time) {
    constexpr long microseconds_per_second = 1'000'000;
    const auto seconds = time.tv_sec - last_select_time.tv_sec;
    const auto elapsed = time.tv_usec - last_select_time.tv_usec + seconds * microseconds_per_second;
    return (seconds == 0 || seconds == 1) && elapsed < multiclick_timeout;
}

}  // namespace

bool doubleclick(const ListEvent& event) {
    if (event.kind != ListEvent::Kind::press) {
        return false;
    }
    const bool is_double =
        last_area.holds(event.x, event.y) && soon_after_last(event.time) && event.row == last_row;
    last_select_time = event.time;
    last_area = {.x = event.x - drag_threshold,
                 .y = event.y - drag_threshold,
                 .width = 2 * drag_threshold,
                 .height = 2 * drag_threshold};
    last_row = event.row;
    return is_double;
}
