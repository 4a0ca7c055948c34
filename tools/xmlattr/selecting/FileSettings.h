// What a user asks for that may differ from file to file.
#pragma once

#include "selecting/Filter.h"

#include <optional>

namespace Command {

struct FileSettings {
    std::optional<bool> isStrict;
    Filter filter;
};

} // namespace Command
