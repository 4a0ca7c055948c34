// The readers and writers of the core against the standard library. The first bytes are a float and a
// double to write, the rest is the text, a byte for a code unit.
#include "xmlattr/attributes/ParseUtil.h"
#include "xmlattr/core/DateTimeEx.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/StringFormatStream.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

#define REQUIRE(...)                                                                                                   \
    ((__VA_ARGS__) ? void() : (std::fprintf(stderr, "line %d: %s\n", __LINE__, #__VA_ARGS__), std::abort()))

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r') || c == '\xA0';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The place after [sign] digits [. digits] [e [sign] digits], or the start where there is no number.
char const* endOfNumber(char const* const start, char const* end) {
    char const* at = start;
    if (at != end && (*at == '+' || *at == '-')) ++at;
    auto const digits = [&] {
        auto const from = at;
        while (at != end && isDigit(*at)) ++at;
        return at - from;
    };
    auto count = digits();
    if (at != end && *at == '.') {
        ++at;
        count += digits();
    }
    if (count == 0) return start;
    auto const mantissaEnd = at;
    if (at == end || (*at != 'e' && *at != 'E')) return at;
    ++at;
    if (at != end && (*at == '+' || *at == '-')) ++at;
    return digits() > 0 ? at : mantissaEnd;
}

bool sameBits(float a, float b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

void readNumbers(std::string const& bytes, Core::String const& text) {
    char const *start = bytes.data(), *end = start + bytes.size();
    while (start != end && isBlank(*start)) ++start;
    char const* const numberEnd = endOfNumber(start, end);
    bool const hasNumber = numberEnd != start;
    float const expected = hasNumber ? std::strtof(std::string(start, numberEnd).c_str(), nullptr) : 0;

    float const atStart = Core::Format::parseFloat(text);
    REQUIRE(sameBits(atStart, std::isinf(expected) ? std::copysign(FLT_MAX, expected) : expected));

    while (end != start && isBlank(end[-1])) --end;
    auto const endsWhole = [&](char const* at) { return at == end || (at + 1 == end && *at == '%'); };
    float whole = 42;
    bool const accepted = Core::Format::parseFloat(text, whole);
    bool const isEmpty = bytes.empty();
    REQUIRE(accepted == (isEmpty || (hasNumber && endsWhole(numberEnd) && std::isfinite(expected))));
    REQUIRE(sameBits(whole, !accepted ? 42 : expected));

    // The two fast paths give what the reference gives.
    std::u16string_view const units = text;
    float plain = 42;
    if (char16_t const* const after = Core::scanPlain(units.data(), units.data() + units.size(), plain)) {
        std::string const part = bytes.substr(0, static_cast<std::size_t>(after - units.data()));
        REQUIRE(sameBits(plain, std::strtof(part.c_str(), nullptr)));
    }
    Core::Decimal const number = Core::scanDecimal(units);
    float fast = 0, reference = 0;
    if (number.end) {
        REQUIRE(Core::toFloat(number, fast) == Core::toFloatReference(number, reference));
        REQUIRE(sameBits(fast, reference));
    }

    char const* digits = start;
    if (digits != end && (*digits == '+' || *digits == '-')) ++digits;
    char const* integerEnd = digits;
    while (integerEnd != end && isDigit(*integerEnd)) ++integerEnd;
    bool const hasInteger = integerEnd != digits;
    long const integer = hasInteger ? std::strtol(std::string(start, integerEnd).c_str(), nullptr, 10) : 0;
    REQUIRE(Core::Format::parseInt(text) == std::clamp<long>(integer, INT_MIN, INT_MAX));
    int wholeInt = 42;
    bool const isInt = hasInteger && endsWhole(integerEnd) && integer >= INT_MIN && integer <= INT_MAX;
    REQUIRE(Core::Format::parseInt(text, wholeInt) == isInt);
    REQUIRE(wholeInt == (isInt ? integer : 42));

    std::size_t const prefix = bytes.starts_with("0x") || bytes.starts_with("0X") ? 2 : 0;
    char const *const hex = bytes.data() + prefix, *const hexEnd = bytes.data() + bytes.size();
    int hexExpected = 42, hexRead = 42;
    auto const result = std::from_chars(hex, hexEnd, hexExpected, 16);
    bool const isHex = hex != hexEnd && *hex != '-' && result.ec == std::errc() && result.ptr == hexEnd;
    REQUIRE(Core::Format::parseHexInt(text, hexRead) == isHex);
    REQUIRE(hexRead == (isHex ? hexExpected : 42));
}

template <class T> void writeNumber(T value) {
    if (!std::isfinite(value)) return;
    float back = 0;
    Core::String const shortest = Core::Format::toShortest(value);
    std::string const narrow = shortest.toUtf8();
    if constexpr (std::is_same_v<T, float>) REQUIRE(Core::Format::parseFloat(shortest, back) && sameBits(back, value));
    if constexpr (std::is_same_v<T, double>)
        REQUIRE(std::strtod(narrow.c_str(), nullptr) == value ||
                static_cast<double>(std::strtof(narrow.c_str(), nullptr)) == value);
    char buffer[400];
    std::snprintf(buffer, sizeof buffer, "%.3f", static_cast<double>(value));
    std::string expected = buffer;
    expected.erase(expected.find_last_not_of('0') + 1);
    if (expected.ends_with('.')) expected.pop_back();
    REQUIRE(Core::Format::toMeasure(value, u"pt").toUtf8() == (expected == "-0" ? "0" : expected) + "pt");
}

// A date that is read prints its own day, but for the end of a day, which is the next one.
void readDate(std::string const& bytes, Core::String const& text) {
    Core::DateTimeEx date;
    if (!Core::DateTimeEx::parseXmlDateEx(text, date)) return;
    std::string const printed = date.toDateString(1).toUtf8();
    bool const isEndOfDay = bytes.find("T24:00:00") != std::string::npos;
    bool const isYearZero = bytes.starts_with("-0000"); // prints without its sign
    REQUIRE(isEndOfDay || bytes.substr(isYearZero, printed.size()) == printed);
    Core::DateTimeEx again;
    REQUIRE(Core::DateTimeEx::parseXmlDateEx(date.toDateString(1), again) && again.toDateString(1).toUtf8() == printed);
}

void scan(std::string const& bytes, Core::String const& text) {
    Core::String const utf16 = Core::String::fromUtf8(bytes);
    Core::String const once = Core::String::fromUtf8(utf16.toUtf8());
    REQUIRE(once == utf16); // nothing is ill-formed any more
    Core::String joined;
    for (int index = 0; index < text.length();) {
        int const before = index;
        joined += Xml::ParseUtil::extractWordOrFunction(text, index);
        REQUIRE(index > before && index <= text.length());
    }
    Core::StringFormatStream stream(text);
    stream << 1 << 2.5f << text;
    REQUIRE(stream.getString().length() >= 0);
    Core::Vector<Core::String> const pieces = text.split(u", ");
    REQUIRE(std::ranges::none_of(pieces, [](Core::String const& piece) { return piece.empty(); }));
    REQUIRE(text.trim().compareNoCase(text.toLower().trim()) == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    float single = 0;
    double twice = 0;
    if (size < sizeof single + sizeof twice) return 0;
    std::memcpy(&single, data, sizeof single);
    std::memcpy(&twice, data + sizeof single, sizeof twice);
    writeNumber(single);
    writeNumber(twice);

    std::string const bytes(reinterpret_cast<char const*>(data) + sizeof single + sizeof twice,
                            size - sizeof single - sizeof twice);
    std::u16string units;
    for (char const byte : bytes) units += static_cast<unsigned char>(byte);
    Core::String const text{std::move(units)};
    readNumbers(bytes, text);
    readDate(bytes, text);
    scan(bytes, text);
    return 0;
}
