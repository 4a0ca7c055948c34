// Pieces of the HTML report. Whatever comes from a document goes through escaped().
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Command {

// Text for an element or a quoted attribute. What is no UTF-8 becomes U+FFFD; control characters, and those that turn
// the direction of text or end a line unseen, are shown by their number.
std::string escaped(std::string_view text);

// The first or the last so many code points, with "…" for what is left out; not yet escaped.
std::string cutAtEnd(std::string_view text, std::size_t most);
std::string cutAtStart(std::string_view text, std::size_t most);

// A bar as long as its part of the track, from 0 to 1; what is there at all is seen. The color is one of the style.
std::string bar(double part, std::string_view color);

// The shortest text that reads back in single precision.
std::string number(double value);

// "1,234".
std::string grouped(std::uint64_t number);

// "1 finding", "1,234 findings".
std::string counted(std::uint64_t number, std::string_view noun);

} // namespace Command
