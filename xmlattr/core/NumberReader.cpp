#include "xmlattr/core/NumberReader.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <iterator>
#include <system_error>

namespace Core {

namespace {

// Far beyond any float, and small enough that sums of two such exponents do not overflow an int.
constexpr int exponentLimit = 100'000'000;

constexpr int exactPowers = static_cast<int>(std::size(powersOfTen)) - 1;

// Takes digits into the mantissa while they fit and counts those that do not.
struct MantissaReader {
    Decimal& number;
    int significant = 0;
    int dropped = 0;

    char16_t const* take(char16_t const* unit, char16_t const* end) noexcept {
        for (; unit != end && isDigit(*unit); ++unit) {
            if (significant < maxMantissaDigits) {
                number.mantissa = number.mantissa * 10 + (*unit - u'0');
                significant += number.mantissa != 0; // leading zeros do not count
            } else {
                ++dropped;
                number.truncated |= *unit != u'0';
            }
        }
        return unit;
    }
};

// The signed exponent behind an "e", held within the limit; null when there is no digit.
char16_t const* scanExponent(char16_t const* unit, char16_t const* end, int& exponent) noexcept {
    bool const negative = unit != end && *unit == u'-';
    if (unit != end && (*unit == u'-' || *unit == u'+')) ++unit;
    if (unit == end || !isDigit(*unit)) return nullptr;
    int magnitude = 0;
    for (; unit != end && isDigit(*unit); ++unit) magnitude = std::min(magnitude * 10 + (*unit - u'0'), exponentLimit);
    exponent = negative ? -magnitude : magnitude;
    return unit;
}

// A mantissa up to 2^53 and a power of ten up to 10^22 are doubles, so their product or quotient is
// the number rounded once to a double. Rounding that to a float gives the nearest float, but for the
// halfway cases.
bool scaleExactly(Decimal const& number, float& value) noexcept {
    if (number.truncated || number.mantissa > largestExactInteger) return false;
    auto scaled = static_cast<double>(number.mantissa);
    if (number.exponent < 0) {
        if (number.exponent < -exactPowers) return false;
        scaled /= powersOfTen[-number.exponent];
    } else if (number.exponent > 0) {
        if (number.exponent > exactPowers) return false;
        scaled *= powersOfTen[number.exponent];
    }
    if (isHalfwayBetweenFloats(scaled)) return false;
    if (scaled > FLT_MAX || (scaled < FLT_MIN && scaled != 0)) return false;
    value = static_cast<float>(number.negative ? -scaled : scaled);
    return true;
}

} // namespace

Decimal scanDecimal(std::u16string_view text) noexcept {
    Decimal number;
    char16_t const* unit = text.data();
    char16_t const* const end = unit + text.size();
    if (unit != end && (*unit == u'-' || *unit == u'+')) number.negative = *unit++ == u'-';

    MantissaReader reader{number};
    number.digits = unit;
    unit = reader.take(unit, end);
    auto digitCount = unit - number.digits;
    number.exponent = reader.dropped;
    if (unit != end && *unit == u'.') {
        char16_t const* const fraction = ++unit;
        int const droppedBefore = reader.dropped;
        unit = reader.take(unit, end);
        digitCount += unit - fraction;
        // Each fraction digit that the mantissa took moves its last digit one place down.
        auto const taken = (unit - fraction) - (reader.dropped - droppedBefore);
        number.exponent -= static_cast<int>(std::min<std::ptrdiff_t>(taken, exponentLimit));
    }
    if (digitCount == 0) return number;
    number.end = unit;
    if (unit != end && (*unit == u'e' || *unit == u'E')) {
        int exponent = 0;
        if (char16_t const* const behind = scanExponent(unit + 1, end, exponent)) {
            number.exponent += exponent;
            number.end = behind;
        }
    }
    return number;
}

bool toFloat(Decimal const& number, float& value) noexcept {
    return scaleExactly(number, value) || toFloatSlowly(number, value);
}

bool toFloatSlowly(Decimal const& number, float& value) noexcept {
    // No float and no midpoint between two floats has more than 113 significant digits: whatever
    // stands further behind matters only by being other than zero, which one more digit says.
    constexpr int enoughDigits = 120;
    char buffer[enoughDigits + 24];
    char* out = buffer;
    int exponent = number.exponent;
    if (!number.truncated) {
        out = std::to_chars(out, std::end(buffer), number.mantissa).ptr;
    } else {
        int taken = 0;
        bool more = false;
        for (char16_t const* unit = number.digits; unit != number.end && (isDigit(*unit) || *unit == u'.'); ++unit) {
            if (*unit == u'.' || (taken == 0 && *unit == u'0')) continue;
            if (taken < enoughDigits) {
                *out++ = static_cast<char>(*unit);
                ++taken;
            } else {
                more |= *unit != u'0';
            }
        }
        if (more) *out++ = '1';
        exponent -= taken - maxMantissaDigits + more;
    }
    // Behind the decimal point when negative: the place of the number's first digit.
    auto const magnitudeOfTen = (out - buffer) + exponent;
    *out++ = 'e';
    out = std::to_chars(out, std::end(buffer), exponent).ptr;

    float magnitude = 0;
    auto const result = std::from_chars(buffer, out, magnitude);
    if (result.ec == std::errc::result_out_of_range || !std::isfinite(magnitude)) {
        if (magnitudeOfTen > 0) return false;
        magnitude = 0;
    }
    value = number.negative ? -magnitude : magnitude;
    return true;
}

} // namespace Core
