// The style attribute of SVG, in UTF-8: declarations of properties, whose values are judged as Notation::Declaration.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/core/Export.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Xml {

// Slices of the attribute's text, trimmed; the value without its "!important".
struct Declaration {
    std::string_view property, value;
    std::size_t offset; // of the property's name in the text, in bytes
};

// Writes blanks over the comments of a text, so that what is left keeps its offset.
XMLATTR_API void blankComments(std::string& text);

// Declarations stand between semicolons outside of strings, parentheses and URLs, as in CSS 2; there
// are no comments any more. What has no colon is left out. Takes time linear in the text.
XMLATTR_API std::vector<Declaration> splitStyle(std::string_view text);

// The row of a property that is declared on an element, by its name in any case; null when the vocabulary has no such
// property.
XMLATTR_API CatalogueEntry const* findProperty(Vocabulary vocabulary, std::string_view element,
                                               std::string_view property);

} // namespace Xml
