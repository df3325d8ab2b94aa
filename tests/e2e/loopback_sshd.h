// SPDX-License-Identifier: MIT
#pragma once

#include "tests/drive/process.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

/// An sshd on the loopback interface that lets whoever has a key of its own in, as the user who runs the
/// test.
class LoopbackSshd {
  public:
    /// Keeps its files in a folder. Waits until it listens.
    LoopbackSshd(const std::filesystem::path& folder, const std::map<std::string, std::string>& environment);

    /// The options that lead ssh and scp to it: "-F FILE".
    [[nodiscard]] std::string options() const;
    /// The command that logs in.
    [[nodiscard]] std::string log_in() const { return "ssh " + options() + " loopback"; }

  private:
    std::filesystem::path folder_;
    std::optional<Process> server_;
};
