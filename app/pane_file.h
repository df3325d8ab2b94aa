// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>
#include <string_view>

class Frame;
class TextPane;

/// The file that a text pane is saved to and loaded from. Questions appear in the pane's window; the results
/// are returned.
class PaneFile {
  public:
    /// The path that a directory field and a name field stand for: both expanded, "/tmp" where there is no
    /// directory, `usual_name` where there is no name. A name with a path of its own needs no directory.
    static std::string path(std::string_view directory, std::string_view name, std::string_view usual_name);

    /// Writes the pane's text. Asks before it replaces a file that this pane has neither written nor loaded.
    [[nodiscard]] Message save(Frame& frame, TextPane& pane, const std::string& path);
    /// Replaces the pane's text by the file's. Asks before unsaved text is lost.
    [[nodiscard]] Message load(Frame& frame, TextPane& pane, const std::string& path);

  private:
    std::string known_;  ///< written or loaded last
};

/// Whether a pane's text may go: nothing in it is unsaved, or its user agrees.
[[nodiscard]] bool may_discard(Frame& frame, const TextPane& pane);
