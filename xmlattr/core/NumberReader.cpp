#include "xmlattr/core/NumberReader.h"

#include <algorithm>
#include <bit>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <iterator>

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

// The signed exponent after an "e", held within the limit; null when there is no digit.
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

// No float and no midpoint between two floats has more than 113 significant digits: whatever follows
// them matters only by being other than zero, which one more digit says.
constexpr int enoughDigits = 120;

// The number is 0.d1d2d3... times ten to a power below the one, which is less than half of the smallest
// float, or above the other, which is more than the largest.
constexpr int smallestMagnitude = -46;
constexpr int largestMagnitude = 39;

// The significant digits of a number, the first of them not zero, and the power of ten of the last.
struct Digits {
    std::uint8_t digit[enoughDigits + 1];
    int count = 0;
    int exponent = 0;
};

Digits significantDigits(Decimal const& number) noexcept {
    Digits digits;
    digits.exponent = number.exponent;
    if (!number.truncated) {
        char text[maxMantissaDigits + 1] = {};
        char const* const end = std::to_chars(text, std::end(text), number.mantissa).ptr;
        if (number.mantissa != 0)
            for (char const* unit = text; unit != end; ++unit)
                digits.digit[digits.count++] = static_cast<std::uint8_t>(*unit - '0');
        return digits;
    }
    bool more = false;
    for (char16_t const* unit = number.digits; unit != number.end && (isDigit(*unit) || *unit == u'.'); ++unit) {
        if (*unit == u'.' || (digits.count == 0 && *unit == u'0')) continue;
        if (digits.count < enoughDigits)
            digits.digit[digits.count++] = static_cast<std::uint8_t>(*unit - u'0');
        else
            more |= *unit != u'0';
    }
    if (more) digits.digit[digits.count++] = 1;
    digits.exponent -= digits.count - maxMantissaDigits;
    return digits;
}

// A whole number of up to 1024 bits, which is what the comparison below takes: 121 digits times a power
// of two, or a midpoint times a power of ten.
class WholeNumber {
public:
    void multiplyAndAdd(std::uint32_t factor, std::uint32_t added) noexcept {
        std::uint64_t carry = added;
        for (int index = 0; index < size; ++index) {
            carry += std::uint64_t{words[index]} * factor;
            words[index] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        if (carry != 0) words[size++] = static_cast<std::uint32_t>(carry);
    }

    void multiplyByPower(std::uint32_t base, int exponent) noexcept {
        for (; exponent > 0; --exponent) multiplyAndAdd(base, 0);
    }

    friend int compare(WholeNumber const& a, WholeNumber const& b) noexcept {
        if (a.size != b.size) return a.size < b.size ? -1 : 1;
        for (int index = a.size; index-- > 0;)
            if (a.words[index] != b.words[index]) return a.words[index] < b.words[index] ? -1 : 1;
        return 0;
    }

private:
    std::uint32_t words[32]; // the lowest first
    int size = 0;            // of which so many are used; the highest of them is not zero
};

// The number to within a few units in the last place of a double.
double estimate(Digits const& digits) noexcept {
    int const taken = std::min(digits.count, maxMantissaDigits);
    std::uint64_t mantissa = 0;
    for (int index = 0; index < taken; ++index) mantissa = mantissa * 10 + digits.digit[index];
    auto value = static_cast<double>(mantissa);
    int exponent = digits.exponent + digits.count - taken;
    for (; exponent > exactPowers; exponent -= exactPowers) value *= powersOfTen[exactPowers];
    for (; exponent < -exactPowers; exponent += exactPowers) value /= powersOfTen[exactPowers];
    return exponent < 0 ? value / powersOfTen[-exponent] : value * powersOfTen[exponent];
}

// Which of two neighbouring floats is nearer to the number; halfway between them, the even one. Infinity
// stands for the float that would follow the largest.
float nearerOf(float low, float high, Digits const& digits) noexcept {
    double const above = std::isinf(high) ? 0x1p128 : static_cast<double>(high);
    double const midpoint = (static_cast<double>(low) + above) / 2; // exact: one bit more than a float has
    int exponentOfTwo = 0;
    auto const mantissa = static_cast<std::uint32_t>(std::ldexp(std::frexp(midpoint, &exponentOfTwo), 25));
    exponentOfTwo -= 25;

    // The number and the midpoint, both times what makes them whole.
    WholeNumber exact;
    for (int index = 0; index < digits.count; ++index) exact.multiplyAndAdd(10, digits.digit[index]);
    exact.multiplyByPower(10, digits.exponent);
    exact.multiplyByPower(2, -exponentOfTwo);
    WholeNumber middle;
    middle.multiplyAndAdd(1, mantissa);
    middle.multiplyByPower(10, -digits.exponent);
    middle.multiplyByPower(2, exponentOfTwo);

    int const order = compare(exact, middle);
    bool const lowIsEven = std::bit_cast<std::uint32_t>(low) % 2 == 0;
    return order < 0 || (order == 0 && lowIsEven) ? low : high;
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
        if (char16_t const* const after = scanExponent(unit + 1, end, exponent)) {
            number.exponent += exponent;
            number.end = after;
        }
    }
    return number;
}

bool toFloat(Decimal const& number, float& value) noexcept {
    return scaleExactly(number, value) || toFloatReference(number, value);
}

bool toFloatReference(Decimal const& number, float& value) noexcept {
    Digits const digits = significantDigits(number);
    int const magnitudeOfTen = digits.count + digits.exponent;
    float magnitude = 0;
    if (digits.count > 0 && magnitudeOfTen > smallestMagnitude) {
        if (magnitudeOfTen > largestMagnitude) return false;
        // Every rounding of the estimate adds half a unit in its last place: far less than this margin.
        constexpr double margin = 0x1p-48;
        double const near = estimate(digits);
        auto const low = static_cast<float>(near * (1 - margin));
        auto const high = static_cast<float>(near * (1 + margin));
        magnitude = low == high ? low : nearerOf(low, high, digits);
        if (std::isinf(magnitude)) return false;
    }
    value = number.negative ? -magnitude : magnitude;
    return true;
}

} // namespace Core
