// Which value type an attribute of XSL-FO 1.1 or SVG 1.1 has, and what else is known of it: a table that is compiled
// in. legality/Judge.h tells whether a text is legal on an attribute.
#pragma once

#include "xmlattr/catalogue/grammar/Grammar.h"
#include "xmlattr/core/Export.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

class AttributeType;

// XSL-FO 1.1 and SVG 1.1.
enum class Vocabulary : std::uint8_t { Fo, Svg };

// What a text on the attribute is.
enum class AttributeKind : std::uint8_t {
    Typed,      // the value type reads it
    Shorthand,  // sets several attributes, which have rows of their own
    Identifier, // a name, or a reference to one
    Text,       // free text
    Untyped     // no value type reads it
};

// An attribute on the elements where it has one meaning. All texts live as long as the program.
struct CatalogueEntry {
    Vocabulary vocabulary;
    AttributeKind kind;
    bool isInherited;
    // Whether the SVG attribute is a property, which a style attribute may hold too.
    bool isPresentation;
    // The local names of the elements, sorted; "*" alone for all that have no row of their own.
    std::span<std::string_view const> elements;
    // The local name; those of the XML and XLink namespaces have their usual prefix: "xml:lang".
    std::string_view attribute;

    // The values that the recommendation allows, without "inherit" and expressions; and the one that an absent
    // attribute has, in UTF-8, empty when there is none, when it depends on other attributes or is left to the
    // formatter.
    Grammar grammar;
    std::string_view initial;
    // For people: what to know of the attribute and its type.
    std::string_view note;

    // Of a typed attribute: the name under which ValueTypes.inc lists the type, and its place there.
    std::string_view valueType{};
    std::int16_t typeNumber = -1;
    // The name of the constant that holds the default; may be empty.
    std::string_view defaultConstant{};

    // Of a shorthand: the attributes that its parts are values of, the words that are no value of theirs, and how many
    // parts there are at most. Without the first two, nothing is known of its parts. A font has its parts in an order
    // of their own; its attributes are style, variant, weight, size, family and, where there is one, line height.
    std::span<CatalogueEntry const* const> longhands{};
    std::span<std::string_view const> ownWords{};
    std::uint8_t mostParts = 0;
    bool isFont = false;

    bool isForEveryElement() const { return elements.front() == "*"; }
    // The value type; null when the attribute is not typed.
    XMLATTR_API AttributeType const* type() const noexcept;
};

// The rows. Any thread may look one up; nothing is allocated.
class XMLATTR_API Catalogue {
public:
    // Every row: the vocabularies one after the other, each sorted by attribute.
    static std::span<CatalogueEntry const> entries() noexcept;

    // The row of an attribute on an element, by local names: one that names the element before the one for every
    // element. Null when the vocabulary has no such attribute. Takes constant time.
    static CatalogueEntry const* find(Vocabulary vocabulary, std::string_view element,
                                      std::string_view attribute) noexcept;

    // The rows of an attribute, that for every element first; none when the vocabulary has no such attribute.
    static std::span<CatalogueEntry const> rowsOf(Vocabulary vocabulary, std::string_view attribute) noexcept;

    // The vocabulary of a namespace, for the two that the catalogue has.
    static std::optional<Vocabulary> vocabularyOf(std::string_view namespaceName) noexcept;
    static std::string_view namespaceOf(Vocabulary vocabulary) noexcept;
    // "XSL-FO 1.1" and "SVG 1.1".
    static std::string_view recommendation(Vocabulary vocabulary) noexcept;
    // "fo" and "svg"; "typed", "shorthand", "identifier", "text" and "none".
    static std::string_view name(Vocabulary vocabulary) noexcept;
    static std::string_view name(AttributeKind kind) noexcept;
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
