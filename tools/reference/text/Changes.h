// What differs between two pages.
#pragma once

#include <string>
#include <string_view>

namespace Reference {

// The lines that one page has and the other has not, each under the heading that it stands below; under a line that
// took the place of another, marks show where the two differ. Empty for equal pages.
std::string changesBetween(std::string_view before, std::string_view after);

} // namespace Reference
