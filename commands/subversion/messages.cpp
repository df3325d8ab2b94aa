// SPDX-License-Identifier: MIT
// "Subversion Commit" and "Subversion Branch/Tag": what needs a message for the repository's log.
#include "browsers/tree/walk.h"
#include "commands/subversion/notify.h"
#include "shell/operands.h"
#include "shell/send.h"
#include "ui/subversion_branch_tag.h"
#include "ui/subversion_commit.h"

namespace {

/// Types a line for each selected node. Each works in the background and has the working copy locked
/// meanwhile, so the next one is to wait for its end.
template <typename LineFor>
Message type_for_each(Frame& window, LineFor line_for) {
    return walk_selection(window,
                          {.none = "No files specified", .illegal = "Illegal file", .up_to_illegal = true},
                          [line_for](const std::vector<WalkedNode>& nodes) -> Message {
                              for (const WalkedNode& node : nodes) {
                                  Message refusal = send(line_for(node.path), Remember::message_board);
                                  if (!refusal.empty()) {
                                      return refusal;
                                  }
                              }
                              return {};
                          });
}

/// The target of a copy as its user wrote it. An "@" in its last part belongs to the name: a revision is not
/// allowed there.
std::string copy_target(const std::string& written) {
    std::string target = with_home_directory(written);
    const std::size_t last_part = target.rfind('/') + 1;
    const bool looks_like_revision =
        target.find('@', last_part) != std::string::npos && !target.ends_with('@');
    return looks_like_revision ? target + "@" : target;
}

}  // namespace

Message Subversion_commit_button() {
    const std::string message = subversion_commit().message.text();
    if (message.empty()) {
        return "Message not specified";
    }
    return type_for_each(subversion_commit(), [message](const std::string& path) {
        return CommandLine("svn commit")
            .word("--message")
            .double_quoted_text(message)
            .peg(path)
            .in_background()
            .behind("svn");
    });
}

Message Subversion_branch_button() {
    const std::string name = subversion_branch_tag().branch_tag_name.text();
    const std::string message = subversion_branch_tag().message.text();
    if (name.empty()) {
        return "Branch/tag name not specified";
    }
    if (message.empty()) {
        return "Message not specified";
    }
    return type_for_each(
        subversion_branch_tag(), [target = copy_target(name), message](const std::string& path) {
            CommandLine line("svn copy");
            line.peg(path).path(target).word("--message").double_quoted_text(message);
            return line.word("").in_background().behind("svn");  // two blanks before the ampersand
        });
}
