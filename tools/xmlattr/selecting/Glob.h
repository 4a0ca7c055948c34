// Patterns for paths, as shells and lists of ignored files have them.
#pragma once

#include <string_view>

namespace Command {

// Both are parts separated by slashes. In a part "*" stands for any characters and "?" for one; a part "**" stands for
// any number of parts. A pattern without a slash is compared with the last part alone, and one that ends with a slash
// means all that is in the folder.
bool matchesGlob(std::string_view pattern, std::string_view path);

} // namespace Command
