// Looks the rows of a constant table up by name.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace Xml {

// The numbers of the rows in the order of their names.
template <std::size_t count> struct NameIndex {
    std::array<std::uint16_t, count> order{};

    constexpr explicit NameIndex(std::array<std::string_view, count> const& names) {
        for (std::size_t i = 0; i < count; ++i) order[i] = static_cast<std::uint16_t>(i);
        std::ranges::sort(order, {}, [&](std::uint16_t row) { return names[row]; });
    }

    // The row with the name, or null. The rows are those whose names the index was made of.
    template <class Row> constexpr Row const* find(std::span<Row const> rows, std::string_view name) const {
        auto const nameOf = [&](std::uint16_t row) { return rows[row].name(); };
        auto const found = std::ranges::lower_bound(order, name, {}, nameOf);
        return found != order.end() && nameOf(*found) == name ? &rows[*found] : nullptr;
    }
};

} // namespace Xml
