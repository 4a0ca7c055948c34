#include "xmlattr/core/Format.h"

#include "xmlattr/core/Append.h"
#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <bit>
#include <cfloat>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace Core {

namespace {

// Whether the rest of a trimmed text ends a number: nothing, or one "%".
bool endsNumber(char16_t const* rest, std::u16string_view text) noexcept {
    char16_t const* const end = text.data() + text.size();
    return rest == end || (rest + 1 == end && *rest == u'%');
}

// The integer at the very start of a text; its value is held within the range of an int, and
// `fits` says whether that changed it. `end` is null when there is none.
struct Integer {
    int value = 0;
    bool fits = true;
    char16_t const* end = nullptr;
};

Integer scanInteger(std::u16string_view text) noexcept {
    char16_t const* unit = text.data();
    char16_t const* const end = unit + text.size();
    bool negative = false;
    if (unit != end && (*unit == u'-' || *unit == u'+')) negative = *unit++ == u'-';
    char16_t const* const digits = unit;
    long long const limit = negative ? -static_cast<long long>(INT_MIN) : INT_MAX;
    long long magnitude = 0;
    bool fits = true;
    for (; unit != end && isDigit(*unit); ++unit) {
        magnitude = magnitude * 10 + (*unit - u'0');
        if (magnitude > limit) {
            magnitude = limit;
            fits = false;
        }
    }
    if (unit == digits) return {};
    return {static_cast<int>(negative ? -magnitude : magnitude), fits, unit};
}

char16_t* writeWhole(char16_t* out, unsigned int number) noexcept {
    if (number < 1000) return writeBelow1000(out, number);
    out = writeWhole(out, number / 1000);
    return writeUnits<3>(out, threeDigits[number % 1000].digits);
}

// Thousandths without trailing zeros.
char16_t* writeThousandths(char16_t* out, bool isNegative, std::uint64_t thousandths) noexcept {
    *out = u'-';
    out = writeWhole(out + isNegative, static_cast<unsigned int>(thousandths / 1000));
    auto const fraction = static_cast<unsigned int>(thousandths % 1000);
    *out = u'.';
    writeUnits<3>(out + 1, threeDigits[fraction].digits);
    return fraction == 0 ? out : out + 4 - threeDigits[fraction].trailingZeros;
}

// The shortest text that reads back. Up to the limit there is at most one number of thousandths that reads as the
// value, since floats are closer to each other than these; it has fewer digits than every other number that does, and
// no more characters than with an exponent ("1e+04").
template <class Float> char16_t* writeShortest(char16_t* out, Float value) noexcept {
    constexpr Float limit = 16384;
    if (std::abs(value) < limit) {
        // NOLINTNEXTLINE(bugprone-incorrect-roundings): what is rounded wrongly does not read back
        auto const thousandths = static_cast<unsigned int>(double{std::abs(value)} * 1000 + 0.5);
        if (static_cast<Float>(thousandths / 1000.0) == std::abs(value))
            return writeThousandths(out, std::signbit(value), thousandths);
    }
    char buffer[32];
    return std::copy(buffer, std::to_chars(buffer, std::end(buffer), value).ptr, out);
}

bool isFloat(double value) {
    return std::abs(value) <= FLT_MAX && static_cast<float>(value) == value;
}

// Whether 1000 times the value is a double without rounding and below 2^53. 1000 has ten bits, so
// that the product has at most 53 when the value lacks the last ten of its own. Every float does,
// and 100 times a float, as percentages are printed.
bool hasExactThousandths(double value) noexcept {
    constexpr std::uint64_t lastTenBits = 0x3FF;
    return std::abs(value) < 1e9 && (std::bit_cast<std::uint64_t>(value) & lastTenBits) == 0;
}

} // namespace

bool Format::parseFloat(std::u16string_view text, float& value) noexcept {
    if (text.empty()) {
        value = 0;
        return true;
    }
    std::u16string_view const trimmed = trim(text);
    float plain = 0;
    char16_t const* const rest = scanPlain(trimmed.data(), trimmed.data() + trimmed.size(), plain);
    if (rest && endsNumber(rest, trimmed)) {
        value = plain;
        return true;
    }
    Decimal const number = scanDecimal(trimmed);
    return number.end && endsNumber(number.end, trimmed) && toFloat(number, value);
}

float Format::parseFloat(std::u16string_view text) noexcept {
    Decimal const number = scanDecimal(trimStart(text));
    float value = 0;
    if (number.end && !toFloat(number, value)) value = number.negative ? -FLT_MAX : FLT_MAX;
    return value;
}

bool Format::parseInt(std::u16string_view text, int& value) noexcept {
    std::u16string_view const trimmed = trim(text);
    Integer const number = scanInteger(trimmed);
    if (!number.end || !endsNumber(number.end, trimmed) || !number.fits) return false;
    value = number.value;
    return true;
}

int Format::parseInt(std::u16string_view text) noexcept {
    return scanInteger(trimStart(text)).value;
}

bool Format::parseHexInt(std::u16string_view text, int& value) noexcept {
    if (text.size() > 1 && text[0] == u'0' && toLower(text[1]) == u'x') text.remove_prefix(2);
    if (text.empty()) return false;
    long long number = 0;
    for (char16_t const unit : text) {
        int const digit = hexDigit(unit);
        if (digit < 0) return false;
        number = number * 16 + digit;
        if (number > INT_MAX) return false;
    }
    value = static_cast<int>(number);
    return true;
}

char16_t* write(char16_t* out, int number) {
    *out = u'-';
    auto const magnitude = static_cast<unsigned int>(number);
    return writeWhole(out + (number < 0), number < 0 ? 0 - magnitude : magnitude);
}

char16_t* write(char16_t* out, double number) {
    return isFloat(number) ? writeShortest(out, static_cast<float>(number)) : writeShortest(out, number);
}

// The one rounding is that of an exact product to an integer, ties to even.
char16_t* write(char16_t* out, Measure measure) {
    if (!hasExactThousandths(measure.value)) return writeReference(out, measure);
    double const exact = std::abs(measure.value) * 1000;
    auto thousandths = static_cast<std::uint64_t>(exact);
    double const rest = exact - static_cast<double>(thousandths);
    thousandths += rest > 0.5 || (rest == 0.5 && thousandths % 2 != 0);
    return writeThousandths(out, measure.value < 0 && thousandths != 0, thousandths);
}

char16_t* writeReference(char16_t* out, Measure measure) {
    char buffer[longestMeasure];
    char* end = std::to_chars(buffer, std::end(buffer), measure.value, std::chars_format::fixed, 3).ptr;
    if (std::isfinite(measure.value)) {
        while (end[-1] == '0') --end;
        if (end[-1] == '.') --end;
    }
    bool const isMinusZero = end - buffer == 2 && buffer[0] == '-' && buffer[1] == '0';
    return std::copy(isMinusZero ? buffer + 1 : buffer, end, out);
}

String Format::toMeasure(double value, std::u16string_view suffix) {
    return joined(Measure{value}, suffix);
}

String Format::toShortest(float value) {
    return joined(double{value});
}

String Format::toShortest(double value) {
    return joined(value);
}

String Format::toShortest(int value) {
    return joined(value);
}

} // namespace Core
