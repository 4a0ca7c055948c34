// Words and white space as XML and CSS have them, for everything that reads documents.
#pragma once

#include "xmlattr/core/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace Xml {

using Core::isXmlSpace;

std::u16string_view trimXmlSpace(std::u16string_view text);
std::string_view trimXmlSpace(std::string_view text);
std::string_view trimXmlSpaceStart(std::string_view text);

// The letters of ASCII in lower case, all else as it is.
std::string toLower(std::string_view text);
std::u16string toLower(std::u16string_view text);
bool equalsNoCase(std::string_view a, std::string_view b);

// Whether the text is this ASCII word.
bool equalsWord(std::u16string_view text, std::string_view word, bool ignoreCase = false);

// Whether a parenthesis of the text is not closed; those in quotation marks do not count.
bool hasOpenParenthesis(std::u16string_view text);

// The pieces of a value between white space that stand outside of parentheses and quotation marks. The units in
// `separators` separate pieces like white space, those in `marks` are pieces of their own. No piece is empty.
std::vector<std::u16string_view> splitValues(std::u16string_view text, std::u16string_view separators = {},
                                             std::u16string_view marks = {});

} // namespace Xml
