// Paths of the command line and of files that name others: in UTF-8 on Windows, as they are elsewhere.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Command {

// Instead of the constructor from std::string, which may take UTF-8 for characters of the C locale on Windows. The way
// back by path::string() is right everywhere.
inline std::filesystem::path pathOf(std::string_view name) {
    return std::u8string(name.begin(), name.end());
}

} // namespace Command
