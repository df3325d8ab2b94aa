// SPDX-License-Identifier: MIT
#include "toolkit/tree/layout.h"

#include "toolkit/tree/siblings.h"

#include <algorithm>

namespace {

int middle_of_label(const LayoutNode& node) { return node.label_top + node.height / 2; }

/// Counts the block of a node anew from its children. Whether anything has changed for those around it.
bool measure(LayoutNode& node) {
    const LayoutNode old = node;
    if (node.children == nullptr) {
        node.label_top = node.children_top = 0;
        node.block_height = node.height;
        node.reach = node.width;
    } else {
        const LayoutNode& last = *siblings::last(node.children);
        const int middle = (middle_of_label(*siblings::first(node.children)) + siblings::offset_of(last) +
                            middle_of_label(last)) /
                           2;
        node.children_top = std::max(0, node.height / 2 - middle);
        node.label_top = node.children_top + middle - node.height / 2;
        node.block_height =
            std::max(node.children_top + siblings::height(node.children), node.label_top + node.height);
        node.reach = node.width + TreeLayout::link_length + siblings::reach(node.children);
    }
    return node.label_top != old.label_top || node.block_height != old.block_height ||
           node.reach != old.reach;
}

struct Place {
    LayoutNode& node;
    int x;
    int y;  ///< of its block

    [[nodiscard]] TreeArea label() const { return {x, y + node.label_top, node.width, node.height}; }
    [[nodiscard]] TreeArea block() const { return {x, y, node.reach, node.block_height}; }
    [[nodiscard]] int children_x() const { return x + node.width + TreeLayout::link_length; }
    [[nodiscard]] int children_y() const { return y + node.children_top; }
};

void visit_children(const Place& parent, const TreeArea& area, const TreeLayout::Visit& found) {
    LayoutNode* child = siblings::at_offset(parent.node.children, area.y - parent.children_y());
    int y = child == nullptr ? 0 : parent.children_y() + siblings::offset_of(*child);
    for (; child != nullptr && y < area.bottom(); child = siblings::next(*child)) {
        const Place place{*child, parent.children_x(), y};
        if (place.block().touches(area)) {
            found(*child, place.label());
            visit_children(place, area, found);
        }
        y += child->block_height + siblings::gap;
    }
}

}  // namespace

TreeLayout::TreeLayout() { ground_.width = margin - link_length; }

std::uint32_t TreeLayout::next_priority() {
    random_ ^= random_ << 13;
    random_ ^= random_ >> 17;
    random_ ^= random_ << 5;
    return random_;
}

void TreeLayout::insert(LayoutNode& node, LayoutNode& parent, int position) {
    node.parent = &parent;
    node.priority = next_priority();
    measure(node);
    const int count = siblings::count(parent.children);
    siblings::insert(parent.children, node, position < 0 ? count : position);
    settle(&parent);
}

void TreeLayout::remove(LayoutNode& node) {
    LayoutNode* parent = node.parent;
    siblings::remove(parent->children, node);
    node.parent = nullptr;
    settle(parent);
}

void TreeLayout::resize(LayoutNode& node, int width, int height) {
    node.width = width;
    node.height = height;
    settle(&node);
}

/// Tells a change of a node to its ancestors, as far up as it is one for them.
void TreeLayout::settle(LayoutNode* node) {
    for (; measure(*node) && node->parent != nullptr; node = node->parent) {
        siblings::refresh_up(*node);
    }
}

TreeLayout::Corner TreeLayout::block_of(const LayoutNode& node) const {
    Corner corner{0, margin};
    for (const LayoutNode* at = &node; at->parent != nullptr; at = at->parent) {
        corner.x += at->parent->width + link_length;
        corner.y += at->parent->children_top + siblings::offset_of(*at);
    }
    return corner;
}

TreeArea TreeLayout::area(const LayoutNode& node) const {
    const Corner block = block_of(node);
    return {block.x, block.y + node.label_top, node.width, node.height};
}

LayoutNode* TreeLayout::at(int x, int y) const {
    const LayoutNode* node = &ground_;
    Corner block{0, margin};
    while (node->children != nullptr && x >= block.x + node->width + link_length) {
        block.x += node->width + link_length;
        block.y += node->children_top;
        LayoutNode* child = siblings::at_offset(node->children, y - block.y);
        block.y += siblings::offset_of(*child);
        if (TreeArea{block.x, block.y + child->label_top, child->width, child->height}.holds(x, y)) {
            return child;
        }
        node = child;
    }
    return nullptr;
}

int TreeLayout::width() const { return ground_.children == nullptr ? 0 : ground_.reach + margin; }
int TreeLayout::height() const { return ground_.children == nullptr ? 0 : ground_.block_height + 2 * margin; }

void TreeLayout::visit(const TreeArea& area, const Visit& found) const {
    visit_children({const_cast<LayoutNode&>(ground_), 0, margin}, area, found);
}
