// The texts of a table taken apart by the compiler: blank-separated words become arrays, and what is misspelt becomes
// an error that names the text.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace Xml {

// Ends the compilation unless it holds: the compiler then shows the text and the problem.
constexpr void requireOf(std::string_view /*text*/, bool holds, char const* problem) {
    if (!holds) throw std::invalid_argument(problem);
}

// A string literal as an argument of a template.
template <std::size_t size> struct TableText {
    char units[size];

    consteval TableText(char const (&literal)[size]) { std::copy_n(literal, size, units); }
    constexpr operator std::string_view() const { return {units, size - 1}; }
};

// The words of the text, one blank between them.
template <TableText text>
inline constexpr auto wordsOf = [] {
    constexpr std::string_view view = text;
    constexpr auto count = static_cast<std::size_t>(std::ranges::count(view, ' ')) + (view.empty() ? 0 : 1);
    std::array<std::string_view, count> words{};
    std::string_view rest = view;
    for (std::string_view& word : words) {
        word = rest.substr(0, rest.find(' '));
        requireOf(text, !word.empty(), "a blank too many");
        rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    }
    return words;
}();

} // namespace Xml
