// What differs between two pages.
#pragma once

#include <string>
#include <string_view>

namespace Reference {

// The paragraphs, items and rows that one page has ("-", before) and the other has not ("+", after), each under the
// heading that it stands below. Where one took the place of another, a long one is shortened to its beginning and to
// what is different, which has marks below it. Empty for equal pages.
std::string changesBetween(std::string_view before, std::string_view after);

} // namespace Reference
