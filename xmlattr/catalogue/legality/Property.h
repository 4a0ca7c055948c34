// An attribute of the catalogue together with the value type that reads it.
#pragma once

#include "xmlattr/catalogue/types/AttributeTypes.h"

#include "xmlattr/catalogue/Catalogue.h"

#include <string>
#include <string_view>
#include <vector>

namespace Xml {

enum class Verdict {
    Checked,    // the value type reads the text
    PassedOver, // legal, but the formatter's business and not the type's
    NotCovered, // there is no value type for it
    Refused
};

// A verdict and what it is about.
struct Judgement {
    Verdict verdict;
    // Of a refusal: the types none of which reads the text, or the part of it that is wrong. No
    // types: `problem` says what is wrong with the whole.
    std::string part;
    std::vector<AttributeType const*> types;
    std::string problem;
};

struct Property {
    CatalogueEntry const* entry;
    AttributeType const* type; // null when the row has none

    // A long text can give many times its memory.
    bool isList() const;
    Verdict judge(std::u16string_view text) const;
};

// Null when the vocabulary has no such attribute.
Property const* findProperty(Vocabulary vocabulary, std::string_view element, std::string_view attribute);

} // namespace Xml
