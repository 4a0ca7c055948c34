// The style attribute of SVG: declarations of properties.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Xml {

// Slices of the attribute's text, trimmed; the value without its "!important".
struct Declaration {
    std::string_view property, value;
    std::size_t offset; // of the property's name in the text, in bytes
};

// Writes blanks over the comments of a text, so that what is left keeps its offset.
void blankComments(std::string& text);

// Declarations stand between semicolons outside of strings, parentheses and URLs, as in CSS 2; there
// are no comments any more. What has no colon is left out.
std::vector<Declaration> splitStyle(std::string_view text);

} // namespace Xml
