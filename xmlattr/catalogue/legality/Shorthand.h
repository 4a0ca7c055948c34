// Attributes that set several others at once, taken apart.
#pragma once

#include "xmlattr/catalogue/legality/Property.h"

#include <string_view>
#include <vector>

namespace Xml {

// The parts of a value, slices of it: what stands between blanks, expressions of XSL-FO kept whole.
std::vector<std::u16string_view> splitParts(std::u16string_view text);

// Checked when a value type reads one part at least, NotCovered when there is none for any part.
Judgement judgeShorthand(CatalogueEntry const& entry, std::u16string_view text);

} // namespace Xml
