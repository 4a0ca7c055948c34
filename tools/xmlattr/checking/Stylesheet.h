// What an XSLT stylesheet says of the elements and attributes that it makes.
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

// An element that an xsl:element makes.
struct MadeElement {
    Xml::Vocabulary vocabulary;
    std::string_view local;
    std::size_t number; // of the attribute of xsl:element that names it
};

// Nothing for another element, or when the name is computed or of neither vocabulary.
std::optional<MadeElement> elementMadeBy(XmlElement const& element);

// An attribute that an xsl:attribute element makes of the text that it holds.
struct MadeAttribute {
    Xml::Vocabulary vocabulary;
    std::string element; // local name; empty when the stylesheet does not tell, as in an xsl:attribute-set
    std::string named;   // as the document names it; when it does not tell, the xsl:attribute-set or the xsl:attribute
    std::string attribute;         // as the catalogue writes it: "xml:lang"
    bool hasTextTemplates = false; // "{...}" in the text is an expression
};

// Follows the elements of a document in their order.
class Stylesheet {
public:
    void startElement(XmlElement const& element, XmlHandler::Tag& tag);

    // What the xsl:attribute makes in which the element at hand stands, or which it is. Nothing when there is none,
    // when its name is computed or of neither vocabulary, or when it selects its value.
    std::optional<MadeAttribute> const& made() const { return attribute; }
    // Whether the element at hand is that xsl:attribute.
    bool isMade(XmlElement const& element) const { return attribute && element.depth == attributeDepth; }

private:
    // What attributes are made for: an element of the result, literal or made by xsl:element, or an xsl:attribute-set.
    struct Owner {
        int depth;
        bool isSet;
        std::optional<Xml::Vocabulary> vocabulary{};
        std::string local{}, named{}; // the first is empty when it is computed
    };
    struct Expansion {
        int depth;
        bool isOn;
    };

    void noteExpansion(XmlElement const& element);
    bool hasTextTemplates() const { return !expansions.empty() && expansions.back().isOn; }
    std::optional<MadeAttribute> makes(XmlElement const& element, XmlHandler::Tag& tag) const;

    // That enclose the element at hand.
    std::vector<Owner> owners;
    std::vector<Expansion> expansions; // each expand-text
    std::optional<MadeAttribute> attribute;
    int attributeDepth = 0;
};

} // namespace Command
