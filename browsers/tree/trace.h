// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/file_tag.h"

#include <array>

/// The nodes that "go back" has come through, so that "go forward" finds the way again: slot 0 holds the node
/// that was clicked last, slot n the one that the n-th step back led to.
class Trace {
  public:
    static constexpr std::size_t slots = 101;

    /// A node has been clicked: the trace begins there.
    void begin(NodeReference clicked) {
        slots_[0] = std::move(clicked);
        position_ = 0;
    }
    /// Another step back; false when there is no slot left for it.
    [[nodiscard]] bool step_back(NodeReference reached) {
        if (position_ + 1 == slots) {
            return false;
        }
        slots_[++position_] = std::move(reached);
        return true;
    }
    [[nodiscard]] bool at_end() const { return position_ == 0; }
    /// Where the next step forward leads; not at the end.
    [[nodiscard]] const NodeReference& next() const { return slots_[position_ - 1]; }
    void step_forward() { --position_; }

  private:
    std::array<NodeReference, slots> slots_;
    std::size_t position_ = 0;
};
