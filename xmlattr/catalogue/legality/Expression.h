// The expressions that an XSL-FO property may have instead of a value: they are the formatter's to
// compute, no value type reads them.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace Xml {

// What an expression gives, so far as it is known without the rest of the document.
struct Expression {
    enum Kind : std::uint8_t {
        Numeric, // a number, a length or a percentage
        Share,   // a share of the width that is left for the columns of a table, or a sum with one
        Color,
        Font, // what a system font has for the property
        Text, // a word or a string, in parentheses
        Any   // what another property has
    };

    Kind kind = Any;
    // Of a Numeric: 0 is a number, 1 a length, 2 an area. Not known where a percentage or a copied value has a part.
    std::optional<int> power{};
    std::u16string_view text{}; // of a Text, a slice of the expression
};

// A well-formed expression of XSL 1.1, section 5.9, that is more than a value: one with an operator, parentheses or a
// call of a function. Nothing when the text is none, or when its operators have operands that do not go together, as
// in "1pt + 2".
std::optional<Expression> readExpression(std::u16string_view text);

// Whether the text is such an expression and what it gives may be a value of the row. True in doubt.
bool isExpressionFor(CatalogueEntry const& entry, std::u16string_view text);

} // namespace Xml
