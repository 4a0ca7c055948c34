// What only the compiler knows of a value type, and what its printer does with numbers that no text gives.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Reference {

// How a number prints.
struct NumberPrint {
    int number;
    std::string text;
};

struct TypeFacts {
    std::string_view name;
    std::size_t size, attributeSize; // in bytes
    bool prints;
    bool refusesComparison;
    bool readsWordsAlone;

    // Of an enumeration: how the numbers print that no word gives, and one that is no enumerator at all; nothing where
    // that throws.
    std::vector<NumberPrint> unreadNumbers{};
    std::optional<std::string> outOfRange{};
};

// In the order of ValueTypes.inc.
std::span<TypeFacts const> typeFacts();

} // namespace Reference
