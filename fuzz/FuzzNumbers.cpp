// The readers and writers of the core against the standard library. Of the text, a byte is a code unit.
#include "Heads.h"
#include "xmlattr/attributes/ParseUtil.h"
#include "xmlattr/core/Append.h"
#include "xmlattr/core/DateTimeEx.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/StringFormatStream.h"
#include "xmlattr/drawing/ColorText.h"

#include <algorithm>
#include <array>
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
    std::array<char16_t, Core::longestMeasure> fast, reference;
    Core::Measure const measure{value};
    REQUIRE(std::u16string_view(fast.data(), Core::write(fast.data(), measure)) ==
            std::u16string_view(reference.data(), Core::writeReference(reference.data(), measure)));
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

void readColor(Core::String const& text) {
    Core::SmartPtr<Drawing::Color> fast, reference;
    bool const isRead = Drawing::readRGB(fast, text);
    REQUIRE(Drawing::readRGBReference(reference, text) == isRead);
    if (!isRead) return;
    auto const &a = dynamic_cast<Drawing::RGBColor const&>(*fast),
               &b = dynamic_cast<Drawing::RGBColor const&>(*reference);
    REQUIRE(a.getR() == b.getR() && a.getG() == b.getG() && a.getB() == b.getB());
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
    stream << 1 << 2.5f << 2.5 << text;
    REQUIRE(bytes.find('{') != bytes.npos || stream.getString() == text);
    Core::Vector<Core::String> const pieces = text.split(u", ");
    REQUIRE(std::ranges::none_of(pieces, [](Core::String const& piece) { return piece.empty(); }));
    REQUIRE(text.trim().compareNoCase(text.toLower().trim()) == 0);
}

// Words are what stands between blanks, whoever looks for them.
void readWords(std::string const& bytes, Core::String const& text) {
    Core::Vector<Core::String> const words = text.split(u" \t\n\v\f\r\u00A0");
    std::size_t count = 0;
    for (int index = 0, at = 0; index < text.length();) {
        Core::String const word = Xml::ParseUtil::extractWord(text, index);
        Xml::ParseUtil::skipWhiteSpace(text, at);
        int const start = at;
        Xml::ParseUtil::skipNonWhiteSpace(text, at);
        REQUIRE(index == at && word == text.subString(start, at - start));
        REQUIRE(word.empty() ? count == words.size() : count < words.size() && word == words[count++]);
    }
    REQUIRE(count == words.size());
    if (words.empty()) return;
    Core::String const& last = words.back();
    REQUIRE(text.trimEnd().endsIn(last) && text.rFind(last) + last.length() == text.trimEnd().length());
    for (int i = 0; i < text.length(); ++i) {
        char const byte = bytes[static_cast<std::size_t>(i)];
        REQUIRE(Core::String::isSpace(text[i]) == isBlank(byte) && Core::String::isDigit(text[i]) == isDigit(byte));
    }
    REQUIRE((text.compare(last) < 0) == (std::u16string_view(text) < std::u16string_view(last)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < Heads::Numbers::size) return 0;
    auto const [single, twice] = Heads::Numbers::ofBytes(data);
    writeNumber(single);
    writeNumber(twice);

    std::string const bytes(reinterpret_cast<char const*>(data) + Heads::Numbers::size, size - Heads::Numbers::size);
    std::u16string units;
    for (char const byte : bytes) units += static_cast<unsigned char>(byte);
    Core::String const text{std::move(units)};
    readNumbers(bytes, text);
    readDate(bytes, text);
    readColor(text);
    scan(bytes, text);
    readWords(bytes, text);
    return 0;
}
