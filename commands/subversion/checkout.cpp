// SPDX-License-Identifier: MIT
// "Checkout from Repository".
#include "browsers/tree/walk.h"
#include "commands/subversion/notify.h"
#include "shell/send.h"
#include "ui/checkout_from_repository.h"

#include <array>

#include <sys/stat.h>

namespace {

/// The repository that is chosen in the window, or why there is none.
struct Repository {
    std::string url;
    std::string_view missing;
};

Repository chosen_repository() {
    const CheckoutFromRepository& window = checkout_from_repository();
    const std::array repositories{
        Repository{window.repository_1_url.text(), "Subversion repository 1 not specified"},
        Repository{window.repository_2_url.text(), "Subversion repository 2 not specified"},
        Repository{window.repository_3_url.text(), "Subversion repository 3 not specified"},
    };
    return repositories.at(static_cast<std::size_t>(window.repository.value()));
}

/// The blank at the end makes two of them.
CommandLine with_revision(CommandLine line, const std::string& revision) {
    return revision.empty() ? line : line.word("").word("--revision").text(revision);
}

/// Checks out into the directory that was selected last.
Message check_out(const std::vector<WalkedNode>& nodes, const std::string& url, const std::string& revision) {
    CheckoutFromRepository& window = checkout_from_repository();
    for (const WalkedNode& node : nodes) {
        if (!S_ISDIR(node.glance.mode)) {
            return "Not a directory";
        }
        window.destination_directory.set_name(node.path);
    }
    CommandLine line = with_revision(CommandLine("svn checkout"), revision);
    // Here an "@" is part of the directory's name, the last one too.
    line.double_quoted(url).path(nodes.back().path).in_background();
    return send(line, Remember::message_board);
}

}  // namespace

Message SubversionCheckoutButton() {
    const Repository repository = chosen_repository();
    if (repository.url.empty()) {
        return Message(repository.missing);
    }
    return walk_selection(
        checkout_from_repository(),
        {.none = "No destination directory specified", .illegal = "Illegal directory"},
        [url = repository.url, revision = checkout_from_repository().revision.text()](
            const std::vector<WalkedNode>& nodes) { return check_out(nodes, url, revision); });
}

Message SubversionListButton() {
    const Repository repository = chosen_repository();
    if (repository.url.empty()) {
        return Message(repository.missing);
    }
    CommandLine line = with_revision(CommandLine("svn list"), checkout_from_repository().revision.text());
    return send(line.path(repository.url).in_background(), Remember::message_board);
}
