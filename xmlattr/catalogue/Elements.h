// The elements of XSL-FO 1.1 and SVG 1.1, and which attributes each of them has: tables that are compiled in.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"

namespace Xml {

// By local names; lookups take constant time and allocate nothing.
class XMLATTR_API Elements {
public:
    // Every element of the vocabulary, sorted.
    static std::span<std::string_view const> names(Vocabulary vocabulary) noexcept;

    static bool isKnown(Vocabulary vocabulary, std::string_view element) noexcept;

    // Whether the element has the attribute. An inherited property of XSL-FO may stand on every formatting
    // object, a component (space-before.minimum) where its property may, a shorthand where one of its
    // longhands may. False for names that the vocabulary does not know.
    static bool has(Vocabulary vocabulary, std::string_view element, std::string_view attribute) noexcept;

    // Every attribute that the vocabulary knows, as the catalogue writes it ("xml:lang"), each once and sorted.
    static std::span<std::string_view const> attributes(Vocabulary vocabulary) noexcept;

    // Whether the vocabulary has the attribute, on whichever element.
    static bool isAttribute(Vocabulary vocabulary, std::string_view attribute) noexcept;
};

} // namespace Xml
