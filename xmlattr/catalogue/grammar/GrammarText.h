// What a grammar allows, for the authors of documents.
#pragma once

#include "xmlattr/catalogue/grammar/Meaning.h"

#include <string>
#include <string_view>
#include <vector>

namespace Xml {

// Every word of the grammar and of its kinds of values, each once: "auto", "translate".
std::vector<std::string_view> wordsIn(Grammar const& grammar);

// Its words and kinds of values in a line, in no particular order and without how often: "auto, a length or a
// percentage".
std::string describeGrammar(Grammar const& grammar, Dialect dialect);

} // namespace Xml
