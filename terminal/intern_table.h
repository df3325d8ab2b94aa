// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

namespace terminal {

/// Gives equal values one small number, from a bounded store. Number 0 is the value given at the start and
/// never goes. When all numbers are taken, the owner says which ones are still in use (`retain`).
template <class Value, class Hash = std::hash<Value>>
class InternTable {
  public:
    using Id = std::uint32_t;

    InternTable(std::size_t capacity, Value first) : capacity_(capacity), slots_(first_slots) {
        add(std::move(first));
    }

    [[nodiscard]] const Value& operator[](Id id) const { return values_[id < values_.size() ? id : 0]; }
    [[nodiscard]] std::size_t size() const { return values_.size() - free_.size(); }
    /// One past the greatest number given so far.
    [[nodiscard]] std::size_t end_id() const { return values_.size(); }

    /// The number of a value, or nothing when the table is full.
    std::optional<Id> intern(const Value& value) {
        const std::uint32_t hash = hash_of(value);
        for (std::size_t slot = first_slot(hash); slots_[slot].id != no_id; slot = next(slot)) {
            if (slots_[slot].hash == hash && values_[slots_[slot].id] == value) {
                return slots_[slot].id;
            }
        }
        if (size() >= capacity_) {
            ++refused_;
            return std::nullopt;
        }
        return add(value);
    }

    /// Whether it pays to look for numbers that are out of use: not again and again when there are hardly
    /// any.
    [[nodiscard]] bool wants_collection() const { return size() >= capacity_ && refused_ >= patience_; }

    /// Frees all numbers for which `used` is false.
    void retain(const std::vector<bool>& used) {
        std::vector<bool> taken(used);
        taken.resize(values_.size(), false);
        taken[0] = true;
        free_.clear();
        for (std::size_t id = values_.size(); id-- > 1;) {
            if (!taken[id]) {
                values_[id] = Value{};
                free_.push_back(static_cast<Id>(id));
            }
        }
        rebuild(slots_.size(), taken);
        refused_ = 0;
        const bool paid = free_.size() >= capacity_ / 8;
        patience_ = paid ? 1 : std::clamp(patience_ * 2, capacity_ / 8, capacity_ / 2);
    }

  private:
    static constexpr std::size_t first_slots = 256;
    static constexpr Id no_id = std::numeric_limits<Id>::max();
    /// With the value's hash most values that differ are told apart without looking for them in memory.
    struct Slot {
        Id id = no_id;
        std::uint32_t hash = 0;
    };

    static std::uint32_t hash_of(const Value& value) { return static_cast<std::uint32_t>(Hash{}(value)); }
    [[nodiscard]] std::size_t first_slot(std::uint32_t hash) const { return hash & (slots_.size() - 1); }
    [[nodiscard]] std::size_t next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }

    Id add(Value value) {
        Id id = 0;
        if (free_.empty()) {
            id = static_cast<Id>(values_.size());
            values_.push_back(std::move(value));
        } else {
            id = free_.back();
            free_.pop_back();
            values_[id] = std::move(value);
        }
        if (size() * 2 > slots_.size()) {
            std::vector<bool> taken(values_.size(), true);
            for (const Id unused : free_) {
                taken[unused] = false;
            }
            rebuild(slots_.size() * 2, taken);
        } else {
            enter(id);
        }
        return id;
    }
    void enter(Id id) {
        const std::uint32_t hash = hash_of(values_[id]);
        std::size_t slot = first_slot(hash);
        while (slots_[slot].id != no_id) {
            slot = next(slot);
        }
        slots_[slot] = {id, hash};
    }
    void rebuild(std::size_t slot_count, const std::vector<bool>& taken) {
        slots_.assign(slot_count, Slot{});
        for (std::size_t id = 0; id < values_.size(); ++id) {
            if (taken[id]) {
                enter(static_cast<Id>(id));
            }
        }
    }

    std::size_t capacity_;
    std::vector<Value> values_;
    std::vector<Id> free_;
    std::vector<Slot> slots_;  // open addressing with linear probing; a power of two, at most half full
    std::size_t refused_ = 0;
    std::size_t patience_ = 1;
};

}  // namespace terminal
