// The printers of Core::Format for texts that are written in pieces.
#pragma once

#include "xmlattr/core/String.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace Core {

// Each appends to the text.
void appendMeasure(std::u16string& out, double value, std::u16string_view suffix = {});
void appendShortest(std::u16string& out, float value);
void appendShortest(std::u16string& out, double value);
void appendShortest(std::u16string& out, int value);
// appendMeasure without its fast path: the reference from the standard library.
void appendMeasureReference(std::u16string& out, double value, std::u16string_view suffix = {});

// A piece of a text that joined() makes, written at `out`: what it takes at most, and the end of what it took.
constexpr std::size_t mostOf(std::u16string_view text) {
    return text.size();
}
constexpr std::size_t mostOf(unsigned char) {
    return 3;
}
constexpr std::size_t mostOf(int) {
    return 11;
}
constexpr std::size_t mostOf(double) {
    return 24;
}
char16_t* write(char16_t* out, std::u16string_view text);
char16_t* write(char16_t* out, unsigned char number);
char16_t* write(char16_t* out, int number);
char16_t* write(char16_t* out, double number);

// The pieces after each other: texts as they are, and numbers as the shortest that read back.
template <class... Pieces> String joined(Pieces const&... pieces) {
    std::u16string out((mostOf(pieces) + ...), u'\0');
    char16_t* end = out.data();
    ((end = write(end, pieces)), ...);
    out.resize(static_cast<std::size_t>(end - out.data()));
    return String(std::move(out));
}

} // namespace Core
