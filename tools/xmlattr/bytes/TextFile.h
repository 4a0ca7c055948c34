// Files of the user that are no documents: lists of paths, baselines, configurations.
#pragma once

#include <fstream>
#include <optional>
#include <string>

namespace Command {

// Opens a file to be read; gives what the system says where it cannot, as of a folder.
[[nodiscard]] std::optional<std::string> openText(std::string const& path, std::ifstream& file);

} // namespace Command
