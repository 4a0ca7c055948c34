#include "xml/Encoding.h"

#include "text/Text.h"

#include <array>

namespace Command {

int windows1252(unsigned char byte) {
    // What stands where ISO-8859-1 has control characters.
    static constexpr std::array<int, 32> from80 = {0x20AC, -1,     0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, -1,     0x017D, -1,
                                                   -1,     0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, -1,     0x017E, 0x0178};
    return byte >= 0x80 && byte < 0xA0 ? from80[byte - 0x80] : byte;
}

std::u32string decode(std::string_view bytes, ByteEncoding encoding) {
    std::u32string text;
    text.reserve(bytes.size());
    auto const byte = [&](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(bytes[i])); };
    switch (encoding) {
    case ByteEncoding::Latin1:
        for (std::size_t i = 0; i < bytes.size(); ++i) text += byte(i);
        break;
    case ByteEncoding::Windows1252:
        for (char const c : bytes) text += static_cast<char32_t>(windows1252(static_cast<unsigned char>(c)));
        break;
    case ByteEncoding::Utf8:
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            char32_t const unit = byte(i);
            if ((unit & 0xC0) != 0x80)
                text += unit < 0xC0 ? unit : unit < 0xE0 ? unit & 0x1F : unit < 0xF0 ? unit & 0x0F : unit & 0x07;
            else if (!text.empty())
                text.back() = text.back() << 6 | (unit & 0x3F);
        }
        break;
    case ByteEncoding::Utf16Big:
    case ByteEncoding::Utf16Little:
        std::size_t const high = encoding == ByteEncoding::Utf16Big ? 0 : 1;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
            char32_t const unit = byte(i + high) << 8 | byte(i + 1 - high);
            if (unit >= 0xDC00 && unit < 0xE000 && !text.empty())
                text.back() = 0x10000 + ((text.back() - 0xD800) << 10) + (unit - 0xDC00);
            else
                text += unit;
        }
        break;
    }
    return text;
}

std::string encode(std::u32string_view text, ByteEncoding encoding) {
    constexpr unsigned char leads[] = {0, 0, 0xC0, 0xE0, 0xF0}; // of UTF-8
    std::string bytes;
    auto const addUnit = [&](char32_t unit) {
        bool const isBig = encoding == ByteEncoding::Utf16Big;
        bytes += static_cast<char>(isBig ? unit >> 8 : unit);
        bytes += static_cast<char>(isBig ? unit : unit >> 8);
    };
    for (char32_t const c : text) {
        std::size_t const length = utf8Length(c);
        switch (encoding) {
        case ByteEncoding::Latin1:
        case ByteEncoding::Windows1252: bytes += static_cast<char>(c); break;
        case ByteEncoding::Utf8:
            bytes += static_cast<char>(leads[length] | c >> 6 * (length - 1));
            for (std::size_t i = length - 1; i-- > 0;) bytes += static_cast<char>(0x80 | (c >> 6 * i & 0x3F));
            break;
        case ByteEncoding::Utf16Big:
        case ByteEncoding::Utf16Little:
            if (c < 0x10000) {
                addUnit(c);
            } else {
                addUnit(0xD800 + ((c - 0x10000) >> 10));
                addUnit(0xDC00 + (c & 0x3FF));
            }
            break;
        }
    }
    return bytes;
}

std::size_t encodedLength(std::u32string_view text, ByteEncoding encoding) {
    std::size_t length = 0;
    switch (encoding) {
    case ByteEncoding::Latin1:
    case ByteEncoding::Windows1252: return text.size();
    case ByteEncoding::Utf8:
        for (char32_t const c : text) length += utf8Length(c);
        break;
    case ByteEncoding::Utf16Big:
    case ByteEncoding::Utf16Little:
        for (char32_t const c : text) length += c < 0x10000 ? 2 : 4;
        break;
    }
    return length;
}

} // namespace Command
