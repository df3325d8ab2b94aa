// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Bookmarks": the file that bookmarks are kept in.
struct Bookmarks : CommandFrame {
    Bookmarks() : CommandFrame("Bookmarks") {
        bookmark_file.set_display_length(40);
        bookmark_file.set_text("$HOME/.orvik-bookmarks");
    }

    TextField bookmark_file{panel, "Bookmark File:", BookmarkSetupFileName};
    Row buttons{panel, Place::field};
    Button update{buttons, "Update", BookmarksUpdate};
    Button edit{buttons, "Edit", BookmarkFIleEdit};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<Bookmarks> Orvik_popup14;
inline Bookmarks& bookmarks() { return *Orvik_popup14; }
