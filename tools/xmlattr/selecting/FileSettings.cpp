#include "selecting/FileSettings.h"

#include "text/Text.h"

namespace Command {

std::optional<std::string> Shown::add(std::string_view word) {
    if (word == "passed-over")
        passedOver = true;
    else if (word == "not-covered")
        notCovered = true;
    else if (word == "unknown")
        unknown = true;
    else
        return inQuotes(printable(word)) + " is not passed-over, not-covered or unknown";
    return std::nullopt;
}

} // namespace Command
