// What a text means by the grammar of its attribute.
#pragma once

#include "xmlattr/catalogue/grammar/Grammar.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace Xml {

// How a vocabulary writes its values where they do not write them alike.
enum class Dialect : std::uint8_t {
    Fo,           // words in exact case; numbers without exponent; of the lengths, only 0 may lack its unit
    SvgAttribute, // words in exact case; numbers with exponents; lengths and angles without unit
    SvgStyle      // words and units in any case; numbers without exponent; lengths and angles without unit
};

enum class ItemKind : std::uint8_t { Word, Number, Length, Percentage, Angle, Time, Frequency, Color, Uri, Text };

// One value. The views are of the text that was read.
struct Item {
    ItemKind kind = ItemKind::Word;
    // Rounded once; of 50% it is 50; of a colour, by how much its components may differ from others' rounding.
    float number = 0;
    std::u16string_view unit{}; // as it is written; empty without one
    std::u16string_view text{}; // as it is written; of a Uri the reference alone, of a String what the marks enclose
    std::uint32_t rgb = 0;      // of a Color
};

// A list that allocates nothing until it has more than `inlined` values.
template <class T, std::size_t inlined> class ShortList {
public:
    std::size_t size() const { return count; }
    bool empty() const { return count == 0; }
    T const& operator[](std::size_t index) const { return data()[index]; }
    T const& back() const { return data()[count - 1]; }
    std::span<T const> values() const { return {data(), count}; }

    void push(T const& value) {
        if (count < inlined) {
            few[count] = value;
        } else {
            if (count == inlined) many.assign(few.begin(), few.end());
            many.push_back(value);
        }
        ++count;
    }

    void shrink(std::size_t size) {
        if (count > inlined && size > inlined) many.resize(size);
        if (count > inlined && size <= inlined) std::copy_n(many.begin(), size, few.begin());
        count = size;
    }

private:
    T const* data() const { return count > inlined ? many.data() : few.data(); }

    std::array<T, inlined> few; // only the first `count` have been written
    std::vector<T> many;
    std::size_t count = 0;
};

// The values of a text in its order; commas, slashes and the names of calls are no values.
using Meaning = ShortList<Item, 6>;

enum class Ranges : std::uint8_t { Kept, Ignored };

// Whether the text is legal by the grammar, its ranges of numbers ignored on demand, and then what it means; white
// space of XML around it does not count. Takes time linear in the text for grammars of one list, and bounded by its
// length times the steps of the grammar, times the subsets of options in any order, for every grammar. A grammar
// without steps allows nothing.
bool readMeaning(Meaning& meaning, Grammar const& grammar, Dialect dialect, std::u16string_view text,
                 Ranges ranges = Ranges::Kept);

} // namespace Xml
