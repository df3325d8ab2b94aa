// SPDX-License-Identifier: MIT
#include "browsers/define_bookmark.h"

#include "ui/bookmark_definition.h"

void define_bookmark(std::string_view path, FileType type) {
    BookmarkDefinition& window = bookmark_definition();
    window.bookmarked_file.set_name(path);
    window.bookmark_name.set_text("");
    window.file_type.set_value(type);
    window.set_left_footer("");
    window.open();
    window.bookmark_name.set_focus();
}
