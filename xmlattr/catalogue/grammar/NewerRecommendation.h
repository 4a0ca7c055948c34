// Values of recommendations that came after XSL-FO 1.1 and SVG 1.1.
#pragma once

#include "xmlattr/catalogue/grammar/Meaning.h"

#include <string_view>

namespace Xml {

// "SVG 2", "CSS 3" and the like for a text that is a value of the attribute by that recommendation, or has a word, a
// function, a unit or a form of colour of it; empty when it has none. For texts that the grammar of their attribute
// refuses: unless the whole is such a value, the rest need not be well formed.
std::string_view newerRecommendation(Dialect dialect, std::string_view attribute, std::u16string_view text);

} // namespace Xml
