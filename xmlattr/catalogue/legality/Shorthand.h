// Attributes that set several others at once, taken apart.
#pragma once

#include "xmlattr/catalogue/legality/Judge.h"

#include <string_view>
#include <vector>

namespace Xml {

// The parts of a value, slices of it: what stands between blanks, expressions of XSL-FO kept whole. A unit in `marks`
// is a part of its own.
std::vector<std::u16string_view> splitParts(std::u16string_view text, std::u16string_view marks = {});

// Read when a value type reads one part at least, NotCovered when nothing is known of any part.
Judgement judgeShorthand(CatalogueEntry const& entry, std::u16string_view text);

} // namespace Xml
