// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/font.h"
#include "toolkit/menu.h"
#include "toolkit/panel.h"
#include "toolkit/tree/node_record.h"
#include "toolkit/tree/tree_area.h"
#include "toolkit/tree/tree_procedures.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class CanvasWidget;

/// A node of a tree: it is known by its address, which stays until it is destroyed, and owned by its canvas.
class TreeNode;

/// A canvas that shows trees of labels, scrolls, and lets its user select nodes. What the program does itself
/// notifies nobody.
class TreeCanvas {
  public:
    using Procedures = TreeProcedures;
    using Area = TreeArea;
    static constexpr int at_end = -1;  ///< as a position

    /// `menu` is opened by the right button; `empty_text` stands there when there are no nodes.
    TreeCanvas(Container& parent, std::string_view accessible_name, const Procedures& procedures, Menu menu,
               std::string_view empty_text);

    /// The fonts of a size, for files and for directories; to be set before there are nodes.
    void set_fonts(int font_size, const Font& file, const Font& directory);
    [[nodiscard]] Menu& menu();
    void set_focus();

    /// Adds a node under a parent, or a root where that is null, with a font of 0 (extra small) to 3 (large).
    /// A position beyond the siblings is the end.
    TreeNode* add(TreeNode* parent, std::unique_ptr<NodeRecord> record, int font_size, NodeKind kind,
                  int position = at_end);
    /// Destroys a node with all below it, the lower ones first. Where the current node is one of them, its
    /// parent is it then.
    void destroy(TreeNode* node);
    void destroy_children(TreeNode* node);
    /// A directory that has not been opened bears a mark.
    void set_opened(TreeNode* node, bool opened = true);

    [[nodiscard]] int size() const;  ///< how many nodes there are
    [[nodiscard]] std::vector<TreeNode*> roots() const;
    [[nodiscard]] std::vector<TreeNode*> children(const TreeNode* node) const;
    /// Null for a root.
    [[nodiscard]] TreeNode* parent(const TreeNode* node) const;
    /// Among its siblings, or the roots.
    [[nodiscard]] int position_among_siblings(const TreeNode* node) const;
    [[nodiscard]] bool is_directory(const TreeNode* node) const;
    [[nodiscard]] bool is_opened(const TreeNode* node) const;
    [[nodiscard]] NodeRecord& record(const TreeNode* node) const;

    [[nodiscard]] bool is_selected(const TreeNode* node) const;
    [[nodiscard]] int selected_count() const;
    /// Selecting a node that is selected already leaves it where it is in the order.
    void select(TreeNode* node);
    void deselect(TreeNode* node);
    void clear_selection();
    /// The node that the keyboard is at; null for none.
    [[nodiscard]] TreeNode* current() const;
    void set_current(TreeNode* node);

    /// Of one of the scroll bars, in its units.
    struct Scrolling {
        int pixels_per_unit;
        int view_start;
        int view_length;
        int object_length;  ///< at least the view's
    };
    [[nodiscard]] Scrolling horizontal() const;
    [[nodiscard]] Scrolling vertical() const;
    /// Limited to what there is.
    void set_view_start(int horizontal, int vertical);
    /// Scrolls no farther than is needed to see the node.
    void show(TreeNode* node);

    /// A node's label, in pixels from the upper left corner of what can be scrolled.
    [[nodiscard]] Area area(const TreeNode* node) const;
    /// The room that the tree takes, in pixels; at least what was set.
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;
    /// The room that the tree takes at least; 500 by 300 when it is made.
    void set_size(int width, int height);

  private:
    friend class RepaintHold;
    friend std::vector<TreeNode*> rectobj_get_selected_list(const TreeCanvas& canvas);
    CanvasWidget* widget_;
};

/// The selected nodes in the order in which they were selected.
[[nodiscard]] std::vector<TreeNode*> rectobj_get_selected_list(const TreeCanvas& canvas);

/// While it lives, changes of the nodes are not painted and the scroll bars stay as they are. Nests.
class RepaintHold {
  public:
    explicit RepaintHold(TreeCanvas& canvas);
    ~RepaintHold();
    RepaintHold(const RepaintHold&) = delete;
    RepaintHold& operator=(const RepaintHold&) = delete;

  private:
    CanvasWidget& widget_;
};
