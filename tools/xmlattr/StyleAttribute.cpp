#include "StyleAttribute.h"

#include <algorithm>

namespace Command {

namespace {

constexpr std::string_view blanks = " \t\r\n\f";

std::string_view trim(std::string_view text) {
    std::size_t const first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return text.substr(0, 0);
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

// Blanks and comments at the start of a declaration belong to nothing.
std::string_view skipComments(std::string_view text) {
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
        if (!text.starts_with("/*")) return text;
        std::size_t const end = text.find("*/", 2);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
    }
}

// The index of the first `mark` that stands outside, or the length of the text.
std::size_t findOutside(std::string_view text, char mark) {
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char const c = text[i];
        if (c == mark && depth == 0) return i;
        if (c == '"' || c == '\'') {
            i = std::min(text.find(c, i + 1), text.size() - 1);
        } else if (text.substr(i).starts_with("/*")) {
            i = std::min(text.find("*/", i + 2), text.size() - 2) + 1;
        } else if (c == '(') {
            ++depth;
        } else if (c == ')' && depth > 0) {
            --depth;
        }
    }
    return text.size();
}

std::string_view withoutPriority(std::string_view value) {
    std::size_t const mark = value.rfind('!');
    bool const isPriority = mark != std::string_view::npos && trim(value.substr(mark + 1)) == "important";
    return isPriority ? trim(value.substr(0, mark)) : value;
}

} // namespace

std::vector<Declaration> splitStyle(std::string_view text) {
    std::vector<Declaration> declarations;
    for (std::string_view rest = text; !rest.empty();) {
        std::size_t const end = findOutside(rest, ';');
        std::string_view const declaration = skipComments(rest.substr(0, end));
        std::size_t const colon = declaration.find(':');
        if (colon != std::string_view::npos)
            declarations.push_back({trim(declaration.substr(0, colon)),
                                    withoutPriority(trim(skipComments(declaration.substr(colon + 1)))),
                                    static_cast<std::size_t>(declaration.data() - text.data())});
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return declarations;
}

} // namespace Command
