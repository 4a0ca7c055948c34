// The encodings in which a document is read.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Command {

enum class ByteEncoding {
    Utf8,
    Utf16Big,
    Utf16Little,
    Latin1, // ISO-8859-1 and with it US-ASCII: the byte is the code point
    Windows1252
};

// The character of a byte in windows-1252; -1 for the five bytes that it leaves open.
int windows1252(unsigned char byte);

// The code points of a piece of a file whose bytes are known to be well-formed.
std::u32string decode(std::string_view bytes, ByteEncoding encoding);

// The bytes of a text in UTF-8 or UTF-16; in the encodings of single bytes the text is ASCII.
std::string encode(std::u32string_view text, ByteEncoding encoding);
// How many bytes a text of a file takes there; it may have any character that the encoding has.
std::size_t encodedLength(std::u32string_view text, ByteEncoding encoding);

// Where something stands in the bytes of a document.
struct BytePlace {
    std::uint64_t offset = 0;
    ByteEncoding encoding{};
};

} // namespace Command
