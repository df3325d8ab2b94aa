// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

/// What a client keeps of a node; it derives from this. The node owns it.
struct NodeRecord {
    explicit NodeRecord(std::string shown) : label(std::move(shown)) {}
    virtual ~NodeRecord() = default;
    NodeRecord(const NodeRecord&) = delete;
    NodeRecord& operator=(const NodeRecord&) = delete;

    /// Its lines. Asked only when somebody wants to know; empty for nothing.
    [[nodiscard]] virtual std::vector<std::string> tool_tip() const { return {}; }
    /// What assistive programs are told beside the label.
    [[nodiscard]] virtual std::string description() const { return {}; }

    std::string label;  ///< bytes of any kind; what is no text is shown visibly
};

enum class NodeKind : bool { file, directory };
