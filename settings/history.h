// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class ScrollingList;

// The command history. The list of the "Command History Manager" is its store: there is no other copy.

/// Appends a history file's commands to a list, but for duplicates that the list refuses, and sets "Position"
/// to the number of rows. 1 when they were loaded, 0 when the file cannot be read, -1 when it is no history
/// file; nothing has changed then.
int load_history(ScrollingList& list, const std::string& path);
/// Takes in what other copies of the tool have filed, then writes all rows to a file that only its owner may
/// read: 1 when the file has been replaced, 0 when it has not (the old one is whole then, and the Message
/// Board has the reason).
int save_history(ScrollingList& list, const std::string& path);
/// Deletes every row. The history file is then not saved automatically before it has been loaded or saved.
void clear_history(ScrollingList& list);

/// The items of the history menu: an empty one, then at most `count` commands, newest first. Nothing when the
/// list is empty.
std::optional<std::vector<std::string>> add_history_to_menu(const ScrollingList& list, int count);

/// Where the history file is, as "History File Stored" says now.
std::string history_path();

/// Files a command that has been sent to the shell, as "Command History Setup" says. To be called without the
/// command's line feed. A file that cannot be saved is not reported here; one that must not be replaced is
/// left alone.
void record_command(const std::string& command);

/// Takes over "Insert Duplicates", and loads the history file. What is wrong with the file goes to the
/// Message Board.
void load_history_at_startup();
/// Makes the menu of the main window's history button, unless "Number of entries" is below 1.
void make_history_menu_at_startup();
/// Saves the history when "Save To History File" says so. Returns why it could not be saved; empty when it
/// was, or is not to be. A file that could not be loaded, or not all of it, is not replaced.
[[nodiscard]] std::string save_history_at_quit();

/// Who walks the history: a key of the terminal pane or a button of the main window.
enum class HistoryWalker : std::uint8_t { key, button };

/// Goes to the command before or behind "Position" and puts it into the main window's "Command:"; a button
/// selects its row too. Returns why not: at an end of the list nothing changes but that
/// the bell rings there, but not for a button at the bottom.
Message history_previous(HistoryWalker walker = HistoryWalker::key);
Message history_next(HistoryWalker walker = HistoryWalker::key);
