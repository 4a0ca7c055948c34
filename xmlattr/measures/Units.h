// Units of length: their suffixes and how many pixels each is, at 96 pixels to the inch.
#pragma once

#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace Xml {

// A double rounded to the nearest float; a finite one that is too large becomes the largest float, so
// that a text never gives an infinity.
constexpr float roundToFloat(double value) {
    bool const isFinite = value >= -DBL_MAX && value <= DBL_MAX;
    return static_cast<float>(isFinite ? std::clamp(value, -double{FLT_MAX}, double{FLT_MAX}) : value);
}

// Scales a size in double precision, first the product, then the quotient, and rounds once.
struct Ratio {
    double multiply = 1, divide = 1;
    constexpr float of(float size) const { return roundToFloat(size * multiply / divide); }
};

template <class Unit> struct UnitRow {
    std::u16string_view suffix;
    Unit unit;
    Ratio toPixels;
    Ratio fromPixels{};
};

namespace PixelRatio {
inline constexpr Ratio px{1, 1};
inline constexpr Ratio pt{96, 72};
inline constexpr Ratio pc{12.0 * 96, 72};
inline constexpr Ratio cm{96, 2.54f}; // Intended: single-precision 2.54 and 25.4, widened
inline constexpr Ratio mm{96, 25.4f};
inline constexpr Ratio in{96, 1};
inline constexpr Ratio em{96, 1536}; // Intended: 1/16 and 1/8 pixel, whatever the font
inline constexpr Ratio ex{96, 768};
} // namespace PixelRatio

// Whether the first code unit can begin a measure: a digit, a sign or a point.
constexpr bool startsLikeNumber(std::u16string_view text) {
    return !text.empty() && (Core::isDigit(text[0]) || text[0] == u'+' || text[0] == u'-' || text[0] == u'.');
}

// The last two code units of a text that has them.
constexpr std::uint32_t lastTwo(std::u16string_view text) {
    return std::uint32_t{text[text.size() - 2]} << 16 | text.back();
}

template <auto const& rows>
inline constexpr auto suffixesOf = [] {
    std::array<std::uint32_t, std::size(rows)> suffixes{};
    for (std::size_t i = 0; i < suffixes.size(); ++i) suffixes[i] = lastTwo(rows[i].suffix);
    return suffixes;
}();

// The row whose suffix ends the text, or null. Suffixes have two code units and are exact in case.
// All are compared, since which one it is cannot be predicted and leaving the loop early costs more.
template <auto const& rows> constexpr auto findSuffix(std::u16string_view text) -> decltype(&rows[0]) {
    if (text.size() < 2) return nullptr;
    std::uint32_t const suffix = lastTwo(text);
    std::size_t found = std::size(rows);
    for (std::size_t i = 0; i < std::size(rows); ++i) found = suffixesOf<rows>[i] == suffix ? i : found;
    return found < std::size(rows) ? &rows[found] : nullptr;
}

// A plain number at the start of a measure and what stands behind it, which nearly every measure is.
// The number is what Core::Format::parseFloat gives for the text before the suffix.
struct PlainMeasure {
    float number = 0;
    std::u16string_view suffix;
    bool isPlain;

    explicit PlainMeasure(std::u16string_view text) {
        char16_t const* const end = text.data() + text.size();
        char16_t const* const behind = Core::scanPlain(text.data(), end, number);
        isPlain = behind != nullptr;
        if (isPlain) suffix = {behind, static_cast<std::size_t>(end - behind)};
    }

    // Whether it ends with two code units that no reader takes for a part of the number.
    bool hasUnit() const {
        return isPlain && suffix.size() == 2 && suffix[1] != u'%' && suffix[1] != u'.' && !Core::isDigit(suffix[1]);
    }
    bool isPercent() const { return isPlain && suffix.size() == 1 && suffix[0] == u'%'; }
    bool isBare() const { return isPlain && suffix.empty(); }
};

template <class Unit, std::size_t n>
constexpr UnitRow<Unit> const* findUnit(UnitRow<Unit> const (&rows)[n], Unit unit) {
    for (UnitRow<Unit> const& row : rows)
        if (row.unit == unit) return &row;
    return nullptr;
}

} // namespace Xml
