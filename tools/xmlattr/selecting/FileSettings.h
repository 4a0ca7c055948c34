// What a user asks for that may differ from file to file.
#pragma once

#include "selecting/Filter.h"

#include <optional>
#include <string>
#include <string_view>

namespace Command {

// What is counted alone unless somebody asks to see it.
struct Shown {
    bool passedOver = false, notCovered = false, unknown = false;

    // Asks for "passed-over", "not-covered" or "unknown"; says what is wrong with another word.
    [[nodiscard]] std::optional<std::string> add(std::string_view word);
};

struct FileSettings {
    std::optional<bool> isStrict;
    Filter filter;
    Shown shown;
};

} // namespace Command
