#include "xmlattr/core/WordTable.h"

namespace Core {

namespace {

// The rows that the same texts may be, from one on. On its own, since nearly no row has another.
template <Case rule, class Unit>
[[gnu::noinline]] std::size_t searchFrom(std::size_t row, PackedWord const* words, Unit const* letters,
                                         std::basic_string_view<Unit> text) {
    while (!detail::isWord<rule>(letters + words[row].start, words[row].length(), text)) {
        row = words[row].next();
        if (row == 0) return noWord;
    }
    return row;
}

// Compares two more groups of four letters, between those of detail::Groups. Together they are all of a word of up to
// twenty letters, so that its length, which cannot be predicted, needs no branch.
constexpr std::size_t mostInGroups = 20;
template <class Unit> bool hasSameQuarters(Unit const* word, Unit const* text, std::size_t size) {
    if (size <= detail::longestNumber) return true;
    std::size_t const middle = size / 2 - 2, end = size - 4; // where the groups stand that are the same already
    auto const differences = [&](std::size_t at) { return fourUnits(word + at) ^ fourUnits(text + at); };
    return (differences(middle / 2) | differences((middle + end) / 2)) == 0;
}

template <Case rule, class Unit>
std::size_t search(PackedWord const* words, Unit const* letters, std::uint16_t const* firstRows,
                   std::basic_string_view<Unit> text, std::uint64_t factor) {
    detail::Groups const groups(text.data(), text.size());
    std::size_t const row = firstRows[detail::slotOf(detail::markOf<rule>(groups), factor)];
    PackedWord const word = words[row];
    if (!word.isAlone(text.size())) return word.next() == 0 ? noWord : searchFrom<rule>(row, words, letters, text);
    Unit const* const listed = letters + word.start;
    if (detail::Groups(listed, text.size()) == groups && hasSameQuarters(listed, text.data(), text.size()) &&
        (text.size() <= mostInGroups || std::equal(text.begin(), text.end(), listed)))
        return row; // first, since most are written as they are listed
    return rule == Case::Any && detail::isWord<rule>(listed, text.size(), text) ? row : noWord;
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
