// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Bookmark Definition": a bookmark to be.
struct BookmarkDefinition : CommandFrame {
    BookmarkDefinition() : CommandFrame("Bookmark Definition") { bookmarked_file.set_display_length(40); }

    TextField bookmark_name{panel, "Bookmark Name:", BookmarkDefinitionName};
    TextField bookmarked_file{panel, "Bookmarked File:", BookmarkDefinitionFile};
    Choice file_type{panel,
                     "File Type",
                     {"Directory", "Source", "Executable", "Script", "HTML", "PDF", "Other"},
                     BookmarkDefinitionType};
    Row buttons{panel, Place::field};
    Button add_bookmark_button{buttons, "Add Bookmark", BookmarkDefinitionAddBookmark};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<BookmarkDefinition> Orvik_popup15;
inline BookmarkDefinition& bookmark_definition() { return *Orvik_popup15; }
