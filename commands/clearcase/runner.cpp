// SPDX-License-Identifier: MIT
#include "commands/clearcase/runner.h"

#include "browsers/tree/walk.h"

#include <array>
#include <string_view>

#include <sys/stat.h>

namespace {

/// What running a command has come to.
enum class Result : std::uint8_t { done, nothing_selected, not_found, wrong_kind, wrong_number };

constexpr std::array<std::string_view, 5> messages{
    "", "No file(s) selected", "File not found", "Wrong file type", "Select one file only",
};

constexpr std::string_view message_of(Result result) { return messages.at(static_cast<std::size_t>(result)); }

/// A kind's check of the whole selection, and of a single node.
struct KindCheck {
    bool (*fails)(const WalkCounts& counts);
    bool (*takes)(mode_t mode);
};

constexpr std::array kind_checks{
    KindCheck{[](const WalkCounts& counts) { return counts.files != counts.nodes; },
              [](mode_t mode) { return S_ISREG(mode); }},
    KindCheck{[](const WalkCounts& counts) { return counts.directories != counts.nodes; },
              [](mode_t mode) { return S_ISDIR(mode); }},
    KindCheck{[](const WalkCounts& /*counts*/) { return false; }, [](mode_t /*mode*/) { return true; }},
};

const KindCheck& check_of(ClearCaseKind kind) { return kind_checks.at(static_cast<std::size_t>(kind)); }

WalkRule selection_rule() {
    return {.none = message_of(Result::nothing_selected), .illegal = message_of(Result::not_found)};
}

}  // namespace

Message ExecuteClearCaseCommand(Frame& window, const ToolLine& prefix, ClearCaseKind kind,
                                std::size_t count) {
    WalkRule rule = selection_rule();
    rule.checks.push_back({check_of(kind).fails, message_of(Result::wrong_kind)});
    return walk_selection(window, rule, [prefix, count](const std::vector<WalkedNode>& nodes) {
        if (count != any_number && nodes.size() != count) {
            return Message(message_of(Result::wrong_number));
        }
        for (const WalkedNode& node : nodes) {
            Message refusal =
                ToolLine(prefix).path(node.path).behind_line_feed().type(Remember::last_command);
            if (!refusal.empty()) {
                return refusal;
            }
        }
        return Message(message_of(Result::done));
    });
}

Message ExecuteClearCaseCommandUser(Frame& window, const ToolLine& prefix, ClearCaseKind kind,
                                    const std::string& user) {
    WalkRule rule = selection_rule();
    rule.up_to_illegal = true;
    return walk_selection(window, rule, [prefix, kind, user](const std::vector<WalkedNode>& nodes) {
        for (const WalkedNode& node : nodes) {
            if (!check_of(kind).takes(node.glance.mode)) {
                return Message(message_of(Result::wrong_kind));
            }
            ToolLine line = prefix;
            line.path(node.path).word("| grep").text(user).behind_line_feed();
            Message refusal = line.type(Remember::last_command);
            if (!refusal.empty()) {
                return refusal;
            }
        }
        return Message(message_of(Result::done));
    });
}
