// Whether a text is legal on an attribute, and what is wrong where it is not: by the value type that reads the attribute
// and by what the recommendation allows beside it.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/core/Export.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Xml {

enum class Verdict : std::uint8_t {
    Read,       // the value type reads the text, or a part of it in a shorthand
    PassedOver, // legal, but the formatter's business and not the value type's: "inherit", an expression of XSL-FO
    FreeText,   // a name, a reference or free text: no text is refused
    NotCovered, // nothing is known to judge by
    Refused
};

// A verdict and its reason.
struct Judgement {
    Verdict verdict = Verdict::NotCovered;
    // Of a refused shorthand: the part that is wrong, a slice of the judged text. Empty: the whole is.
    std::u16string_view part{};
    // Of a refusal: the value types that were asked, none of which reads the part or the whole.
    std::vector<AttributeType const*> tried{};
    // Of a refusal where no value type was asked: what is wrong with the text, "is empty".
    std::string problem{};
};

// What the text is the value of: an attribute, or a property in a style attribute, where words have any case.
enum class Notation : std::uint8_t { Attribute, Declaration };

// Takes time linear in the text; allocates for lists, shorthands and refusals only; throws nothing but bad_alloc.
[[nodiscard]] XMLATTR_API Judgement judge(CatalogueEntry const& entry, std::u16string_view text,
                                          Notation notation = Notation::Attribute);

// The same by local names, of which Catalogue.h tells more. NotCovered when the vocabulary has no such attribute, or
// when the attribute is no property and so may not be declared.
[[nodiscard]] XMLATTR_API Judgement judge(Vocabulary vocabulary, std::string_view element, std::string_view attribute,
                                          std::u16string_view text, Notation notation = Notation::Attribute);

} // namespace Xml
