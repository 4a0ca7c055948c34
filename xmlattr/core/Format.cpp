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
#include <type_traits>

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

void append(std::u16string& out, char const* begin, char const* end, std::u16string_view suffix = {}) {
    // Filled in place, so that the string grows once: appending units of another type would make a second one.
    std::size_t const size = out.size();
    out.append(static_cast<std::size_t>(end - begin) + suffix.size(), u'\0');
    std::copy(suffix.begin(), suffix.end(), std::copy(begin, end, out.data() + size));
}

template <class T> void appendNumber(std::u16string& out, T value) {
    char buffer[32];
    append(out, buffer, std::to_chars(buffer, std::end(buffer), value).ptr);
}

template <class T> char16_t* writeNumber(char16_t* out, T value) {
    char buffer[32];
    return std::copy(buffer, std::to_chars(buffer, std::end(buffer), value).ptr, out);
}

bool isFloat(double value) {
    return std::abs(value) <= FLT_MAX && static_cast<float>(value) == value;
}

// What an appending function makes of nothing.
template <class... Arguments>
String print(void (*append)(std::u16string&, Arguments...), std::type_identity_t<Arguments>... arguments) {
    std::u16string out;
    append(out, arguments...);
    return String(std::move(out));
}

// Whether 1000 times the value is a double without rounding and below 2^53. 1000 has ten bits, so
// that the product has at most 53 when the value lacks the last ten of its own. Every float does,
// and 100 times a float, as percentages are printed.
bool hasExactThousandths(double value) noexcept {
    constexpr std::uint64_t lastTenBits = 0x3FF;
    return std::abs(value) < 1e9 && (std::bit_cast<std::uint64_t>(value) & lastTenBits) == 0;
}

// Writes a value with exact thousandths as the pattern "0.###" does and gives the end. The one
// rounding is that of an exact product to an integer, ties to even.
char* printThousandths(char* out, double value) noexcept {
    double const exact = std::abs(value) * 1000;
    auto thousandths = static_cast<std::int64_t>(exact);
    double const rest = exact - static_cast<double>(thousandths);
    thousandths += rest > 0.5 || (rest == 0.5 && thousandths % 2 != 0);

    if (value < 0 && thousandths != 0) *out++ = '-';
    out = std::to_chars(out, out + 12, thousandths / 1000).ptr;
    auto const fraction = static_cast<int>(thousandths % 1000);
    if (fraction == 0) return out;
    *out++ = '.';
    for (int left = fraction, place = 100; left != 0; left %= place, place /= 10)
        *out++ = static_cast<char>('0' + left / place);
    return out;
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

void appendMeasure(std::u16string& out, double value, std::u16string_view suffix) {
    if (!hasExactThousandths(value)) return appendMeasureReference(out, value, suffix);
    char buffer[24];
    append(out, buffer, printThousandths(buffer, value), suffix);
}

void appendMeasureReference(std::u16string& out, double value, std::u16string_view suffix) {
    // The largest double has 309 digits before its point.
    char buffer[336];
    char* end = std::to_chars(buffer, std::end(buffer), value, std::chars_format::fixed, 3).ptr;
    if (std::isfinite(value)) {
        while (end[-1] == '0') --end;
        if (end[-1] == '.') --end;
    }
    bool const isMinusZero = end - buffer == 2 && buffer[0] == '-' && buffer[1] == '0';
    append(out, isMinusZero ? buffer + 1 : buffer, end, suffix);
}

void appendShortest(std::u16string& out, float value) {
    appendNumber(out, value);
}

void appendShortest(std::u16string& out, double value) {
    if (isFloat(value))
        appendNumber(out, static_cast<float>(value));
    else
        appendNumber(out, value);
}

void appendShortest(std::u16string& out, int value) {
    appendNumber(out, value);
}

char16_t* write(char16_t* out, std::u16string_view text) {
    return std::copy(text.begin(), text.end(), out);
}

char16_t* write(char16_t* out, unsigned char number) {
    if (number >= 100) *out++ = static_cast<char16_t>(u'0' + number / 100);
    if (number >= 10) *out++ = static_cast<char16_t>(u'0' + number / 10 % 10);
    *out++ = static_cast<char16_t>(u'0' + number % 10);
    return out;
}

char16_t* write(char16_t* out, int number) {
    return writeNumber(out, number);
}

char16_t* write(char16_t* out, double number) {
    return isFloat(number) ? writeNumber(out, static_cast<float>(number)) : writeNumber(out, number);
}

String Format::toMeasure(double value, std::u16string_view suffix) {
    return print(appendMeasure, value, suffix);
}

String Format::toShortest(float value) {
    return print<float>(appendShortest, value);
}

String Format::toShortest(double value) {
    return print<double>(appendShortest, value);
}

String Format::toShortest(int value) {
    return print<int>(appendShortest, value);
}

} // namespace Core
