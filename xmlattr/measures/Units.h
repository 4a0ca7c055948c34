// Units of length: their suffixes and how many pixels each is, at 96 pixels to the inch.
#pragma once

#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/WordTable.h"
#include "xmlattr/measures/Length.h"
#include "xmlattr/measures/SLength.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

namespace Xml {

// Scales a size in double precision, first the product, then the quotient, and rounds once: what is
// too large for a float is infinite.
struct Ratio {
    double multiply = 1, divide = 1;
    constexpr float of(float size) const { return static_cast<float>(size * multiply / divide); }
};

// What the column of a type holds for a unit that the type does not read.
template <class E> inline constexpr E noUnit = static_cast<E>(-1);

// A unit of length, with the enumerator that each type of length has for it.
struct Unit {
    Length::Unit length;
    SLength::Unit sLength;
    Ratio toPixels, fromPixels;

    template <class E> constexpr E as() const {
        if constexpr (std::is_same_v<E, Length::Unit>)
            return length;
        else
            return sLength;
    }
};

// The units of all lengths, exact in case.
inline constexpr Core::WordRow<Unit> unitRows[] = {
    {u"pt", {Length::Pt, SLength::Pt, {96, 72}, {72, 96}}},
    {u"px", {Length::Px, SLength::UserUnit, {1, 1}, {1, 1}}}, // Intended: SVG lengths hold user units
    {u"cm",
     {Length::Cm, SLength::Cm, {96, 2.54f}, {2.54f, 96}}}, // Intended: 2.54 and 25.4 in single precision, widened
    {u"mm", {Length::Mm, SLength::Mm, {96, 25.4f}, {25.4f, 96}}},
    {u"in", {Length::In, SLength::In, {96, 1}, {1, 96}}},
    {u"em", {Length::Em, SLength::Em, {96, 1536}, {1536, 96}}}, // Intended: 1/16 and 1/8 pixel, whatever the font
    {u"ex", {Length::Ex, SLength::Ex, {96, 768}, {768, 96}}},
    {u"pc", {Length::Pc, SLength::Pc, {12.0 * 96, 72}, {12 * 72, 96}}}, // Intended: not inverse, see Length.h
};

using Units = Core::WordTable<unitRows>;

// The number of the row of an enumerator, or noWord.
template <class E> constexpr std::size_t rowOfUnit(E unit) {
    if (unit == noUnit<E>) return Core::noWord; // not the row of a unit that the type does not read
    for (std::size_t row = 0; row < Units::size; ++row)
        if (Units::value(row).as<E>() == unit) return row;
    return Core::noWord;
}

// The unit of the type whose word is the text, or noUnit.
template <class E> inline E findUnit(std::u16string_view text) {
    std::size_t const row = Units::indexOf(text);
    return row == Core::noWord ? noUnit<E> : Units::value(row).as<E>();
}

// The longest unit of the type that the text ends with; without one, the length is 0.
template <class E> struct UnitAtEnd {
    E unit = noUnit<E>;
    std::size_t length;

    explicit UnitAtEnd(std::u16string_view text) {
        for (length = (std::min)(Units::longest, text.size()); length > 0; --length)
            if ((unit = findUnit<E>(text.substr(text.size() - length))) != noUnit<E>) return;
    }
};

// Whether the first code unit can begin a measure: a digit, a sign or a point.
constexpr bool startsLikeNumber(std::u16string_view text) {
    return !text.empty() && (Core::isDigit(text[0]) || text[0] == u'+' || text[0] == u'-' || text[0] == u'.');
}

// A plain number at the start of a measure and what follows it, which nearly every measure is.
// The number is what Core::Format::parseFloat gives for the text before the suffix.
struct PlainMeasure {
    float number = 0;
    std::u16string_view suffix;
    bool isPlain;

    explicit PlainMeasure(std::u16string_view text) {
        char16_t const* const end = text.data() + text.size();
        char16_t const* const after = Core::scanPlain(text.data(), end, number);
        isPlain = after != nullptr;
        if (isPlain) suffix = {after, static_cast<std::size_t>(end - after)};
    }

    // The unit of the type that is all of the suffix, or noUnit.
    template <class E> E unit() const { return isPlain ? findUnit<E>(suffix) : noUnit<E>; }
    bool isPercent() const { return isPlain && suffix.size() == 1 && suffix[0] == u'%'; }
    bool isBare() const { return isPlain && suffix.empty(); }
};

// Reads a number before a unit. Intended: two code units that name no unit are dropped and give user units, as "px"
// does. False, too, for a text without anything before them.
XMLATTR_API bool readWithUnit(SLength& out, std::u16string_view text);

// Appends a length to the text. Throws UnreacheableCodeException for an out-of-range unit.
XMLATTR_API void appendLength(std::u16string& out, Length const& length);

// As a text of SVG has it.
Parts& operator<<(Parts& out, SLength const& length);

} // namespace Xml
