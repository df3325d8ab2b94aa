// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/listing.h"
#include "toolkit/tree/node_record.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class TreeNode;

/// The record of a file or directory in the tree. In a tree of a hundred thousand nodes its size counts: the
/// path is that of the directory above with the label behind it, so only roots, and nodes that stand
/// elsewhere than their files, keep one of their own.
class FileTag final : public NodeRecord {
  public:
    /// A path of its own where that is not empty; it is needed without `above`, the record of the
    /// node above.
    FileTag(std::string shown, std::string own_path, const FileTag* above, FileGlance glance);
    ~FileTag() override;

    [[nodiscard]] std::string path() const;
    /// Empty where the path is that of the node above with the label behind it.
    [[nodiscard]] std::string own_path() const { return own_path_ == nullptr ? std::string() : *own_path_; }
    /// What is known since the file was looked at.
    [[nodiscard]] std::vector<std::string> tool_tip() const override;
    [[nodiscard]] std::string description() const override { return path(); }
    /// A directory could not be read, with this errno.
    void set_read_error(int error) { read_error_ = error; }

    std::int32_t group = 0;    ///< that of the node above; 0 for roots
    std::int32_t is_root = 0;  ///< 1 for a root

  private:
    friend class NodeReference;

    const FileTag* above_;
    std::unique_ptr<const std::string> own_path_;
    std::unique_ptr<const std::string> link_target_;
    std::shared_ptr<TreeNode*> node_;  ///< shared with the references to the node, if there are any
    off_t size_;
    time_t modified_;
    mode_t mode_;
    int read_error_;
};

/// A node that may be destroyed while somebody remembers it.
class NodeReference {
  public:
    NodeReference() = default;
    /// `tag` is the node's record.
    NodeReference(FileTag& tag, TreeNode* node);
    /// Null when there is none, or no longer.
    [[nodiscard]] TreeNode* node() const { return node_ == nullptr ? nullptr : *node_; }

  private:
    std::shared_ptr<TreeNode*> node_;
};
