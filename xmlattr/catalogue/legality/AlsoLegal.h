// What the recommendation allows for an attribute and its value type does not read.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"

#include <functional>
#include <span>
#include <string_view>

namespace Xml {

using Accepts = std::function<bool(std::u16string_view text)>;

// Whether the trimmed text is one of the words or of the kinds of values that the tokens say. Lists and calls are made
// of items that are legal alone: those, and what `accepts` takes. Words of SVG stand in any case.
bool isAlsoLegal(std::span<LegalToken const> tokens, Vocabulary vocabulary, std::u16string_view text,
                 Accepts const& accepts);

} // namespace Xml
