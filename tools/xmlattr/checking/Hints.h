// What the author of a refused text may have meant.
#pragma once

#include "xmlattr/catalogue/AttributeType.h"

#include <string>
#include <vector>

namespace Command {

struct Hints {
    std::string variant;               // nearly the same text, which the type accepts; or empty
    std::vector<std::string> accepted; // the keywords of an enumeration
    std::string nearest;               // the word that differs by less than half its length; or empty
};

Hints hintsFor(Xml::AttributeType const& type, std::u16string_view text);

// The word with the smallest edit distance, when that is under half the word's length; or empty. Of
// words as near, the one that begins and ends more like the text: "gren" is green, not grey.
std::u16string_view nearestWord(std::u16string_view text, std::vector<std::u16string_view> const& words);

} // namespace Command
