// What is wrong with an attribute of a document.
#pragma once

#include "xml/RawTag.h"
#include "xmlattr/catalogue/legality/Judge.h"

#include <array>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

enum class Fault : std::uint8_t {
    BadValue,         // neither legal nor taken by the value type
    BadWord,          // not legal, on an attribute without a value type
    Misread,          // legal, but the value type holds something else
    Lenient,          // not legal, but the value type takes it
    Negative,         // a negative number where the recommendation forbids it
    NewerValue,       // a value of a newer recommendation
    UnknownAttribute, // or property
    UnknownElement,
    MisplacedAttribute, // on an element that does not have it
    DuplicateId,
    DanglingReference,
    // Told on request.
    PassedOver, // legal, but no value type reads it
    NotCovered  // nothing judges it
};

enum class Severity : std::uint8_t { Error, Warning, Note };

// "error", "warning" or "note".
std::string_view wordOf(Severity severity);

struct FaultKind {
    Fault fault;
    std::string_view id; // in messages, and for --explain
    Severity severity;
    std::string_view explanation;
};

std::span<FaultKind const> faultKinds();
FaultKind const& kindOf(Fault fault);

// How many findings there are of each kind.
using FaultCounts = std::map<Fault, std::uint64_t>;

struct Finding {
    Fault fault{};
    Place place;
    std::string element;   // as the document names it
    std::string attribute; // as the catalogue writes it; of a declaration the property; empty for an element
    std::string text;      // of the attribute
    Excerpt source;        // the value as the document writes it; of a name that is wrong the name

    // Of a value, in UTF-8. Empty where they do not apply.
    std::string part;                    // of the text: what is wrong, or held otherwise
    std::vector<std::string> otherParts; // after it that are wrong too
    std::string problem;                 // what is wrong with it
    std::string held;                    // what the value type makes of it
    bool isTaken = false;                // whether it takes the text at all
    std::string expected;                // what is legal
    std::string newer;                   // the recommendation that has it
    std::string replacement;             // the whole text to write instead; of a name the name
    bool isExact = false;                // whether that means the same; else it is what the author may have wanted
    // The range of the text, in bytes, that the replacement changes, or that is wrong.
    std::size_t offset = 0, length = 0;

    // Of a value in a tag: the number of its attribute, and how many bytes of that precede the text.
    std::size_t number = 0, textOffset = 0;

    // The row of the catalogue that the value was judged by, and how it is written; null where none was.
    Xml::CatalogueEntry const* entry = nullptr;
    Xml::Notation notation = Xml::Notation::Attribute;

    // In one line, without the place.
    std::string message() const;
    // Id, element, attribute and text: findings are equal where these are.
    std::array<std::string_view, 4> identity() const;

private:
    std::string listOfParts() const;
    std::string rejection() const;
};

} // namespace Command
