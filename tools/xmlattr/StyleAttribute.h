// The style attribute of SVG: declarations of properties.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace Command {

// Slices of the attribute's text, trimmed; the value without its "!important".
struct Declaration {
    std::string_view property, value;
    std::size_t offset; // of the property's name in the text, in bytes
};

// Declarations stand between semicolons outside of quotation marks, parentheses and comments, as in
// CSS 2. What has no colon is left out.
std::vector<Declaration> splitStyle(std::string_view text);

} // namespace Command
