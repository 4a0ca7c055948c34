// What differs between two versions of a value.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

// A range of a text, in bytes of its UTF-8, and what stands there instead.
struct Change {
    std::size_t offset = 0, length = 0;
    std::u32string inserted;
};

// The changes that make one UTF-8 text of the other, in their order. They are small where the texts differ in few
// places each: what stays between two changes keeps its line ends and references in a file. Linear in the texts.
std::vector<Change> changesBetween(std::string_view from, std::string_view to);

} // namespace Command
