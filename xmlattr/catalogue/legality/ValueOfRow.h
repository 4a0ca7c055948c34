// A text as the single value of a row of the catalogue.
#pragma once

#include "xmlattr/catalogue/grammar/Meaning.h"
#include "xmlattr/catalogue/legality/Judge.h"

#include <string_view>

namespace Xml {

Dialect dialectOf(CatalogueEntry const& entry, Notation notation);

// "inherit" or an expression of XSL-FO, which may stand for the value of the row.
bool isComputed(CatalogueEntry const& entry, std::u16string_view text);

// By the value type of the row and the grammar; without what is worked out for reports, `newer` and `isNegative`.
Judgement judgeValue(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text);

// By the grammar alone.
Judgement judgeByGrammar(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text);

} // namespace Xml
