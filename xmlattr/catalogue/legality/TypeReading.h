// A text read by the recommendation and by the value type of its attribute, side by side.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/catalogue/grammar/Meaning.h"
#include "xmlattr/catalogue/grammar/SvgLists.h"

#include <optional>
#include <string>
#include <string_view>

namespace Xml {

struct TypeReading {
    bool isAccepted = false; // by the value type
    // Whether the text is legal, and whether what an accepting type holds is what the text means. Its places are
    // those of lists; of every other value the whole text is meant.
    SvgReading reading;

    bool isLegal() const { return reading.isLegal(); }
    bool isReadAsWritten() const { return isAccepted && reading.outcome == SvgReading::Outcome::Same; }
};

// The entry is one with a value type.
TypeReading readTyped(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text);

// A text with the same meaning that the value type reads as it is written; nothing where none is known.
std::optional<std::u16string> rewriteTyped(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text);

// What the type, which has no printer, holds after reading the text: "0.5", "12pt". Empty where there is nothing to
// tell.
std::u16string heldWithoutPrinter(AttributeType const& type, std::u16string_view text);

// What the items of a list may be by its grammar, which has nothing but one kind of number or length, once or often.
SvgListRule listRuleOf(Grammar const& grammar);

} // namespace Xml
