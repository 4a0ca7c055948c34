// The places of the value types in the list of them.
#pragma once

#include "xmlattr/Instantiations.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace Xml {

#define XMLATTR_PUBLIC_VALUE(...) std::string_view(#__VA_ARGS__),
#define XMLATTR_INTERNAL_VALUE(...) XMLATTR_PUBLIC_VALUE(__VA_ARGS__)
inline constexpr auto typeNames = std::to_array({
#include "xmlattr/ValueTypes.inc"
});

template <class T> inline constexpr char typeMark = 0; // its address tells types apart

#define XMLATTR_PUBLIC_VALUE(...) &typeMark<__VA_ARGS__>,
#define XMLATTR_INTERNAL_VALUE(...) XMLATTR_PUBLIC_VALUE(__VA_ARGS__)
inline constexpr char const* typeMarks[] = {
#include "xmlattr/ValueTypes.inc"
};

// The number of types for one that is not in the list.
template <class T>
inline constexpr std::size_t typeNumber = [] {
    std::size_t number = 0;
    while (number < typeNames.size() && typeMarks[number] != &typeMark<T>) ++number;
    return number;
}();

} // namespace Xml
