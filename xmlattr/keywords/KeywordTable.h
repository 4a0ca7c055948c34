// The one mechanism for all keyword enumerations: each has a constexpr table right under it.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/WordTable.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>

namespace Xml {

using Core::Case;

// A keyword and the enumerator that it gives.
template <class E> using KeywordRow = Core::WordRow<E>;

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

[[noreturn]] XMLATTR_API void throwUnknownKeyword();

template <class E> consteval bool hasEmptyWord() {
    for (KeywordRow<E> const& row : Keywords<E>::rows)
        if (row.word.empty()) return true;
    return false;
}

template <class E> consteval bool hasDuplicatePrints() {
    if constexpr (requires { Keywords<E>::printRows; })
        for (auto const& row : Keywords<E>::printRows)
            if (std::ranges::count(Keywords<E>::printRows, row.value, &KeywordRow<E>::value) > 1) return true;
    return false;
}

template <class E> using ReadTable = Core::WordTable<Keywords<E>::rows, Keywords<E>::rule>;

// Prints other words than it reads.
template <class E>
concept PrintsOtherWords = requires {
    Keywords<E>::printRows;
};

// The words that a value prints.
template <class E> struct PrintTable { using type = ReadTable<E>; };
template <PrintsOtherWords E> struct PrintTable<E> { using type = Core::WordList<Keywords<E>::printRows>; };

} // namespace detail

// What a keyword enumeration reads and prints, for enumerations that do so by their table alone and
// for those that add something to it.
template <KeywordEnumeration E> struct KeywordTraits {
    // The words say it all; a type that reads more says so in its own traits.
    static constexpr Description describe{};
    static constexpr bool printsEmpty = KeywordsPrintEmpty<E>;

    static_assert(std::is_same_v<std::underlying_type_t<E>, std::int32_t>);
    static_assert(
        detail::hasEmptyWord<E>() == requires { Keywords<E>::acceptsEmpty; },
        "the empty text is a keyword only where the table says so");
    static_assert(!detail::hasDuplicatePrints<E>(), "a value stands twice among the rows for printing");
    static_assert(KeywordsPrintEmpty<E> + KeywordsThrow<E> + KeywordsFallBack<E> <= 1,
                  "a value without a keyword prints in one way");

    // False for a text that is no keyword; then the value is untouched.
    static bool parse(E& value, std::u16string_view text) {
        std::size_t const row = detail::ReadTable<E>::indexOf(text);
        if (row != Core::noWord) value = detail::ReadTable<E>::value(row);
        return row != Core::noWord;
    }

    // The keywords, in the order of the table.
    static void words(Words& out) { out.addAll(Keywords<E>::rows); }

    // The number of the enumerator, which no document shows.
    static void parts(E const& value, Parts& out) { out.add(u"number") << static_cast<std::int32_t>(value); }

    // The first keyword of the value; Keywords says what else. Throws UnreacheableCodeException where it says so.
    static Core::String print(E const& value) requires(!KeywordsPrintEmpty<E>) {
        using Table = typename detail::PrintTable<E>::type;
        std::size_t const row = Table::findValue(value);
        if (row != Core::noWord) return Table::word(row);
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
