// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What the tool does before it ends, however it was asked to: removes its status file, stops its timers,
/// saves the history where that is wanted. When its user has chosen "Quit", the history is saved by then; the
/// text panes are discarded, and the status files 0 to 20 that no running copy holds and the mail's message
/// file removed.
void clean_up();

/// The same for an end that nobody has chosen, when windows may show nothing more. Returns what went wrong,
/// or an empty text.
std::string clean_up_without_display();
