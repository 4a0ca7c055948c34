#include "selecting/Glob.h"

#include <string>
#include <utility>

namespace Command {

namespace {

using Split = std::pair<std::string_view, std::string_view>;

// The part before the first slash, and what follows the slash.
Split split(std::string_view path) {
    std::size_t const slash = path.find('/');
    return slash == std::string_view::npos ? Split(path, {}) : Split(path.substr(0, slash), path.substr(slash + 1));
}

// When a text does not match after a star, the star takes one character more; only the last star need ever do so.
bool matchesPart(std::string_view pattern, std::string_view part) {
    std::size_t p = 0, i = 0, star = std::string_view::npos, taken = 0;
    while (i < part.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            taken = i;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == part[i])) {
            ++p;
            ++i;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            i = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

// The same by parts.
bool matchesParts(std::string_view pattern, std::string_view path) {
    constexpr std::string_view anyParts = "**";
    std::string_view retryPattern, retryPath;
    bool canRetry = false;
    while (!path.empty()) {
        auto const [wanted, patternRest] = split(pattern);
        auto const [part, pathRest] = split(path);
        if (wanted == anyParts) {
            if (patternRest.empty()) return true;
            pattern = retryPattern = patternRest;
            retryPath = pathRest;
            canRetry = true;
        } else if (!pattern.empty() && matchesPart(wanted, part)) {
            pattern = patternRest;
            path = pathRest;
        } else if (canRetry) {
            pattern = retryPattern;
            path = retryPath;
            retryPath = split(path).second;
        } else {
            return false;
        }
    }
    return pattern.empty();
}

} // namespace

bool matchesGlob(std::string_view pattern, std::string_view path) {
    if (pattern.ends_with('/')) return matchesParts(std::string(pattern) + "**", path);
    if (pattern.find('/') == std::string_view::npos) return matchesPart(pattern, path.substr(path.rfind('/') + 1));
    return matchesParts(pattern, path);
}

} // namespace Command
