// Attributes that set several others at once, taken apart.
#pragma once

#include "xmlattr/catalogue/grammar/Meaning.h"
#include "xmlattr/catalogue/legality/Judge.h"

#include <string_view>
#include <vector>

namespace Xml {

// The parts of a value, slices of it: what stands between blanks, expressions of XSL-FO kept whole. A unit in `marks`
// is a part of its own.
std::vector<std::u16string_view> splitParts(std::u16string_view text, std::u16string_view marks = {});

// By the grammar of the whole, and by the value types that read the parts.
Judgement judgeShorthand(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text);

} // namespace Xml
