// SPDX-License-Identifier: MIT
#include "toolkit/tree/siblings.h"

#include <algorithm>

namespace {

int stacked(const LayoutNode* node) { return node == nullptr ? 0 : node->stacked; }
int farthest(const LayoutNode* node) { return node == nullptr ? 0 : node->farthest; }

/// Counts a node anew from those right below it. Whether that changed anything.
bool refresh(LayoutNode& node) {
    const int number = 1 + siblings::count(node.left) + siblings::count(node.right);
    const int sum = node.block_height + siblings::gap + stacked(node.left) + stacked(node.right);
    const int widest = std::max({node.reach, farthest(node.left), farthest(node.right)});
    const bool changed = number != node.siblings || sum != node.stacked || widest != node.farthest;
    node.siblings = number;
    node.stacked = sum;
    node.farthest = widest;
    return changed;
}

/// Puts `node` where `old` hangs.
void replace(LayoutNode*& top, const LayoutNode& old, LayoutNode* node) {
    LayoutNode* above = old.up;
    LayoutNode*& link = above == nullptr ? top : above->left == &old ? above->left : above->right;
    link = node;
    if (node != nullptr) {
        node->up = above;
    }
}

/// Exchanges a node with the one it hangs below; the order stays.
void rotate_up(LayoutNode*& top, LayoutNode& node) {
    LayoutNode& above = *node.up;
    replace(top, above, &node);
    LayoutNode*& inner = above.left == &node ? node.right : node.left;
    LayoutNode*& outer = above.left == &node ? above.left : above.right;
    outer = inner;
    if (inner != nullptr) {
        inner->up = &above;
    }
    inner = &above;
    above.up = &node;
    refresh(above);
    refresh(node);
}

LayoutNode* outermost(LayoutNode* node, LayoutNode* LayoutNode::*side) {
    while (node != nullptr && node->*side != nullptr) {
        node = node->*side;
    }
    return node;
}

void hang(LayoutNode& above, LayoutNode* LayoutNode::*side, LayoutNode& node) {
    above.*side = &node;
    node.up = &above;
}

}  // namespace

namespace siblings {

void insert(LayoutNode*& top, LayoutNode& node, int index) {
    node.up = node.left = node.right = node.below = nullptr;
    refresh(node);
    if (top == nullptr) {
        top = &node;
        return;
    }
    LayoutNode* follower = index < count(top) ? at(top, std::max(index, 0)) : nullptr;
    if (follower == nullptr) {
        hang(*last(top), &LayoutNode::right, node);
    } else if (follower->left == nullptr) {
        hang(*follower, &LayoutNode::left, node);
    } else {
        hang(*last(follower->left), &LayoutNode::right, node);
    }
    node.below = follower;
    if (LayoutNode* before = previous(node); before != nullptr) {
        before->below = &node;
    }
    while (node.up != nullptr && node.up->priority < node.priority) {
        rotate_up(top, node);
    }
    refresh_up(node);
}

void remove(LayoutNode*& top, LayoutNode& node) {
    if (LayoutNode* before = previous(node); before != nullptr) {
        before->below = node.below;
    }
    while (node.left != nullptr && node.right != nullptr) {
        rotate_up(top, node.left->priority > node.right->priority ? *node.left : *node.right);
    }
    LayoutNode* above = node.up;
    replace(top, node, node.left != nullptr ? node.left : node.right);
    node.up = node.left = node.right = nullptr;
    refresh(node);
    for (; above != nullptr; above = above->up) {
        refresh(*above);
    }
}

bool refresh_up(LayoutNode& node) {
    for (LayoutNode* at = &node; at != nullptr; at = at->up) {
        if (!refresh(*at) && at != &node) {
            return false;
        }
    }
    return true;
}

int count(const LayoutNode* top) { return top == nullptr ? 0 : top->siblings; }

LayoutNode* at(LayoutNode* top, int index) {
    while (top != nullptr) {
        const int above = count(top->left);
        if (index == above) {
            return top;
        }
        top = index < above ? top->left : top->right;
        index -= index < above ? 0 : above + 1;
    }
    return nullptr;
}

LayoutNode* first(LayoutNode* top) { return outermost(top, &LayoutNode::left); }
LayoutNode* last(LayoutNode* top) { return outermost(top, &LayoutNode::right); }
LayoutNode* next(LayoutNode& node) { return node.below; }

LayoutNode* previous(LayoutNode& node) {
    if (node.left != nullptr) {
        return last(node.left);
    }
    LayoutNode* at = &node;
    while (at->up != nullptr && at->up->left == at) {
        at = at->up;
    }
    return at->up;
}

int index_of(const LayoutNode& node) {
    int index = count(node.left);
    for (const LayoutNode* at = &node; at->up != nullptr; at = at->up) {
        index += at->up->right == at ? count(at->up->left) + 1 : 0;
    }
    return index;
}

int offset_of(const LayoutNode& node) {
    int offset = stacked(node.left);
    for (const LayoutNode* at = &node; at->up != nullptr; at = at->up) {
        offset += at->up->right == at ? stacked(at->up->left) + at->up->block_height + gap : 0;
    }
    return offset;
}

LayoutNode* at_offset(LayoutNode* top, int offset) {
    while (top != nullptr) {
        const int begin = stacked(top->left);
        const int end = begin + top->block_height + gap;
        LayoutNode* side = offset < begin ? top->left : offset >= end ? top->right : nullptr;
        if (side == nullptr) {
            return top;
        }
        offset -= offset >= end ? end : 0;
        top = side;
    }
    return nullptr;
}

int height(const LayoutNode* top) { return top == nullptr ? 0 : top->stacked - gap; }
int reach(const LayoutNode* top) { return farthest(top); }

}  // namespace siblings
