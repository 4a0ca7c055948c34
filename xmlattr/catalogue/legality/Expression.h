// The expressions that an XSL-FO property may have instead of a value: they are the formatter's to
// compute, no value type reads them.
#pragma once

#include <string_view>

namespace Xml {

// Whether the text is a well-formed expression of XSL 1.1, section 5.9, that is more than a value:
// an operator, parentheses or a call of one of its functions with as many arguments as it takes.
bool isExpression(std::u16string_view text);

// Whether it is one call alone that copies a value, like from-parent(break-before): what a keyword
// can come from.
bool isCopy(std::u16string_view text);

} // namespace Xml
