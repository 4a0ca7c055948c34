// Any text for any value type. The first byte picks the type, the rest is the text; what stands before
// the first U+001F in it, if that occurs, is the text of the value that the attribute holds before.
// The bytes are UTF-8 that may encode surrogates one by one, so that every UTF-16 text has its bytes;
// a byte that belongs to no character is U+00xx.
#include "hostile/Promises.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

Core::String toText(std::uint8_t const* byte, std::uint8_t const* end) {
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
    return Core::String(std::move(text));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0) return 0;
    Promises::Type const& type = Promises::types[*data % std::size(Promises::types)];
    Core::String text = toText(data + 1, data + size), before;
    if (int const separator = text.find(u"\x1F"); separator >= 0) {
        before = text.subString(0, separator);
        text = text.subString(separator + 1);
    }
    if (char const* const promise = type.broken(before, text)) {
        std::fprintf(stderr, "%s: %s\nbefore: \"%s\"\ntext: \"%s\"\n", type.name, promise, before.toUtf8().c_str(),
                     text.toUtf8().c_str());
        std::abort();
    }
    return 0;
}
