// SPDX-License-Identifier: MIT
#include "terminal/cell_tables.h"

namespace terminal {

std::size_t StyleHash::operator()(const Style& style) const {
    const Style::Key key = style.key();
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;  // spreads what differs in few bits
    const std::uint64_t mixed = key.colours ^ key.rest * odd;
    return static_cast<std::size_t>((mixed ^ mixed >> 32) * odd >> 32);
}

std::size_t LinkHash::operator()(const Link& link) const {
    const std::hash<std::string> hash;
    return hash(link.address) * 31 + hash(link.id);
}

template <class Table, class Value>
std::optional<std::uint32_t> CellTables::intern_in(Table& table, const Value& value) {
    auto id = table.intern(value);
    if (!id && table.wants_collection()) {
        collect();
        id = table.intern(value);
    }
    return id;
}

StyleId CellTables::intern(const Style& style) {
    return style == Style{} ? StyleId{0} : static_cast<StyleId>(intern_in(styles_, style).value_or(0));
}

LinkId CellTables::intern(const Link& link) {
    return static_cast<LinkId>(intern_in(links_, link).value_or(0));
}

std::optional<std::uint32_t> CellTables::intern_cluster(const std::string& text) {
    return intern_in(clusters_, text);
}

void CellTables::collect() {
    UsedIds used;
    used.styles.resize(styles_.end_id());
    used.links.resize(links_.end_id());
    used.clusters.resize(clusters_.end_id());
    mark_used_(used);
    styles_.retain(used.styles);
    links_.retain(used.links);
    clusters_.retain(used.clusters);
}

}  // namespace terminal
