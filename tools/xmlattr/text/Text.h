// Texts between documents, which are UTF-8, and value types, which read UTF-16.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

// Writes the UTF-16 of a well-formed UTF-8 text over `out`, whose memory is used again.
void toUtf16(std::string_view utf8, std::u16string& out);
std::u16string toUtf16(std::string_view utf8);
std::string toUtf8(std::u16string_view text);

// How many bytes the code point takes in UTF-8.
constexpr std::size_t utf8Length(char32_t c) {
    return c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
}

// With control characters as \u{..}, ends of lines among them.
std::string withoutControls(std::string_view utf8);
// What a message shows of a text: the same of at most 80 code points.
std::string printable(std::string_view utf8);

std::string inQuotes(std::string_view text);

// FNV-1a; of several texts when the hash of one is the start of the next.
constexpr std::uint64_t hashOf(std::string_view text, std::uint64_t start = 0xCBF29CE484222325u) {
    for (char const c : text) start = (start ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
    return start;
}

// "1 file", "2 files"; where the plural is another word, that too: "2 entries".
std::string quantity(std::uint64_t number, std::string_view noun, std::string_view plural = {});

// "a", "a or b", "a, b or c".
std::string joinWith(std::vector<std::string> const& words, std::string_view last);

} // namespace Command
