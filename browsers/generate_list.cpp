// SPDX-License-Identifier: MIT
// "Generate File List".
#include "browsers/notify.h"
#include "browsers/path_list.h"
#include "shell/editor.h"
#include "shell/files.h"
#include "shell/operands.h"
#include "toolkit/long_work.h"
#include "ui/file_list_browser.h"
#include "ui/generate_file_list.h"

#include <fmt/format.h>

namespace {

const Message no_file_name = "File name not specified";

bool takes_selected_only() { return generate_file_list().include.value() == GenerateFileList::selected; }

/// The rows that are to be written: all but the go-up row, or the selected ones of them.
std::vector<std::string> rows_to_write() {
    const ScrollingList& list = file_list_browser().list;
    std::vector<std::string> rows;
    if (!takes_selected_only()) {
        rows.assign(list.all_rows().begin() + (list.rows() > 0 ? 1 : 0), list.all_rows().end());
        return rows;
    }
    for (const int row : list.selected_rows()) {
        if (row != 0) {
            rows.push_back(list.row(row));
        }
    }
    return rows;
}

Message written(const PathList& list, const std::string& path) {
    if (save_file(path_meant(path), list.text) != 0) {
        return "Couldn't open output file";
    }
    return list.left_out == 0 ? Message()
                              : fmt::format("Left out, since their names hold line feeds: {}", list.left_out);
}

}  // namespace

void FileListFileMenuGenerate() { generate_file_list().open(); }

Message GenerateFileListRun() {
    const std::string path = generate_file_list().file_name.text();
    const std::string directory = file_list_browser().directory.text();
    if (path.empty()) {
        return no_file_name;
    }
    if (directory.empty()) {
        return "Directory name not specified";
    }
    const auto write =
        [=, rows = rows_to_write(),
         kinds = static_cast<FileKinds>(generate_file_list().select.value())](Progress& progress) -> Message {
        const PathList list = path_list(directory, rows, kinds, &progress);
        return progress.stopping() ? "Stopped" : written(list, path);
    };
    start_work(generate_file_list(), "Files examined", write,
               [](const Message& message) { generate_file_list().set_left_footer(message); });
    return {};
}

Message GenerateFileListEdit() {
    const std::string path = generate_file_list().file_name.text();
    return path.empty() ? no_file_name : edit_file(path_meant(path));
}

void GenerateFileListInclude() {
    ScrollingList& list = file_list_browser().list;
    list.clear_selection();
    list.set_selectable(takes_selected_only() ? Selectable::several : Selectable::one);
}
