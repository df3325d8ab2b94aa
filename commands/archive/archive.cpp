// SPDX-License-Identifier: MIT
// "Pack / Unpack Using Tar".
#include "browsers/file_type.h"
#include "browsers/tree/walk.h"
#include "browsers/window_work.h"
#include "commands/absolute_path.h"
#include "commands/archive/tar_script.h"
#include "commands/notify.h"
#include "commands/script.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "ui/pack_unpack_tar.h"

#include <fmt/format.h>
#include <sys/stat.h>

namespace {

/// "Destination Dir:" and "Tar File:" as their user means them.
struct Fields {
    std::string directory;
    std::string tar_file;
    bool directory_is_missing = false;
};

/// A relative directory is one of the shell's, which alone knows where it is.
Fields meant(Fields written) {
    for (std::string* field : {&written.directory, &written.tar_file}) {
        *field = field->empty() ? "" : path_meant(*field);
    }
    const std::optional<mode_t> mode = file_mode(written.directory);
    written.directory_is_missing = written.directory.starts_with('/') && (!mode || !S_ISDIR(*mode));
    return written;
}

/// Does something with the fields. In a directory that is not there it would be done in another one.
template <typename Action>
Message with_fields(Action action) {
    PackUnpackTar& window = pack_unpack_tar();
    const Fields written{.directory = window.destination_dir.text(), .tar_file = window.tar_file.text()};
    return work_for(
        window, "Files examined", [written](Progress& /*progress*/) { return meant(written); },
        [action](const Fields& fields) -> Message {
            return fields.directory_is_missing ? "Destination directory not found" : action(fields);
        });
}

Message pack(const std::vector<WalkedNode>& nodes) {
    std::vector<PackedFile> files;
    for (const WalkedNode& node : nodes) {
        files.push_back({.path = absolute_path(node.path), .is_directory = S_ISDIR(node.glance.mode)});
    }
    const PackedNames names =
        pack_unpack_tar().file_names.value() == 0 ? PackedNames::relative : PackedNames::absolute;
    return with_fields([files, names](const Fields& fields) {
        return run_script(home_dir,
                          pack_script(fields.tar_file, fields.directory, files, names, user_shell.family),
                          Remember::last_command);
    });
}

Message unpack(const std::vector<WalkedNode>& nodes) {
    return with_fields([archive = absolute_path(nodes.front().path)](const Fields& fields) {
        return run_script(home_dir, unpack_script(archive, fields.directory, user_shell.family),
                          Remember::last_command);
    });
}

Message gzip(const Fields& fields) {
    const std::string path = fields.tar_file.starts_with('/')
                                 ? fields.tar_file
                                 : fmt::format("{}/{}", fields.directory, fields.tar_file);
    return send(CommandLine("gzip").path(path));
}

WalkRule one_file(std::string_view none, std::string_view wrong) {
    return {
        .none = none,
        .illegal = "Illegal file",
        .checks = {{[](const WalkCounts& counts) { return counts.files != 1 || counts.nodes != 1; }, wrong}}};
}

}  // namespace

Message make_tar_file() {
    PackUnpackTar& window = pack_unpack_tar();
    window.set_left_footer("");
    window.set_right_footer("Tar command executes in terminal window");
    window.open();
    return {};
}

Message PackUnpackGetDestDir() {
    static constexpr std::string_view wrong = "Select one destination directory";
    return walk_selection(
        pack_unpack_tar(),
        {.none = wrong,
         .illegal = "Illegal directory",
         .checks = {{[](const WalkCounts& counts) { return counts.directories != 1 || counts.files > 0; },
                     wrong}}},
        [](const std::vector<WalkedNode>& nodes) -> Message {
            pack_unpack_tar().destination_dir.set_name(directory_among(nodes).path);
            return {};
        });
}

Message MakeTarFileRun() {
    if (pack_unpack_tar().tar_file.text().empty()) {
        return "Tar file name not specified";
    }
    return walk_selection(pack_unpack_tar(), {.none = "No file selected", .illegal = "Illegal file"}, pack);
}

Message PackUnpackUsingTarUnpack() {
    return walk_selection(pack_unpack_tar(), one_file("No file selected", "Select one tar file to unpack"),
                          unpack);
}

Message PackUnpackGzip() {
    if (pack_unpack_tar().destination_dir.text().empty()) {
        return "Destination directory name not specified";
    }
    if (pack_unpack_tar().tar_file.text().empty()) {
        return "Tar file name not specified";
    }
    return with_fields(gzip);
}

Message PackUnpackGunzip() {
    constexpr std::string_view wrong = "Select one zipped file to unzip";
    return walk_selection(pack_unpack_tar(), one_file(wrong, wrong),
                          [](const std::vector<WalkedNode>& nodes) {
                              return send(CommandLine("gunzip").path(absolute_path(nodes.front().path)),
                                          Remember::last_command);
                          });
}
