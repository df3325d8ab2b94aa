// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "tests/support/recorded_windows.h"
#include "ui/command_history_manager.h"
#include "ui/command_history_setup.h"

#include <vector>

using Rows = std::vector<std::string>;

/// The windows with an empty history that refuses duplicates, as it is after the start-up.
class HistoryWindows : public RecordedWindows {
  protected:
    void SetUp() override {
        RecordedWindows::SetUp();
        CommandHistorySetupInsertDup();
    }

    [[nodiscard]] std::string file() const { return home / ".orvik-history"; }
    static CommandHistoryManager& manager() { return command_history_manager(); }
    static ScrollingList& list() { return manager().list; }

    const std::string header = "$ORVIK_HISTORY\n";
};
