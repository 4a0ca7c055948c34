// The printers of Core::Format for texts that are written in pieces.
#pragma once

#include <string>
#include <string_view>

namespace Core {

// Each appends to the text.
void appendMeasure(std::u16string& out, double value, std::u16string_view suffix = {});
void appendShortest(std::u16string& out, float value);
void appendShortest(std::u16string& out, double value);
void appendShortest(std::u16string& out, int value);
// appendMeasure without its fast path: the reference from the standard library.
void appendMeasureReference(std::u16string& out, double value, std::u16string_view suffix = {});

} // namespace Core
