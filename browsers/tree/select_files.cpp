// SPDX-License-Identifier: MIT
// "Select Files": the nodes below one directory whose labels match.
#include "browsers/notify.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/name_pattern.h"
#include "browsers/tree/walk.h"
#include "browsers/window_work.h"
#include "ui/select_files_window.h"

#include <fmt/printf.h>
#include <sys/stat.h>

namespace {

/// A node that may be selected. A thread may copy the reference, no more.
struct Candidate {
    std::string path;
    bool is_match = false;
    NodeReference reference;
    std::vector<Candidate> below;
};

using Matches = std::vector<NodeReference>;

/// What the window says is looked for.
struct Search {
    NamePattern pattern;
    bool recursive = false;
    int target = 0;
};

Search chosen_search() {
    const SelectFiles& window = select_files_window();
    return {.pattern = {.place = static_cast<NamePattern::Place>(window.match.value()),
                        .case_sensitive = window.case_sensitive.value() != 0,
                        .text = window.search_string.text()},
            .recursive = window.recursive.value() != 0,
            .target = window.target_files.value()};
}

std::vector<Candidate> candidates_below(const TreeNode* node, const Search& search) {
    std::vector<Candidate> candidates;
    for (TreeNode* child : file_tree().children(node)) {
        const FileTag& tag = file_tag(child);
        Candidate candidate{.path = tag.path()};
        if (search.pattern.matches(tag.label)) {
            candidate.is_match = true;
            candidate.reference = reference_to(child);
        }
        if (search.recursive) {
            candidate.below = candidates_below(child, search);
        }
        candidates.push_back(std::move(candidate));
    }
    return candidates;
}

/// Adds the matches of the kind looked for. A file of another kind, or one that is gone, counts as the kind
/// of the one before.
void add_matches(const std::vector<Candidate>& candidates, int target, Progress& progress, Matches& matches) {
    mode_t kind = 0;
    for (const Candidate& candidate : candidates) {
        struct stat status {};
        const bool is_asked = target == SelectFiles::regular || target == SelectFiles::directories;
        if (is_asked && stat(candidate.path.c_str(), &status) == 0 &&
            (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode))) {
            kind = status.st_mode & S_IFMT;
        }
        const bool is_target = !is_asked || kind == (target == SelectFiles::regular ? S_IFREG : S_IFDIR);
        if (is_target && candidate.is_match) {
            matches.push_back(candidate.reference);
        }
        if (!progress.next()) {
            return;
        }
        add_matches(candidate.below, target, progress, matches);
    }
}

Message select(const Matches& matches, const NodeReference& directory) {
    int count = 0;
    for (const NodeReference& match : matches) {
        if (TreeNode* const node = match.node()) {
            file_tree().select(node);
            ++count;
        }
    }
    if (TreeNode* const node = directory.node()) {
        file_tree().deselect(node);
    }
    show_selected_count();
    return count < 1 ? "No match" : fmt::sprintf("Number of selections %d", count);
}

/// Selects what is found below a directory; only what the tree shows is looked through.
Message SelectFilesInTree(const NodeReference& directory, const Search& search) {
    return work_for(
        select_files_window(), "Files examined",
        [candidates = candidates_below(directory.node(), search),
         target = search.target](Progress& progress) {
            Matches matches;
            add_matches(candidates, target, progress, matches);
            return matches;
        },
        [directory](const Matches& matches) { return select(matches, directory); });
}

}  // namespace

Message SelectFilesSelectButton() {
    const Search search = chosen_search();
    if (search.pattern.text.empty()) {
        return "No search string specified";
    }
    return walk_selection(
        select_files_window(),
        {.none = "No file selected",
         .illegal = "Illegal file",
         .checks = {{[](const WalkCounts& counts) { return counts.files > 0 || counts.directories != 1; },
                     "Select one directory"}}},
        [search](const std::vector<WalkedNode>& nodes) {
            return SelectFilesInTree(directory_among(nodes).reference, search);
        });
}
