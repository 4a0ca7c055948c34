// What the recommendation allows for an attribute and its value type does not read.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"

#include <string_view>

namespace Xml {

using Accepts = bool (*)(std::u16string_view text);

// Whether the trimmed text is one of the words or of the kinds of values in the column `alsoLegal`
// of the catalogue. Lists and calls are made of items that are legal alone: those, and what
// `accepts` takes. Words of SVG stand in any case.
bool isAlsoLegal(CatalogueEntry const& entry, std::u16string_view text, Accepts accepts);

} // namespace Xml
