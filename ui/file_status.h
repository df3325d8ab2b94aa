// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/message_item.h"

#include <memory>

/// "File Status": who may do what with a file.
struct FileStatus : CommandFrame {
    static constexpr int clearcase_vob = 1;

    FileStatus() : CommandFrame("File Status") { file_name.set_display_length(40); }

    MessageItem file_name_line{panel, "File Name", "File name       : "};
    MessageItem file_type_line{panel, "File Type", "File type         : "};
    MessageItem file_owner_line{panel, "File Owner", "File owner      : "};
    MessageItem file_group_line{panel, "File Group", "File group      : "};
    MessageItem file_size_line{panel, "File Size", "File size         : "};

    Row permissions{panel};
    Panel toggles{permissions};
    Panel times{permissions};
    ColumnHeadings headings{toggles, {{"Write", 1}, {"Read", 0}, {"Execute", 2}}};
    MessageItem beside_headings{times, "", ""};  // the times stand beside the boxes
    CheckBoxes owner{toggles, "Owner:", {"Read", "Write", "Execute"}, ItemLabels::above};
    MessageItem last_accessed_line{times, "Last Accessed", "Last accessed  : "};
    CheckBoxes group{toggles, "Group:", {"Read", "Write", "Execute"}, ItemLabels::above};
    MessageItem last_modified_line{times, "Last Modified", "Last modified  : "};
    CheckBoxes world{toggles, "World:", {"Read", "Write", "Execute"}, ItemLabels::above};
    MessageItem status_changed_line{times, "Status Changed", "Status changed : "};

    Choice file_system{panel, "File System", {"Normal", "Clearcase Vob"}};
    Row buttons{panel};
    Button set_current{buttons, "Set Current", Set_permissions};
    Button set_selected{buttons, "Set Selected in File Tree", FilePermissionsSetAll};
    Stretch behind_buttons{buttons};
    TextField file_name{panel, "File Name:"};
};

inline std::unique_ptr<FileStatus> Orvik_popup28;
inline FileStatus& file_status() { return *Orvik_popup28; }
