// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <span>

namespace terminal {

/// A queue of records of trivial items, in chunks: grows and is trimmed at its end, dropped from at its
/// front, each in constant time by item. A record lies contiguous within a chunk, so it must not be longer
/// than one. Items are numbered from the store's beginning on and stay valid.
template <class Item, std::size_t chunk_items>
class RecordStore {
    static_assert((chunk_items & (chunk_items - 1)) == 0);

  public:
    using Index = std::uint64_t;

    [[nodiscard]] Index end() const { return end_; }
    [[nodiscard]] const Item* at(Index index) const {
        return chunks_[chunk_of(index)].get() + index % chunk_items;
    }
    [[nodiscard]] Item* at(Index index) { return chunks_[chunk_of(index)].get() + index % chunk_items; }

    /// Makes room for `count` more items of the last record, which begins at `record` (`end()` for a new
    /// one). Returns where the record begins now: it moves when its chunk is full.
    Index extend(Index record, std::size_t count) {
        const std::size_t length = end_ - record;
        assert(length + count <= chunk_items);
        const std::size_t offset = record % chunk_items;
        if (offset + length + count > chunk_items) {
            const Index moved = record - offset + chunk_items;
            reach(moved + length + count);
            std::copy_n(at(record), length, at(moved));
            record = moved;
        }
        reach(record + length + count);
        end_ = record + length + count;
        return record;
    }
    /// Cuts off everything from `index` on.
    void truncate(Index index) { end_ = index; }
    /// Gives up everything before `index`.
    void drop_before(Index index) {
        while (chunks_.size() > 1 && (first_chunk_ + 1) * chunk_items <= index) {
            spare_ = std::move(chunks_.front());
            chunks_.pop_front();
            ++first_chunk_;
        }
    }
    void clear() {
        chunks_.clear();
        first_chunk_ = end_ = 0;
    }
    [[nodiscard]] std::size_t memory() const {
        return (chunks_.size() + (spare_ ? 1 : 0)) * chunk_items * sizeof(Item);
    }

  private:
    [[nodiscard]] std::size_t chunk_of(Index index) const {
        return static_cast<std::size_t>(index / chunk_items - first_chunk_);
    }
    void reach(Index end) {
        while ((first_chunk_ + chunks_.size()) * chunk_items < end) {
            chunks_.push_back(spare_ ? std::move(spare_) : std::make_unique<Item[]>(chunk_items));
        }
    }

    std::deque<std::unique_ptr<Item[]>> chunks_;
    std::unique_ptr<Item[]> spare_;  // the chunk dropped last, to be filled next
    std::uint64_t first_chunk_ = 0;  // number of the first of `chunks_`
    Index end_ = 0;
};

}  // namespace terminal
