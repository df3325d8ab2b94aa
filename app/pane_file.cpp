// SPDX-License-Identifier: MIT
#include "app/pane_file.h"

#include "shell/expand_path.h"
#include "shell/files.h"
#include "toolkit/frame.h"
#include "toolkit/notice.h"
#include "toolkit/text_pane.h"

#include <cstring>

#include <fmt/format.h>
#include <unistd.h>

namespace {

/// What a text pane still shows and edits without a wait.
constexpr std::size_t longest_text = std::size_t{16} * 1024 * 1024;

}  // namespace

std::string PaneFile::path(std::string_view directory, std::string_view name, std::string_view usual_name) {
    std::string file = expand_path(name);
    if (file.empty()) {
        file = usual_name;
    }
    if (file.starts_with('/')) {
        return file;
    }
    const std::string folder = expand_path(directory);
    return fmt::format("{}/{}", folder.empty() ? "/tmp" : folder, file);
}

Message PaneFile::save(Frame& frame, TextPane& pane, const std::string& path) {
    if (path != known_ && access(path.c_str(), F_OK) == 0 &&
        !agreed(frame, fmt::format("{} exists. Replace it ?", path))) {
        return {};
    }
    const BusyState busy(frame);
    if (const int error = save_file(path, pane.text()); error != 0) {
        return fmt::format("Could not save {}: {}", path, std::strerror(error));
    }
    known_ = path;
    pane.set_unmodified();
    return fmt::format("Saved to {}", path);
}

Message PaneFile::load(Frame& frame, TextPane& pane, const std::string& path) {
    if (!may_discard(frame, pane)) {
        return {};
    }
    const BusyState busy(frame);
    const FileContents contents = read_file(path, longest_text);
    if (contents.error != 0) {
        return fmt::format("Could not load {}: {}", path, std::strerror(contents.error));
    }
    known_ = path;
    pane.set_text(contents.text);
    return fmt::format("Loaded {}", path);
}

bool may_discard(Frame& frame, const TextPane& pane) {
    return !pane.modified() || agreed(frame, "The text is not saved. Discard it ?");
}
