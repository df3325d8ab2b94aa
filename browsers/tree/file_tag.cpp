// SPDX-License-Identifier: MIT
#include "browsers/tree/file_tag.h"

#include "browsers/file_facts.h"
#include "browsers/paths.h"

#include <cstring>
#include <utility>

#include <fmt/format.h>

FileTag::FileTag(std::string shown, std::string own_path, const FileTag* above, FileGlance glance)
    : NodeRecord(std::move(shown)),
      group(above == nullptr ? 0 : above->group),
      above_(above),
      size_(glance.size),
      modified_(glance.modified),
      mode_(glance.mode),
      read_error_(glance.read_error) {
    if (!own_path.empty()) {
        own_path_ = std::make_unique<const std::string>(std::move(own_path));
    }
    if (!glance.link_target.empty()) {
        link_target_ = std::make_unique<const std::string>(std::move(glance.link_target));
    }
}

FileTag::~FileTag() {
    if (node_ != nullptr) {
        *node_ = nullptr;
    }
}

std::string FileTag::path() const {
    return own_path_ != nullptr ? *own_path_ : path_in(above_->path(), label);
}

std::vector<std::string> FileTag::tool_tip() const {
    std::vector<std::string> lines{path()};
    if (link_target_ != nullptr) {
        lines.push_back(fmt::format("-> {}", *link_target_));
    }
    lines.push_back(fmt::format("{}, {} bytes, {}", file_type_text(mode_), size_, status_time(modified_)));
    if (read_error_ != 0) {
        lines.push_back(fmt::format("Cannot be read: {}", std::strerror(read_error_)));
    }
    return lines;
}

NodeReference::NodeReference(FileTag& tag, TreeNode* node) {
    if (tag.node_ == nullptr) {
        tag.node_ = std::make_shared<TreeNode*>(node);
    }
    node_ = tag.node_;
}
