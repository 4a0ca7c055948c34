#include "xmlattr/core/WordTable.h"

#include <cstring>

namespace Core {

namespace {

std::uint64_t load(char16_t const* from) {
    std::uint64_t units;
    std::memcpy(&units, from, sizeof units);
    return units;
}

// Four code units with the letters of ASCII in lower case. Others may change, but no word of a table has any.
std::uint64_t foldUnits(std::uint64_t units) {
    constexpr std::uint64_t each = 0x0001'0001'0001'0001;
    std::uint64_t const low = units & each * 0x7F;
    std::uint64_t const fromA = low + each * (0x80 - u'A'), afterZ = low + each * (0x80 - u'Z' - 1);
    return units | (fromA & ~afterZ & each * 0x80) >> 2;
}

// detail::isWord for letters of either case, four at a time; the last four overlap those before.
bool isWordInAnyCase(char16_t const* word, std::size_t length, std::u16string_view text) {
    constexpr std::size_t step = sizeof(std::uint64_t) / sizeof(char16_t);
    if (length < step || length != text.size()) return detail::isWord<Case::Any>(word, length, text);
    auto const differ = [&](std::size_t at) { return foldUnits(load(word + at)) != foldUnits(load(text.data() + at)); };
    for (std::size_t at = 0; at < length - step; at += step)
        if (differ(at)) return false;
    return !differ(length - step);
}

template <Case rule, class Unit>
std::size_t search(PackedWord const* words, Unit const* letters, std::uint16_t const* firstRows,
                   std::basic_string_view<Unit> text, std::uint64_t factor) {
    std::size_t row = firstRows[detail::slotOf(detail::markOf<rule>(text), factor)];
    auto const isWord = [&] {
        if constexpr (rule == Case::Any)
            return isWordInAnyCase(letters + words[row].start, words[row].length, text);
        else
            return detail::isWord<rule>(letters + words[row].start, words[row].length, text);
    };
    while (!isWord()) {
        row = words[row].next;
        if (row == 0) return noWord;
    }
    return row;
}

} // namespace

std::size_t findWord(PackedWord const* words, char16_t const* letters, std::uint16_t const* firstRows,
                     std::u16string_view text, std::uint64_t factor) {
    return search<Case::Exact>(words, letters, firstRows, text, factor);
}

std::size_t findWord(PackedWord const* words, char const* letters, std::uint16_t const* firstRows,
                     std::string_view text, std::uint64_t factor) {
    return search<Case::Exact>(words, letters, firstRows, text, factor);
}

std::size_t findWordInAnyCase(PackedWord const* words, char16_t const* letters, std::uint16_t const* firstRows,
                              std::u16string_view text, std::uint64_t factor) {
    return search<Case::Any>(words, letters, firstRows, text, factor);
}

// From the last row to the first, without a branch that depends on the value: which row matches cannot
// be predicted, and leaving the loop early costs more than the rest of a table.
std::size_t findNumber(std::int32_t const* values, std::size_t count, std::int32_t value) {
    std::size_t found = noWord;
    for (std::size_t i = count; i > 0; --i) found = values[i - 1] == value ? i - 1 : found;
    return found;
}

} // namespace Core
