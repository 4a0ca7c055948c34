#include "xmlattr/catalogue/text/Words.h"

#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Xml {

namespace {

char lowerLetter(char c) {
    return static_cast<char>(Core::toLower(static_cast<unsigned char>(c)));
}

template <class Unit> std::basic_string_view<Unit> trimStart(std::basic_string_view<Unit> text) {
    while (!text.empty() && isXmlSpace(static_cast<char32_t>(text.front()))) text.remove_prefix(1);
    return text;
}

template <class Unit> std::basic_string_view<Unit> trim(std::basic_string_view<Unit> text) {
    text = trimStart(text);
    while (!text.empty() && isXmlSpace(static_cast<char32_t>(text.back()))) text.remove_suffix(1);
    return text;
}

} // namespace

std::u16string_view trimXmlSpace(std::u16string_view text) {
    return trim(text);
}

std::string_view trimXmlSpace(std::string_view text) {
    return trim(text);
}

std::string_view trimXmlSpaceStart(std::string_view text) {
    return trimStart(text);
}

std::string toLower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), lowerLetter);
    return lower;
}

std::u16string toLower(std::u16string_view text) {
    std::u16string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char16_t unit) { return Core::toLower(unit); });
    return lower;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowerLetter, lowerLetter);
}

bool equalsWord(std::u16string_view text, std::string_view word, bool ignoreCase) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), [&](char16_t unit, char letter) {
        auto const expected = static_cast<char16_t>(static_cast<unsigned char>(letter));
        return ignoreCase ? Core::toLower(unit) == Core::toLower(expected) : unit == expected;
    });
}

namespace {

// Where a place of a text is, from its start on: in how many parentheses, and in which quotation marks.
struct Nesting {
    int depth = 0;
    char16_t quote = 0;

    // Moves over a code unit. Whether that is in parentheses or quotation marks, or one of them.
    bool takes(char16_t unit) {
        if (quote != 0) {
            if (unit == quote) quote = 0;
            return true;
        }
        switch (unit) {
        case u'"':
        case u'\'': quote = unit; return true;
        case u'(': ++depth; return true;
        case u')': depth = std::max(depth - 1, 0); return true;
        }
        return depth > 0;
    }
};

} // namespace

bool hasOpenParenthesis(std::u16string_view text) {
    Nesting nesting;
    for (char16_t const unit : text) nesting.takes(unit);
    return nesting.depth > 0;
}

std::vector<std::u16string_view> splitValues(std::u16string_view text, std::u16string_view separators,
                                             std::u16string_view marks) {
    std::vector<std::u16string_view> values;
    std::size_t start = 0;
    Nesting nesting;
    auto const take = [&](std::size_t end) {
        if (end > start) values.push_back(text.substr(start, end - start));
        start = end + 1;
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        char16_t const unit = text[i];
        if (nesting.takes(unit)) continue;
        if (marks.find(unit) != std::u16string_view::npos) {
            take(i);
            values.push_back(text.substr(i, 1));
        } else if (isXmlSpace(unit) || separators.find(unit) != std::u16string_view::npos) {
            take(i);
        }
    }
    take(text.size());
    return values;
}

} // namespace Xml
