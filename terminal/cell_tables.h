// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/cell.h"
#include "terminal/intern_table.h"
#include "terminal/limits.h"
#include "terminal/style.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace terminal {

struct StyleHash {
    std::size_t operator()(const Style& style) const;
};

/// An OSC 8 link: cells with the same one are highlighted together.
struct Link {
    std::string id;
    std::string address;
    bool operator==(const Link&) const = default;
};
struct LinkHash {
    std::size_t operator()(const Link& link) const;
};

/// What the numbers in cells stand for. When a table is full, the numbers that no cell has any more are given
/// anew; the owner says which ones are in use.
class CellTables {
  public:
    using MarkUsed = std::function<void(UsedIds& used)>;
    explicit CellTables(MarkUsed mark_used) : mark_used_(std::move(mark_used)) {}

    /// The plain style, and no link, when there are too many.
    StyleId intern(const Style& style);
    LinkId intern(const Link& link);
    /// Nothing when there are too many.
    std::optional<std::uint32_t> intern_cluster(const std::string& text);

    [[nodiscard]] const Style& style(StyleId id) const { return styles_[id]; }
    [[nodiscard]] const Link& link(LinkId id) const { return links_[id]; }
    [[nodiscard]] const std::string& cluster(std::uint32_t id) const { return clusters_[id]; }

  private:
    template <class Table, class Value>
    std::optional<std::uint32_t> intern_in(Table& table, const Value& value);
    void collect();

    MarkUsed mark_used_;
    InternTable<Style, StyleHash> styles_{max_styles, Style{}};
    InternTable<Link, LinkHash> links_{max_links, Link{}};
    InternTable<std::string> clusters_{max_clusters, std::string{}};
};

}  // namespace terminal
