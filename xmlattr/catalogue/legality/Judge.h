// Whether a text is legal on an attribute and read as it is written: by the recommendation's grammar of the attribute
// and by the value type that reads it. What to say of a text that is not, and what to write instead, is in Advice.h.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/core/Export.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Xml {

// How a text stands on its attribute.
enum class Verdict : std::uint8_t {
    Read,       // legal, and the value type holds what it means; in a shorthand, of one part at least
    PassedOver, // legal, but the formatter's business and no value type's: "inherit", an expression of XSL-FO
    FreeText,   // a name, a reference or free text, as the recommendation allows it
    Misread,    // legal, but the value type holds something else, or refuses what it reads in another text
    Lenient,    // not legal, but the value type takes it
    Refused,    // not legal, and no value type takes it
    NotCovered  // nothing is known to judge by
};

// Whether the verdict is one to report.
constexpr bool isFault(Verdict verdict) {
    return verdict == Verdict::Misread || verdict == Verdict::Lenient || verdict == Verdict::Refused;
}

// A verdict and its reason.
struct Judgement {
    Verdict verdict = Verdict::NotCovered;
    // Of a fault: what is wrong or held otherwise, a slice of the judged text. Null when that is the whole text, empty
    // where something is missing.
    std::u16string_view part{};
    // Of a refused shorthand: later parts that are wrong too.
    std::vector<std::u16string_view> otherParts{};
    // Of a refused text, or its part: the value types that refused it. Of a misread or lenient one: the type that
    // holds it.
    std::vector<AttributeType const*> tried{};
    // Of a fault: what is wrong, where more can be said than that the value is not legal: "is empty", "expected a
    // number". Else empty.
    std::string problem{};
    // Of a misread list: what is held for the part. Of a list that is not legal: how much of it is held, "2 points".
    std::string held{};
    // Of a lenient or refused text: the newer recommendation that has it, "SVG 2" or "CSS 3"; empty when none has.
    std::string_view newer{};
    // Of a lenient or refused text: whether only the range of a number makes it illegal, and whether that number is
    // negative.
    bool isOutOfRange = false, isNegative = false;
};

// What the text is the value of: an attribute, or a property in a style attribute, where words have any case.
enum class Notation : std::uint8_t { Attribute, Declaration };

// White space around the text is no fault, even where the value type takes the text only without it. A value type may
// warn of a colour through Core::Log. Takes time linear in the text; allocates for lists, shorthands and faults only;
// throws nothing but bad_alloc.
[[nodiscard]] XMLATTR_API Judgement judge(CatalogueEntry const& entry, std::u16string_view text,
                                          Notation notation = Notation::Attribute);

// The same by local names, as Catalogue::find takes them. NotCovered when the vocabulary has no such attribute, or when
// a declaration is asked for and the attribute is no property.
[[nodiscard]] XMLATTR_API Judgement judge(Vocabulary vocabulary, std::string_view element, std::string_view attribute,
                                          std::u16string_view text, Notation notation = Notation::Attribute);

} // namespace Xml
