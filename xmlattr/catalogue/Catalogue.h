// Which value type an attribute of XSL-FO 1.1 or SVG 1.1 has: a table that is compiled in.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace Xml {

enum class Vocabulary : std::uint8_t { Fo, Svg };

enum class AttributeKind : std::uint8_t {
    Typed,      // the value type reads it
    Shorthand,  // sets several attributes, which have rows of their own
    Identifier, // a name, or a reference to one
    Text,       // free text
    None        // no value type reads it
};

// All texts are ASCII and live as long as the program.
struct CatalogueEntry {
    Vocabulary vocabulary;
    // The local name of the only element that the row holds for, or "*".
    std::string_view element;
    // The local name; those of the XML and XLink namespaces have their usual prefix: "xml:lang".
    std::string_view attribute;
    AttributeKind kind;
    // The name under which ValueTypes.inc lists the type; empty when the kind is not Typed.
    std::string_view valueType;
    // What the recommendation allows and the value type does not read, divided by blanks: words, and
    // tokens for kinds of values: <number> <integer> <percentage> <angle> <color> <uri> <language>,
    // <number>{4}, <number>{2,}, <list> (several items, each legal alone) and name() (a call).
    std::string_view alsoLegal;
    // The name of the constant that holds the default; may be empty.
    std::string_view defaultConstant;
    bool inherited;
    std::string_view note;

    // Whether the SVG attribute is a property, which a style attribute may hold too.
    constexpr bool isPresentation() const { return note.starts_with("presentation"); }
};

class XMLATTR_API Catalogue {
public:
    // Every row: the vocabularies one after the other, each sorted by attribute.
    static std::span<CatalogueEntry const> entries() noexcept;

    // The row of an attribute on an element, by local names: the element's own one before the one
    // for every element. Null when the vocabulary has no such attribute. Takes constant time.
    static CatalogueEntry const* find(Vocabulary vocabulary, std::string_view element,
                                      std::string_view attribute) noexcept;

    // The vocabulary of a namespace, for the two that the catalogue has.
    static std::optional<Vocabulary> vocabularyOf(std::string_view namespaceName) noexcept;
    // "fo" and "svg"; "typed", "shorthand", "identifier", "text" and "none".
    static std::string_view name(Vocabulary vocabulary) noexcept;
    static std::string_view name(AttributeKind kind) noexcept;
};

} // namespace Xml
