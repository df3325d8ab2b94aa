// SPDX-License-Identifier: MIT
#pragma once

struct ListEvent;

/// Whether an event of a list is the second press of a double click: on the row of the press before, within
/// `drag_threshold` of its place and `multiclick_timeout` of its time. Every press is remembered for the next
/// one, whichever list it was in; other events are no clicks. So each press of a longer series is a double
/// click with the one before it.
bool doubleclick(const ListEvent& event);
