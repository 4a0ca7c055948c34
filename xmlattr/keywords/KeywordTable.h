// The one mechanism behind every keyword enumeration: a constexpr table right under it.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <array>
#include <bit>
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

// The length of a word and five of its letters, in lower case where case does not matter; they stand
// where the words of the tables differ, so that no two of a table agree in all of them.
template <Case rule> constexpr std::uint64_t markOf(std::u16string_view word) {
    std::size_t const size = word.size();
    if (size == 0) return 0;
    auto const at = [&](std::size_t index) {
        return std::uint64_t{rule == Case::Any ? Core::toLower(word[index]) : word[index]} & 0xFF;
    };
    return at(size > 1) << 40 | at(size / 3) << 32 | at(size * 9 / 16) << 24 | at(size * 3 / 4) << 16 |
           at(size - 1) << 8 | (size & 0xFF);
}

// The slot of a mark. The low six bits of the factor say how far its product is shifted.
constexpr std::size_t slotOf(std::uint64_t mark, std::uint64_t factor) {
    return static_cast<std::size_t>(mark * factor >> (factor & 63));
}

// A row of a packed table: the place of its word among the letters of all words.
struct PackedKeyword {
    std::int32_t value;
    std::uint16_t start, length;
};

// The row whose word is the text, or null. No other row but the one in the slot of the text's mark can
// be it. The table comes in pieces, which are passed in registers; as one it would go through memory.
template <Case rule>
PackedKeyword const* findWord(PackedKeyword const* rows, char16_t const* letters, std::uint8_t const* slots,
                              std::u16string_view text, std::uint64_t factor);
// The first row with the value, or null.
PackedKeyword const* findValue(std::span<PackedKeyword const> rows, std::int32_t value);
[[noreturn]] void throwUnknownKeyword();

template <auto const& rows> consteval std::size_t countLetters() {
    std::size_t count = 0;
    for (auto const& row : rows) count += row.word.size();
    return count;
}

// Rows and letters without pointers, so that loading the library has nothing to relocate.
template <auto const& rows> struct PackedWords {
    static constexpr std::size_t count = std::size(rows);

    std::array<PackedKeyword, count> packed{};
    std::array<char16_t, countLetters<rows>() + 1> letters{};

    consteval PackedWords() {
        std::uint16_t start = 0;
        for (std::size_t i = 0; i < count; ++i) {
            auto const length = static_cast<std::uint16_t>(rows[i].word.size());
            packed[i] = {static_cast<std::int32_t>(rows[i].value), start, length};
            for (char16_t const unit : rows[i].word) letters[start++] = unit;
        }
    }

    PackedKeyword const* find(std::int32_t value) const { return findValue(packed, value); }

    std::u16string_view word(PackedKeyword const& row) const { return {letters.data() + row.start, row.length}; }
};

// The same with a perfect hash, which is found when the table is compiled.
template <auto const& rows, Case rule> struct PackedTable : PackedWords<rows> {
    using PackedWords<rows>::count;
    // So many slots that one factor in a few gives each word a slot of its own.
    static constexpr int slotBits = std::max(1, static_cast<int>(std::bit_width(count* count / 4)));
    static_assert(count < 256, "a slot is one byte");

    std::array<std::uint8_t, std::size_t{1} << slotBits> slots{};
    std::uint64_t factor = 0;

    consteval PackedTable() {
        std::uint64_t random = 0;
        do {
            random = random * 6364136223846793005u + 1442695040888963407u;
            factor = (random & ~std::uint64_t{63}) | (64 - slotBits);
        } while (!fillSlots());
    }

    using PackedWords<rows>::find;
    PackedKeyword const* find(std::u16string_view text) const {
        return findWord<rule>(this->packed.data(), this->letters.data(), slots.data(), text, factor);
    }

private:
    // False when two words share a slot. What has no word of its own gets the first one, which it does not match.
    consteval bool fillSlots() {
        slots = {};
        std::array<bool, std::size_t{1} << slotBits> taken{};
        for (std::size_t i = 0; i < count; ++i) {
            std::size_t const slot = slotOf(markOf<rule>(rows[i].word), factor);
            if (taken[slot]) return false;
            taken[slot] = true;
            slots[slot] = static_cast<std::uint8_t>(i);
        }
        return true;
    }
};

template <auto const& rows> inline constexpr PackedWords<rows> packedWords;
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

template <class E> consteval bool hasTwinMarks() {
    return hasTwins<Keywords<E>::rows>([](KeywordRow<E> const& a, KeywordRow<E> const& b) {
        return markOf<Keywords<E>::rule>(a.word) == markOf<Keywords<E>::rule>(b.word);
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

// The words that a value prints.
template <class E> constexpr auto const& printTable() {
    if constexpr (requires { Keywords<E>::printRows; })
        return packedWords<Keywords<E>::printRows>;
    else
        return packedTable<Keywords<E>::rows, Keywords<E>::rule>;
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
    static_assert(!detail::hasTwinMarks<E>(), "two keywords are alike in all that markOf looks at");
    static_assert(!detail::hasDuplicatePrints<E>(), "a value stands twice among the rows for printing");
    static_assert(KeywordsPrintEmpty<E> + KeywordsThrow<E> + KeywordsFallBack<E> <= 1,
                  "a value without a keyword prints in one way");

    static bool parse(E& value, std::u16string_view text) {
        auto const* const row = detail::packedTable<Keywords<E>::rows, Keywords<E>::rule>.find(text);
        if (row) value = static_cast<E>(row->value);
        return row != nullptr;
    }

    static Core::String print(E const& value) requires(!KeywordsPrintEmpty<E>) {
        auto const& table = detail::printTable<E>();
        if (auto const* const row = table.find(static_cast<std::int32_t>(value))) return table.word(*row);
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
