// Names with their numbers, looked up in constant time in a table that is made at compile time.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Xml {

inline constexpr std::size_t noName = SIZE_MAX;

// Numbers the distinct names of an array. An open hash table of number plus one, 0 where nothing is, at most
// half full.
template <std::size_t Count> class NameTable {
public:
    constexpr explicit NameTable(std::array<std::string_view, Count> const& all) : names(all) {
        for (std::size_t i = 0; i < Count; ++i) {
            std::size_t slot = slotOf(names[i]);
            while (slots[slot] != 0) slot = (slot + 1) % slotCount;
            slots[slot] = static_cast<std::uint16_t>(i + 1);
        }
    }

    // The number of the name, or noName.
    constexpr std::size_t find(std::string_view name) const noexcept {
        for (std::size_t slot = slotOf(name); slots[slot] != 0; slot = (slot + 1) % slotCount)
            if (names[slots[slot] - 1U] == name) return slots[slot] - 1U;
        return noName;
    }

    constexpr bool contains(std::string_view name) const noexcept { return find(name) != noName; }

    std::array<std::string_view, Count> names;

private:
    static constexpr std::size_t slotCount = std::bit_ceil(2 * Count);
    static_assert(Count < UINT16_MAX);

    static constexpr std::size_t slotOf(std::string_view name) noexcept {
        std::uint32_t hash = 2166136261u;
        for (char const c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
        return (hash ^ hash >> 15) % slotCount;
    }

    std::array<std::uint16_t, slotCount> slots{};
};

} // namespace Xml
