#include "text/Text.h"

#include "xmlattr/core/String.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace Command {

void toUtf16(std::string_view utf8, std::u16string& out) {
    out.resize(utf8.size());
    char16_t* to = out.data();
    unsigned all = 0; // whether all is ASCII is asked once, so that the loop is a plain copy
    auto const widen = [&](unsigned char byte) {
        all |= byte;
        *to++ = byte;
    };
    // By blocks of a fixed size, for which the compiler needs no loop.
    std::array<unsigned char, 16> block;
    std::size_t const blocks = utf8.size() - utf8.size() % block.size();
    for (std::size_t i = 0; i < blocks; i += block.size()) {
        std::memcpy(block.data(), utf8.data() + i, block.size());
        std::ranges::for_each(block, widen);
    }
    for (char const c : utf8.substr(blocks)) widen(static_cast<unsigned char>(c));
    if (all >= 0x80) out = std::u16string_view(Core::String::fromUtf8(utf8));
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string text;
    toUtf16(utf8, text);
    return text;
}

std::string toUtf8(std::u16string_view text) {
    return Core::String(text).toUtf8();
}

namespace {

std::string escaped(unsigned char control) {
    char digits[2];
    std::to_chars_result const result = std::to_chars(digits, digits + 2, control, 16);
    return "\\u{" + std::string(&digits[0], result.ptr) + "}";
}

} // namespace

std::string withoutControls(std::string_view utf8) {
    std::string text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        auto const byte = static_cast<unsigned char>(utf8[i]);
        // C1 controls are C2 80 to C2 9F.
        bool const isC1 = byte == 0xC2 && i + 1 < utf8.size() && static_cast<unsigned char>(utf8[i + 1]) < 0xA0;
        if (byte < 0x20 || byte == 0x7F) {
            text += escaped(byte);
        } else if (isC1) {
            text += escaped(static_cast<unsigned char>(utf8[++i]));
        } else {
            text += utf8[i];
        }
    }
    return text;
}

std::string printable(std::string_view utf8) {
    constexpr std::size_t most = 80;
    std::size_t count = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        bool const startsCodePoint = (static_cast<unsigned char>(utf8[i]) & 0xC0) != 0x80;
        if (startsCodePoint && count++ == most) return withoutControls(utf8.substr(0, i)) + "...";
    }
    return withoutControls(utf8);
}

std::string inQuotes(std::string_view text) {
    return std::string(1, '"').append(text).append(1, '"');
}

std::string quantity(std::uint64_t number, std::string_view noun, std::string_view plural) {
    std::string text = std::to_string(number) + " ";
    if (number == 1 || plural.empty()) text += noun;
    if (number != 1) text += plural.empty() ? "s" : plural;
    return text;
}

std::string joinWith(std::vector<std::string> const& words, std::string_view last) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) text += i + 1 == words.size() ? std::string(" ").append(last) + " " : ", ";
        text += words[i];
    }
    return text;
}

} // namespace Command
