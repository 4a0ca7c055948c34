// What an XSLT stylesheet says of the attributes that it makes.
#pragma once

#include "xml/XmlReader.h"
#include "xmlattr/catalogue/Catalogue.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

// Whether an attribute value template has an expression in it, so that its text is known only when the
// stylesheet runs: a "{" that no other one follows.
bool isTemplate(std::string_view text);

// The text that a template without expressions stands for: "{{" is "{", "}}" is "}".
std::string templateText(std::string_view text);

// An attribute that an xsl:attribute element makes.
struct MadeAttribute {
    Xml::Vocabulary vocabulary;
    std::string element;   // local name; empty when the stylesheet does not tell, as in an xsl:attribute-set
    std::string attribute; // as the catalogue writes it: "xml:lang"
};

// Follows the elements of a document in their order.
class Stylesheet {
public:
    void startElement(XmlElement const& element);

    // What the element at hand makes; nothing when it is no xsl:attribute, or when its name is computed or of
    // neither vocabulary.
    std::optional<MadeAttribute> made(XmlElement const& element) const;

private:
    // An element of the result, literal or made by xsl:element.
    struct Result {
        int depth;
        std::optional<Xml::Vocabulary> vocabulary;
        std::string name; // empty when it is computed
    };

    std::vector<Result> results; // that enclose the element at hand
};

} // namespace Command
