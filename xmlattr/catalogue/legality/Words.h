// Words and white space as XML and CSS have them, for everything that reads documents.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Xml {

// The white space of XML: space, tab, line feed and carriage return, nothing else.
constexpr bool isXmlSpace(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\r';
}

std::u16string_view trimXmlSpace(std::u16string_view text);

// The letters of ASCII in lower case, all else as it is.
std::string toLower(std::string_view text);
bool equalsNoCase(std::string_view a, std::string_view b);

// Whether the text is this ASCII word.
bool equalsWord(std::u16string_view text, std::string_view word, bool ignoreCase = false);

// The pieces between blanks, and between commas where `commas` says so, that stand outside of
// parentheses and quotation marks. No piece is empty.
std::vector<std::u16string_view> splitValues(std::u16string_view text, bool commas = false);

// The ASCII words between blanks.
std::vector<std::string_view> splitWords(std::string_view text);

} // namespace Xml
