// What a value type makes of texts: everything that the reference says of one is tried when the page is made.
#pragma once

#include "xmlattr/catalogue/AttributeType.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Reference {

// What is seen of a value.
struct State {
    std::string prints;
    std::vector<Xml::Part> parts;
    bool throws = false; // when it is printed

    bool operator==(State const& other) const;
};

State stateOf(Xml::AnyAttribute const& attribute);

// In Markdown: the parts, "pixels `2`, unit `pt`", and what is printed.
std::string partsOf(State const& state);
std::string printOf(State const& state);

struct Trial {
    std::u16string text;
    bool accepted = false;
    bool isEqual = false; // to its own text
    State state;          // also of a refused text, read into a fresh value
};

// Reads the texts one by one into fresh values.
std::vector<Trial> tryTexts(Xml::AttributeType const& type, std::span<std::u16string const> texts);

// The texts that show what a type reads and refuses: its words unless there are too many, its examples, and those that
// stand in tables for its family, for itself and for every type.
std::vector<std::u16string> textsFor(Xml::AttributeType const& type, std::string_view family);

enum class CaseRule { NoWords, Exact, Any, Mixed };

// Whether the words of the type are read in any case as they are in their own.
CaseRule caseRuleOf(Xml::AttributeType const& type);

// A refused text that changed the value that an accepted one had given.
struct Change {
    std::u16string before, refused;
    State state;
};

// At most one for each refused text.
std::vector<Change> changesByRefusal(Xml::AttributeType const& type, std::span<Trial const> trials);

} // namespace Reference
