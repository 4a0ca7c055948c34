// A text as the single value of a row of the catalogue that has a value type.
#pragma once

#include "xmlattr/catalogue/legality/Judge.h"

#include <string_view>

namespace Xml {

// Read, PassedOver or Refused.
Verdict judgeValue(CatalogueEntry const& entry, std::u16string_view text);

} // namespace Xml
