// The one table of words: every list of the library that values are matched against is one.
#pragma once

#include "xmlattr/core/Export.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>
#include <type_traits>

namespace Core {

// Whether ASCII letters of either case match.
enum class Case { Exact, Any };

// The value of words that are only listed.
struct Valueless {};

// A row as it is written in a table; its letters are char16_t or char.
template <class Value = Valueless, class Unit = char16_t> struct WordRow {
    std::basic_string_view<Unit> word;
    Value value{};
};

// The place of a word among the letters of all words of its table, and the number of the next row that the same
// texts may be; 0 when there is none.
struct PackedWord {
    // In one, so that one comparison tells that a length fits and no row is next: with a next row it is negative, which
    // no size of a text is.
    std::int32_t lengthAndNext;
    std::uint16_t start;

    constexpr PackedWord(std::size_t newStart = 0, std::size_t newLength = 0)
        : lengthAndNext(static_cast<std::int32_t>(newLength)), start(static_cast<std::uint16_t>(newStart)) {}

    // In code units.
    constexpr std::size_t length() const { return static_cast<std::uint16_t>(lengthAndNext); }
    // The number of the next row; 0 when there is none.
    constexpr std::size_t next() const { return static_cast<std::size_t>(lengthAndNext >> 16 & INT16_MAX); }
    constexpr void setNext(std::size_t row) { lengthAndNext |= INT32_MIN | static_cast<std::int32_t>(row) << 16; }

    // Whether this is the only row that a text of the size may be, and the size is its length.
    constexpr bool isAlone(std::size_t size) const { return static_cast<std::size_t>(lengthAndNext) == size; }
};

// The number of no row.
inline constexpr std::size_t noWord = SIZE_MAX;

// The number of the row whose word is the text, or noWord. The slot of the text's mark holds the first row that it
// may be. A table comes in pieces, which are passed in registers; as one it would go through memory.
XMLATTR_API std::size_t findWord(PackedWord const* words, char16_t const* letters, std::uint16_t const* firstRows,
                                 std::u16string_view text, std::uint64_t factor);
// The same for letters of one byte.
XMLATTR_API std::size_t findWord(PackedWord const* words, char const* letters, std::uint16_t const* firstRows,
                                 std::string_view text, std::uint64_t factor);
// The same where ASCII letters of either case match.
XMLATTR_API std::size_t findWordInAnyCase(PackedWord const* words, char16_t const* letters,
                                          std::uint16_t const* firstRows, std::u16string_view text,
                                          std::uint64_t factor);

// The number of the first row with the value, or noWord.
XMLATTR_API std::size_t findNumber(std::int32_t const* values, std::size_t count, std::int32_t value);

namespace detail {

// A text of up to three code units as a number, which no other text has.
inline constexpr std::size_t longestNumber = 3;
template <class Unit> constexpr std::uint64_t numberOf(std::basic_string_view<Unit> text) {
    std::uint64_t number = 1;
    for (Unit const unit : text) number = number << 16 | static_cast<char16_t>(unit);
    return number;
}

// Groups of four letters from the start, the middle and the end of a word. A word of fewer than four is the first.
struct Groups {
    std::uint64_t start, middle = 0, end = 0;

    template <class Unit> constexpr Groups(Unit const* letters, std::size_t size) {
        if (size <= longestNumber) {
            start = numberOf(std::basic_string_view<Unit>(letters, size));
            return;
        }
        start = fourUnits(letters);
        middle = fourUnits(letters + (size / 2 - 2));
        end = fourUnits(letters + (size - 4));
    }

    constexpr bool operator==(Groups const& other) const {
        return ((start ^ other.start) | (middle ^ other.middle) | (end ^ other.end)) == 0;
    }
};

template <Case rule, class Unit>
constexpr bool isWord(Unit const* word, std::size_t length, std::basic_string_view<Unit> text) {
    if (length != text.size()) return false;
    if (std::equal(text.begin(), text.end(), word)) return true; // first, since most are written as they are listed
    return rule == Case::Any &&
           std::equal(text.begin(), text.end(), word, [](char16_t a, char16_t b) { return toLower(a) == toLower(b); });
}

// A number that few words of a table share, of which a product is the slot: seven bits of each letter matter. It stays
// within a major version, since programs have tables that are made with it.
template <Case rule> constexpr std::uint64_t markOf(Groups const& groups) {
    constexpr std::uint64_t lowerCase = rule == Case::Any ? fourUnits(u"    ") : 0;
    return (groups.start | lowerCase) ^ std::rotl(groups.middle | lowerCase, 21) ^
           std::rotl(groups.end | lowerCase, 42);
}

// The slot of a mark. The low six bits of the factor say how far its product is shifted.
constexpr std::size_t slotOf(std::uint64_t mark, std::uint64_t factor) {
    return static_cast<std::size_t>(mark * factor >> (factor & 63));
}

template <class Value, bool = std::is_enum_v<Value>> struct Stored { using type = Value; };
template <class Value> struct Stored<Value, true> : std::underlying_type<Value> {};

// Words and values without pointers, so that loading the library has nothing to relocate. Plain arrays, since there
// are many tables to compile.
template <class Value, class Unit, std::size_t count, std::size_t letterCount> struct PackedWords {
    PackedWord words[count]{};
    Unit letters[letterCount + 1]{};
    typename Stored<Value>::type values[count]{};

    template <class Rows> consteval explicit PackedWords(Rows const& rows) {
        std::uint16_t start = 0;
        for (std::size_t i = 0; i < count; ++i) {
            words[i] = {start, rows[i].word.size()};
            for (Unit const unit : rows[i].word) letters[start++] = unit;
            values[i] = static_cast<typename Stored<Value>::type>(rows[i].value);
        }
    }

    constexpr std::basic_string_view<Unit> word(std::size_t row) const {
        return {letters + words[row].start, words[row].length()};
    }
};

// The same with a hash, whose factor is searched when the table is compiled. Words that still share a slot are
// linked to each other.
template <Case rule, bool areNumbers, class Value, class Unit, std::size_t count, std::size_t letterCount>
struct WordIndex : PackedWords<Value, Unit, count, letterCount> {
    // So many slots that, in a list of up to 32 words, one factor in a few gives each word a slot of its own.
    static constexpr int slotBits =
        (std::max)(1, static_cast<int>(std::bit_width((std::min)(count* count / 4, 8 * count))));
    static constexpr int mostTries = 64;

    std::uint16_t firstRows[std::size_t{1} << slotBits]{};
    std::uint64_t factor = 0;
    bool hasDuplicates = false;

    template <class Rows> consteval explicit WordIndex(Rows const& rows) : WordIndex::PackedWords(rows) {
        std::uint64_t marks[count]{};
        for (std::size_t i = 0; i < count; ++i)
            marks[i] =
                areNumbers ? numberOf(rows[i].word) : markOf<rule>(Groups(rows[i].word.data(), rows[i].word.size()));
        std::uint64_t random = 0;
        std::size_t fewest = count;
        for (int i = 0; i < mostTries && fewest > 0; ++i) {
            random = random * 6364136223846793005u + 1442695040888963407u;
            std::uint64_t const candidate = (random & ~std::uint64_t{63}) | (64 - slotBits);
            std::size_t const shared = countShared(marks, candidate, fewest);
            if (shared == fewest) continue;
            fewest = shared;
            factor = candidate;
        }
        fillSlots(marks);
    }

private:
    // How many words are not the first of their slot, or the limit when there are as many.
    static constexpr std::size_t countShared(std::uint64_t const (&marks)[count], std::uint64_t factor,
                                             std::size_t limit) {
        bool taken[std::size_t{1} << slotBits]{};
        std::size_t shared = 0;
        for (std::size_t i = 0; i < count && shared < limit; ++i) {
            bool& slot = taken[slotOf(marks[i], factor)];
            shared += slot;
            slot = true;
        }
        return shared;
    }

    // An empty slot holds the first row, which no text of that slot is. Nothing links to the first row, since it
    // comes first in its own slot.
    constexpr void fillSlots(std::uint64_t const (&marks)[count]) {
        bool taken[std::size_t{1} << slotBits]{};
        for (std::size_t i = 0; i < count; ++i) {
            std::size_t const slot = slotOf(marks[i], factor);
            if (!taken[slot]) {
                taken[slot] = true;
                firstRows[slot] = static_cast<std::uint16_t>(i);
                continue;
            }
            PackedWord* last = &this->words[firstRows[slot]];
            for (;; last = &this->words[last->next()]) {
                if (isWord<rule>(this->letters + last->start, last->length(), this->word(i))) hasDuplicates = true;
                if (last->next() == 0) break;
            }
            last->setNext(i);
        }
    }
};

template <class Row> struct RowTypes;
template <class V, class U> struct RowTypes<WordRow<V, U>> {
    using Value = V;
    using Unit = U;
};

template <auto const& rows> consteval std::size_t longestWord() {
    std::size_t longest = 0;
    for (auto const& row : rows) longest = (std::max)(longest, row.word.size());
    return longest;
}

template <auto const& rows> consteval std::size_t countLetters() {
    std::size_t letters = 0;
    for (auto const& row : rows) letters += row.word.size();
    return letters;
}

// The table made from an array of rows, as static functions.
template <auto const& rows, template <class, class, std::size_t, std::size_t> class Packed> class Words {
    using Types = RowTypes<std::remove_cvref_t<decltype(*std::begin(rows))>>;

public:
    using Value = typename Types::Value;
    using Unit = typename Types::Unit;
    using Text = std::basic_string_view<Unit>;
    static constexpr std::size_t size = std::size(rows);

    static constexpr Text word(std::size_t row) { return packed.word(row); }
    static constexpr Value value(std::size_t row) { return static_cast<Value>(packed.values[row]); }

    // The number of the first row with the value, or noWord.
    static constexpr std::size_t findValue(Value const& value) {
        auto const stored = static_cast<typename Stored<Value>::type>(value);
        if constexpr (std::is_same_v<decltype(stored), std::int32_t const>)
            return findNumber(packed.values, size, stored);
        for (std::size_t row = 0; row < size; ++row)
            if (packed.values[row] == stored) return row;
        return noWord;
    }

protected:
    static constexpr std::size_t letterCount = countLetters<rows>();
    static_assert(size <= INT16_MAX && letterCount <= UINT16_MAX,
                  "a word table has at most 32767 words and 65535 letters");
    static constexpr Packed<Value, Unit, size, letterCount> packed{rows};
};

template <Case rule, bool areNumbers> struct Indexed {
    template <class Value, class Unit, std::size_t count, std::size_t letterCount>
    using Packed = WordIndex<rule, areNumbers, Value, Unit, count, letterCount>;
};

template <auto const& rows, Case rule>
inline constexpr bool areNumbers = rule == Case::Exact&& longestWord<rows>() <= longestNumber;

} // namespace detail

// The words of an array of WordRow, by number and by value: what a value prints. The array itself is read by the
// compiler alone.
template <auto const& rows> using WordList = detail::Words<rows, detail::PackedWords>;

// The same with a search for the row whose word is a text. Whatever distinct words there are, it compiles, and takes
// constant time: in nearly every case one multiplication and one comparison.
template <auto const& rows, Case rule = Case::Exact>
class WordTable : public detail::Words<rows, detail::Indexed<rule, detail::areNumbers<rows, rule>>::template Packed> {
    static_assert(!WordTable::packed.hasDuplicates,
                  "a word stands twice in its table, or differs from another only in case where case does not matter");

public:
    using typename WordTable::Words::Text;
    using typename WordTable::Words::Value;

    static constexpr std::size_t longest = detail::longestWord<rows>();

    // The number of the row whose word is the text, or noWord.
    static std::size_t indexOf(Text text) {
        auto const& table = WordTable::packed;
        if constexpr (rule == Case::Any)
            return findWordInAnyCase(table.words, table.letters, table.firstRows, text, table.factor);
        else if constexpr (!detail::areNumbers<rows, rule>)
            return findWord(table.words, table.letters, table.firstRows, text, table.factor);
        else
            return indexOfNumber(text.size() > longest ? 0 : detail::numberOf(text));
    }

    // The value of the row whose word is the text.
    static std::optional<Value> find(Text text) {
        std::size_t const row = indexOf(text);
        return row == noWord ? std::nullopt : std::optional(WordTable::value(row));
    }

    // The value of the longest word that the text begins with.
    static std::optional<Value> findStart(Text text) {
        for (std::size_t length = (std::min)(longest, text.size()); length > 0; --length)
            if (auto const value = find(text.substr(0, length))) return value;
        return std::nullopt;
    }

private:
    static std::size_t indexOfNumber(std::uint64_t number) {
        auto const& table = WordTable::packed;
        std::size_t row = table.firstRows[detail::slotOf(number, table.factor)];
        while (numbers[row] != number) {
            row = table.words[row].next();
            if (row == 0) return noWord;
        }
        return row;
    }

    static constexpr auto numbers = [] {
        std::array<std::uint64_t, WordTable::size> all{};
        for (std::size_t row = 0; row < all.size(); ++row) all[row] = detail::numberOf(rows[row].word);
        return all;
    }();
};

} // namespace Core
