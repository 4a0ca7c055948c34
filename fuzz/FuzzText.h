// What the fuzzers share: a text of any UTF-16 made of bytes, and the end of a run whose promise is broken.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

// The bytes are UTF-8 that may encode surrogates one by one, so that every UTF-16 text has its bytes; a byte that
// belongs to no character is U+00xx.
inline std::u16string toText(std::uint8_t const* byte, std::uint8_t const* end) {
    std::u16string text;
    auto const isTrail = [&](std::ptrdiff_t i) { return end - byte > i && (byte[i] & 0xC0) == 0x80; };
    while (byte != end) {
        if ((*byte & 0xF0) == 0xE0 && isTrail(1) && isTrail(2)) {
            text += static_cast<char16_t>((byte[0] & 0x0F) << 12 | (byte[1] & 0x3F) << 6 | (byte[2] & 0x3F));
            byte += 3;
        } else if ((*byte & 0xE0) == 0xC0 && isTrail(1)) {
            text += static_cast<char16_t>((byte[0] & 0x1F) << 6 | (byte[1] & 0x3F));
            byte += 2;
        } else {
            text += char16_t{*byte++};
        }
    }
    return text;
}

inline void require(bool holds, char const* promise) {
    if (holds) return;
    std::fprintf(stderr, "%s\n", promise);
    std::abort();
}
