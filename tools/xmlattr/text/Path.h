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

// Where links lead from a name, though nothing may be there.
inline std::filesystem::path followed(std::filesystem::path path) {
    constexpr int most = 40; // as many as systems follow
    for (int i = 0; i < most && std::filesystem::is_symlink(std::filesystem::symlink_status(path)); ++i)
        path = path.parent_path() / std::filesystem::read_symlink(path);
    return path;
}

} // namespace Command
