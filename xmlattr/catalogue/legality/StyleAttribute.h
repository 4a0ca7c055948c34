// The style attribute of SVG, in UTF-8: declarations of properties, whose values are judged as Notation::Declaration.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/core/Export.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Xml {

// What stands between two semicolons of a style attribute, trimmed: slices of the attribute's text.
struct Declaration {
    std::string_view text;
    std::size_t offset; // in the attribute's text, in bytes
    // The value without its "!important"; both empty where there is a fault.
    std::string_view property, value;
    // Why the text is no declaration: "it has no colon". Empty for a declaration.
    std::string_view fault;
};

// Writes blanks over the comments of a text, so that what is left keeps its offset.
XMLATTR_API void blankComments(std::string& text);

// Declarations stand between semicolons outside of strings, parentheses and URLs, as in CSS 2; there
// are no comments any more. Nothing is said of what is empty or blank. Takes time linear in the text.
XMLATTR_API std::vector<Declaration> splitStyle(std::string_view text);

// The row of a property that is declared on an element, by its name in any case; null when the vocabulary has no such
// property.
XMLATTR_API CatalogueEntry const* findProperty(Vocabulary vocabulary, std::string_view element,
                                               std::string_view property);

} // namespace Xml
