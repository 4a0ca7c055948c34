// The one mechanism behind every keyword enumeration: a constexpr table right under it.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <span>
#include <type_traits>

namespace Xml {

enum class Case { Exact, Any };

template <class E> struct KeywordRow {
    std::u16string_view word;
    E value;
};

// Specialised under each enumeration E:
//
//   static constexpr Case rule;                 whether letters of either case match
//   static constexpr KeywordRow<E> rows[];      what is accepted; printing takes a value's first row
//
// and, where they apply,
//
//   static constexpr bool printsEmpty = true;              there is no printer
//   static constexpr KeywordRow<E> printRows[];            prints other words than it reads
//   static constexpr std::u16string_view unknownPrints;    for a value without a keyword, not ""
//   static constexpr bool unknownThrows = true;            UnreacheableCodeException instead
//   static constexpr bool acceptsEmpty = true;             the empty text is one of the keywords
//
// The whole text must match. A text that does not leaves the value as it was. The numbers of the
// enumerators are shared with the formatter and its renderers: their gaps and their order stay. An
// enumerator Unset is a number that no keyword gives.
template <class E> struct Keywords;

template <class E>
concept KeywordEnumeration = std::is_enum_v<E> && requires {
    Keywords<E>::rows;
};

template <class E>
concept KeywordsPrintEmpty = Keywords<E>::printsEmpty;

template <class E>
concept KeywordsThrow = Keywords<E>::unknownThrows;

template <class E>
concept KeywordsFallBack = !Keywords<E>::unknownPrints.empty();

namespace detail {

// The length of a word and its first, middle and last code unit, in lower case where case does not
// matter. Words with different marks are different.
constexpr std::uint64_t markOf(std::u16string_view word, Case rule) {
    if (word.empty()) return 0;
    auto const at = [&](std::size_t index) {
        return std::uint64_t{rule == Case::Any ? Core::toLower(word[index]) : word[index]};
    };
    std::size_t const size = word.size();
    return at(0) << 48 | at(size / 2) << 32 | at(size - 1) << 16 | (size & 0xFFFF);
}

// A row of a packed table: the place of its word among the letters of all words.
struct PackedKeyword {
    std::uint64_t mark;
    std::int32_t value;
    std::uint16_t start, length;
};

// A table without pointers, so that loading the library has nothing to relocate.
struct KeywordView {
    std::span<PackedKeyword const> rows;
    char16_t const* letters;

    constexpr std::u16string_view word(PackedKeyword const& row) const { return {letters + row.start, row.length}; }
};

// The row whose word is the text, or null. Only words whose mark is the text's are compared. The table
// comes in two arguments, which are passed in registers; as one it would go through memory.
PackedKeyword const* findWord(std::span<PackedKeyword const> rows, char16_t const* letters, std::u16string_view text,
                              Case rule);
// The same answer from comparing every word.
PackedKeyword const* findWordSlowly(KeywordView table, std::u16string_view text, Case rule);
// The first row with the value, or null.
PackedKeyword const* findValue(std::span<PackedKeyword const> rows, std::int32_t value);
[[noreturn]] void throwUnknownKeyword();

template <auto const& rows> consteval std::size_t countLetters() {
    std::size_t count = 0;
    for (auto const& row : rows) count += row.word.size();
    return count;
}

template <auto const& rows, Case rule> struct PackedTable {
    std::array<PackedKeyword, std::size(rows)> packed{};
    std::array<char16_t, countLetters<rows>() + 1> letters{};

    consteval PackedTable() {
        std::uint16_t start = 0;
        for (std::size_t i = 0; i < std::size(rows); ++i) {
            auto const length = static_cast<std::uint16_t>(rows[i].word.size());
            packed[i] = {markOf(rows[i].word, rule), static_cast<std::int32_t>(rows[i].value), start, length};
            for (char16_t const unit : rows[i].word) letters[start++] = unit;
        }
    }

    constexpr KeywordView view() const { return {packed, letters.data()}; }
};

template <auto const& rows, Case rule> inline constexpr PackedTable<rows, rule> packedTable;

template <auto const& rows, class Same> consteval bool hasTwins(Same same) {
    for (auto const* row = std::begin(rows); row != std::end(rows); ++row)
        if (std::any_of(row + 1, std::end(rows), [&](auto const& other) { return same(*row, other); })) return true;
    return false;
}

template <class E> consteval bool hasDuplicateWords() {
    return hasTwins<Keywords<E>::rows>([](KeywordRow<E> const& a, KeywordRow<E> const& b) {
        return Keywords<E>::rule == Case::Any ? Core::equalsNoCase(a.word, b.word) : a.word == b.word;
    });
}

template <class E> consteval bool hasEmptyWord() {
    return std::ranges::any_of(Keywords<E>::rows, [](KeywordRow<E> const& row) { return row.word.empty(); });
}

template <class E> consteval bool hasDuplicatePrints() {
    if constexpr (requires { Keywords<E>::printRows; })
        return hasTwins<Keywords<E>::printRows>(
            [](KeywordRow<E> const& a, KeywordRow<E> const& b) { return a.value == b.value; });
    else
        return false;
}

template <class E> constexpr KeywordView printTable() {
    if constexpr (requires { Keywords<E>::printRows; })
        return packedTable<Keywords<E>::printRows, Keywords<E>::rule>.view();
    else
        return packedTable<Keywords<E>::rows, Keywords<E>::rule>.view();
}

} // namespace detail

// What a keyword enumeration reads and prints, for enumerations that do so by their table alone and
// for those that add something to it.
template <KeywordEnumeration E> struct KeywordTraits {
    static_assert(std::is_same_v<std::underlying_type_t<E>, std::int32_t>);
    static_assert(!detail::hasDuplicateWords<E>(), "a keyword stands twice in the table");
    static_assert(
        detail::hasEmptyWord<E>() == requires { Keywords<E>::acceptsEmpty; },
        "the empty text is a keyword only where the table says so");
    static_assert(!detail::hasDuplicatePrints<E>(), "a value stands twice among the rows for printing");
    static_assert(KeywordsPrintEmpty<E> + KeywordsThrow<E> + KeywordsFallBack<E> <= 1,
                  "a value without a keyword prints in one way");

    static bool parse(E& value, std::u16string_view text) {
        constexpr detail::KeywordView table = detail::packedTable<Keywords<E>::rows, Keywords<E>::rule>.view();
        auto const* const row = detail::findWord(table.rows, table.letters, text, Keywords<E>::rule);
        if (row) value = static_cast<E>(row->value);
        return row != nullptr;
    }

    static Core::String print(E const& value) requires(!KeywordsPrintEmpty<E>) {
        constexpr detail::KeywordView table = detail::printTable<E>();
        if (auto const* const row = detail::findValue(table.rows, static_cast<std::int32_t>(value)))
            return table.word(*row);
        if constexpr (KeywordsThrow<E>)
            detail::throwUnknownKeyword();
        else if constexpr (KeywordsFallBack<E>)
            return Keywords<E>::unknownPrints;
        else
            return {};
    }
};

template <KeywordEnumeration E> struct AttributeTraits<E> : KeywordTraits<E> {};

} // namespace Xml
