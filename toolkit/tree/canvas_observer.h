// SPDX-License-Identifier: MIT
#pragma once

class TreeNode;

/// Who is told what happens on a canvas as it happens.
struct CanvasObserver {
    CanvasObserver() = default;
    virtual ~CanvasObserver() = default;
    CanvasObserver(const CanvasObserver&) = delete;
    CanvasObserver& operator=(const CanvasObserver&) = delete;

    virtual void added(TreeNode* node) = 0;
    /// The node is about to be destroyed.
    virtual void forgotten(TreeNode* node) = 0;
    virtual void selection_changed(TreeNode* node) = 0;
    /// The user is at this node now, with the keyboard's focus.
    virtual void focused(TreeNode* node) = 0;
    /// The changes told so far are complete.
    virtual void settled() = 0;
};
