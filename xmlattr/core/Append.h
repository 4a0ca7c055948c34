// Texts that are written in pieces: words, and numbers as Core::Format prints them.
#pragma once

#include "xmlattr/core/String.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

namespace Core {

// A number that prints with at most three decimals; others print as the shortest text that reads back.
struct Measure {
    double value;
};

// A number below 1000 in three digits, and how many of them are zeros that need not be written before or after a
// point. The digits have room after them, so that three can be copied from any of them on.
struct ThreeDigits {
    char16_t digits[5];
    std::uint8_t leadingZeros, trailingZeros;
};

inline constexpr auto threeDigits = [] {
    std::array<ThreeDigits, 1000> all{};
    for (unsigned int i = 0; i < all.size(); ++i)
        all[i] = {{static_cast<char16_t>(u'0' + i / 100), static_cast<char16_t>(u'0' + i / 10 % 10),
                   static_cast<char16_t>(u'0' + i % 10)},
                  static_cast<std::uint8_t>((i < 100) + (i < 10)),
                  static_cast<std::uint8_t>((i % 10 == 0) + (i % 100 == 0))};
    return all;
}();

// Copies code units, whose number the compiler knows and so needs no call; std::copy would call for many.
template <std::size_t count> char16_t* writeUnits(char16_t* out, char16_t const* units) {
    std::memcpy(out, units, count * sizeof(char16_t));
    return out + count;
}

// Writes three code units, of which those up to the end that it gives are the number: which digits it has cannot be
// predicted, and needs no branch here.
inline char16_t* writeBelow1000(char16_t* out, unsigned int number) {
    ThreeDigits const& three = threeDigits[number];
    return writeUnits<3>(out, three.digits + three.leadingZeros) - three.leadingZeros;
}

// A piece of a text: what it takes at most while it is written, in code units; and the end of what it took.
constexpr std::size_t mostOf(std::u16string_view text) {
    return text.size();
}
inline char16_t* write(char16_t* out, std::u16string_view text) {
    return std::copy(text.begin(), text.end(), out);
}

template <std::size_t size> constexpr std::size_t mostOf(char16_t const (&)[size]) {
    return size - 1;
}
template <std::size_t size> char16_t* write(char16_t* out, char16_t const (&literal)[size]) {
    return writeUnits<size - 1>(out, literal);
}

constexpr std::size_t mostOf(unsigned char) {
    return 3;
}
inline char16_t* write(char16_t* out, unsigned char number) {
    return writeBelow1000(out, number);
}

constexpr std::size_t mostOf(int) {
    return 11;
}
char16_t* write(char16_t* out, int number);

constexpr std::size_t mostOf(double) {
    return 24;
}
char16_t* write(char16_t* out, double number);

inline constexpr std::size_t longestMeasure = 336; // the largest double has 309 digits before its point
inline std::size_t mostOf(Measure measure) {
    constexpr double floatLimit = 1e41; // more than a float, and than one as a percentage
    return std::abs(measure.value) < floatLimit ? 46 : longestMeasure;
}
char16_t* write(char16_t* out, Measure measure);
// The same without the fast path: the reference from the standard library.
char16_t* writeReference(char16_t* out, Measure measure);

// Gives use() the text of the pieces, which is written on the stack unless it is very long.
template <class Use, class... Pieces> auto useJoined(Use use, Pieces const&... pieces) {
    auto const writeAll = [&](char16_t* const begin) {
        char16_t* end = begin;
        ((end = write(end, pieces)), ...);
        return use(std::u16string_view(begin, static_cast<std::size_t>(end - begin)));
    };
    char16_t buffer[512];
    std::size_t const most = (mostOf(pieces) + ...);
    return writeAll(most <= std::size(buffer) ? buffer : std::u16string(most, u'\0').data());
}

// Appends the pieces to the text.
template <class... Pieces> void append(std::u16string& out, Pieces const&... pieces) {
    useJoined([&](std::u16string_view text) { out += text; }, pieces...);
}

// The pieces after each other.
template <class... Pieces> String joined(Pieces const&... pieces) {
    return useJoined([](std::u16string_view text) { return String(text); }, pieces...);
}

} // namespace Core
