// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Bookmark Definition": a bookmark to be.
struct BookmarkDefinition : CommandFrame {
    BookmarkDefinition() : CommandFrame("Bookmark Definition") { bookmarked_file.set_display_length(40); }

    TextField bookmark_name{panel, "Bookmark Name:"};
    TextField bookmarked_file{panel, "Bookmarked File:"};
    Choice file_type{
        panel, "File Type", {"Directory", "Source", "Executable", "Script", "HTML", "PDF", "Other"}};
};

inline std::unique_ptr<BookmarkDefinition> Orvik_popup15;
inline BookmarkDefinition& bookmark_definition() { return *Orvik_popup15; }
