// Units of length: their suffixes and how many pixels each is, at 96 pixels to the inch.
#pragma once

#include "xmlattr/core/Text.h"

#include <algorithm>
#include <cfloat>
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

// The row whose suffix ends the text, or null. Suffixes have two code units and are exact in case.
template <class Unit, std::size_t n>
constexpr UnitRow<Unit> const* findSuffix(UnitRow<Unit> const (&rows)[n], std::u16string_view text) {
    if (text.size() < 2) return nullptr;
    char16_t const first = text[text.size() - 2], second = text.back();
    for (UnitRow<Unit> const& row : rows)
        if (row.suffix[0] == first && row.suffix[1] == second) return &row;
    return nullptr;
}

template <class Unit, std::size_t n>
constexpr UnitRow<Unit> const* findUnit(UnitRow<Unit> const (&rows)[n], Unit unit) {
    for (UnitRow<Unit> const& row : rows)
        if (row.unit == unit) return &row;
    return nullptr;
}

} // namespace Xml
