// White space, digits and comparisons on UTF-16 text: the rules that String and every scanner share.
// Nothing here allocates, throws or depends on the locale.
#pragma once

#include "xmlattr/core/Export.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace Core {

// Exactly seven code units: space, form feed, line feed, carriage return, tab, vertical tab and
// the no-break space. No other Unicode blank counts.
constexpr bool isSpace(char16_t unit) noexcept {
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r') || unit == u'\u00A0';
}

// The white space of XML: space, tab, line feed and carriage return, nothing else.
constexpr bool isXmlSpace(char32_t unit) noexcept {
    return unit == U' ' || unit == U'\t' || unit == U'\n' || unit == U'\r';
}

// The ASCII digits.
constexpr bool isDigit(char16_t unit) noexcept {
    return unit >= u'0' && unit <= u'9';
}

// The ASCII letters, of either case.
constexpr bool isLetter(char16_t unit) noexcept {
    return (unit | 0x20u) - u'a' < 26u;
}

// Branches between digits and letters cannot be predicted; a table needs none.
inline constexpr auto hexDigits = [] {
    std::array<signed char, 128> values{};
    values.fill(-1);
    signed char value = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) values[digit] = value++;
    for (char16_t letter = u'a'; letter <= u'f'; ++letter) values[letter] = values[letter - u'a' + u'A'] = value++;
    return values;
}();

// The value of a hexadecimal digit of either case, -1 for every other code unit.
constexpr int hexDigit(char16_t unit) noexcept {
    return unit < hexDigits.size() ? hexDigits[unit] : -1;
}

// Four code units as one number, the first in its lowest bits whatever the machine: one load where the compiler sees
// that it is the same.
template <class Unit> constexpr std::uint64_t fourUnits(Unit const* units) noexcept {
    auto const at = [&](std::size_t index) {
        return std::uint64_t{static_cast<std::make_unsigned_t<Unit>>(units[index])} << 8 * sizeof(Unit) * index;
    };
    return at(0) | at(1) | at(2) | at(3);
}

// Folds ASCII letters only, whatever the locale.
constexpr char16_t toLower(char16_t unit) noexcept {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

// Whether the texts differ at most in the case of ASCII letters.
constexpr bool equalsNoCase(std::u16string_view left, std::u16string_view right) noexcept {
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin(),
                                                     [](char16_t a, char16_t b) { return toLower(a) == toLower(b); });
}

// Without the white space at the start.
constexpr std::u16string_view trimStart(std::u16string_view text) noexcept {
    while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
    return text;
}

// Without the white space at the end.
constexpr std::u16string_view trimEnd(std::u16string_view text) noexcept {
    while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
    return text;
}

// Without the white space at both ends.
constexpr std::u16string_view trim(std::u16string_view text) noexcept {
    return trimEnd(trimStart(text));
}

} // namespace Core
