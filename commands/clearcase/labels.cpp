// SPDX-License-Identifier: MIT
// "Create and Attach Label".
#include "commands/clearcase/notify.h"
#include "commands/clearcase/runner.h"
#include "ui/create_and_attach_label.h"

#include <fmt/format.h>

namespace {

/// Does something with the label that the window names.
template <typename Action>
Message with_label(Action action) {
    const std::string label = create_and_attach_label().label.text();
    return label.empty() ? "Label name not specified" : action(label);
}

Message run(const ToolLine& prefix) {
    return ExecuteClearCaseCommand(create_and_attach_label(), prefix, ClearCaseKind::any, any_number);
}

}  // namespace

Message CreateAndSetLabelDisplay() { return ToolLine("lstype -kind lbtype -short").type(); }

Message CreateAndSetLabelFind() {
    return with_label([](const std::string& label) {
        return ToolLine("find -all -version")
            .double_quoted_text(fmt::format("lbtype({})", label))
            .word("-print")
            .type();
    });
}

Message CreateAndSetCreate() {
    return with_label([](const std::string& label) { return ToolLine("mklbtype").text(label).type(); });
}

Message CreateSetLabelAttach() {
    return with_label([](const std::string& label) {
        const CreateAndAttachLabel& window = create_and_attach_label();
        const std::string version = window.version.text();
        ToolLine prefix("mklabel");
        if (window.replace.value()) {
            prefix.word("-replace");
        }
        if (window.recursive.value()) {
            prefix.word("-recurse");
        }
        if (!version.empty()) {
            prefix.word("-version").text(version);
        }
        return run(prefix.text(label));
    });
}

Message CreateAndAttachRemove() {
    return with_label([](const std::string& label) { return run(ToolLine("rmlabel").text(label)); });
}
