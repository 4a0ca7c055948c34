// The one reader of decimal numbers in UTF-16 text. Format and the list parsers build on it.
#pragma once

#include "xmlattr/core/Export.h"
#include "xmlattr/core/Text.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace Core {

// The digits of a decimal number as they stand in a text, before any rounding.
struct Decimal {
    std::uint64_t mantissa = 0; // the first 19 significant digits, the decimal point left out
    int exponent = 0;           // the power of ten of the mantissa's last digit
    bool negative = false;
    bool truncated = false;           // more than 19 significant digits: the mantissa lacks some
    char16_t const* end = nullptr;    // after the last code unit of the number; null: no number
    char16_t const* digits = nullptr; // the mantissa's first digit or its point
};

// 10^0 to 10^22, the powers of ten that are doubles.
inline constexpr double powersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                         1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The first of them and their negatives: dividing by a negative one gives the quotient its sign, a zero too.
inline constexpr auto signedPowersOfTen = [] {
    std::array<std::array<double, 16>, 2> powers{};
    for (std::size_t i = 0; i < powers[0].size(); ++i) powers[1][i] = -(powers[0][i] = powersOfTen[i]);
    return powers;
}();

// All the decimal numbers of so many digits fit into 64 bits.
inline constexpr int maxMantissaDigits = 19;

// Up to here, every integer is a double.
inline constexpr std::uint64_t largestExactInteger = std::uint64_t{1} << 53;

// So many digits make an integer that is a double.
inline constexpr std::size_t exactDigits = 15;

// Whether a double lies halfway between two floats. When it is itself rounded, the rounding may have
// brought it there, and the tie would be broken without knowing from which side.
constexpr bool isHalfwayBetweenFloats(double value) noexcept {
    constexpr std::uint64_t belowFloat = (std::uint64_t{1} << 29) - 1; // a double's extra bits
    return (std::bit_cast<std::uint64_t>(value) & belowFloat) == std::uint64_t{1} << 28;
}

// Reads a plain number, [sign] digits [. digits], at the very start of the text: the fast path for
// nearly every number of a long list. Gives the place after its last digit and the same
// value as scanDecimal and toFloat give for the text up to there. Null where only those can tell
// (no digit, a point without a digit after it, very many digits); then `value` is untouched. An
// exponent is not looked for: the caller sees from what follows whether the number ends there. The end of the text is
// std::unreachable_sentinel where the text is known to have a code unit that ends the number: see endsEveryNumber.
template <class End> inline char16_t const* scanPlain(char16_t const* unit, End end, float& value) noexcept {
    if (unit == end) return nullptr;
    bool const negative = *unit == u'-';
    unit += negative || *unit == u'+';
    std::uint64_t mantissa = 0; // overflows harmlessly when there are too many digits
    auto const takeDigits = [&] {
        char16_t const* const start = unit;
        for (; unit != end; ++unit) {
            unsigned int const digit = *unit - u'0';
            if (digit > 9) break;
            mantissa = mantissa * 10 + digit;
        }
        return static_cast<std::size_t>(unit - start);
    };
    std::size_t digits = takeDigits(), decimals = 0;
    if (unit != end && *unit == u'.') {
        ++unit;
        decimals = takeDigits();
        if (decimals == 0) return nullptr;
        digits += decimals;
    }
    if (digits - 1 >= exactDigits) return nullptr; // none, or too many
    // The quotient of two exact doubles: rounded once, and far within the range of a float.
    double const scaled =
        static_cast<double>(static_cast<std::int64_t>(mantissa)) / signedPowersOfTen[negative][decimals];
    if (isHalfwayBetweenFloats(scaled)) return nullptr;
    value = static_cast<float>(scaled);
    return unit;
}

// Whether no plain number has the code unit. Before the last such unit of a text, none has to look for the end.
constexpr bool endsEveryNumber(char16_t unit) noexcept {
    return !isDigit(unit) && unit != u'.' && unit != u'-' && unit != u'+';
}

// After the last code unit that ends every number; the start of the text when there is none.
inline char16_t const* afterLastEnd(char16_t const* begin, char16_t const* end) noexcept {
    while (end != begin && !endsEveryNumber(end[-1])) --end;
    return end;
}

// Scans the longest number at the very start of the text: [sign] digits [. digits] [exponent].
XMLATTR_API Decimal scanDecimal(std::u16string_view text) noexcept;

// The float nearest to a scanned number, ties to even. False when it is too large for a float;
// then `value` is untouched. A number too small for a float gives 0.
XMLATTR_API bool toFloat(Decimal const& number, float& value) noexcept;

// toFloat without its fast path, the reference: the same answer for every number. It needs no other reader of numbers,
// since not every standard library has one for floats that is exact and independent of the locale.
bool toFloatReference(Decimal const& number, float& value) noexcept;

} // namespace Core
