// The one reader of decimal numbers in UTF-16 text. Format and the list parsers build on it.
#pragma once

#include "xmlattr/core/Text.h"

#include <cstdint>
#include <string_view>

namespace Core {

// The digits of a decimal number as they stand in a text, before any rounding.
struct Decimal {
    std::uint64_t mantissa = 0; // the first 19 significant digits, the decimal point left out
    int exponent = 0;           // the power of ten of the mantissa's last digit
    bool negative = false;
    bool truncated = false;           // more than 19 significant digits: the mantissa lacks some
    char16_t const* end = nullptr;    // behind the last code unit of the number; null: no number
    char16_t const* digits = nullptr; // the mantissa's first digit or its point
};

// Scans the longest number at the very start of the text: [sign] digits [. digits] [exponent].
Decimal scanDecimal(std::u16string_view text) noexcept;

// The float nearest to a scanned number, ties to even. False when it is too large for a float;
// then `value` is untouched. A number too small for a float gives 0.
bool toFloat(Decimal const& number, float& value) noexcept;

// toFloat without its short way: the same answer from the standard library.
bool toFloatSlowly(Decimal const& number, float& value) noexcept;

} // namespace Core
