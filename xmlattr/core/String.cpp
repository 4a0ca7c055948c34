#include "xmlattr/core/String.h"

#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Core {

namespace {

constexpr char32_t replacement = 0xFFFD;

void appendUtf16(std::u16string& out, char32_t point) {
    if (point < 0x10000) {
        out += static_cast<char16_t>(point);
        return;
    }
    out += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
    out += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
}

void appendUtf8(std::string& out, char32_t point) {
    auto trail = [&](int shift) { out += static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) {
        out += static_cast<char>(point);
    } else if (point < 0x800) {
        out += static_cast<char>(0xC0 | (point >> 6));
        trail(0);
    } else if (point < 0x10000) {
        out += static_cast<char>(0xE0 | (point >> 12));
        trail(6);
        trail(0);
    } else {
        out += static_cast<char>(0xF0 | (point >> 18));
        trail(12);
        trail(6);
        trail(0);
    }
}

// What may follow a lead byte: the number of trail bytes and the range of the first of them, which
// excludes overlong forms, surrogates and everything above U+10FFFF.
struct Lead {
    int trails;
    unsigned char low, high;
};

constexpr Lead leadOf(unsigned char byte) {
    if (byte >= 0xC2 && byte <= 0xDF) return {1, 0x80, 0xBF};
    if (byte == 0xE0) return {2, 0xA0, 0xBF};
    if (byte == 0xED) return {2, 0x80, 0x9F};
    if (byte >= 0xE1 && byte <= 0xEF) return {2, 0x80, 0xBF};
    if (byte == 0xF0) return {3, 0x90, 0xBF};
    if (byte >= 0xF1 && byte <= 0xF3) return {3, 0x80, 0xBF};
    if (byte == 0xF4) return {3, 0x80, 0x8F};
    return {0, 0, 0};
}

// Takes one code point, or one maximal ill-formed part, off the front of a non-empty text.
char32_t takeUtf8(std::string_view& text) {
    auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char const first = byteAt(0);
    if (first < 0x80) {
        text.remove_prefix(1);
        return first;
    }
    Lead const lead = leadOf(first);
    char32_t point = first & (0x3F >> lead.trails);
    std::size_t taken = 1;
    for (int i = 0; i < lead.trails; ++i, ++taken) {
        unsigned char const low = i == 0 ? lead.low : 0x80;
        unsigned char const high = i == 0 ? lead.high : 0xBF;
        if (taken >= text.size() || byteAt(taken) < low || byteAt(taken) > high) {
            text.remove_prefix(taken);
            return replacement;
        }
        point = (point << 6) | (byteAt(taken) & 0x3F);
    }
    text.remove_prefix(taken);
    return lead.trails == 0 ? replacement : point;
}

} // namespace

String String::fromUtf8(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    while (!text.empty()) appendUtf16(out, takeUtf8(text));
    return String(std::move(out));
}

std::string String::toUtf8() const {
    std::string out;
    out.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        char32_t const unit = units[i];
        bool const isHigh = unit >= 0xD800 && unit < 0xDC00;
        if (isHigh && i + 1 < units.size() && units[i + 1] >= 0xDC00 && units[i + 1] < 0xE000) {
            ++i;
            appendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (units[i] - 0xDC00U));
        } else {
            appendUtf8(out, unit >= 0xD800 && unit < 0xE000 ? replacement : unit);
        }
    }
    return out;
}

int String::compare(std::u16string_view other) const noexcept {
    return units.compare(other);
}

int String::compareNoCase(std::u16string_view other) const noexcept {
    auto const [mine, theirs] =
        std::mismatch(units.begin(), units.end(), other.begin(), other.end(),
                      [](char16_t a, char16_t b) { return Core::toLower(a) == Core::toLower(b); });
    if (mine != units.end() && theirs != other.end()) return Core::toLower(*mine) < Core::toLower(*theirs) ? -1 : 1;
    return (mine != units.end()) - (theirs != other.end());
}

bool String::startsWith(std::u16string_view prefix) const noexcept {
    return std::u16string_view(units).starts_with(prefix);
}

bool String::endsIn(std::u16string_view suffix) const noexcept {
    return std::u16string_view(units).ends_with(suffix);
}

int String::find(std::u16string_view part, int from) const noexcept {
    return static_cast<int>(units.find(part, static_cast<std::size_t>(std::max(from, 0))));
}

int String::rFind(std::u16string_view part) const noexcept {
    return static_cast<int>(units.rfind(part));
}

String String::subString(int start) const {
    return subString(start, length());
}

String String::subString(int start, int count) const {
    int const first = std::clamp(start, 0, length());
    int const last = std::clamp(count, 0, length() - first);
    return std::u16string_view(units).substr(static_cast<std::size_t>(first), static_cast<std::size_t>(last));
}

Vector<String> String::split(std::u16string_view separators) const {
    Vector<String> pieces;
    std::u16string_view const text = units;
    for (std::size_t start = 0; start < text.size();) {
        std::size_t const end = std::min(text.find_first_of(separators, start), text.size());
        if (end > start) pieces.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return pieces;
}

String String::trim() const {
    return Core::trim(units);
}

String String::trimEnd() const {
    return Core::trimEnd(units);
}

String String::toLower() const {
    std::u16string lower = units;
    for (char16_t& unit : lower) unit = Core::toLower(unit);
    return String(std::move(lower));
}

String& String::operator+=(std::u16string_view text) {
    units += text;
    return *this;
}

bool String::isSpace(char16_t unit) noexcept {
    return Core::isSpace(unit);
}

bool String::isDigit(char16_t unit) noexcept {
    return Core::isDigit(unit);
}

String String::loadString(int id) {
    switch (id) {
    case 30001: return u"The spot colour \"{0}\" has no alternate colour and is not registered; it renders black.";
    case 30002: return u"\"{0}\" is no rgb-icc colour: it needs r, g, b, a profile and one component or more.";
    default: return {};
    }
}

} // namespace Core
