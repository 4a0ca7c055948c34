#include "bytes/TextFile.h"

#include "text/Path.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace Command {

std::optional<std::string> openText(std::string const& path, std::ifstream& file) {
    errno = 0;
    file.open(path, std::ios::binary);
    int const problem = file ? 0 : errno;
    std::error_code ignored;
    bool const isFolder = std::filesystem::is_directory(pathOf(path), ignored); // which some systems open
    if (file && !isFolder) return std::nullopt;
    return std::generic_category().message(isFolder ? EISDIR : problem);
}

} // namespace Command
