// SPDX-License-Identifier: MIT
// What changes files of the "File List Browser", and lists its directory again.
#include "browsers/browser_work.h"
#include "browsers/file_type.h"
#include "browsers/listed_file.h"
#include "browsers/listing.h"
#include "browsers/notify.h"
#include "shell/file_copy.h"
#include "shell/file_rename.h"
#include "shell/replacement.h"
#include "shell/text.h"
#include "toolkit/notice.h"

#include <cerrno>
#include <cstdio>

#include <sys/stat.h>

namespace {

constexpr MissingTexts missing_destination{.directory = "Destination directory not defined",
                                           .name = "Destination file name not defined"};

const Message no_source = "Source file name not defined";

/// A link to a directory stands for itself only without the "/" behind it.
std::string entry_of(const std::string& path) {
    std::string entry = remove_trailing_slashes(path);
    return entry.empty() ? path : entry;
}

bool remove_file(const std::string& path) { return path_fault(path) == 0 && std::remove(path.c_str()) == 0; }

/// The message of a copy that has ended.
Message copied(CopyResult result) {
    switch (result) {
        case COPY_OK:
            return list_again();
        case COPY_STOPPED:
            return "Stopped";
        default:
            return "File not copied";
    }
}

Message copy(const std::string& source, const std::string& target) {
    return work_in_browser(
        copied_bytes, [=](Progress& progress) { return file_copy(target, source, &progress); }, copied);
}

/// What keeps a file from being copied at once.
enum class InTheWay { nothing, file, everything };

InTheWay in_the_way(const std::string& source, const std::string& target) {
    const std::optional<mode_t> from = file_mode(source);
    const std::optional<mode_t> to = file_mode(target);
    if (!from || !S_ISREG(*from) || (to && !S_ISREG(*to))) {
        return InTheWay::everything;
    }
    return to ? InTheWay::file : InTheWay::nothing;
}

Message copy_past(InTheWay hindrance, const std::string& source, const std::string& target) {
    if (hindrance == InTheWay::everything) {
        return "File not copied";
    }
    const bool may = hindrance == InTheWay::nothing ||
                     agreed(file_list_browser(), "File exists. Overwrite it ?", {target});
    return may ? copy(source, target) : Message();
}

Message renamed(int error) {
    if (error == 0) {
        return list_again();
    }
    return error == EEXIST ? "File already exists." : "File not renamed";
}

}  // namespace

Message File_menu_remove() {
    const ListedFile file = listed_file();
    if (!file) {
        return file.refusal;
    }
    if (!agreed(file_list_browser(), "Remove file ?", {file.path})) {
        return {};
    }
    return ask_disk([path = entry_of(file.path)] { return remove_file(path); },
                    [](bool removed) { return removed ? list_again() : "File not deleted"; });
}

Message File_menu_copy() {
    const ListedFile target = listed_file(missing_destination);
    const std::string source = file_list_browser().selected.text();
    if (!target || source.empty()) {
        return target ? no_source : target.refusal;
    }
    return ask_disk([=] { return in_the_way(source, target.path); },
                    [=](InTheWay hindrance) { return copy_past(hindrance, source, target.path); });
}

Message File_menu_rename() {
    const ListedFile target = listed_file(missing_destination);
    const std::string source = file_list_browser().selected.text();
    if (!target || source.empty()) {
        return target ? no_source : target.refusal;
    }
    return ask_disk([=] { return rename_to_new(entry_of(source), target.path); }, renamed);
}
